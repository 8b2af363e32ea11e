#include "tests/support/gallery/GalleryHost.h"

#include <algorithm>
#include <sstream>

namespace zilvo {
namespace {

/// Does one thing: "press:cmdPush0", "click:", "focus:", "spin:" or "code:" (sets Value) with a widget, "menu" (pops it
/// up), else a key.
void perform(const GalleryHost& g, const std::string& deed) {
    const auto verb = deed.substr(0, deed.find(':'));
    const String path = toUtf16(deed.substr(std::min(verb.size() + 1, deed.size())));
    if (verb == "press") {
        const Point at = g.pointOf(path, 0.5F, 0.1F);
        g.press(at);
        if (!g.isDestroyed()) g.release(at);
    } else if (verb == "click") {
        EXPECT_TRUE(g.click(path));
    } else if (verb == "focus") {
        g.focusOn(path);
    } else if (verb == "spin") {
        g.act(input::Act{g[path], input::Action::SpinDown});
    } else if (verb == "code") {
        g.put(path, u"Value", 1);
    } else if (verb == "menu") {
        g.press({1400, 700}, input::RightButton);
    } else {
        g.key(toUtf16(deed));
    }
}

TEST(Destruction, AHandlerMayEndTheHostInAnyInput) {
    const std::pair<StringView, std::vector<const char*>> waysOf[] = {
        {u"WidgetGallery",
         {"click:cmdPush0",
          "press:cmdPush0",
          "focus:cmdPush2 Space",
          "focus:cmdPush2 Enter",
          "Enter",
          "Escape",
          "Alt+P",
          "click:optChoice2",
          "focus:optChoice1 Down",
          "code:optChoice2",
          "press:chkPick0",
          "code:chkPick0",
          "press:sscToggle",
          "focus:ssoSeat2 Left",
          "press:ribCard0",
          "press:imgChip1",
          "press:spnCount",
          "spin:spnCount",
          "focus:ribCard1 Tab Up",
          "press:panelOptions",
          "click:panelOptions",
          "click:mnuPick0",
          "menu Down Enter",
          "menu m s"}},
        {u"Outer",
         {"press:cmdPush0", "Alt+1", "Tab Tab Escape", "click:smallOne.ssoPick2", "click:smallOne.mnuPick12",
          "menu Down Enter"}},
    };
    const auto isTyped = [](const std::string& event) { return event.starts_with("KeyTyped"); };
    for (const auto& [className, ways] : waysOf)
        for (const char* way : ways)
            for (const bool alreadyWhenTyped : {false, true}) {
                SCOPED_TRACE(way);
                GalleryHost g(className);
                for (const EventDescription& event : g->object().description().events)
                    if (event.name != u"KeyTyped" || alreadyWhenTyped)
                        g->on(event.name, [&](std::span<Variant>) { g.destroy(); });
                std::istringstream deeds(way);
                for (std::string deed; !g.isDestroyed() && deeds >> deed;)
                    perform(g, deed);
                EXPECT_TRUE(g.isDestroyed());
                auto heard = g.heard();
                if (!alreadyWhenTyped) std::erase_if(heard, isTyped);
                EXPECT_EQ(heard.size(), 1U) << "nothing is raised after it";
                EXPECT_EQ(galleryModule().liveObjects(), 0U);
            }
}

TEST(Destruction, AHandlerMayEndTheHostWhileTimePassesAndFail) {
    GalleryHost g;
    int left = 3;
    g->on(u"SpunUp", [&](std::span<Variant>) {
        if (--left > 0) return;
        g.destroy();
        throw Failure(Status::Overflow, "and out");
    });
    g.press(g.pointOf(u"spnCount", 0.5F, 0.25F));
    EXPECT_THROW(g.wait(10000), Failure);
    EXPECT_TRUE(g.isDestroyed());
    EXPECT_EQ(g.heard().size(), 3U);
    EXPECT_EQ(galleryModule().liveObjects(), 0U);
}

} // namespace
} // namespace zilvo
