#include "zilvo/platform/hosting/Accessibility.h"

#include "tests/support/gallery/GalleryHost.h"
#include "zilvo/library/ZilvoButtons.h"

#include <set>

namespace zilvo {
namespace {

using namespace platform::accessible;
using Widgets = std::vector<Widget*>;

GalleryHost live(StringView className) {
    ComponentModule& module = libraryModule();
    return GalleryHost(std::make_unique<ControlHost>(module.description().find(className)->create(module)));
}

template <class Body>
void forEachControl(const Body& body) {
    for (ComponentModule* module : {&libraryModule(), &galleryModule()})
        for (const ClassEntry& entry : module->description().classes) {
            SCOPED_TRACE(toUtf8(entry.description.name));
            const Ref<Object> object = entry.create(*module);
            if (!object->hostedControl()) continue;
            ControlHost host(object);
            host.open();
            body(host.control().surface());
        }
}

void collect(const Surface& surface, Widgets& all) {
    for (Widget& widget : surface) {
        all.push_back(&widget);
        if (const Surface* inner = widget.embeddedSurface()) collect(*inner, all);
    }
}

/// The tree below a parent, which may be null for the control; checked on the way.
void collectTold(const Widgets& children, const Widget* parent, std::set<const Widget*>& told) {
    std::set<std::pair<Role, String>> names;
    for (Widget* child : children) {
        const String name = nameOf(*child);
        EXPECT_EQ(parentOf(*child), parent) << shownName(*child);
        EXPECT_TRUE(told.insert(child).second) << shownName(*child);
        EXPECT_TRUE(name.empty() || names.emplace(child->role(), name).second) << toUtf8(name) << " twice";
        EXPECT_EQ(name.find(u'&'), name.npos) << toUtf8(name);
        collectTold(childrenOf(*child), child, told);
    }
}

TEST(Accessibility, EveryWidgetIsToldOfOnceAndWhatCanBeClickedByName) {
    forEachControl([](Surface& surface) {
        std::set<const Widget*> told;
        collectTold(childrenOf(surface), nullptr, told);
        Widgets all;
        collect(surface, all);
        for (Widget* widget : all) {
            EXPECT_EQ(told.contains(widget), widget->role() != Role::None) << shownName(*widget);
            EXPECT_FALSE(widget->isClickable() && nameOf(*widget).empty()) << shownName(*widget);
            EXPECT_FALSE(!actionsOf(*widget).empty() && nameOf(*widget).empty()) << shownName(*widget);
        }
    });
}

TEST(Accessibility, BoundsAreWhereThePointerMeetsTheWidget) {
    forEachControl([](Surface& surface) {
        std::set<const Widget*> met;
        const Rectangle area = surface.area();
        for (Single x = 7; x < area.width; x += 30)
            for (Single y = 7; y < area.height; y += 30) {
                const Widget* widget = surface.hitTest({x, y}).widget;
                if (!widget) continue;
                met.insert(widget);
                ASSERT_TRUE(boundsOf(*widget).contains({x, y})) << shownName(*widget) << " at " << x << ", " << y;
            }
        Widgets all;
        collect(surface, all);
        for (const Widget* widget : all) {
            const Rectangle bounds = boundsOf(*widget);
            if (actionsOf(*widget).empty() || !stateOf(*widget).shown || bounds.height == 0) continue;
            EXPECT_TRUE(met.contains(widget)) << shownName(*widget);
        }
    });
}

TEST(Accessibility, ARadioButtonTellsItsPlaceAmongThoseShown) {
    const GalleryHost decks = live(u"DeckButtons");
    Widget& six = decks[u"optDeckCount6"];
    EXPECT_EQ(six.role(), Role::RadioButton);
    EXPECT_EQ(toUtf8(nameOf(six) + u" | " + descriptionOf(six) + u" | " + accessKeyOf(six)),
              "6 Decks | 6-Deck Shoe | Alt+6");
    EXPECT_EQ(toUtf8(nameOf(*parentOf(six))), "# of Decks");
    EXPECT_EQ(stateOf(six).checked, Checked::No);
    EXPECT_TRUE(decks.act(input::Invoke{six, actionsOf(six).front()}));
    EXPECT_EQ(stateOf(six).checked, Checked::Yes);
    EXPECT_EQ(groupPlaceOf(six)->position, 5U);
    EXPECT_EQ(groupPlaceOf(six)->size, 10U);
    decks.put(u"optDeckCount2", u"Visible", false);
    EXPECT_EQ(groupPlaceOf(six)->position, 4U);
    EXPECT_EQ(groupPlaceOf(six)->size, 9U);
    EXPECT_FALSE(groupPlaceOf(decks[u"optDeckCount2"]) || groupPlaceOf(*parentOf(six)));
}

TEST(Accessibility, ANameIsTheCaptionElseTheLabelElseTheToolTipElseMadeFromTheDesignName) {
    const GalleryHost g;
    const auto name = [&](StringView path) { return toUtf8(nameOf(g[path])); };
    EXPECT_EQ(name(u"cmdPush1") + ", " + name(u"ribCard1") + ", " + name(u"panelRibbons"), "Quit, Card 1, ");
    g.put(u"cmdPush1", u"Caption", String(u"  Save\r\n && &Quit "));
    g.put(u"ribCard1", u"ToolTipText", String(u" Turn & look"));
    EXPECT_EQ(name(u"cmdPush1") + ", " + name(u"ribCard1"), "Save & Quit, Turn & look");
    EXPECT_EQ(descriptionOf(g[u"ribCard1"]), u"");
    g.put(u"spnCount", u"TabIndex", 19); // right behind the label
    EXPECT_EQ(name(u"spnCount"), "Table");
    EXPECT_EQ(name(u"mnuBar"), "");
    EXPECT_EQ(accessKeyOf(g[u"mnuPick0"]), u"O");
    EXPECT_EQ(toUtf8(nameOf(live(u"SitDownButton")[u"panelSitdown"])), "") << "its button lies over the caption";
}

TEST(Accessibility, ASpinButtonHasTheValueOfItsField) {
    const GalleryHost counter = live(u"SpinCounter");
    counter->put(u"CounterValue", Variant(Integer{6}));
    Widget& spin = counter[u"SpinButton"];
    EXPECT_TRUE(counter.act(input::Invoke{spin, actionsOf(spin).front()}));
    EXPECT_EQ(toUtf8(valueOf(spin)), "(007)");
    EXPECT_EQ(steppedBy(counter[u"labelCardsInStack"]), &spin);
    EXPECT_EQ(valueOf(counter[u"labelCardsInStack"]), u"");
    const GalleryHost g; // whose only label is no field
    EXPECT_EQ(valueOf(g[u"spnCount"]), u"");
    EXPECT_EQ(steppedBy(g[u"lblTable"]), nullptr);
}

TEST(Accessibility, StateIsThatOfAllThatItLiesIn) {
    const GalleryHost outer(u"Outer");
    Widget& pick = outer[u"smallOne.ssoPick1"];
    const auto state = [&] { return stateOf(pick); };
    EXPECT_TRUE(state().shown && state().enabled && state().focusable && !state().focused && !state().isDefault);
    EXPECT_TRUE(outer.act(input::FocusOn{pick}));
    EXPECT_TRUE(state().focused && stateOf(outer[u"cmdPush1"]).isDefault);
    outer.put(u"smallOne", u"Enabled", false);
    EXPECT_TRUE(state().shown && !state().enabled && !state().focused);
    outer.put(u"smallOne", u"Visible", false);
    EXPECT_FALSE(state().shown);
    const Widget& push = outer[u"cmdPush0"];
    outer->extenderObject().put_Enabled(false);
    EXPECT_FALSE(stateOf(push).enabled);

    const GalleryHost g;
    g.press(g.pointOf(u"cmdPush0"));
    EXPECT_TRUE(stateOf(g[u"cmdPush0"]).pressed);
    EXPECT_EQ(stateOf(g[u"chkPick1"]).checked, Checked::Mixed);
    EXPECT_EQ(stateOf(g[u"mnuPick2"]).checked, Checked::Yes);
    EXPECT_FALSE(stateOf(g[u"mnuPick0"]).checked || stateOf(g[u"cmdPush0"]).checked || stateOf(g[u"mnuPick0"]).shown);
    EXPECT_TRUE(stateOf(g[u"mnuPick0"]).enabled && !stateOf(g[u"mnuPick1"]).enabled);
}

} // namespace
} // namespace zilvo
