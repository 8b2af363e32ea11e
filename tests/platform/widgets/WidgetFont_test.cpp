#include "tests/support/gallery/GalleryHost.h"

namespace zilvo {
namespace {

FontRef fontOf(const GalleryHost& g, StringView path) {
    return toFont(getMember(g[path], u"Font"));
}

/// How often the host was told to paint again by `change`.
template <class Change>
std::size_t repaints(const GalleryHost& g, const Change& change) {
    const auto before = g->repaints();
    change();
    return g->repaints() - before;
}

TEST(WidgetFont, IsSharedBetweenWidgetsAndOutlivesThem) {
    const GalleryHost g;
    const FontRef own = fontOf(g, u"lblTable");
    const FontRef shared = fontOf(g, u"cmdPush0");
    EXPECT_EQ(repaints(g, [&] { g.put(u"lblTable", u"Font", shared); }), 1U);
    EXPECT_EQ(repaints(g, [&] { shared->put_Bold(true); }), 2U);
    EXPECT_EQ(repaints(g, [&] { own->put_Italic(true); }), 0U) << "nobody shows it any more";
    EXPECT_EQ(repaints(g, [&] { g.put(u"lblTable", u"Font", shared); }), 0U);
    EXPECT_EQ(repaints(g, [&] { shared->put_Bold(false); }), 2U) << "taking the same object again attaches once";
    {
        const GalleryHost outer(u"Outer"); // also in an embedded control
        outer.put(u"smallOne.lblTitle", u"Font", shared);
        EXPECT_EQ(repaints(outer, [&] { shared->put_Size(9); }), 1U);
    }
    EXPECT_EQ(repaints(g, [&] { shared->put_Size(10); }), 2U);
}

} // namespace
} // namespace zilvo
