#include "zilvo/platform/painting/SvgPainter.h"

#include "tests/support/WellFormed.h"

#include <gtest/gtest.h>

#include <limits>
#include <locale>
#include <map>
#include <regex>
#include <vector>

namespace zilvo::platform {
namespace {

constexpr FontLook Plain{u"Arial", 8.25F, 400, false, false, false};
using colours::Black;

TEST(SvgPainter, AreasNestAndClose) {
    SvgPainter painter(1500, 750);
    painter.leave(); // one too many closes nothing
    {
        const PaintedArea outer(painter, {15, 30, 300, -15});
        const PaintedArea inner(painter, {7.5F, -30, 150, 150});
        EXPECT_TRUE(isWellFormed(painter.document()));
    }
    painter.rectangle({0, 0, 15, 15}, {.fill = Black, .stroke = {}}, 0);
    const std::string document = painter.document();
    EXPECT_TRUE(isWellFormed(document));
    EXPECT_NE(document.find(R"(width="100" height="50" viewBox="0 0 100 50")"), std::string::npos);
    EXPECT_NE(
        document.find(
            R"(<svg x="1" y="2" width="20" height="0"><svg x="0.5" y="-2" width="10" height="10"></svg></svg><rect)"),
        std::string::npos);
}

TEST(SvgPainter, HostileTextStaysWellFormed) {
    SvgPainter painter(1500, 750);
    String every;
    for (char16_t unit = 0; unit < 0xA0; ++unit)
        every += unit;
    every += u"]]>&amp;<!--\xFFFE\xFFFF\xDC00\xD800";
    FontLook font = Plain;
    font.name = every;
    painter.text({.text = every, .origin = {}, .width = 900, .font = font, .colour = {}, .underlined = 3});
    const std::string document = painter.document();
    EXPECT_TRUE(isWellFormed(document));
    EXPECT_NE(document.find("]]&gt;&amp;amp;&lt;!--\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD<"),
              std::string::npos);
    EXPECT_NE(document.find(R"(\')"), std::string::npos);
    EXPECT_NE(document.find(R"(\\)"), std::string::npos);
}

TEST(SvgPainter, TextStaysWhereItIsAlignedAndItsRuleUnderTheAccessKey) {
    struct Case {
        Alignment align;
        std::size_t underlined;
        const char* place;
        const char* text;
    };
    for (const Case& tried :
         {Case{Alignment::Near, 0, R"( x="10" y="20" textLength="40")",
               R"(<tspan text-decoration="underline">O</tspan>K)"},
          Case{Alignment::Centre, 1, R"( x="30" y="20" text-anchor="middle" textLength)",
               R"(O<tspan text-decoration="underline">K</tspan>)"},
          Case{Alignment::Far, String::npos, R"( x="50" y="20" text-anchor="end" textLength)", ">OK<"}}) {
        SvgPainter painter(1500, 750);
        painter.text({.text = u"OK",
                      .origin = {150, 300},
                      .width = 600,
                      .align = tried.align,
                      .font = Plain,
                      .colour = {},
                      .underlined = tried.underlined});
        EXPECT_NE(painter.document().find(tried.place), std::string::npos) << painter.document();
        EXPECT_NE(painter.document().find(tried.text), std::string::npos) << painter.document();
    }
}

TEST(SvgPainter, LinesAndFramesCoverWholePixels) {
    SvgPainter painter(1500, 750);
    painter.line({150, 30}, {0, 30}, Black, 15);
    painter.line({30, 15}, {30, 45}, Black, 30);
    painter.rectangle({0, 0, 150, 75}, {.fill = {}, .stroke = Black}, 0);
    painter.rectangle({0, 0, 150, 15}, {.fill = {}, .stroke = Black}, 0);
    painter.rectangle({0, 0, 0.75F, 0.75F}, {.fill = Black, .stroke = {}}, 0); // less than a pixel is not nothing
    const std::string document = painter.document();
    EXPECT_TRUE(isWellFormed(document));
    for (const char* place :
         {R"(x="0" y="2" width="10" height="1" fill)", R"(x="2" y="1" width="2" height="2" fill)",
          R"(x="0.5" y="0.5" width="9" height="4" fill="none")", R"(x="0" y="0" width="10" height="1" fill="#000000")",
          R"(width="0.05" height="0.05" fill)"})
        EXPECT_NE(document.find(place), std::string::npos) << place;
}

/// Writes one and a half as "1x5", a thousand as "1y000".
class OddNumbers final : public std::numpunct<char> {
public:
    OddNumbers() : std::numpunct<char>(1) {}

protected:
    char do_decimal_point() const override { return 'x'; }
    char do_thousands_sep() const override { return 'y'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(SvgPainter, OnlySlopesAndCurvesAreSmooth) {
    const auto draws = [](std::span<const Point> corners) {
        SvgPainter painter(1500, 750);
        painter.polygon(corners, {.fill = Black, .stroke = {}});
        return painter.document();
    };
    const std::array<Point, 3> steps{{{0, 0}, {15, 0}, {15, 30}}};
    EXPECT_NE(draws(steps).find(R"(points="0 0 1 0 1 2" shape-rendering="geometricPrecision" fill)"),
              std::string::npos);
    const std::array<Point, 4> square{{{0, 0}, {15, 0}, {15, 30}, {0, 30}}};
    EXPECT_NE(draws(square).find(R"(points="0 0 1 0 1 2 0 2" fill)"), std::string::npos);
}

TEST(SvgPainter, NumbersAreShortFiniteAndOfNoLocale) {
    constexpr Single endless = std::numeric_limits<Single>::infinity();
    constexpr Single none = std::numeric_limits<Single>::quiet_NaN();
    const OddNumbers odd;
    const std::locale before = std::locale::global(std::locale(std::locale(), &odd));
    SvgPainter painter(150000, 22.5F);
    painter.rectangle({-0.01F, 5, 7.5F, 18.75F}, {.fill = Black, .stroke = {}}, 0);
    painter.rectangle({none, -endless, endless, 3e38F}, {.fill = Black, .stroke = Black, .strokeWidth = none}, none);
    painter.line({none, 0}, {endless, 75}, Black, endless);
    painter.text({.text = u"a", .origin = {none, 0}, .width = endless, .font = Plain, .colour = {}, .underlined = 0});
    const std::string document = painter.document();
    std::locale::global(before);
    EXPECT_NE(document.find(R"(width="10000" height="1.5")"), std::string::npos);
    EXPECT_NE(document.find(R"(<rect x="0" y="0.33" width="0.5" height="1.25")"), std::string::npos);
    EXPECT_FALSE(std::regex_search(document, std::regex("[\" ]-?(nan|inf)|\"-0\"|[0-9][xye][0-9]|[0-9]{9}")))
        << document;
}

TEST(SvgPainter, RunsOfABitmapCoverEachPixelOnceInItsColour) {
    Bitmap picture(5, 4, {1, 2, 3});
    for (int i = 0; i < 4; ++i)
        picture.set(i, i, {0xFF, 0, static_cast<std::uint8_t>(i / 2)});
    picture.set(3, 0, {0xFF, 0, 0});
    SvgPainter painter(1500, 750);
    painter.bitmap(picture, {0, 0, 150, 150});
    const std::string document = painter.document();
    EXPECT_TRUE(isWellFormed(document));

    std::map<std::pair<int, int>, std::string> covered;
    const std::regex path(R"re(<path fill="(#[0-9a-f]{6})" d="([^"]*)")re");
    const std::regex run("M([0-9]+) ([0-9]+)h([0-9]+)v1h-([0-9]+)z");
    int paths = 0;
    for (std::sregex_iterator it(document.begin(), document.end(), path), end; it != end; ++it, ++paths) {
        const std::string runs = (*it)[2];
        for (std::sregex_iterator part(runs.begin(), runs.end(), run); part != end; ++part) {
            EXPECT_EQ((*part)[3], (*part)[4]);
            for (int i = 0; i < std::stoi((*part)[3]); ++i)
                EXPECT_TRUE(covered.try_emplace({std::stoi((*part)[1]) + i, std::stoi((*part)[2])}, (*it)[1]).second);
        }
    }
    EXPECT_EQ(paths, 3) << "one for each colour";
    EXPECT_EQ(covered.size(), 20U);
    EXPECT_EQ((covered[{2, 2}]), "#ff0001");
    EXPECT_EQ((covered[{3, 0}]), "#ff0000");
    EXPECT_EQ((covered[{4, 3}]), "#010203");
}

} // namespace
} // namespace zilvo::platform
