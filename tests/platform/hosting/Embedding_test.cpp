#include "tests/support/gallery/GalleryHost.h"

namespace zilvo {
namespace {

constexpr At small{u"smallOne"};

GalleryHost outerHost() {
    return GalleryHost(createObject<Outer>(galleryModule()));
}

Widget& pick(const GalleryHost& g, Integer index) {
    return GalleryHost::widgetOf(g.inside(u"smallOne"), {u"ssoPick", index});
}

bool clickPick(const GalleryHost& g, Integer index) {
    return g.act(input::Act{pick(g, index)});
}

TEST(Embedding, ItsEventComesOutWithTheVeryVariable) {
    const GalleryHost g = outerHost();
    EXPECT_TRUE(clickPick(g, 2));
    EXPECT_EQ(g.heard(), Heard{"Picked(2)"});
    EXPECT_TRUE(toBoolean(getMember(pick(g, 2), u"Value")));

    g->on(u"Picked", [](std::span<Variant> arguments) { *arguments[0].findVariable<Long>() = 3; });
    EXPECT_TRUE(clickPick(g, 1));
    EXPECT_TRUE(toBoolean(getMember(pick(g, 3), u"Value"))) << "what the host wrote reached the inner control";
}

TEST(Embedding, CallsGoThroughByIdAndByName) {
    const GalleryHost g = outerHost();
    g->put(u"Allowed", 2);
    EXPECT_EQ(toLong(g->get(u"Allowed")), 2);
    EXPECT_FALSE(clickPick(g, 3));
    g->put(u"Note", u"the first");
    EXPECT_EQ(toString(g->get(u"Note")), u"the first");
    EXPECT_EQ(toUtf8(pick(g, 1).get_ToolTipText()), "the first");

    BooleanArray flags(1, {false, false, true});
    Variant argument = Variant::to(flags);
    g->call(u"FlagsOfAllowed", {&argument, 1});
    EXPECT_EQ(flags, BooleanArray(1, {true, true, false})) << "the caller's own array";
}

TEST(Embedding, ItsFailuresComeOutUnchanged) {
    const GalleryHost g = outerHost();
    const auto failure = [](const auto& call) {
        try {
            call();
        } catch (const Failure& caught) {
            return caught;
        }
        return Failure(Status::Ok, "");
    };
    Variant number = 12;
    const Failure inside = failure([&] { g->call(u"Refuse", {&number, 1}); });
    EXPECT_EQ(inside.status(), Status::InvalidPropertyValue);
    EXPECT_NE(std::string(inside.what()).find("12 does not fit"), std::string::npos) << inside.what();

    g->put(u"Allowed", 1);
    EXPECT_EQ(failure([&] { g->put(u"Allowed", 9); }).status(), Status::MissingElement);
    EXPECT_TRUE(pick(g, 3).get_Enabled()) << "the steps before the failing one stay";

    g->on(u"Picked", [](std::span<Variant>) { throw Failure(Status::Overflow, "by the host"); });
    EXPECT_EQ(failure([&] { clickPick(g, 1); }).status(), Status::Overflow);
}

TEST(Embedding, ItsAmbientPropertiesAreTheOuterControlsOwn) {
    ControlHost host(createObject<Outer>(galleryModule()));
    Surface& inner = *host.control().surface().find(u"smallOne")->embeddedSurface();
    EXPECT_EQ(inner.backColor(), Colour{0x00A8B090}) << "already while it is created";
    host.ambientProperties().put_UserMode(false);
    host.open();
    EXPECT_FALSE(toBoolean(host.get(u"InnerRunsInUserMode")));
    host.setAmbient(u"UserMode", true);
    EXPECT_TRUE(toBoolean(host.get(u"InnerRunsInUserMode")));

    host.setAmbient(u"BackColor", Colour{0x00123456});
    host.setAmbient(u"ForeColor", Colour{0x00654321});
    EXPECT_EQ(inner.backColor(), Colour{0x00123456});
    EXPECT_EQ(inner.foreColor(), Colour{0x00654321});
}

TEST(Embedding, ASizeOfItsOwnIsKeptAndFollowed) {
    const GalleryHost g = outerHost();
    Surface& inner = g.inside(u"smallOne");
    EXPECT_EQ(g.widget(small).bounds().width, 1500) << "the one that it gave itself while loading";
    EXPECT_EQ(g.widget(small).bounds().height, 1320) << "the designed one";
    EXPECT_EQ(inner.area().width, 1500);
    EXPECT_EQ(inner.area().height, 1320);
    g.put(small, u"Height", 900);
    EXPECT_EQ(inner.area().height, 900);
    dynamic_cast<UserControl&>(inner).put_Width(1000);
    EXPECT_EQ(toSingle(g.get(small, u"Width")), 1000);
    EXPECT_EQ(g->extenderObject().get_Width(), 2400) << "the outer one keeps its size";
}

TEST(Embedding, TheUserGoesIntoItAndOutAgain) {
    const GalleryHost g = outerHost();
    std::vector<std::string> stops;
    for (int i = 0; i < 4; ++i) {
        g.key(u"Tab");
        stops.push_back(g.focus());
    }
    EXPECT_EQ(stops, (std::vector<std::string>{"cmdPush(0)", "ssoPick(1)", "cmdPush(1)", "cmdPush(0)"}));

    g.key(u"Alt+2");
    EXPECT_EQ(g.focus(), "ssoPick(2)");
    g.key(u"Down");
    EXPECT_EQ(g.focus(), "ssoPick(3)");
    EXPECT_EQ(g.heard(), (Heard{"Picked(2)", "Picked(3)"}));
    g.key(u"Enter");
    EXPECT_EQ(g.heard(), Heard{"PushClicked(1)"}) << "it has no default button, the outer one has";
    g.key(u"Escape");
    EXPECT_EQ(g.heard(), Heard{"Picked(0)"}) << "it acts on the key, which goes no further";
    g.key(u"Tab");
    g.key(u"Escape");
    EXPECT_EQ(g.heard(), Heard{"PushClicked(0)"}) << "it has the keyboard no more";

    const Point onFirst{120 + 60, 480 + 60 + 100};
    g.press(onFirst), g.release(onFirst);
    EXPECT_EQ(g.heard(), Heard{"Picked(1)"});
    g.press(onFirst);
    g.release({100, 100}); // on the outer control's button
    EXPECT_EQ(g.heard(), Heard{});
}

TEST(Embedding, ItsMenuPopsUpOnTheOuterControl) {
    const GalleryHost g = outerHost();
    EXPECT_TRUE(g.press({1400, 600}, input::RightButton));
    EXPECT_EQ(g->control().lastPopup(), g.inside(u"smallOne").find(u"mnuRoot"));
    g.key(u"Down"), g.key(u"Enter");
    EXPECT_EQ(g.heard(), Heard{"Picked(11)"});
    EXPECT_TRUE(g.act(input::Act{*g.inside(u"smallOne").find(u"mnuPick", 12)}));
    EXPECT_EQ(g.heard(), Heard{"Picked(12)"});
}

TEST(Embedding, WhileHiddenItTakesNothing) {
    const GalleryHost g = outerHost();
    const std::string shown = g.painted();
    g.key(u"Alt+1");
    g.heard();
    EXPECT_TRUE(toBoolean(g->get(u"InnerIsVisible")));
    g->put(u"InnerIsVisible", false);
    EXPECT_NE(g.focus(), "ssoPick(1)");
    EXPECT_FALSE(clickPick(g, 2));
    EXPECT_FALSE(g.key(u"Alt+2"));
    EXPECT_FALSE(g.act(input::Act{*g.inside(u"smallOne").find(u"mnuPick", 12)}));
    EXPECT_EQ(g.surface().hitTest({300, 700}).surface, &g.surface());
    EXPECT_EQ(g.painted().find("Pick "), std::string::npos);
    EXPECT_EQ(g.heard(), Heard{});
    g->put(u"InnerIsVisible", true);
    EXPECT_TRUE(clickPick(g, 2));
}

} // namespace
} // namespace zilvo
