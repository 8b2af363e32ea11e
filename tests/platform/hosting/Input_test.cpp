#include "tests/support/gallery/GalleryHost.h"
#include "zilvo/platform/widgets/SpinButton.h"

namespace zilvo {
namespace {

constexpr Point onPanel{1800, 900}; // where the right button pops the menu up

TEST(Pointer, AWidgetIsPressedWhileItHoldsThePointerAndIsUnderIt) {
    const GalleryHost g;
    const Widget& go = g[u"cmdPush0"];
    const Widget& quit = g[u"cmdPush1"];
    g.press(g.pointOf(u"cmdPush0"));
    EXPECT_TRUE(go.isPressed());
    const auto repaints = g->repaints();
    g.move(g.pointOf(u"cmdPush1"));
    EXPECT_FALSE(go.isPressed() || quit.isPressed());
    EXPECT_EQ(g->repaints(), repaints + 1);
    g.move(g.pointOf(u"cmdPush0", 0, 0));
    EXPECT_TRUE(go.isPressed());
    g.press(onPanel, input::MiddleButton);
    EXPECT_TRUE(go.isPressed());
    g.press(g.pointOf(u"cmdPush1"));
    EXPECT_TRUE(!go.isPressed() && quit.isPressed());
    g.press(onPanel, input::RightButton); // the menu takes the pointer
    EXPECT_FALSE(quit.isPressed());
    g.key(u"Escape");
    g->on(u"CommandClicked", [&](std::span<Variant>) { EXPECT_FALSE(go.isPressed()) << "let go of before its click"; });
    EXPECT_TRUE(g.click(u"cmdPush0"));
}

TEST(Pointer, ToolTipsAreThoseOfTheWidgetInFront) {
    const GalleryHost g;
    g.put(u"optChoice1", u"ToolTipText", u"The first");
    const auto tip = [&](Point at) { return toUtf8(toolTipAt(g->control(), at)); };
    EXPECT_EQ(tip({5700, 600}), "The chip in front");
    EXPECT_EQ(tip(onPanel), "Right button for the menu");
    EXPECT_EQ(tip(g.pointOf(u"optChoice1")), "The first");
    EXPECT_EQ(tip(g.pointOf(u"optChoice2")) + tip({0, 0}) + tip({-5, 0}), "");
    g[u"imgChip0"].bringToFront();
    EXPECT_EQ(tip({5700, 600}), "The chip behind");
    g.put(u"imgChip0", u"Visible", false);
    EXPECT_EQ(tip({5700, 600}), "The chip in front");
    g[u"ribCard0"].bringToFront();
    EXPECT_GT(g[u"ribCard0"].zOrder(), g[u"ribCard1"].zOrder());
}

TEST(PopUp, IsPaintedOverTheControlAndPaintedAnewAtEachStep) {
    const GalleryHost g;
    const std::string closed = g.painted();
    std::string before = closed;
    auto repaints = g->repaints();
    const auto shows = [&](bool acted) {
        EXPECT_TRUE(acted);
        EXPECT_GT(g->repaints(), std::exchange(repaints, g->repaints()));
        EXPECT_NE(g.painted(), std::exchange(before, g.painted()));
    };
    shows(g.press(onPanel, input::RightButton));
    shows(g.move({2200, 1087}));
    shows(g.key(u"Down"));
    shows(g.move({2200, 2077})); // its submenu
    g.put(u"mnuPick2", u"Checked", false);
    shows(true);
    shows(g.press({0, 0}));
    EXPECT_EQ(before, closed);
}

TEST(PopUp, AHostThatShowsItInItsOwnWayHandsTheChoiceIn) {
    struct Host final : ControlHost {
        using ControlHost::ControlHost;
        bool ShowPopup(Menu& root, Point at) override { return (where = at, shown = &root) != nullptr; }
        Menu* shown = nullptr;
        Point where;
    };
    auto owned = std::make_unique<Host>(GalleryHost::make(u"Outer"));
    const Host& host = *owned;
    const GalleryHost g(std::move(owned));
    const std::string before = g.painted();
    g.press({1400, 700}, input::RightButton); // on the embedded control
    ASSERT_NE(host.shown, nullptr);
    EXPECT_EQ(g.painted(), before);
    EXPECT_EQ(host.where.x, 1400);
    EXPECT_EQ(host.where.y, 700);
    EXPECT_TRUE(g.act(input::Act{*host.shown->items().front()}));
    g.key(u"Enter"); // is not the menu's
    EXPECT_EQ(g.heard(), (Heard{"Picked(11)", "PushClicked(1)"}));
}

constexpr auto Delay = static_cast<int>(SpinButton::RepeatDelay.count());
constexpr auto Every = static_cast<int>(SpinButton::RepeatEvery.count());

TEST(Spinning, RepeatsWhileHeldByTheHostsClock) {
    constexpr std::pair<int, std::size_t> steps[] = {{Delay - 1, 0}, {1, 1},         {Every - 1, 0}, {1, 1},
                                                     {Every / 2, 0}, {Every / 2, 1}, {3 * Every, 3}, {0, 0}};
    const GalleryHost g;
    EXPECT_FALSE(g.wait(Delay)) << "nothing is held";
    const Point down = g.pointOf(u"spnCount", 0.5F, 0.75F);
    for (int times = 0; times < 2; ++times) { // each time from the start
        g.press(down);
        EXPECT_EQ(g.heard(), Heard{"SpunDown()"});
        for (const auto& [time, spins] : steps) {
            EXPECT_TRUE(g.wait(time));
            EXPECT_EQ(g.heard(), Heard(spins, "SpunDown()")) << time;
        }
        g.move({0, 0});
        EXPECT_FALSE(g.wait(10000)) << "the pointer is elsewhere";
        g.move(down);
        EXPECT_TRUE(g.wait(1));
        EXPECT_EQ(g.heard(), Heard{});
        g.release(down);
        EXPECT_FALSE(g.wait(10000));
    }
    g.act(input::Act{g[u"spnCount"], input::Action::SpinUp});
    EXPECT_FALSE(g.wait(10000));
}

TEST(Spinning, IsHeldForAMinuteAtMostWhenTheClockLeaps) {
    const GalleryHost g;
    g.press(g.pointOf(u"spnCount", 0.5F, 0.25F));
    g.heard();
    g.act(input::TimePassed{std::chrono::milliseconds::min()});
    EXPECT_EQ(g.heard().size(), 0U);
    g.act(input::TimePassed{std::chrono::hours(24)});
    EXPECT_EQ(g.heard().size(), 1U + (60000 - Delay) / Every);
}

TEST(Spinning, EndsWhenAHandlerTakesTheButtonOrThePointerAway) {
    for (const StringView taken : {u"Enabled", u"Visible", u"the pointer"}) {
        const GalleryHost g;
        int left = 3;
        g->on(u"SpunUp", [&](std::span<Variant>) {
            if (--left > 0) return;
            if (taken == u"the pointer")
                g.press(onPanel, input::RightButton); // by the menu
            else
                g.put(u"spnCount", taken, false);
        });
        g.press(g.pointOf(u"spnCount", 0.5F, 0.25F));
        g.wait(10000);
        EXPECT_EQ(g.heard().size(), 3U);
        for (const StringView member : {u"Enabled", u"Visible"})
            g.put(u"spnCount", member, true);
        g.wait(10000);
        EXPECT_EQ(g.heard(), Heard{}) << "the time that it was away is not made up for";
    }
}

TEST(Windows, TheKeyboardComesAndGoes) {
    struct Host final : ControlHost {
        using ControlHost::ControlHost;
        bool LeaveFocus(bool forward) override { return (asked += forward ? '>' : '<', takes); }
        std::string asked;
        bool takes = true;
    };
    auto owned = std::make_unique<Host>(GalleryHost::make(u"Outer"));
    Host& host = *owned;
    const GalleryHost g(std::move(owned));
    const auto focus = [&] {
        const Widget* widget = g->control().focus();
        return widget ? shownName(*widget) : "none";
    };
    using namespace input;
    EXPECT_TRUE(g.act(FocusIn{Entry::First}));
    EXPECT_EQ(focus(), "cmdPush(0)");
    EXPECT_FALSE(g.key(u"Shift+Tab"));
    EXPECT_EQ(focus() + host.asked, "none<");
    EXPECT_TRUE(g.act(FocusIn{Entry::Last}));
    EXPECT_EQ(focus(), "cmdPush(1)");
    EXPECT_TRUE(g.key(u"Shift+Tab"));
    EXPECT_EQ(focus() + host.asked, "ssoPick(1)<") << "inside it nobody asks";
    EXPECT_TRUE(g.act(FocusOut{}));
    EXPECT_FALSE(g.act(FocusOut{}));
    EXPECT_EQ(focus(), "none");
    EXPECT_TRUE(g.act(FocusIn{}));
    EXPECT_EQ(focus(), "ssoPick(1)") << "where it was";
    g.act(FocusOn{g[u"cmdPush1"]});
    EXPECT_FALSE(g.act(FocusOn{g[u"smallOne"]})) << "is no stop itself";
    host.takes = false;
    EXPECT_TRUE(g.key(u"Tab"));
    EXPECT_EQ(focus() + host.asked, "cmdPush(0)<>") << "goes round";
    g.act(FocusOut{});
    g.put(u"cmdPush0", u"Enabled", false);
    g.act(FocusIn{});
    EXPECT_EQ(focus(), "ssoPick(1)") << "the first where the last cannot have it";
}

TEST(Windows, AWidgetIsInvokedWithoutPointerAndFocus) {
    const GalleryHost g;
    g.act(input::FocusOn{g[u"cmdPush1"]});
    const Widget* focused = g->control().focus();
    g.put(u"cmdPush0", u"Left", -30000);
    EXPECT_FALSE(g.click(u"cmdPush0")) << "no pointer gets there";
    EXPECT_TRUE(g.act(input::Invoke{g[u"cmdPush0"]}));
    EXPECT_TRUE(g.act(input::Invoke{g[u"spnCount"], input::Action::SpinDown}));
    EXPECT_FALSE(g.act(input::Invoke{g[u"cmdPush0"], input::Action::SpinDown}));
    EXPECT_TRUE(g.act(input::Invoke{g[u"mnuPick0"]}));
    g.put(u"cmdPush0", u"Enabled", false);
    EXPECT_FALSE(g.act(input::Invoke{g[u"cmdPush0"]}));
    EXPECT_EQ(g.heard(), (Heard{"CommandClicked(0)", "SpunDown()", "MenuClicked(0)"}));
    EXPECT_EQ(g->control().focus(), focused);
}

TEST(Windows, ALostPointerLetsGoAndTheClockIsWantedWhileItMatters) {
    const GalleryHost g;
    g.press(g.pointOf(u"cmdPush0"));
    EXPECT_FALSE(g->control().clockWanted()) << "held, but time is nothing to it";
    EXPECT_TRUE(g.act(input::PointerLost{}));
    EXPECT_FALSE(g[u"cmdPush0"].isPressed() || g.act(input::PointerLost{}) || g.release(g.pointOf(u"cmdPush0")));
    EXPECT_EQ(g.heard(), Heard{});

    bool letIn = false;
    g->on(u"SpunUp", [&](std::span<Variant>) { letIn = letIn || g.wait(10000); });
    g.press(g.pointOf(u"spnCount", 0.5F, 0.25F));
    EXPECT_EQ(g->control().clockWanted(), SpinButton::RepeatDelay);
    g.wait(Delay + Every / 4);
    EXPECT_EQ(g->control().clockWanted(), std::chrono::milliseconds(Every * 3 / 4));
    EXPECT_EQ(g.heard().size(), 2U);
    EXPECT_FALSE(letIn) << "a handler's own loop does not spin on";
    g.act(input::PointerLost{});
    EXPECT_FALSE(g->control().clockWanted());
}

TEST(Windows, AccessKeysAreThoseThatDoSomethingNow) {
    const GalleryHost g(u"Outer");
    EXPECT_EQ(toUtf8(g->control().accessKeys()), "B123A");
    g.put(u"cmdPush0", u"Enabled", false);
    g.put(u"cmdPush1", u"Caption", u"So&rt");
    EXPECT_EQ(toUtf8(g->control().accessKeys()), "123R");
}

TEST(Windows, TheMenuKeyAsksBehindTheWidgetThatHasTheKeyboard) {
    const GalleryHost g(u"Outer");
    g.act(input::FocusOn{g[u"cmdPush1"]});
    g.key(u"Menu");
    EXPECT_EQ(g->control().lastPopup(), nullptr) << "the outer control has none";
    g.act(input::FocusOn{g[u"smallOne.ssoPick2"]});
    g.key(u"Menu");
    ASSERT_NE(g->control().lastPopup(), nullptr) << "the embedded control's";
    g.key(u"Down");
    g.key(u"Enter");
    EXPECT_EQ(g.heard(), Heard{"Picked(11)"});
}

TEST(Windows, TheWindowsButtonsAreThoseThatTheUserCouldPress) {
    const GalleryHost g;
    HostedControl& control = g->control();
    g.put(u"cmdPush1", u"Default", true);
    g.put(u"cmdPush2", u"Cancel", true);
    EXPECT_EQ(control.defaultButton(), &g[u"cmdPush1"]);
    EXPECT_EQ(control.cancelButton(), &g[u"cmdPush2"]);
    const std::string heavy = g.painted();
    g->setAmbient(u"DisplayAsDefault", false);
    EXPECT_NE(g.painted(), heavy);
    g.act(input::FocusOn{g[u"cmdPush1"]});
    const std::string focused = g.painted();
    g->setAmbient(u"DisplayAsDefault", true);
    EXPECT_EQ(g.painted(), focused) << "Enter presses it whatever the window's is";
    g.put(u"cmdPush1", u"Enabled", false);
    EXPECT_EQ(control.defaultButton(), nullptr);
}

TEST(Windows, TheExtenderTellsItsHostAndKeepsTheUserOut) {
    struct Host final : ControlHost {
        using ControlHost::ControlHost;
        void ExtenderChanged(Aspect aspect) override { heard.push_back(aspect); }
        std::vector<Aspect> heard;
    };
    auto owned = std::make_unique<Host>(GalleryHost::make(u"WidgetGallery"));
    Host& host = *owned;
    const GalleryHost g(std::move(owned));
    Extender& extender = g->extenderObject();
    g.press(g.pointOf(u"spnCount", 0.5F, 0.25F));
    extender.put_Enabled(false);
    extender.put_Enabled(false);
    EXPECT_FALSE(g.click(u"cmdPush0"));
    const std::string greyed = g.painted();
    for (const StringView name : {u"cmdPush0", u"optChoice1", u"chkPick0", u"ribCard0", u"frameChecks", u"lblTable"})
        g.put(name, u"Enabled", false);
    EXPECT_EQ(g.painted(), greyed) << "all of it";
    for (const StringView name : {u"cmdPush0", u"optChoice1"})
        g.put(name, u"Enabled", true);
    EXPECT_TRUE(g.act(input::PointerLost{}) && !g[u"spnCount"].isPressed()) << "what is held is let go of";
    extender.put_Enabled(true);
    EXPECT_TRUE(g.click(u"cmdPush0"));
    g.act(input::FocusOn{g[u"cmdPush1"]});
    extender.put_Left(300);
    extender.put_Visible(false);
    EXPECT_TRUE(g.act(input::FocusOut{}));
    EXPECT_EQ(host.heard, (std::vector{Aspect::Enabled, Aspect::Enabled, Aspect::Place, Aspect::Visible}));
}

TEST(Windows, TheHostHearsWhichWidgetChangedInWhichRespect) {
    struct Host final : ControlHost {
        using ControlHost::ControlHost;
        void WidgetChanged(const Widget& widget, Aspect aspect) noexcept override {
            constexpr const char* names[] = {"Value", "Caption", "Enabled", "Visible", "Place",
                                             "Focus", "Pressed", "ToolTip", "Default", "Look"};
            heard += shownName(widget) + "." + names[static_cast<std::size_t>(aspect)] + " ";
        }
        std::string heard;
    };
    auto owned = std::make_unique<Host>(GalleryHost::make(u"WidgetGallery"));
    Host& host = *owned;
    const GalleryHost g(std::move(owned));
    const auto hears = [&](const std::string& expected) { EXPECT_EQ(std::exchange(host.heard, {}), expected); };
    hears("");
    g.put(u"cmdPush0", u"Caption", u"Go on");
    g.put(u"cmdPush0", u"Enabled", false);
    g.put(u"cmdPush0", u"Enabled", false);
    g.put(u"cmdPush0", u"Visible", false);
    g.put(u"cmdPush0", u"Left", 10);
    g.put(u"cmdPush0", u"ToolTipText", u"tip");
    g.put(u"cmdPush1", u"Default", true);
    hears("cmdPush(0).Caption cmdPush(0).Enabled cmdPush(0).Visible cmdPush(0).Place cmdPush(0).ToolTip "
          "cmdPush(0).Default cmdPush(1).Default ");
    g.put(u"chkPick0", u"Value", 1);
    g.put(u"sscToggle", u"Value", true);
    hears("chkPick(0).Value sscToggle.Value ");
    for (const auto& [before, now] :
         {std::pair{u"optChoice1", u"optChoice2"}, {u"ssoSeat1", u"ssoSeat2"}, {u"ribCard0", u"ribCard1"}}) {
        g.put(before, u"Value", true);
        host.heard.clear();
        g.put(now, u"Value", true);
        hears(shownName(g[before]) + ".Value " + shownName(g[now]) + ".Value ");
    }
    g.press(g.pointOf(u"cmdPush2"));
    g.release({-1, -1});
    hears("cmdPush(2).Focus cmdPush(2).Pressed cmdPush(2).Pressed ");

    auto outer = std::make_unique<Host>(GalleryHost::make(u"Outer"));
    Host& outerHost = *outer;
    const GalleryHost o(std::move(outer));
    outerHost.heard.clear();
    o.click(u"smallOne.ssoPick2");
    EXPECT_EQ(outerHost.heard.substr(0, 18), "ssoPick(2).Focus s") << "of an embedded control too";
}

} // namespace
} // namespace zilvo
