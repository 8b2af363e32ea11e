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

} // namespace zilvo
