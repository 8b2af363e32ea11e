#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/painting/SvgPainter.h"

#include <gtest/gtest.h>

namespace zilvo {

TEST(LetterButton, ShowsTheFirstWholeCharacter) {
    struct Case {
        String given, shown;
        const char* drawn; ///< UTF-8
    };
    const String high(1, char16_t{0xD83C}), low(1, char16_t{0xDCA1});
    const Case cases[] = {
        {u"Queen", u"Q", ">Q<"},
        {u"x", u"x", ">x<"},
        {u"\u00E4pfel", u"\u00E4", ">\u00E4<"},
        {high + low + u"!", high + low, ">\U0001F0A1<"},
        {high, u"\uFFFD", ">\uFFFD<"},
        {high + u"A", u"\uFFFD", ">\uFFFD<"},
        {low + high, u"\uFFFD", ">\uFFFD<"},
        {u"<", u"<", ">&lt;<"},
        {String(), String(), nullptr},
    };
    const auto control = create<LetterButton>();
    ControlHost host(control);
    host.open();
    EXPECT_EQ(control->get_Letter(), u"A");
    for (const Case& tried : cases) {
        host.put(u"Letter", tried.given);
        EXPECT_EQ(control->get_Letter(), tried.shown);
        SvgPainter painter(495, 495);
        host.paint(painter);
        const std::string drawn = painter.document();
        if (tried.drawn)
            EXPECT_NE(drawn.find(tried.drawn), std::string::npos) << drawn;
        else
            EXPECT_EQ(drawn.find("<text"), std::string::npos) << drawn;
    }
    EXPECT_TRUE(host.changes().empty());
    EXPECT_TRUE(LetterButton::Description.events.empty());
}

TEST(LetterButton, ThePositionIsPixels) {
    const auto control = create<LetterButton>();
    ControlHost host(control);
    host.open();
    EXPECT_EQ(control->get_LetterLeft(), 6);
    EXPECT_EQ(control->get_LetterTop(), 0);
    Widget& label = *control->surface().find(u"labelLetter");
    for (const Integer pixels : {Integer{10}, Integer{-500}, Integer{32767}, Integer{-32768}}) {
        control->put_LetterLeft(pixels);
        control->put_LetterTop(pixels);
        EXPECT_EQ(control->get_LetterLeft(), pixels);
        EXPECT_EQ(control->get_LetterTop(), pixels);
        EXPECT_EQ(label.bounds().left, 15.0F * pixels) << "twips";
    }
    label.put_Left(2.5F);
    label.put_Top(-3.5F);
    EXPECT_EQ(control->get_LetterLeft(), 2) << "halves go to the even neighbour";
    EXPECT_EQ(control->get_LetterTop(), -4);
    label.put_Left(40000);
    Variant result;
    EXPECT_EQ(control->Invoke(u"LetterLeft", Access::Get, {}, &result), Status::Overflow);
    Variant tooFar = Long{40000};
    EXPECT_EQ(control->Invoke(u"LetterTop", Access::Put, {&tooFar, 1}, nullptr), Status::Overflow);
    EXPECT_EQ(control->get_LetterTop(), -4);
}

} // namespace zilvo
