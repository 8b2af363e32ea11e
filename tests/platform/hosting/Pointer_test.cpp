#include "tests/support/gallery/GalleryHost.h"

namespace zilvo {
namespace {

std::string nameAt(const GalleryHost& g, Point at) {
    const Hit hit = g.surface().hitTest(at);
    if (!hit.surface) return "outside";
    if (!hit.widget) return "surface";
    const auto index = hit.widget->isArrayElement() ? "(" + std::to_string(hit.widget->index()) + ")" : std::string();
    return toUtf8(hit.widget->name()) + index;
}

TEST(Pointer, HitsWhatIsInFront) {
    const GalleryHost g;
    const Point both{5700, 600};     // where the two images overlap
    const Point behind{5200, 150};   // only the first image
    const Point onLabel{6000, 1600}; // the label lies on the shape
    const Point onShape{6060, 1300};
    const Rectangle area = g.surface().area();

    EXPECT_EQ(nameAt(g, both), "imgChip(1)");
    EXPECT_EQ(nameAt(g, behind), "imgChip(0)");
    EXPECT_EQ(nameAt(g, onLabel), "lblTable");
    EXPECT_EQ(nameAt(g, onShape), "surface") << "a shape lets presses through";
    EXPECT_EQ(nameAt(g, g.middleOf({u"optChoice", 3})), "optChoice(3)");
    EXPECT_EQ(nameAt(g, {1800, 900}), "panelOptions");
    EXPECT_EQ(nameAt(g, {0, 0}), "surface");
    EXPECT_EQ(nameAt(g, {-1, 10}), "outside");
    EXPECT_EQ(nameAt(g, {area.right(), 10}), "outside");

    g.put({u"imgChip", 1}, u"Enabled", false);
    EXPECT_EQ(nameAt(g, both), "imgChip(1)") << "a disabled widget still covers";
    EXPECT_FALSE(g.press(both));
    g.put({u"imgChip", 1}, u"Visible", false);
    EXPECT_EQ(nameAt(g, both), "imgChip(0)");
    g.put({u"cmdPush", 2}, u"Left", 380); // over the label, which was created earlier but has the higher place
    g.put({u"cmdPush", 2}, u"Top", 90);
    EXPECT_EQ(nameAt(g, onLabel), "lblTable");
    EXPECT_EQ(nameAt(g, {onLabel.x, 1450}), "cmdPush(2)");
    g.put({u"panelOptions"}, u"Visible", false);
    EXPECT_EQ(nameAt(g, g.middleOf({u"optChoice", 3})), "surface");
}

TEST(Pointer, MeetsNothingOutsideTheContainer) {
    const GalleryHost g;
    g.put({u"optChoice", 4}, u"Top", 1600); // 50 twips of it remain in the panel
    const Rectangle panel = g.widget({u"panelOptions"}).bounds();
    EXPECT_EQ(nameAt(g, {panel.left + 200, panel.bottom() - 10}), "optChoice(4)");
    EXPECT_EQ(nameAt(g, {panel.left + 200, panel.bottom() + 10}), "surface");
    EXPECT_TRUE(g.click({u"optChoice", 4}));
    g.put({u"optChoice", 4}, u"Top", 1700);
    EXPECT_FALSE(g.click({u"optChoice", 4}));
    EXPECT_EQ(g.heard(), Heard{"OptionClicked(4)"});
}

TEST(Pointer, ToolTipsAreThoseOfTheWidgetInFront) {
    const GalleryHost g;
    const auto tip = [&](Point at) { return toUtf8(toolTipAt(g->control(), at)); };
    EXPECT_EQ(tip({5700, 600}), "The chip in front");
    EXPECT_EQ(tip({5200, 150}), "The chip behind");
    EXPECT_EQ(tip({1800, 900}), "Right button for the menu");
    EXPECT_EQ(tip(g.middleOf({u"optChoice", 1})), "");
    EXPECT_EQ(tip({0, 0}), "");
    EXPECT_EQ(tip({-5, 0}), "");
    g.put({u"optChoice", 1}, u"ToolTipText", u"The first");
    g.put({u"imgChip", 1}, u"Visible", false);
    EXPECT_EQ(tip(g.middleOf({u"optChoice", 1})), "The first");
    EXPECT_EQ(tip({5700, 600}), "The chip behind");
}

TEST(Pointer, AClickIsAPressAndAReleaseOnTheSameWidget) {
    const At go{u"cmdPush", 0};
    const At quit{u"cmdPush", 1};
    struct Case {
        const char* what;
        std::function<void(const GalleryHost&)> input;
        Heard heard;
    };
    const std::vector<Case> cases = {
        {"press and release",
         [&](const auto& g) { g.press(g.middleOf(go)), g.release(g.middleOf(go)); },
         {"CommandClicked(0)"}},
        {"released elsewhere on it",
         [&](const auto& g) { g.press(g.middleOf(go)), g.release(g.pointOf(go, 0, 0)); },
         {"CommandClicked(0)"}},
        {"released on another", [&](const auto& g) { g.press(g.middleOf(go)), g.release(g.middleOf(quit)); }, {}},
        {"released outside",
         [&](const auto& g) {
             g.press(g.middleOf(go)), g.release({-900, 0});
         },
         {}},
        {"off and back again",
         [&](const auto& g) {
             g.press(g.middleOf(go));
             g.move(g.middleOf(quit));
             EXPECT_FALSE(g.widget(go).isPressed());
             EXPECT_FALSE(g.widget(quit).isPressed()) << "the pointer is captured";
             g.move(g.middleOf(go));
             EXPECT_TRUE(g.widget(go).isPressed());
             g.release(g.middleOf(go));
         },
         {"CommandClicked(0)"}},
        {"released twice",
         [&](const auto& g) {
             g.press(g.middleOf(go));
             EXPECT_TRUE(g.release(g.middleOf(go)));
             EXPECT_FALSE(g.release(g.middleOf(go)));
         },
         {"CommandClicked(0)"}},
        {"only released", [&](const auto& g) { EXPECT_FALSE(g.release(g.middleOf(go))); }, {}},
        {"another button", [&](const auto& g) { g.press(g.middleOf(go), 2), g.release(g.middleOf(go), 2); }, {}},
        {"another button meanwhile",
         [&](const auto& g) {
             g.press(g.middleOf(go));
             g.press(g.middleOf(go), 4);
             g.release(g.middleOf(go), 4);
             EXPECT_TRUE(g.widget(go).isPressed());
             g.release(g.middleOf(go));
         },
         {"CommandClicked(0)"}},
        {"disabled meanwhile",
         [&](const auto& g) {
             g.press(g.middleOf(go));
             g.put(go, u"Enabled", false);
             EXPECT_FALSE(g.release(g.middleOf(go)));
             EXPECT_FALSE(g.widget(go).isPressed());
         },
         {}},
        {"covered meanwhile",
         [&](const auto& g) {
             g.press({5200, 150});
             g.put({u"imgChip", 1}, u"Left", 344); // in pixels
             g.put({u"imgChip", 1}, u"Top", 8);
             g.release({5200, 150});
         },
         {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const GalleryHost g;
        c.input(g);
        EXPECT_EQ(g.heard(), c.heard);
    }
}

TEST(Pointer, PanelsAndTheSurfaceReportEveryButtonWithItsShiftState) {
    const GalleryHost g;
    EXPECT_TRUE(g.press({6000, 1600})); // on a label, which takes it away from the surface behind
    EXPECT_TRUE(g.press({10, 10}));
    EXPECT_TRUE(g.press({10, 10}, input::RightButton, input::ShiftMask | input::AltMask));
    EXPECT_TRUE(g.press({1800, 900}, input::MiddleButton, input::CtrlMask));
    EXPECT_TRUE(g.press(g.pointOf({u"panelThreeD"}, 0.95F, 0.5F))); // a panel without a handler
    EXPECT_EQ(g.heard(), (Heard{"SurfacePressed(1, 0)", "SurfacePressed(2, 5)", "PanelPressed(4, 2)"}));
}

TEST(Pointer, WhatIsDisabledOrHiddenTakesNoInput) {
    const std::vector<At> widgets = {{u"optChoice", 2}, {u"chkPick", 0}, {u"sscToggle"},  {u"ssoSeat", 1},
                                     {u"ribCard", 0},   {u"imgChip", 1}, {u"cmdPush", 0}, {u"spnCount"}};
    for (const At at : widgets) {
        const GalleryHost fresh;
        Widget* const container = fresh.widget(at).parent();
        const StringView outer = container ? container->name() : u"";
        for (const bool byContainer : {false, true})
            for (const StringView member : {u"Enabled", u"Visible"}) {
                if (byContainer && outer.empty()) continue;
                SCOPED_TRACE(toUtf8(at.name) + " " + (byContainer ? "in " + toUtf8(outer) : "") + toUtf8(member));
                const GalleryHost g;
                const Point point = g.pointOf(at, 0.5F, 0.25F);
                g.put(byContainer ? At{outer} : at, member, false);
                EXPECT_FALSE(g.click(at));
                EXPECT_FALSE(g.act(input::Act{g.widget(at), input::Action::SpinUp}));
                g.press(point), g.release(point);
                EXPECT_NE(g->control().focus(), &g.widget(at));
                auto heard = g.heard();
                for (const char* behind : {"SurfacePressed(1, 0)", "PanelPressed(1, 0)", "ImageClicked(0)"})
                    std::erase(heard, behind); // what the pointer meets where something is hidden
                EXPECT_EQ(heard, Heard{});
            }
    }
}

TEST(Pointer, AHiddenControlTakesNothing) {
    const GalleryHost g;
    g.focusOn({u"cmdPush", 2});
    g->extenderObject().put_Visible(false);
    EXPECT_FALSE(g.press({10, 10}));
    EXPECT_FALSE(g.click({u"cmdPush", 0}));
    EXPECT_FALSE(g.click({u"mnuPick", 0}));
    EXPECT_FALSE(g.key(u"Enter"));
    EXPECT_FALSE(g.key(u"Tab"));
    EXPECT_FALSE(g.key(u"Alt+Q"));
    EXPECT_FALSE(g.type(u'x'));
    EXPECT_EQ(g.heard(), Heard{});
    EXPECT_EQ(toString(g->get(u"KeysSeen")), u"");
    g->extenderObject().put_Visible(true);
    EXPECT_TRUE(g.click({u"cmdPush", 0}));
}

TEST(Pointer, AnActNeedsAPlaceWhereThePointerMeetsTheWidget) {
    const GalleryHost g;
    EXPECT_EQ(nameAt(g, g.middleOf({u"imgChip", 0})), "imgChip(1)");
    EXPECT_TRUE(g.click({u"imgChip", 0})) << "its middle is covered, its rim is not";
    g.put({u"imgChip", 1}, u"Left", 344);
    g.put({u"imgChip", 1}, u"Top", 8);
    EXPECT_FALSE(g.click({u"imgChip", 0}));
    g.put({u"cmdPush", 0}, u"Left", 1000); // beyond the control's edge
    EXPECT_FALSE(g.click({u"cmdPush", 0}));
    g.put({u"cmdPush", 1}, u"Width", 0);
    EXPECT_FALSE(g.click({u"cmdPush", 1}));
    EXPECT_EQ(g.heard(), Heard{"ImageClicked(0)"});

    for (const At nobody : {At{u"lblTitle"}, At{u"shpTable"}, At{u"frameChecks"}, At{u"panelThreeD"}, At{u"spnCount"},
                            At{u"noSuchWidget"}})
        EXPECT_FALSE(g.click(nobody)) << toUtf8(nobody.name);
    EXPECT_FALSE(g.act(input::Act{g.widget({u"cmdPush", 2}), input::Action::SpinUp}));
    EXPECT_EQ(g.heard(), Heard{});
}

} // namespace
} // namespace zilvo
