#include "tests/support/gallery/GalleryHost.h"

#include "zilvo/platform/hosting/PopupMenu.h"

namespace zilvo {
namespace {

constexpr Point corner{1800, 900}; // on the panel that pops the menu up
constexpr Single Pixel = TwipsPerPixel;

/// In the popped-up menu: a point of its Open, Locked, Ticked, the separator, More.
Point itemAt(int position) {
    constexpr std::array<Single, 5> middles = {12, 31, 50, 64, 78};
    return {corner.x + 30 * Pixel, corner.y + middles.at(static_cast<std::size_t>(position)) * Pixel};
}

/// A gallery whose menu is popped up.
GalleryHost popped() {
    GalleryHost g;
    EXPECT_TRUE(g.press(corner, input::RightButton));
    g.release(corner, input::RightButton);
    EXPECT_EQ(g.heard(), Heard{"PanelPressed(2, 0)"});
    return g;
}

/// Whether a menu is still up: then it takes the Escape that would press the cancel button.
bool isUp(const GalleryHost& g) {
    g.heard();
    g.key(u"Escape");
    return g.heard().empty();
}

TEST(PopUp, IsThatOfTheRightButton) {
    const GalleryHost g;
    EXPECT_EQ(g->control().lastPopup(), nullptr);
    g.press(corner);
    g.release(corner);
    EXPECT_EQ(g->control().lastPopup(), nullptr);
    g.press(corner, input::RightButton);
    EXPECT_EQ(g->control().lastPopup(), &g.widget({u"mnuRoot"}));
    g.key(u"Escape");
    EXPECT_EQ(g->control().lastPopup(), &g.widget({u"mnuRoot"})) << "the last one, open or not";
}

TEST(PopUp, ChoosesWithThePointerOnRelease) {
    struct Case {
        const char* what;
        Point press;
        Point release;
        Heard heard;
        bool staysUp;
    };
    const std::vector<Case> cases = {
        {"an item", itemAt(0), itemAt(0), {"MenuClicked(0)"}, false},
        {"dragged to another", itemAt(0), itemAt(2), {}, true}, // no move in between
        {"a disabled item", itemAt(1), itemAt(1), {}, true},
        {"a separator", itemAt(3), itemAt(3), {}, true},
        {"a submenu", itemAt(4), itemAt(4), {}, true},
        {"released outside", itemAt(0), {0, 0}, {}, true},
        {"outside", {0, 0}, {0, 0}, {}, false}, // where the surface would report a press
        {"outside on a button", {6000, 2400}, {6000, 2400}, {}, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const GalleryHost g = popped();
        EXPECT_TRUE(g.press(c.press));
        EXPECT_EQ(g.heard(), Heard{}) << "nothing before the release";
        g.release(c.release);
        EXPECT_EQ(g.heard(), c.heard);
        EXPECT_EQ(isUp(g), c.staysUp);
    }
    const GalleryHost g = popped();
    g.move(itemAt(0));
    g.release(itemAt(0));
    EXPECT_EQ(g.heard(), Heard{}) << "it was not pressed there";
    g.press(itemAt(0));
    g.move(itemAt(2));
    g.release(itemAt(2));
    EXPECT_EQ(g.heard(), Heard{"MenuClicked(2)"});
}

TEST(PopUp, ThePointerWalksIntoASubmenu) {
    const GalleryHost g;
    PopupMenu popup;
    auto& root = dynamic_cast<Menu&>(g.widget({u"mnuRoot"}));
    Menu* const first = &dynamic_cast<Menu&>(g.widget({u"mnuMorePick", 10}));
    popup.open(root, corner, {-30000, -30000, 60000, 60000});
    EXPECT_EQ(popup.highlighted(), nullptr);
    popup.pointerMove(itemAt(0));
    EXPECT_EQ(popup.highlighted(), &g.widget({u"mnuPick", 0}));
    popup.pointerMove(itemAt(1));
    EXPECT_EQ(popup.highlighted(), nullptr) << "a disabled item is not offered";

    Point at = itemAt(4);
    popup.pointerMove(at);
    EXPECT_EQ(popup.highlighted(), nullptr) << "the submenu is open and none of its items highlighted";
    for (int steps = 0; steps < 100 && popup.highlighted() != first; ++steps) {
        at.x += 2 * Pixel;
        popup.pointerMove(at);
        EXPECT_TRUE(!popup.highlighted() || popup.highlighted() == first) << "on the way at " << at.x;
    }
    EXPECT_EQ(popup.highlighted(), first);
    popup.pointerDown(at);
    EXPECT_EQ(popup.pointerUp(at), first);
    EXPECT_FALSE(popup.isOpen());

    popup.open(root, corner, {-30000, -30000, 60000, 60000}); // and out of it again
    popup.pointerMove(itemAt(4));
    popup.key(input::Key::Down);
    EXPECT_EQ(popup.highlighted(), first);
    popup.pointerMove(itemAt(0));
    EXPECT_EQ(popup.highlighted(), &g.widget({u"mnuPick", 0}));
    popup.key(input::Key::Escape);
    EXPECT_FALSE(popup.isOpen()) << "the submenu had been closed";
}

TEST(PopUp, TheKeyboardWalksThroughIt) {
    struct Case {
        std::vector<StringView> keys;
        Heard heard;
        bool staysUp;
    };
    const std::vector<Case> cases = {
        {{u"Down", u"Enter"}, {"MenuClicked(0)"}, false},
        {{u"Down", u"Down", u"Enter"}, {"MenuClicked(2)"}, false},                   // past the disabled one
        {{u"Down", u"Down", u"Down", u"Down", u"Enter"}, {"MenuClicked(0)"}, false}, // and round
        {{u"Up", u"Enter", u"Enter"}, {"MenuClicked(10)"}, false},
        {{u"Up", u"Right", u"Down", u"Enter"}, {"MenuClicked(11)"}, false},
        {{u"Up", u"Right", u"Left", u"Up", u"Enter"}, {"MenuClicked(2)"}, false},
        {{u"Up", u"Right", u"Escape", u"Up", u"Enter"}, {"MenuClicked(2)"}, false}, // one level only
        {{u"Up", u"Right", u"Escape", u"Escape"}, {}, false},
        {{u"Enter"}, {}, true},
        {{u"Right", u"Left", u"Tab", u"Space", u"Alt+G"}, {}, true}, // nothing of it reaches the control
        {{u"o"}, {"MenuClicked(0)"}, false},
        {{u"T"}, {"MenuClicked(2)"}, false},
        {{u"l"}, {}, true},
        {{u"x"}, {}, true},
        {{u"m", u"s"}, {"MenuClicked(11)"}, false},
        {{u"m", u"o"}, {}, true}, // the open submenu has no such letter
    };
    for (const Case& c : cases) {
        std::string trace;
        for (const StringView key : c.keys)
            trace += toUtf8(key) + " ";
        SCOPED_TRACE(trace);
        const GalleryHost g = popped();
        for (const StringView key : c.keys)
            EXPECT_TRUE(g.key(key));
        EXPECT_EQ(g.heard(), c.heard);
        EXPECT_EQ(toString(g->get(u"KeysSeen")), u"");
        EXPECT_EQ(isUp(g), c.staysUp);
    }
    const GalleryHost g = popped();
    g.key(u"Down");
    g.type(13);
    EXPECT_EQ(g.heard(), Heard{"MenuClicked(0)"}) << "typed characters go there too";
}

TEST(PopUp, AHostWithoutAPointerChoosesWhatTheUserCould) {
    const GalleryHost g;
    EXPECT_TRUE(g.click({u"mnuPick", 0})) << "also while it is not up";
    EXPECT_TRUE(g.click({u"mnuMorePick", 11}));
    for (const At no : {At{u"mnuPick", 1}, At{u"mnuBar"}, At{u"mnuMore"}, At{u"mnuRoot"}})
        EXPECT_FALSE(g.click(no)) << toUtf8(no.name);
    EXPECT_FALSE(g.act(input::Act{g.widget({u"mnuPick", 0}), input::Action::SpinUp}));
    g.put({u"mnuPick", 0}, u"Visible", false);
    EXPECT_FALSE(g.click({u"mnuPick", 0}));
    g.put({u"mnuMore"}, u"Enabled", false);
    EXPECT_FALSE(g.click({u"mnuMorePick", 11})) << "nobody gets there";
    EXPECT_EQ(g.heard(), (Heard{"MenuClicked(0)", "MenuClicked(11)"}));

    struct Case {
        At at;
        Heard heard;
        bool staysUp;
    };
    for (const Case& c : {Case{{u"mnuPick", 2}, {"MenuClicked(2)"}, false}, Case{{u"mnuPick", 1}, {}, true},
                          Case{{u"cmdPush", 2}, {"CommandClicked(2)"}, false}}) {
        const GalleryHost up = popped();
        EXPECT_EQ(up.click(c.at), !c.staysUp);
        EXPECT_EQ(up.heard(), c.heard);
        EXPECT_EQ(isUp(up), c.staysUp);
    }
}

TEST(PopUp, DoesNotChooseWhatWasDisabledMeanwhile) {
    const GalleryHost g = popped();
    g.key(u"Down");
    g.put({u"mnuPick", 0}, u"Enabled", false);
    g.key(u"Enter");
    EXPECT_EQ(g.heard(), Heard{});
}

TEST(PopUp, IsPaintedOverTheControlAndRepaintedAtEachStep) {
    const GalleryHost g;
    std::string before = g.painted();
    const std::string closed = before;
    const auto shows = [&](bool acted) {
        const std::string now = g.painted();
        EXPECT_TRUE(acted);
        EXPECT_NE(now, before);
        before = now;
    };
    auto repaints = g->repaints();
    const auto repainted = [&] { return g->repaints() > std::exchange(repaints, g->repaints()); };
    shows(g.press(corner, input::RightButton));
    EXPECT_TRUE(repainted());
    shows(g.move(itemAt(0)));
    EXPECT_TRUE(repainted());
    shows(g.key(u"Down"));
    EXPECT_TRUE(repainted());
    shows(g.move(itemAt(4)));
    EXPECT_TRUE(repainted());
    g.put({u"mnuPick", 2}, u"Checked", false);
    shows(repainted());
    shows(g.press({0, 0}));
    EXPECT_TRUE(repainted());
    EXPECT_EQ(before, closed);
}

} // namespace
} // namespace zilvo
