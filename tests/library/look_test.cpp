#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace zilvo {

namespace {

using platform::Bitmap;
using platform::FontLook;
using platform::Rgb;
using platform::ShapeStyle;
using platform::TextRun;
using platform::TwipsPerPixel;

Rectangle common(const Rectangle& one, const Rectangle& other) {
    const Single left = std::max(one.left, other.left);
    const Single top = std::max(one.top, other.top);
    return {left, top, std::min(one.right(), other.right()) - left, std::min(one.bottom(), other.bottom()) - top};
}

/// Draws rectangles and pictures pixel by pixel, and remembers the rest with the area that it was clipped to; all in
/// twips from the control's corner.
class Canvas final : public Painter {
public:
    explicit Canvas(ControlHost& host) { host.paint(*this); }

    struct Drawn {
        Rectangle area;
        Rectangle clip;
    };
    std::vector<Drawn> areas;  ///< of rectangles, pictures and entered areas
    std::vector<Drawn> texts;  ///< from the top of the capitals to the rule under an access key
    std::vector<Drawn> dotted; ///< focus frames
    std::vector<Drawn> pictures;

    Rgb at(Single x, Single y) const { return pixels_.at({pixel(x), pixel(y)}); }

    void rectangle(const Rectangle& area, const ShapeStyle& style, Single) override {
        const Drawn drawn = note(area);
        if (style.dotted) dotted.push_back(drawn);
        if (style.fill) fill(drawn, rgbOf(*style.fill));
    }
    void ellipse(const Rectangle&, const ShapeStyle&) override {}
    void polygon(std::span<const Point>, const ShapeStyle&) override {}
    void line(Point, Point, Colour, Single) override {}
    void text(const TextRun& run) override {
        const Single capitals = lineMetrics(run.font).capHeight;
        const Rectangle area{run.origin.x, run.origin.y - capitals, run.width, capitals + 2 * TwipsPerPixel};
        texts.push_back({moved(area), clips_.back()});
    }
    void bitmap(const Bitmap& picture, const Rectangle& area) override {
        fill(pictures.emplace_back(note(area)), pixelOf(picture));
    }
    void enter(const Rectangle& area) override {
        const Drawn drawn = note(area);
        origins_.push_back({drawn.area.left, drawn.area.top});
        clips_.push_back(common(drawn.area, drawn.clip));
    }
    void leave() override {
        origins_.pop_back();
        clips_.pop_back();
    }

private:
    static int pixel(Single twips) { return static_cast<int>(std::floor(twips / TwipsPerPixel)); }
    static Rgb pixelOf(const Bitmap& picture) {
        const auto corner = picture.at(0, 0);
        return {corner.red, corner.green, corner.blue};
    }
    Rectangle moved(const Rectangle& area) const {
        return {area.left + origins_.back().x, area.top + origins_.back().y, area.width, area.height};
    }
    Drawn note(const Rectangle& area) { return areas.emplace_back(Drawn{moved(area), clips_.back()}); }
    void fill(const Drawn& drawn, Rgb colour) {
        const Rectangle seen = common(drawn.area, drawn.clip);
        for (Single y = seen.top; y < seen.bottom(); y += TwipsPerPixel)
            for (Single x = seen.left; x < seen.right(); x += TwipsPerPixel)
                pixels_[{pixel(x), pixel(y)}] = colour;
    }

    std::vector<Point> origins_{{}};
    std::vector<Rectangle> clips_{{-30000, -30000, 60000, 60000}};
    std::map<std::pair<int, int>, Rgb> pixels_;
};

ControlHost& opened(ControlHost& host, const PropertyBag* settings = nullptr) {
    host.open(settings);
    return host;
}

void press(ControlHost& host, StringView key) {
    host.input(*platform::parseKey(key));
}

const MemoryPropertyBag empty;
constexpr Rgb Shadow{128, 128, 128};
constexpr Rgb White{255, 255, 255};

} // namespace

TEST(Look, AllEdgesLieOnWholePixels) {
    for (const ClassEntry& entry : libraryModule().description().classes) {
        if (!entry.identity.isControl()) continue;
        ControlHost host(entry.create(libraryModule()));
        opened(host, &empty);
        host.click(u"cmdSitDown");
        for (const auto& [area, clip] : Canvas(host).areas)
            for (const Single edge : {area.left, area.top, area.right(), area.bottom()})
                EXPECT_EQ(std::fmod(edge, TwipsPerPixel), 0) << toUtf8(entry.identity.name) << " " << edge;
    }
}

TEST(Look, WhatLiesInAPanelLeavesItsBevel) {
    ControlHost boxes(create<paneledSeatBoxes>());
    const Canvas panel(opened(boxes));
    for (Single x = 0; x < 2085; x += TwipsPerPixel)
        EXPECT_EQ(panel.at(x, 1634), Shadow) << x;
    ControlHost decks(create<DeckButtons>());
    decks.open(nullptr, 5700, 660); // ends within "6 Decks", and within the lower row
    const Canvas low(decks);
    for (Single x = 0; x < 5700; x += TwipsPerPixel)
        EXPECT_EQ(low.at(x, 659), Shadow) << x;
    for (Single y = TwipsPerPixel; y < 660; y += TwipsPerPixel)
        EXPECT_EQ(low.at(5699, y), Shadow) << y;
}

