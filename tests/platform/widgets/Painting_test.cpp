#include "tests/support/gallery/GalleryHost.h"

#include <set>

namespace zilvo {
namespace {

TEST(WidgetPainting, EachStateOfEachKindLooksDifferent) {
    enum class State : std::uint8_t { Disabled, Hidden, Pressed, Focused, On };
    using enum State;
    struct Case {
        At at;
        std::vector<State> states;
    };
    const std::vector<Case> cases = {
        {{u"cmdPush", 2}, {Disabled, Hidden, Pressed, Focused}},
        {{u"optChoice", 2}, {Disabled, Hidden, Pressed, Focused, On}},
        {{u"chkPick", 0}, {Disabled, Hidden, Pressed, Focused, On}},
        {{u"sscToggle"}, {Disabled, Hidden, Pressed, Focused, On}},
        {{u"ssoSeat", 1}, {Disabled, Hidden, Pressed, Focused, On}},
        {{u"ribCard", 0}, {Hidden, Pressed, Focused, On}},
        {{u"spnCount"}, {Disabled, Hidden, Pressed, Focused}},
        {{u"panelOptions"}, {Disabled, Hidden}},
        {{u"frameChecks"}, {Disabled, Hidden}},
        {{u"lblTitle"}, {Disabled, Hidden}},
        {{u"imgChip", 0}, {Hidden}},
        {{u"shpTable"}, {Hidden}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(toUtf8(c.at.name));
        std::set<std::string> looks = {GalleryHost().painted()};
        for (const State state : c.states) {
            const GalleryHost g;
            if (state == Disabled) g.put(c.at, u"Enabled", false);
            if (state == Hidden) g.put(c.at, u"Visible", false);
            if (state == Pressed) g.press(g.pointOf(c.at, 0.5F, 0.25F));
            if (state == Focused) g.focusOn(c.at);
            if (state == On) g.put(c.at, u"Value", 1);
            EXPECT_TRUE(looks.insert(g.painted()).second) << static_cast<int>(state);
        }
    }
}

TEST(WidgetPainting, NoFocusShowsOnWhatWasDisabledFromCode) {
    for (const At& at : {At{u"cmdPush", 2}, At{u"chkPick", 0}, At{u"spnCount"}}) {
        const GalleryHost plain;
        plain.put(at, u"Enabled", false);
        const GalleryHost focused;
        focused.focusOn(at);
        focused.put(at, u"Enabled", false);
        EXPECT_EQ(focused.painted(), plain.painted()) << toUtf8(at.name);
    }
}

TEST(WidgetPainting, EachOtherMemberShows) {
    struct Case {
        At at;
        StringView member;
        Variant value;
    };
    const std::vector<Case> cases = {
        {{u"cmdPush", 0}, u"Default", false},    {{u"cmdPush", 1}, u"Caption", u"&Other"},
        {{u"cmdPush", 1}, u"Caption", u"Q&uit"}, {{u"cmdPush", 1}, u"BackColor", colours::White},
        {{u"chkPick", 0}, u"Value", 2},          {{u"lblTitle"}, u"ForeColor", Colour{0x000000FF}},
        {{u"frameChecks"}, u"Caption", u""},     {{u"frameChecks"}, u"Height", 60},
        {{u"ribCard", 0}, u"Outline", true},     {{u"ribCard", 0}, u"BackColor", colours::White},
        {{u"imgChip", 1}, u"Left", 350},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(toUtf8(c.at.name) + "." + toUtf8(c.member));
        const GalleryHost g;
        const std::string before = g.painted();
        const auto repaints = g->repaints();
        g.put(c.at, c.member, c.value);
        EXPECT_EQ(g->repaints(), repaints + 1);
        EXPECT_NE(g.painted(), before);
    }
    std::set<std::string> forms;
    const GalleryHost g;
    for (Long form = Shape::IsRectangle; form <= Shape::IsRoundedSquare; ++form) {
        g.put({u"shpTable"}, u"Shape", form);
        forms.insert(g.painted());
    }
    EXPECT_EQ(forms.size(), 6U);
}

TEST(WidgetPainting, ChangesNothing) {
    const GalleryHost g;
    g.focusOn({u"ssoSeat", 3});
    g.press(g.middleOf({u"optChoice", 2}));
    g.heard();
    const auto state = [&] {
        std::string all;
        for (Widget& widget : g.surface()) {
            for (const ClassDescription* part = &widget.description(); part; part = part->base)
                for (const MemberDescription& member : part->members)
                    if (member.name != u"Index" && member.name != u"Font")
                        all += toUtf8(toString(getMember(widget, member.name))) + ";";
            all += widget.isPressed() ? "pressed " : "";
            all += widget.isFocused() ? "focused\n" : "\n";
        }
        return all;
    };
    const std::string before = state();
    const auto repaints = g->repaints();
    const std::string picture = g.painted();
    EXPECT_EQ(g.painted(), picture);
    EXPECT_EQ(state(), before);
    EXPECT_EQ(g->repaints(), repaints);
    EXPECT_EQ(g.heard(), Heard{});
}

TEST(WidgetPainting, GoesFromBackToFront) {
    const GalleryHost g;
    const std::string picture = g.painted();
    const auto shape = picture.find("#006000");
    const auto label = picture.find(">Table<");
    ASSERT_NE(shape, std::string::npos);
    ASSERT_NE(label, std::string::npos);
    EXPECT_LT(shape, label) << "the label was created first but lies in front";

    g.put({u"frameChecks"}, u"Visible", false); // and with it what lies in it
    EXPECT_EQ(g.painted().find(">Left mark<"), std::string::npos);
}

TEST(WidgetPainting, APushButtonWithTheKeyboardTakesTheHeavyFrame) {
    const GalleryHost g;
    g.focusOn({u"cmdPush", 2});
    const std::string defaulted = g.painted();
    g.put({u"cmdPush", 0}, u"Default", false);
    EXPECT_EQ(g.painted(), defaulted) << "the default button has lost its frame already";
}

} // namespace
} // namespace zilvo
