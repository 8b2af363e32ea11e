#include "zilvo/platform/painting/TextLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace zilvo::platform {
namespace {

constexpr FontLook Plain{u"Arial", 8.25F, 400, false, false, false};

/// Every character is 100 twips wide, every line 210 high.
class Typewriter final : public Painter {
public:
    struct Run {
        String text;
        Point origin;
        Colour colour;
        std::size_t underlined;
    };
    std::vector<Run> runs;
    mutable std::size_t measured = 0;

    void rectangle(const Rectangle&, const ShapeStyle&, Single) override {}
    void ellipse(const Rectangle&, const ShapeStyle&) override {}
    void polygon(std::span<const Point>, const ShapeStyle&) override {}
    void line(Point, Point, Colour, Single) override {}
    void text(const TextRun& run) override {
        runs.push_back({String(run.text), run.origin, run.colour, run.underlined});
    }
    void bitmap(const Bitmap&, const Rectangle&) override {}
    void enter(const Rectangle&) override {}
    void leave() override {}
    Single measure(StringView text, const FontLook&) const override {
        measured += text.size();
        return static_cast<Single>(text.size() * 100);
    }
    LineMetrics lineMetrics(const FontLook&) const override { return {.height = 210, .ascent = 150, .capHeight = 90}; }

    std::vector<String> lines() const {
        std::vector<String> all;
        for (const Run& run : runs)
            all.push_back(run.text);
        return all;
    }
};

CaptionLook captioned(StringView designed, bool wraps = true) {
    return {.designed = designed, .font = Plain, .colour = {}, .wraps = wraps};
}

using Lines = std::vector<String>;

Lines linesOf(StringView designed, Single width, bool wraps = true) {
    Typewriter painter;
    paintCaption(painter, {0, 0, width, 3000}, captioned(designed, wraps));
    return painter.lines();
}

TEST(TextLayout, TakesNoLongerForAWideLineThanForItsText) {
    String text;
    while (text.size() < 65536)
        text += u"ab c ";
    const auto length = static_cast<Single>(text.size() * 100);
    for (const Single width : {length, length - 500, length / 2, length / 100, Single{0}}) {
        Typewriter painter;
        paintCaption(painter, {0, 0, width, 3000}, captioned(text));
        EXPECT_LT(painter.measured, 32 * text.size()) << width;
    }
}

TEST(TextLayout, BreaksAtBlanksOnlyWhereALineIsFull) {
    EXPECT_EQ(linesOf(u"aa bb cc", 500), (Lines{u"aa bb", u"cc"}));
    EXPECT_EQ(linesOf(u"aa bb cc", 499.75F), (Lines{u"aa bb", u"cc"})) << "rounding must not break a line";
    EXPECT_EQ(linesOf(u"aa  b   cc", 500), (Lines{u"aa  b", u"cc"}));
    EXPECT_EQ(linesOf(u"enormous a", 300), (Lines{u"enormous", u"a"}));
    EXPECT_EQ(linesOf(u"a enormous", 300), (Lines{u"a", u"enormous"}));
    EXPECT_EQ(linesOf(u"aa bb\r\ncc\n\ndd", 900), (Lines{u"aa bb", u"cc", u"dd"}));
    EXPECT_EQ(linesOf(u"aa bb\ncc", 100, false), (Lines{u"aa bb", u"cc"}));
}

TEST(TextLayout, BlanksAroundAnUnbrokenCaptionCount) {
    const Typewriter painter;
    EXPECT_EQ(measureCaption(painter, {0, 0, 1000, 300}, captioned(u"  OK   ")).width, 700);
    EXPECT_EQ(measureCaption(painter, {0, 0, 100, 300}, captioned(u"  OK   ", false)).width, 700);
    EXPECT_EQ(measureCaption(painter, {0, 0, 1000, 300}, captioned(u"")).height, 210);
}

TEST(TextLayout, TheAccessKeyIsFoundInItsLine) {
    Typewriter painter;
    paintCaption(painter, {0, 0, 300, 3000}, captioned(u"a&&b c&d ef"));
    ASSERT_EQ(painter.lines(), (Lines{u"a&b", u"cd", u"ef"}));
    EXPECT_EQ(painter.runs[0].underlined, String::npos);
    EXPECT_EQ(painter.runs[1].underlined, 1U);
    EXPECT_EQ(painter.runs[2].underlined, String::npos);
}

TEST(TextLayout, AlignsEachLineAndGivesTheAreaOfAll) {
    CaptionLook look = captioned(u"aaaa bb");
    look.across = Alignment::Far;
    look.down = Alignment::Far;
    Typewriter painter;
    const Rectangle area{150, 300, 450, 1500};
    const Rectangle taken = paintCaption(painter, area, look);
    ASSERT_EQ(painter.runs.size(), 2U);
    EXPECT_EQ(painter.runs[0].origin.x, 200);
    EXPECT_EQ(painter.runs[1].origin.x, 400);
    EXPECT_EQ(painter.runs[0].origin.y, 1800 - 2 * 210 + 150);
    EXPECT_EQ(taken.left, 200);
    EXPECT_EQ(taken.right(), 600);
    EXPECT_EQ(taken.bottom(), 1800);
    EXPECT_EQ(taken.height, 2 * 210);
}

TEST(TextLayout, OfALineHigherThanItsRoomTheCapitalsAreInTheMiddle) {
    Typewriter painter;
    paintCaption(painter, {0, 0, 1000, 180}, captioned(u"OK"));
    EXPECT_EQ(painter.runs[0].origin.y, 30 + 90) << "with two pixels for the rule under an access key";
}

TEST(TextLayout, GreyedTextIsEmbossedInColoursOfTheScheme) {
    CaptionLook look = captioned(u"aa bb");
    look.greyed = true;
    Typewriter painter;
    paintCaption(painter, {0, 0, 200, 600}, look);
    ASSERT_EQ(painter.lines(), (Lines{u"aa", u"bb", u"aa", u"bb"}));
    EXPECT_EQ(painter.runs[0].colour, colours::ButtonHighlight);
    EXPECT_EQ(painter.runs[2].colour, colours::GreyText);
    EXPECT_EQ(painter.runs[0].origin.x, painter.runs[2].origin.x + 15);
    EXPECT_EQ(painter.runs[0].origin.y, painter.runs[2].origin.y + 15);
}

TEST(FontMetrics, PairsCountOnceAndFamiliesDiffer) {
    const auto width = [](StringView text, StringView family, Integer weight) {
        return textWidth(text, {family, 10, weight, false, false, false});
    };
    EXPECT_FLOAT_EQ(width(u"Hi", u"Arial", 400), 0.944F * 200);
    EXPECT_FLOAT_EQ(width(u"\U0001F0A1", u"Arial", 400), 0.6F * 200);
    EXPECT_FLOAT_EQ(width(u"\xD83C", u"Arial", 400), 0.6F * 200);
    EXPECT_GT(width(u"Hi", u"Arial", 700), width(u"Hi", u"Arial", 400));
    EXPECT_EQ(width(u"Hi", u"arial black", 700), width(u"Hi", u"Arial Black", 400));
}

} // namespace
} // namespace zilvo::platform