TEST(Look, ARibbonsBevelShowsAllRoundItsPictureWhichMovesWhenPressed) {
    ControlHost cards(create<GamingCardSelection>());
    const Canvas raised(opened(cards));
    const Rectangle shown = raised.pictures[0].clip; // of the first ribbon, 510 twips wide at 225
    EXPECT_EQ(shown.left, 225 + 2 * TwipsPerPixel);
    EXPECT_EQ(shown.width, 510 - 4 * TwipsPerPixel);
    cards.click(u"GamingCardButtons", 1);
    const Canvas pressed(cards);
    EXPECT_EQ(pressed.pictures[0].area.left, raised.pictures[0].area.left + TwipsPerPixel);
    EXPECT_EQ(pressed.pictures[1].area.left, raised.pictures[1].area.left);
}

TEST(Look, CaptionsAndMarksStayInsideTheirWidgets) {
    ControlHost ok(create<verticalOK>());
    press(opened(ok), u"Tab");
    const Canvas small(ok);
    ASSERT_EQ(small.dotted.size(), 1U);
    const Rectangle frame = small.dotted.front().area;
    const Rectangle seen = common(small.texts.front().area, small.texts.front().clip);
    EXPECT_TRUE(frame.left < seen.left && seen.right() < frame.right()) << "the frame is not drawn through the letters";

    ControlHost sit(create<SitDownButton>());
    opened(sit, &empty);
    sit.click(u"cmdSitDown");
    for (const auto& [area, clip] : Canvas(sit).texts)
        if (clip.height == 180) { // a seat's
            EXPECT_GE(area.top, clip.top);
            EXPECT_LE(area.bottom(), clip.bottom()) << "with the rule under the access key";
        }

    ControlHost letter(create<LetterButton>());
    opened(letter);
    for (const StringView wide : {u"W", u"g", u"@"}) {
        letter.put(u"Letter", wide);
        const auto drawn = Canvas(letter).texts.front();
        EXPECT_TRUE(drawn.area.left >= drawn.clip.left && drawn.area.right() <= drawn.clip.right()) << toUtf8(wide);
        EXPECT_LE(drawn.area.bottom() + 4 * TwipsPerPixel, drawn.clip.bottom()) << "and what is below the line";
    }
}

TEST(Look, APopupAndItsSubmenuOpenToTheLeftWhereTheyDoNotFit) {
    ControlHost decks(create<DeckButtons>());
    opened(decks).input(platform::input::PointerDown{{8000, 800}, platform::input::RightButton});
    press(decks, u"Down"), press(decks, u"Right");
    Single bottom = 0;
    for (const auto& [area, clip] : Canvas(decks).areas) {
        EXPECT_LE(area.right(), 8115);
        bottom = std::max(bottom, area.bottom());
    }
    EXPECT_GT(bottom, 3000) << "the submenu is open";
}

TEST(Look, AFocusWithoutACaptionShowsInTheMark) {
    ControlHost cards(create<GamingCardSelection>());
    opened(cards);
    for (int i = 0; i < 5; ++i)
        press(cards, u"Tab"); // three ribbons, two boxes
    const auto frames = Canvas(cards).dotted;
    ASSERT_EQ(frames.size(), 1U);
    const Rectangle shown = common(frames.front().area, frames.front().clip);
    EXPECT_TRUE(shown.width > 5 * TwipsPerPixel && shown.height > 5 * TwipsPerPixel);
}

TEST(Look, TheFocusOfALowSpinButtonIsDrawnRoundItsArrows) {
    ControlHost counter(create<SpinCounter>());
    counter.open(nullptr, 1500, 360);
    press(counter, u"Tab");
    for (const auto& [frame, clip] : Canvas(counter).dotted)
        EXPECT_EQ(frame.height, 10 * TwipsPerPixel);
}

TEST(Look, ASeatsMarkerCoversItsDigitAndNeighboursKeepTheirs) {
    for (Long seat = 1; seat <= 10; ++seat) {
        ControlHost host(create<SeatCheckBoxes>());
        opened(host);
        host.put(u"NumberOfSeatsAllowed", Long{10});
        Variant own = seat;
        host.call(u"MySeatIS", {&own, 1});
        const Widget& marker = *host.control().surface().find(u"buttonSeatOwner");
        const Widget& box = *host.control().surface().find(u"checkSeatSelected", static_cast<Integer>(seat));
        for (const auto& [area, clip] : Canvas(host).texts)
            if (clip.left == box.bounds().left && clip.top == box.bounds().top) {
                EXPECT_GE(area.left + TwipsPerPixel, marker.bounds().left) << "no stub is left of seat " << seat;
            }
    }
    ControlHost seats(create<SeatCheckBoxes>());
    const Canvas all(opened(seats));
    // The square of box 4 ends a pixel within box 8.
    EXPECT_EQ(all.at(1020, 1100 + 6 * TwipsPerPixel), White);
}

} // namespace zilvo
