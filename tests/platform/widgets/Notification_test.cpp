#include "tests/support/gallery/GalleryHost.h"

namespace zilvo {
namespace {

TEST(Notification, DependsOnWhoMadeTheChange) {
    struct Case {
        At at;
        StringView member;
        Variant value;
        Heard byCode;
        Heard byUser;
    };
    const std::vector<Case> cases = {
        {{u"cmdPush", 2}, u"Default", true, {}, {"CommandClicked(2)"}},
        {{u"cmdPush", 2}, u"Cancel", true, {}, {"CommandClicked(2)"}},
        {{u"optChoice", 2}, u"Value", true, {"OptionClicked(2)"}, {"OptionClicked(2)"}},
        {{u"optChoice", 1}, u"Value", true, {}, {}},  // it is the selected one
        {{u"optChoice", 1}, u"Value", false, {}, {}}, // clearing is silent
        {{u"optChoice", 2}, u"Value", false, {}, {"OptionClicked(2)"}},
        {{u"chkPick", 0}, u"Value", 1, {"CheckClicked(0)"}, {"CheckClicked(0)"}},
        {{u"chkPick", 0}, u"Value", 2, {"CheckClicked(0)"}, {"CheckClicked(0)"}},
        {{u"chkPick", 0}, u"Value", 0, {}, {"CheckClicked(0)"}},
        {{u"chkPick", 1}, u"Value", 0, {"CheckClicked(1)"}, {"CheckClicked(1)"}},
        {{u"sscToggle"}, u"Value", true, {}, {"SSCheckClicked(-1, -1)"}},
        {{u"ssoSeat", 1}, u"Value", true, {}, {"SSOptionClicked(1, -1)"}},
        {{u"ssoSeat", 2}, u"Value", false, {}, {"SSOptionClicked(2, -1)"}}, // also on the selected one
        {{u"ribCard", 0}, u"Value", true, {}, {"RibbonClicked(0, -1)"}},
        {{u"ribCard", 1}, u"Value", false, {}, {"RibbonClicked(1, 0)"}},
        {{u"imgChip", 1}, u"Left", 350, {}, {"ImageClicked(1)"}},
        {{u"mnuPick", 0}, u"Checked", true, {}, {"MenuClicked(0)"}},
        {{u"panelOptions"}, u"Caption", u"New", {}, {"PanelPressed(1, 0)"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(toUtf8(c.at.name) + " " + std::to_string(c.at.index) + " " + toUtf8(c.member));
        const GalleryHost byCode;
        byCode.put(c.at, c.member, c.value);
        EXPECT_EQ(byCode.heard(), c.byCode);
        const GalleryHost byUser;
        EXPECT_TRUE(byUser.click(c.at));
        EXPECT_EQ(byUser.heard(), c.byUser);
    }
}

TEST(Notification, OptionButtonsReportWhatTheCodeSelectsEvenOutOfTheUsersReach) {
    for (const At at : {At{u"optChoice", 3}, At{u"panelOptions"}})
        for (const StringView member : {u"Enabled", u"Visible"}) {
            SCOPED_TRACE(toUtf8(at.name) + "." + toUtf8(member));
            const GalleryHost g;
            g.put(at, member, false);
            EXPECT_FALSE(g.click({u"optChoice", 3}));
            EXPECT_EQ(g.heard(), Heard{});
            g.put({u"optChoice", 3}, u"Value", true);
            EXPECT_EQ(g.heard(), Heard{"OptionClicked(3)"});
            EXPECT_FALSE(g.isOn({u"optChoice", 1}));
        }
}

TEST(Notification, CheckBoxGoesThroughItsThreeValuesAndRefusesOthers) {
    const GalleryHost g;
    const At box{u"chkPick", 0};
    for (const Long value : {1, 2, 0, 2, 1, 1}) {
        const bool changes = toLong(g.get(box, u"Value")) != value;
        g.put(box, u"Value", value);
        EXPECT_EQ(g.heard().size(), changes ? 1U : 0U);
    }
    for (const Long value : {3, -1}) {
        try {
            g.put(box, u"Value", value);
            FAIL() << value;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.status(), Status::InvalidPropertyValue);
            EXPECT_NE(std::string(failure.what()).find("chkPick(0).Value"), std::string::npos) << failure.what();
        }
    }
    EXPECT_EQ(g.heard(), Heard{});
    EXPECT_EQ(toLong(g.get(box, u"Value")), 1);

    const At grey{u"chkPick", 2}; // the user never makes it grey
    for (const Long expected : {0, 1, 0}) {
        EXPECT_TRUE(g.click(grey));
        EXPECT_EQ(toLong(g.get(grey, u"Value")), expected);
    }
}

TEST(Notification, ExactlyOneOrNoneOfAGroupIsOn) {
    struct Step {
        bool byUser;
        Integer index;
        bool value; ///< by code
        std::vector<Integer> on;
        Heard heard;
    };
    struct Group {
        StringView name;
        Integer first;
        std::vector<Step> steps;
    };
    const std::vector<Group> groups = {
        {u"optChoice",
         1,
         {{true, 4, {}, {4}, {"OptionClicked(4)"}},
          {true, 4, {}, {4}, {}},
          {false, 4, false, {}, {}},
          {true, 4, {}, {4}, {"OptionClicked(4)"}},
          {false, 2, false, {4}, {}}}},
        {u"ssoSeat",
         1,
         {{true, 1, {}, {1}, {"SSOptionClicked(1, -1)"}},
          {true, 1, {}, {1}, {"SSOptionClicked(1, -1)"}},
          {false, 3, true, {3}, {}},
          {false, 3, false, {}, {}},
          {true, 3, {}, {3}, {"SSOptionClicked(3, -1)"}}}},
        {u"ribCard",
         0,
         {{true, 0, {}, {0}, {"RibbonClicked(0, -1)"}}, // raises the one that was pressed
          {true, 0, {}, {}, {"RibbonClicked(0, 0)"}},
          {false, 2, true, {2}, {}},
          {false, 1, true, {1}, {}},
          {false, 2, false, {1}, {}},
          {true, 1, {}, {}, {"RibbonClicked(1, 0)"}}}},
    };
    for (const Group& group : groups) {
        const GalleryHost g;
        for (const Step& step : group.steps) {
            SCOPED_TRACE(toUtf8(group.name) + " step " + std::to_string(&step - group.steps.data()));
            if (step.byUser)
                EXPECT_TRUE(g.click({group.name, step.index}));
            else
                g.put({group.name, step.index}, u"Value", step.value);
            std::vector<Integer> on;
            for (Integer i = group.first; g.surface().find(group.name, i); ++i)
                if (g.isOn({group.name, i})) on.push_back(i);
            EXPECT_EQ(on, step.on);
            EXPECT_EQ(g.heard(), step.heard);
        }
    }
}

TEST(Notification, FindsTheNewStateAndMayChangeItAgain) {
    const GalleryHost g;
    g->on(u"OptionClicked", [&](std::span<Variant> arguments) {
        const Integer index = toInteger(arguments[0]);
        EXPECT_TRUE(g.isOn({u"optChoice", index}));
        EXPECT_FALSE(g.isOn({u"optChoice", 1}));
        if (index == 2) g.put({u"optChoice", 3}, u"Value", true);
    });
    g->on(u"SSCheckClicked", [](std::span<Variant> arguments) { arguments[1].assign(Integer{0}); });
    g.click({u"optChoice", 2});
    EXPECT_EQ(g.heard(), (Heard{"OptionClicked(2)", "OptionClicked(3)"}));
    EXPECT_TRUE(g.isOn({u"optChoice", 3}));

    g.click({u"sscToggle"});
    EXPECT_TRUE(g.isOn({u"sscToggle"})) << "what a handler writes into the value does not reach the widget";
}

TEST(Notification, AFailingHandlerFailsTheInputAndUndoesNothing) {
    const GalleryHost g;
    g->on(u"RibbonClicked", [](std::span<Variant>) { throw Failure(Status::Overflow, "too much"); });
    try {
        g.click({u"ribCard", 2});
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.status(), Status::Overflow);
        EXPECT_NE(std::string(failure.what()).find("too much"), std::string::npos);
    }
    EXPECT_TRUE(g.isOn({u"ribCard", 2}));
    EXPECT_FALSE(g.widget({u"ribCard", 2}).isPressed());
    EXPECT_TRUE(g.click({u"cmdPush", 0}));
}

TEST(Notification, OneDefaultAndOneCancelButtonAtMost) {
    struct Step {
        Integer index;
        StringView member;
        bool value;
        Heard byEnter;
        Heard byEscape;
    };
    const std::vector<Step> steps = {
        {2, u"Default", true, {"CommandClicked(2)"}, {"CommandClicked(1)"}},
        {0, u"Default", false, {"CommandClicked(2)"}, {"CommandClicked(1)"}}, // it no longer was
        {0, u"Cancel", true, {"CommandClicked(2)"}, {"CommandClicked(0)"}},
        {0, u"Default", true, {"CommandClicked(0)"}, {"CommandClicked(0)"}},
        {0, u"Cancel", false, {"CommandClicked(0)"}, {}},
        {0, u"Default", false, {}, {}},
    };
    const GalleryHost g;
    for (const Step& step : steps) {
        SCOPED_TRACE(&step - steps.data());
        g.put({u"cmdPush", step.index}, step.member, step.value);
        EXPECT_EQ(toBoolean(g.get({u"cmdPush", step.index}, step.member)), step.value);
        EXPECT_EQ(g.key(u"Enter"), !step.byEnter.empty());
        EXPECT_EQ(g.heard(), step.byEnter);
        EXPECT_EQ(g.key(u"Escape"), !step.byEscape.empty());
        EXPECT_EQ(g.heard(), step.byEscape);
    }
}

} // namespace
} // namespace zilvo
