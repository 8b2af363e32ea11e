#include "tests/support/gallery/GalleryHost.h"

namespace zilvo {
namespace {

const At spin{u"spnCount"};

std::size_t spins(const GalleryHost& g) {
    return g.heard().size();
}

TEST(Spinning, APressSpinsOnceInTheHalfThatItMeets) {
    struct Case {
        Single down;
        Integer button;
        Heard heard;
    };
    for (const Case& c : {Case{0.1F, 1, {"SpunUp()"}}, Case{0.49F, 1, {"SpunUp()"}}, Case{0.51F, 1, {"SpunDown()"}},
                          Case{0.25F, 2, {}}}) {
        const GalleryHost g;
        const Point at = g.pointOf(spin, 0.5F, c.down);
        EXPECT_TRUE(g.press(at, c.button));
        EXPECT_EQ(g.heard(), c.heard);
        g.release(at, c.button);
        EXPECT_EQ(g.heard(), Heard{}) << "the press spun already";
    }
    const GalleryHost g;
    EXPECT_TRUE(g.act(input::Act{g.widget(spin), input::Action::SpinUp}));
    EXPECT_TRUE(g.act(input::Act{g.widget(spin), input::Action::SpinDown}));
    EXPECT_EQ(g.heard(), (Heard{"SpunUp()", "SpunDown()"}));
    EXPECT_FALSE(g.widget(spin).isPressed());
    EXPECT_FALSE(g.wait(10000));
}

TEST(Spinning, AWideAndLowButtonHasItsHalvesSideBySide) {
    const GalleryHost g;
    for (const auto& [edge, pixels] : {std::pair{u"Left", 180}, {u"Top", 220}, {u"Width", 100}, {u"Height", 20}})
        g.put(spin, edge, pixels); // where nothing covers it
    for (const Single across : {0.1F, 0.6F}) {
        const Point at = g.pointOf(spin, across, 0.9F);
        g.press(at), g.release(at);
    }
    EXPECT_TRUE(g.act(input::Act{g.widget(spin), input::Action::SpinUp}));
    EXPECT_EQ(g.heard(), (Heard{"SpunDown()", "SpunUp()", "SpunUp()"}));
    const std::string raised = g.painted();
    g.press(g.pointOf(spin, 0.1F, 0.5F));
    const std::string left = g.painted();
    g.release({0, 0});
    g.press(g.pointOf(spin, 0.9F, 0.5F));
    EXPECT_NE(left, raised);
    EXPECT_NE(g.painted(), left);
}

TEST(Spinning, RepeatsWhileHeldByTheHostsClock) {
    constexpr auto delay = static_cast<int>(SpinButton::RepeatDelay.count());
    constexpr auto every = static_cast<int>(SpinButton::RepeatEvery.count());
    struct Step {
        int wait;
        std::size_t spins;
    };
    const GalleryHost g;
    EXPECT_FALSE(g.wait(delay)) << "nothing is held";
    g.press(g.pointOf(spin, 0.5F, 0.75F));
    EXPECT_EQ(spins(g), 1U);
    for (const Step& step : {Step{delay - 1, 0}, Step{1, 1}, Step{every - 1, 0}, Step{1, 1}, Step{every / 2, 0},
                             Step{every / 2, 1}, Step{3 * every, 3}, Step{0, 0}}) {
        EXPECT_TRUE(g.wait(step.wait));
        EXPECT_EQ(spins(g), step.spins) << step.wait;
    }
    g.release(g.middleOf(spin));
    EXPECT_FALSE(g.wait(delay));

    g.press(g.pointOf(spin, 0.5F, 0.25F)); // from the start again
    g.wait(delay + 2 * every);
    EXPECT_EQ(g.heard(), (Heard{"SpunUp()", "SpunUp()", "SpunUp()", "SpunUp()"}));
}

TEST(Spinning, StopsWhileThePointerIsElsewhere) {
    const GalleryHost g;
    const Point up = g.pointOf(spin, 0.5F, 0.25F);
    g.press(up);
    g.move({0, 0});
    EXPECT_FALSE(g.wait(10000));
    EXPECT_EQ(spins(g), 1U);
    g.move(up);
    EXPECT_TRUE(g.wait(static_cast<int>(SpinButton::RepeatDelay.count())));
    EXPECT_EQ(spins(g), 1U);
}

TEST(Spinning, EndsWhenAHandlerTakesTheButtonAway) {
    for (const StringView member : {u"Enabled", u"Visible"}) {
        const GalleryHost g;
        int left = 3;
        g->on(u"SpunUp", [&](std::span<Variant>) {
            if (--left == 0) g.put(spin, member, false);
        });
        g.press(g.pointOf(spin, 0.5F, 0.25F));
        g.wait(10000);
        EXPECT_EQ(spins(g), 3U);
        g.put(spin, member, true);
        g.wait(10000);
        EXPECT_EQ(spins(g), 0U) << "the time that it was away is not made up for";
    }
}

TEST(Spinning, EndsWhenAPopUpTakesThePointer) {
    const GalleryHost g;
    const Point up = g.pointOf(spin, 0.5F, 0.25F);
    g.press(up);
    g.press({1800, 900}, input::RightButton);
    g.heard();
    EXPECT_FALSE(g.wait(10000));
    g.release(up);
    g.key(u"Escape");
    EXPECT_FALSE(g.wait(10000));
    EXPECT_EQ(g.heard(), Heard{});
    EXPECT_FALSE(g.widget(spin).isPressed());

    int left = 3;
    g->on(u"SpunUp", [&](std::span<Variant>) {
        if (--left == 0) dynamic_cast<UserControl&>(g.surface()).PopupMenu(dynamic_cast<Menu&>(g.widget({u"mnuRoot"})));
    });
    g.press(up);
    g.wait(10000);
    EXPECT_EQ(spins(g), 3U);
}

} // namespace
} // namespace zilvo
