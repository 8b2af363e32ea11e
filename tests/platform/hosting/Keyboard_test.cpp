#include "tests/support/gallery/GalleryHost.h"

namespace zilvo {
namespace {

using Stops = std::vector<std::string>;

/// Where the keyboard is after each of so many Tabs.
Stops tabs(const GalleryHost& g, std::size_t count, StringView key = u"Tab") {
    Stops stops;
    while (stops.size() < count) {
        g.key(key);
        stops.push_back(g.focus());
    }
    return stops;
}

const Stops allStops = {"optChoice(1)", "chkPick(0)", "chkPick(1)", "chkPick(2)", "sscToggle",
                        "ssoSeat(2)",   "ribCard(0)", "ribCard(1)", "ribCard(2)", "spnCount",
                        "cmdPush(0)",   "cmdPush(1)", "cmdPush(2)"};

TEST(TabKey, GoesRoundInTabOrderWithOneStopForAGroup) {
    const GalleryHost g;
    EXPECT_EQ(g.focus(), "");
    EXPECT_EQ(tabs(g, allStops.size()), allStops);
    EXPECT_EQ(tabs(g, 1), Stops{"optChoice(1)"});
    EXPECT_EQ(tabs(g, allStops.size(), u"Shift+Tab"), Stops(allStops.rbegin(), allStops.rend()));
    EXPECT_EQ(g.heard(), Heard{});

    const GalleryHost other;
    EXPECT_EQ(tabs(other, 1, u"Shift+Tab"), Stops{"cmdPush(2)"});
}

TEST(TabKey, PassesOverWhatTakesNoInput) {
    const GalleryHost g;
    g.put({u"chkPick", 1}, u"Enabled", false);
    g.put({u"panelThreeD"}, u"Visible", false);
    g.put({u"panelRibbons"}, u"Enabled", false);
    EXPECT_EQ(tabs(g, 5), (Stops{"optChoice(1)", "chkPick(0)", "chkPick(2)", "spnCount", "cmdPush(0)"}));
    g.put({u"cmdPush", 2}, u"TabIndex", 0); // now the first
    g.put({u"cmdPush", 1}, u"Visible", false);
    EXPECT_EQ(tabs(g, 2), (Stops{"cmdPush(2)", "optChoice(1)"}));
}

TEST(TabKey, EntersAGroupAtItsSelectedOneOrElseAtItsFirst) {
    struct Change {
        Integer index;
        StringView member;
        Variant value;
    };
    struct Case {
        std::vector<Change> changes;
        std::string stop;
    };
    const std::vector<Case> cases = {
        {{{3, u"Value", true}}, "optChoice(3)"},
        {{{1, u"Value", false}}, "optChoice(1)"},   // none is selected
        {{{1, u"Enabled", false}}, "optChoice(2)"}, // the selected one takes no input
        {{{1, u"Value", false}, {4, u"TabIndex", 0}}, "optChoice(4)"},
    };
    for (const Case& c : cases) {
        const GalleryHost g;
        for (const Change& change : c.changes)
            g.put({u"optChoice", change.index}, change.member, change.value);
        EXPECT_EQ(tabs(g, 2), (Stops{c.stop, "chkPick(0)"}));
    }
    const GalleryHost g; // the 3-D kind has the same rule
    g.put({u"ssoSeat", 2}, u"Value", false);
    g.focusOn({u"sscToggle"});
    EXPECT_EQ(tabs(g, 2), (Stops{"ssoSeat(1)", "ribCard(0)"}));
}

TEST(Focus, IsHandedOnByWhatCanNoLongerTakeInput) {
    struct Case {
        At focused;
        At changed;
        StringView member;
        std::string next;
    };
    const std::vector<Case> cases = {
        {{u"cmdPush", 1}, {u"cmdPush", 1}, u"Enabled", "cmdPush(2)"},
        {{u"cmdPush", 1}, {u"cmdPush", 1}, u"Visible", "cmdPush(2)"},
        {{u"cmdPush", 2}, {u"cmdPush", 2}, u"Enabled", "optChoice(1)"},
        {{u"ribCard", 0}, {u"panelRibbons"}, u"Visible", "spnCount"},
        {{u"chkPick", 1}, {u"chkPick", 0}, u"Enabled", "chkPick(1)"},
    };
    for (const Case& c : cases) {
        const GalleryHost g;
        g.focusOn(c.focused);
        g.put(c.changed, c.member, false);
        EXPECT_EQ(g.focus(), c.next);
        EXPECT_FALSE(c.next != "chkPick(1)" && g.widget(c.focused).isFocused());
    }
    const GalleryHost g;
    g.focusOn({u"cmdPush", 0});
    for (const StringView panel : {u"panelOptions", u"frameChecks", u"panelThreeD", u"panelRibbons", u"spnCount"})
        g.put({panel}, u"Enabled", false);
    for (Integer i = 0; i < 3; ++i)
        g.put({u"cmdPush", i}, u"Enabled", false);
    EXPECT_EQ(g.focus(), "");
    EXPECT_FALSE(g.key(u"Space"));
    EXPECT_FALSE(g.key(u"Tab"));
}

TEST(Focus, MovesOnWhenAHandlerDisablesItsOwnWidget) {
    const GalleryHost g;
    g->on(u"CommandClicked", [&](std::span<Variant>) { g.put({u"cmdPush", 0}, u"Enabled", false); });
    g.click({u"cmdPush", 0});
    EXPECT_TRUE(g.widget({u"cmdPush", 1}).isFocused()) << "without anybody asking";
    EXPECT_FALSE(g.widget({u"cmdPush", 0}).isFocused());
}

TEST(Focus, FollowsThePressOfTheLeftButton) {
    const GalleryHost g;
    g.press(g.middleOf({u"cmdPush", 1}));
    EXPECT_EQ(g.focus(), "cmdPush(1)");
    g.press(g.middleOf({u"ribCard", 2}), input::RightButton);
    g.press({5200, 150});                             // an image takes no keyboard
    g.press(g.pointOf({u"frameChecks"}, 0.9F, 0.9F)); // nor does a frame
    EXPECT_EQ(g.focus(), "cmdPush(1)");
}

TEST(Keys, ArrowsMoveInGroupsAndSelect) {
    struct Case {
        At from;
        StringView key;
        std::string to;
        Heard heard;
    };
    const std::vector<Case> cases = {
        {{u"optChoice", 2}, u"Down", "optChoice(4)", {"OptionClicked(4)"}}, // the third is disabled
        {{u"optChoice", 2}, u"Right", "optChoice(4)", {"OptionClicked(4)"}},
        {{u"optChoice", 2}, u"Up", "optChoice(1)", {}}, // selected all the time
        {{u"optChoice", 4}, u"Right", "optChoice(1)", {}},
        {{u"optChoice", 1}, u"Left", "optChoice(4)", {"OptionClicked(4)"}},
        {{u"ssoSeat", 3}, u"Down", "ssoSeat(1)", {"SSOptionClicked(1, -1)"}},
        {{u"ssoSeat", 3}, u"Up", "ssoSeat(2)", {"SSOptionClicked(2, -1)"}},
        {{u"ribCard", 0}, u"Right", "ribCard(0)", {}},
        {{u"cmdPush", 0}, u"Down", "cmdPush(0)", {}},
        {{u"chkPick", 0}, u"Down", "chkPick(0)", {}},
        {{u"spnCount"}, u"Up", "spnCount", {"SpunUp()"}},
        {{u"spnCount"}, u"Right", "spnCount", {"SpunUp()"}},
        {{u"spnCount"}, u"Down", "spnCount", {"SpunDown()"}},
        {{u"spnCount"}, u"Left", "spnCount", {"SpunDown()"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(toUtf8(c.from.name) + " " + std::to_string(c.from.index) + " " + toUtf8(c.key));
        const GalleryHost g;
        g.put({u"optChoice", 3}, u"Enabled", false);
        g.focusOn(c.from); // selects nothing: the release is elsewhere
        g.heard();
        g.key(c.key);
        EXPECT_EQ(g.focus(), c.to);
        EXPECT_EQ(g.heard(), c.heard);
    }
    const GalleryHost g;
    EXPECT_FALSE(g.key(u"Down")) << "nothing has the keyboard";
    for (Integer i = 2; i <= 4; ++i)
        g.put({u"optChoice", i}, u"Visible", false);
    g.focusOn({u"optChoice", 1});
    EXPECT_FALSE(g.key(u"Down")) << "a group of one";
}

TEST(Keys, SpaceEnterAndEscapeGoToTheRightWidget) {
    struct Case {
        At focused;
        StringView key;
        Heard heard;
    };
    const std::vector<Case> cases = {
        {{u"optChoice", 2}, u"Space", {"OptionClicked(2)"}},
        {{u"chkPick", 0}, u"Space", {"CheckClicked(0)"}},
        {{u"sscToggle"}, u"Space", {"SSCheckClicked(-1, -1)"}},
        {{u"ssoSeat", 1}, u"Space", {"SSOptionClicked(1, -1)"}},
        {{u"ribCard", 1}, u"Space", {"RibbonClicked(1, 0)"}},
        {{u"cmdPush", 2}, u"Space", {"CommandClicked(2)"}},
        {{u"spnCount"}, u"Space", {}},
        {{u"cmdPush", 2}, u"Enter", {"CommandClicked(2)"}}, // not the default one
        {{u"chkPick", 0}, u"Enter", {"CommandClicked(0)"}},
        {{u"spnCount"}, u"Enter", {"CommandClicked(0)"}},
        {{u"cmdPush", 2}, u"Escape", {"CommandClicked(1)"}},
        {{u"optChoice", 2}, u"Escape", {"CommandClicked(1)"}},
        {{u"cmdPush", 2}, u"x", {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(toUtf8(c.focused.name) + " " + toUtf8(c.key));
        const GalleryHost g;
        g.focusOn(c.focused);
        g.heard();
        EXPECT_EQ(g.key(c.key), !c.heard.empty());
        EXPECT_EQ(g.heard(), c.heard);
    }
    const GalleryHost g;
    EXPECT_FALSE(g.key(u"Space")) << "nothing has the keyboard";
    g.put({u"cmdPush", 0}, u"Enabled", false);
    g.put({u"cmdPush", 1}, u"Visible", false);
    EXPECT_FALSE(g.key(u"Enter"));
    EXPECT_FALSE(g.key(u"Escape"));
    EXPECT_EQ(g.heard(), Heard{});
}

TEST(Keys, ArePreviewedByTheControlBeforeAnyWidget) {
    const GalleryHost g;
    String seenAtClick;
    g->on(u"CommandClicked", [&](std::span<Variant>) { seenAtClick = toString(g->get(u"KeysSeen")); });
    g.key(u"Enter");
    EXPECT_EQ(seenAtClick, u"13 ");
    g.focusOn({u"cmdPush", 2});
    g.key(u"Enter"); // the focused push button's own
    for (const StringView key : {u"Escape", u"Space", u"a"})
        g.key(key);
    EXPECT_EQ(toString(g->get(u"KeysSeen")), u"13 27 32 97 ");
    for (const StringView key : {u"Alt+P", u"Tab", u"Down", u"Ctrl+Enter", u"Alt+Escape", u"Ctrl+Space", u"Ctrl+a"})
        g.key(key);
    EXPECT_EQ(toString(g->get(u"KeysSeen")), u"13 27 32 97 ") << "these are not typed characters";
}

TEST(AccessKeys, ActOnTheirWidgetAndTakeTheKeyboardThere) {
    struct Case {
        StringView key;
        std::string focus;
        Heard heard;
    };
    const std::vector<Case> cases = {
        {u"Alt+G", "cmdPush(0)", {"CommandClicked(0)"}},
        {u"Alt+g", "cmdPush(0)", {"CommandClicked(0)"}},
        {u"Alt+h", "optChoice(3)", {"OptionClicked(3)"}},
        {u"Alt+O", "optChoice(1)", {}},
        {u"Alt+Y", "chkPick(2)", {"CheckClicked(2)"}},
        {u"Alt+1", "ssoSeat(1)", {"SSOptionClicked(1, -1)"}},
        {u"Shift+Alt+q", "cmdPush(1)", {"CommandClicked(1)"}},
        {u"Alt+X", "", {}}, // nobody's
        {u"Alt+&", "", {}},
        {u"G", "", {}},     // without Alt a typed character
        {u"Alt+P", "", {}}, // disabled
        {u"Alt+3", "", {}}, // hidden
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(toUtf8(c.key));
        const GalleryHost g;
        g.put({u"cmdPush", 2}, u"Enabled", false);
        g.put({u"ssoSeat", 3}, u"Visible", false);
        EXPECT_EQ(g.key(c.key), !c.focus.empty());
        EXPECT_EQ(g.focus(), c.focus);
        EXPECT_EQ(g.heard(), c.heard);
    }
}

TEST(AccessKeys, GoRoundWhenSharedAndFollowTheCaption) {
    const GalleryHost g;
    for (const char* expected : {"optChoice(2)", "sscToggle", "optChoice(2)"}) {
        g.key(u"Alt+T");
        EXPECT_EQ(g.focus(), expected);
    }
    EXPECT_EQ(g.heard(), (Heard{"OptionClicked(2)", "SSCheckClicked(-1, -1)"}));
    g.put({u"sscToggle"}, u"Caption", u"Tit && &Zip &Zap");
    EXPECT_TRUE(g.key(u"Alt+Z"));
    EXPECT_EQ(g.focus(), "sscToggle");
    g.put({u"sscToggle"}, u"Caption", u"This && That&");
    EXPECT_FALSE(g.key(u"Alt+Z"));
}

TEST(KeyNames, AreReadAsTyped) {
    struct Case {
        StringView text;
        input::Key key;
        char16_t character;
        int shift;
    };
    using input::Key;
    const std::vector<Case> cases = {
        {u"Tab", Key::Tab, 0, 0},
        {u"shift+TAB", Key::Tab, 0, 1},
        {u"Return", Key::Enter, 0, 0},
        {u"Esc", Key::Escape, 0, 0},
        {u"Alt+6", Key::Character, u'6', 4},
        {u"Control+Alt+é", Key::Character, u'é', 6},
        {u" ", Key::Space, u' ', 0},
        {u"Shift++", Key::Character, u'+', 1},
        {u"+", Key::Character, u'+', 0},
        {u"Ctrl+Left", Key::Left, 0, 2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(toUtf8(c.text));
        const auto key = parseKey(c.text);
        ASSERT_TRUE(key);
        EXPECT_EQ(key->key, c.key);
        EXPECT_EQ(key->character, c.character);
        EXPECT_EQ(key->shift, c.shift);
    }
    for (const StringView nonsense : {u"", u"Tabulator", u"Hyper+x", u"Alt+", u"Shift"})
        EXPECT_FALSE(parseKey(nonsense)) << toUtf8(nonsense);
}

} // namespace
} // namespace zilvo
