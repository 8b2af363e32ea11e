#include "tests/support/gallery/GalleryHost.h"

#include <set>

namespace zilvo {
namespace {

/// Notes what it is asked to draw, and the stated colours among those it is given. Its lines of text are 40 pixels
/// high.
class Recorder final : public Painter {
public:
    std::set<std::string> drawn;
    std::set<std::uint32_t> stated;
    Rectangle frame;

    void rectangle(const Rectangle&, const ShapeStyle& style, Single) override { note("rectangle", style); }
    void ellipse(const Rectangle&, const ShapeStyle& style) override { note("ellipse", style); }
    void polygon(std::span<const Point>, const ShapeStyle& style) override { note("polygon", style); }
    void line(Point, Point, Colour colour, Single) override { note("line", colour); }
    void text(const platform::TextRun& run) override { note("text", run.colour); }
    void bitmap(const platform::Bitmap&, const Rectangle&) override { drawn.insert("bitmap"); }
    void bevel(const Rectangle&, std::span<const platform::BevelLine> lines, std::optional<Colour> face) override {
        note(lines.size() > 1 ? "bevel of a button" : "bevel of a panel", face.value_or(lines[0].upperLeft));
    }
    void roundBevel(const Rectangle&, std::span<const platform::BevelLine>, Colour face) override {
        note("bevel of an option", face);
    }
    void groove(const Rectangle& area, Single, Single) override { frame = area; }
    void focusFrame(const Rectangle&) override { drawn.insert("focus"); }
    void mark(platform::Mark mark, const Rectangle&, Colour colour) override {
        note("mark " + std::to_string(static_cast<int>(mark)), colour);
    }
    void dim(const Rectangle&, Colour ground) override { note("dim", ground); }
    void enter(const Rectangle&) override {}
    void leave() override {}
    platform::LineMetrics lineMetrics(const platform::FontLook&) const override { return {600, 450, 300}; }

private:
    void note(const std::string& what, const platform::ShapeStyle& style) {
        for (const auto& colour : {style.fill, style.stroke})
            if (colour) note(what, *colour);
    }
    void note(const std::string& what, Colour colour) {
        drawn.insert(what);
        if (!colour.isSystem()) stated.insert(colour.value);
    }
};

TEST(WidgetPainting, LeavesSchemeFontsAndTheLinesOfTheLookToThePainter) {
    const GalleryHost g;
    g.put(u"ribCard0", u"Enabled", false);
    g.put(u"chkPick0", u"Value", 1);
    g.focusOn(u"spnCount");
    g.press({800, 200}, platform::input::RightButton); // on the panel: its menu
    Recorder painter;
    g->paint(painter);
    EXPECT_EQ(painter.drawn, (std::set<std::string>{"bevel of a button", "bevel of a panel", "bevel of an option",
                                                    "bitmap", "dim", "ellipse", "focus", "mark 0", "mark 1", "mark 2",
                                                    "mark 3", "mark 4", "rectangle", "text"}));
    EXPECT_EQ(painter.stated, (std::set<std::uint32_t>{0x00FFFFFF, 0x00006000})) << "of lblTable and shpTable";
    EXPECT_EQ(painter.frame.top, 300) << "through the middle of the frame's caption";
}

TEST(WidgetPainting, EachStateOfEachKindLooksDifferent) {
    // Disabled, Hidden, Pressed, Focused, On
    const std::pair<StringView, std::string> cases[] = {
        {u"cmdPush2", "DHPF"},  {u"optChoice2", "DHPFO"}, {u"chkPick0", "DHPFO"}, {u"sscToggle", "DHPFO"},
        {u"ssoSeat1", "DHPFO"}, {u"ribCard0", "DHPFO"},   {u"spnCount", "DHPF"},  {u"panelOptions", "DH"},
        {u"frameChecks", "DH"}, {u"lblTable", "DH"},      {u"imgChip0", "H"},     {u"shpTable", "H"}};
    const std::string usual = GalleryHost().painted();
    for (const auto& [path, states] : cases) {
        std::set<std::string> looks = {usual};
        for (const char state : states) {
            SCOPED_TRACE(toUtf8(path) + " " + state);
            const GalleryHost g;
            if (state == 'D') g.put(path, u"Enabled", false);
            if (state == 'H') g.put(path, u"Visible", false);
            if (state == 'P') g.press(g.pointOf(path, 0.5F, 0.25F));
            if (state == 'F') g.focusOn(path);
            if (state == 'O') g.put(path, u"Value", 1);
            EXPECT_TRUE(looks.insert(g.painted()).second);
            if (state != 'F') continue;
            g.put(path, u"Enabled", false); // then nobody sees that it had the focus
            const GalleryHost disabled;
            disabled.put(path, u"Enabled", false);
            EXPECT_EQ(g.painted(), disabled.painted());
        }
    }
}

TEST(WidgetPainting, AWidePictureIsNoLargeOne) {
    for (const Single width : {1e6F, 1e12F, 3e37F}) {
        const GalleryHost g;
        g.put(u"ribCard0", u"Enabled", false);
        g.put(u"ribCard0", u"Width", width);
        EXPECT_LT(g.painted().size(), 1000000U) << width;
    }
}

TEST(WidgetPainting, EachOtherMemberShowsAndIsPaintedAnewOnce) {
    const std::tuple<StringView, StringView, Variant> cases[] = {
        {u"cmdPush0", u"Default", false},    {u"cmdPush1", u"Caption", u"&Other"},
        {u"cmdPush1", u"Caption", u"Q&uit"}, {u"cmdPush1", u"BackColor", colours::White},
        {u"chkPick0", u"Value", 2},          {u"ssoSeat1", u"Value", true},
        {u"sscToggle", u"Value", true},      {u"lblTable", u"ForeColor", Colour{0x000000FF}},
        {u"frameChecks", u"Caption", u""},   {u"frameChecks", u"Height", 60},
        {u"ribCard0", u"Outline", true},     {u"ribCard0", u"BackColor", colours::White},
        {u"imgChip1", u"Left", 350},         {u"imgChip1", u"Top", 35},
        {u"shpTable", u"Shape", 3},          {u"spnCount", u"Width", 70}};
    for (const auto& [path, member, value] : cases) {
        SCOPED_TRACE(toUtf8(path) + "." + toUtf8(member));
        const GalleryHost g;
        const std::string before = g.painted();
        const auto repaints = g->repaints();
        g.put(path, member, value);
        const bool takesTheMark = path == u"ssoSeat1"; // from another, which is painted anew too
        EXPECT_EQ(g->repaints(), repaints + (takesTheMark ? 2 : 1));
        EXPECT_NE(g.painted(), before);
    }
    std::set<std::string> looks;
    const GalleryHost g;
    g.put(u"imgChip1", u"Left", 364);
    EXPECT_EQ(g->repaints(), 0U) << "it is there already";
    for (Long form = 0; form <= 5; ++form) {
        g.put(u"shpTable", u"Shape", form);
        looks.insert(g.painted());
    }
    for (const StringView half : {u"up", u"down"}) {
        g.press(g.pointOf(u"spnCount", 0.5F, half == u"up" ? 0.1F : 0.9F));
        looks.insert(g.painted());
    }
    EXPECT_EQ(looks.size(), 8U);
}

TEST(WidgetPainting, GoesFromBackToFrontAndPassesOverWhatIsHidden) {
    const GalleryHost g;
    const auto at = [&](const char* what) { return g.painted().find(what); };
    EXPECT_LT(at("#006000"), at(">Table<")) << "the label was created first but lies in front of the shape";
    g[u"shpTable"].bringToFront();
    EXPECT_GT(at("#006000"), at(">Table<"));
    g.put(u"frameChecks", u"Visible", false); // and with it what lies in it
    EXPECT_EQ(at(">Left mark<"), std::string::npos);
    const GalleryHost outer(u"Outer");
    EXPECT_NE(outer.painted().find("Pick "), std::string::npos);
    outer.put(u"smallOne", u"Visible", false);
    EXPECT_EQ(outer.painted().find("Pick "), std::string::npos);
}

TEST(WidgetPainting, APushButtonWithTheKeyboardTakesTheHeavyFrame) {
    const GalleryHost g;
    g.focusOn(u"cmdPush2");
    const std::string defaulted = g.painted();
    g.put(u"cmdPush0", u"Default", false);
    EXPECT_EQ(g.painted(), defaulted) << "the default button has lost its frame already";
}

} // namespace
} // namespace zilvo
