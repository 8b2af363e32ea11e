#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

#include <gtest/gtest.h>

namespace zilvo {

namespace {

/// A control that is let go of, with its host, while it raises an event.
template <class T>
struct ShortLived {
    Ref<T> control = create<T>();
    std::optional<ControlHost> host{std::in_place, control};
    T& alive = *control;

    ShortLived() { host->open(); }
    void letGo() {
        host.reset();
        control = nullptr;
    }
    void click(StringView name, Integer index) {
        alive.Input(input::Act{*alive.surface().find(name, index)}, nullptr, nullptr);
    }
};

/// What a control saves after a loading that failed at the key that is no text.
template <class T>
std::string savedAfterFailure(const MemoryPropertyBag& settings) {
    ControlHost host(create<T>());
    EXPECT_THROW(host.open(&settings), Failure);
    MemoryPropertyBag saved;
    host.save(saved);
    std::string all;
    for (const auto& setting : saved.settings())
        all += toUtf8(setting.name) + "=" + toUtf8(toString(setting.value)) + " ";
    return all;
}

} // namespace

TEST(Buttons, AHandlerMayLetGoOfTheControl) {
    {
        ShortLived<GamingCardSelection> palette; // it has more to do after the event
        const auto connection = palette.alive.CardsToTableClicked.attach([&] { palette.letGo(); });
        palette.click(u"GamingCardButtons", 2);
        EXPECT_EQ(libraryModule().liveObjects(), 0U);
    }
    for (const bool clicked : {false, true}) {
        ShortLived<PlusMinusButton> button;
        std::vector<Long> heard;
        const auto connection = button.alive.WasClicked.attach([&](Long& WhichButton) {
            heard.push_back(WhichButton);
            if (heard.size() == 1) button.alive.RestartYourself();
            button.letGo();
        });
        if (clicked)
            button.click(u"ImagePlusMinus", 2);
        else
            button.alive.RestartYourself();
        EXPECT_EQ(heard, (std::vector<Long>{clicked ? 3 : 2, 2}));
        EXPECT_EQ(libraryModule().liveObjects(), 0U);
    }
}

TEST(Buttons, WhatWasReadBeforeALoadingFailedStays) {
    MemoryPropertyBag settings;
    settings.set(u"Default", false);
    settings.set(u"Cancel", false);
    settings.set(u"OKToolTipText", Integer{42});
    settings.set(u"CancelToolTipText", StdFont::make({}));
    settings.set(u"StopButtonToolTip", u"Halt");
    settings.set(u"StartButtonToolTip", StdFont::make({}));
    EXPECT_EQ(savedAfterFailure<ssOKCancel>(settings),
              "Default=False Cancel=False ItalicOK=True ItalicCancel=True OKToolTipText=42 ");
    EXPECT_EQ(savedAfterFailure<StartStopButtons>(settings), "StartButtonToolTip= StopButtonToolTip=Halt ");
}

TEST(VerticalOK, RefusesNoFontAndItsFontOutlivesIt) {
    FontRef font;
    {
        const auto button = create<verticalOK>();
        font = button->get_Font();
        EXPECT_THROW(button->put_Font(nullptr), Failure);
        EXPECT_EQ(button->get_Font(), font);
    }
    font->put_Size(20);
    EXPECT_EQ(font->get_Name(), u"Arial Black");
}

TEST(LetterButton, ShowsHalfACharacterAsAWholeOne) {
    const String high(1, char16_t{0xD83C}), low(1, char16_t{0xDCA1});
    const auto marker = create<LetterButton>();
    for (const String& given : {high, high + u"A", low + high}) {
        marker->put_Letter(given);
        EXPECT_EQ(marker->get_Letter(), u"\uFFFD");
    }
}

TEST(Pictures, DrawnOnceAndOnBothGroundsTheSame) {
    EXPECT_EQ(plusPicture().deviceIndependent().size(), 40U + 92U * 30U) << "rows of 90 bytes, padded";
    EXPECT_NE(plusPicture().at(15, 9), minusPicture().at(15, 9));
    for (const auto picture : {discardTrayPicture, tablePicture, shoePicture}) {
        const Bitmap& white = picture(Ground::White);
        const Bitmap& yellow = picture(Ground::Yellow);
        EXPECT_EQ(&white, &picture(Ground::White));
        EXPECT_EQ(yellow.at(0, 0), (Bitmap::Pixel{255, 255, 0}));
        for (int at = 0; at < 32 * 32; ++at) { // yellow is white without its blue
            const Bitmap::Pixel one = white.at(at % 32, at / 32), other = yellow.at(at % 32, at / 32);
            EXPECT_TRUE(one.red == other.red && one.green == other.green && one.blue >= other.blue);
        }
    }
}

} // namespace zilvo
