#include "tests/support/gallery/GalleryHost.h"

namespace zilvo {
namespace {

FontRef fontOf(const GalleryHost& g, At at) {
    return toFont(g.get(at, u"Font"));
}

/// How often the host was told to paint again by `change`.
template <class Change>
std::size_t repaints(const GalleryHost& g, const Change& change) {
    const auto before = g->repaints();
    change();
    return g->repaints() - before;
}

TEST(WidgetFont, AChangeOfTheObjectShowsOnTheWidget) {
    const GalleryHost g;
    const std::string designed = g.painted();
    const FontRef font = fontOf(g, {u"cmdPush", 0});
    EXPECT_EQ(fontOf(g, {u"cmdPush", 0}), font) << "always the same object";
    EXPECT_EQ(repaints(g, [&] { EXPECT_NE(fontOf(g, {u"cmdPush", 1}), font); }), 0U);
    EXPECT_EQ(g.painted(), designed) << "asking for the object changes nothing";

    EXPECT_EQ(repaints(g, [&] { font->put_Size(20); }), 1U);
    EXPECT_NE(g.painted(), designed);
    EXPECT_EQ(repaints(g, [&] { font->put_Size(20); }), 0U) << "it has that size already";
    EXPECT_EQ(repaints(g, [&] { font->put_Italic(true); }), 1U);
}

TEST(WidgetFont, IsSharedBetweenWidgets) {
    const GalleryHost g;
    const FontRef own = fontOf(g, {u"lblTitle"});
    const FontRef shared = fontOf(g, {u"cmdPush", 0});
    g->put(u"Font", shared);
    EXPECT_EQ(fontOf(g, {u"lblTitle"}), shared);
    EXPECT_EQ(toFont(g->get(u"Font")), shared);
    EXPECT_EQ(repaints(g, [&] { shared->put_Bold(true); }), 2U);
    EXPECT_EQ(repaints(g, [&] { own->put_Bold(true); }), 0U) << "nobody shows it any more";
    g.put({u"lblTitle"}, u"Font", shared);
    EXPECT_EQ(repaints(g, [&] { shared->put_Bold(false); }), 2U) << "taking the same object again attaches once";
}

TEST(WidgetFont, OutlivesAControlThatShowedIt) {
    const GalleryHost stays;
    const FontRef font = fontOf(stays, {u"cmdPush", 0});
    {
        const GalleryHost goes;
        goes->put(u"Font", font);
        EXPECT_EQ(repaints(goes, [&] { font->put_Size(9); }), 1U);
    }
    EXPECT_EQ(repaints(stays, [&] { font->put_Size(10); }), 1U);
}

TEST(WidgetFont, OfAnEmbeddedControlRepaintsTheHost) {
    const GalleryHost outer(createObject<Outer>(galleryModule()));
    Widget& pick = GalleryHost::widgetOf(outer.inside(u"smallOne"), {u"ssoPick", 1});
    EXPECT_EQ(repaints(outer, [&] { toFont(getMember(pick, u"Font"))->put_Size(12); }), 1U);
}

} // namespace
} // namespace zilvo
