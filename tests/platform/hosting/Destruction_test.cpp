#include "tests/support/gallery/GalleryHost.h"

namespace zilvo {
namespace {

struct Case {
    const char* what;
    std::function<void(const GalleryHost&)> input;
};

/// Runs each input on a host of its own that the first event ends.
template <class T>
void expectSurvival(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        GalleryHost g(createObject<T>(galleryModule()));
        for (const EventDescription& event : T::Description.events)
            g->on(event.name, [&](std::span<Variant>) { g.destroy(); });
        c.input(g);
        EXPECT_TRUE(g.isDestroyed());
        EXPECT_EQ(g.heard().size(), 1U) << "nothing is raised after it";
        EXPECT_EQ(galleryModule().liveObjects(), 0U);
    }
}

TEST(Destruction, AHandlerMayEndTheHostInAnyInput) {
    const auto clicks = [](At at) { return [at](const GalleryHost& g) { EXPECT_TRUE(g.click(at)); }; };
    const auto presses = [](At at) {
        return [at](const GalleryHost& g) {
            const Point point = g.pointOf(at, 0.5F, 0.1F);
            g.press(point);
            if (!g.isDestroyed()) g.release(point);
        };
    };
    const auto pressesAt = [](Point point, Integer button) {
        return [point, button](const GalleryHost& g) { g.press(point, button); };
    };
    const auto spins = [](const GalleryHost& g) {
        g.act(input::Act{g.widget({u"spnCount"}), input::Action::SpinDown});
    };
    const auto embeddedAct = [](At at) {
        return [at](const GalleryHost& g) { g.act(input::Act{GalleryHost::widgetOf(g.inside(u"smallOne"), at)}); };
    };
    const auto focusedKey = [](At at, StringView key) {
        return [at, key](const GalleryHost& g) {
            while (g.focus() != toUtf8(at.name) + "(" + std::to_string(at.index) + ")")
                g.key(u"Tab");
            g.key(key);
        };
    };
    const auto keys = [](std::vector<StringView> all) {
        return [all](const GalleryHost& g) {
            for (const StringView key : all)
                g.key(key); // the last one raises the event
        };
    };
    const auto menuKeys = [](std::vector<StringView> all) {
        return [all](const GalleryHost& g) {
            dynamic_cast<UserControl&>(g.surface()).PopupMenu(dynamic_cast<Menu&>(g.widget({u"mnuRoot"})));
            for (const StringView key : all)
                g.key(key);
        };
    };
    const auto code = [](At at, Variant value) {
        return [at, value](const GalleryHost& g) { g.put(at, u"Value", value); };
    };
    expectSurvival<WidgetGallery>({
        {"command, act", clicks({u"cmdPush", 0})},
        {"command, pointer", presses({u"cmdPush", 0})},
        {"command, Space", focusedKey({u"cmdPush", 2}, u"Space")},
        {"command, Enter", focusedKey({u"cmdPush", 2}, u"Enter")},
        {"default", keys({u"Enter"})},
        {"cancel", keys({u"Escape"})},
        {"access key", keys({u"Alt+P"})},
        {"option, act", clicks({u"optChoice", 2})},
        {"option, arrow", focusedKey({u"optChoice", 1}, u"Down")},
        {"option, code", code({u"optChoice", 2}, true)},
        {"check, pointer", presses({u"chkPick", 0})},
        {"check, code", code({u"chkPick", 0}, 1)},
        {"3-D check", presses({u"sscToggle"})},
        {"3-D option, arrow", focusedKey({u"ssoSeat", 2}, u"Left")},
        {"ribbon", presses({u"ribCard", 0})},
        {"image", presses({u"imgChip", 1})},
        {"spin, press", presses({u"spnCount"})},
        {"spin, act", spins},
        {"panel", pressesAt({1800, 900}, input::LeftButton)},
        {"panel, with its pop-up", pressesAt({1800, 900}, input::RightButton)},
        {"panel, act", clicks({u"panelOptions"})},
        {"surface", pressesAt({5, 5}, input::LeftButton)},
        {"menu, act", clicks({u"mnuPick", 0})},
        {"menu, keys", menuKeys({u"Down", u"Enter"})},
        {"menu, access keys", menuKeys({u"m", u"s"})},
    });
    expectSurvival<Outer>({
        {"button", presses({u"cmdPush", 0})},
        {"embedded, access key", keys({u"Alt+1"})},
        {"embedded, its key preview", keys({u"Tab", u"Tab", u"Escape"})},
        {"embedded, pointer",
         [](const auto& g) {
             g.press({300, 640});
             g.release({300, 640});
         }},
        {"embedded, act", embeddedAct({u"ssoPick", 2})},
        {"embedded, menu", embeddedAct({u"mnuPick", 12})},
        {"embedded, pop-up",
         [](const auto& g) {
             g.press({1400, 600}, input::RightButton);
             g.key(u"Down");
             g.key(u"Enter");
         }},
    });
}

TEST(Destruction, AHandlerMayEndTheHostWhileTimePasses) {
    GalleryHost g;
    int left = 3;
    g->on(u"SpunUp", [&](std::span<Variant>) {
        if (--left == 0) g.destroy();
    });
    g.press(g.pointOf({u"spnCount"}, 0.5F, 0.25F));
    g.wait(10000);
    EXPECT_TRUE(g.isDestroyed());
    EXPECT_EQ(g.heard().size(), 3U);
}

TEST(Destruction, AHandlerMayEndTheHostAndFail) {
    GalleryHost g;
    g->on(u"CommandClicked", [&](std::span<Variant>) {
        g.destroy();
        throw Failure(Status::Overflow, "and out");
    });
    try {
        g.click({u"cmdPush", 0});
        ADD_FAILURE();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.status(), Status::Overflow);
    }
    EXPECT_EQ(galleryModule().liveObjects(), 0U);
}

} // namespace
} // namespace zilvo
