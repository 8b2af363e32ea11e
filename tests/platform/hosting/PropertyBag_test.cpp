#include "tests/support/gallery/GalleryHost.h"

namespace zilvo {
namespace {

using Defaults = MemoryPropertyBag::Defaults;

TEST(PropertyBagRules, AValueEqualToItsDefaultMayBeLeftOut) {
    struct Case {
        Variant value;
        Variant defaultValue;
        bool equal;
    };
    const FontRef font = StdFont::make({.Name = u"Arial", .Size = 12});
    Long variable = 7;
    const std::vector<Case> cases = {
        {Long{0}, Integer{0}, true},
        {Integer{-5}, Single{-5}, true},
        {Single{0.5F}, Integer{0}, false},
        {Long{70000}, Integer{4464}, false}, // the same low bits
        {Variant::to(variable), Integer{7}, true},
        {true, true, true},
        {false, false, true},
        {true, false, false},
        {false, Integer{0}, false},
        {true, Long{-1}, false},
        {false, u"", false},
        {true, u"", false},
        {true, u"True", false},
        {Integer{0}, u"", false},
        {Integer{1}, u"1", false},
        {u"", u"", true},
        {Variant(), Integer{0}, false},
        {u"deck", u"deck", true},
        {u"deck", u"Deck", false},
        {font, StdFont::make({.Name = u"Arial", .Size = 12}), true},
        {font, StdFont::make({.Name = u"Arial", .Size = 12, .Italic = true}), false},
        {font, u"", false},
        {Colour{5}, Colour{5}, true},
        {BooleanArray(1, {true, false}), BooleanArray(1, {true, false}), true},
        {BooleanArray(1, {true, false}), BooleanArray(0, {true, false}), false},
        {u"", Variant(), false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(describe(c.value) + " with the default " + describe(c.defaultValue));
        for (const Defaults defaults : {Defaults::LeftOut, Defaults::Kept}) {
            MemoryPropertyBag bag(defaults);
            bag.WriteProperty(u"Key", c.value, c.defaultValue);
            const bool left = defaults == Defaults::LeftOut && c.equal;
            EXPECT_EQ(bag.settings().empty(), left);
            const Variant read = bag.ReadProperty(u"KEY", c.defaultValue);
            EXPECT_TRUE(equalByValue(read, c.value));
            EXPECT_FALSE(read.isReference());
            if (!left) {
                EXPECT_EQ(read.kind(), c.value.kind());
            }
        }
    }
}

TEST(PropertyBagRules, WhatIsWrittenLastCounts) {
    for (const Defaults defaults : {Defaults::LeftOut, Defaults::Kept}) {
        MemoryPropertyBag bag(defaults);
        Integer count = 5;
        bag.WriteProperty(u"Count", Variant::to(count), Integer{0});
        count = 6;
        EXPECT_EQ(bag.ReadProperty<Integer>(u"Count", Integer{0}), 5) << "a value, not the variable";
        bag.WriteProperty(u"Always", Integer{0});
        EXPECT_EQ(bag.settings().size(), 2U);
        bag.WriteProperty(u"COUNT", Integer{0}, Integer{0});
        EXPECT_EQ(bag.ReadProperty<Integer>(u"Count", Integer{0}), 0);
        EXPECT_EQ(bag.settings().size(), defaults == Defaults::Kept ? 2U : 1U);
        EXPECT_EQ(bag.ReadProperty<Integer>(u"Nothing", Integer{3}), 3);
    }
}

TEST(PropertyBagRules, AFailingConversionNamesItsKey) {
    struct Case {
        Variant stored;
        Status status;
    };
    for (const Case& c : {Case{u"many", Status::TypeMismatch}, Case{Long{70000}, Status::Overflow}}) {
        MemoryPropertyBag bag;
        bag.set(u"Count", c.stored);
        try {
            bag.ReadProperty<Integer>(u"Count", Integer{0});
            ADD_FAILURE();
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.status(), c.status);
            EXPECT_NE(std::string(failure.what()).find("Count"), std::string::npos) << failure.what();
        }
        ControlHost host(createObject<WidgetGallery>(galleryModule()));
        bag.set(u"IsReady", false);
        EXPECT_THROW(host.open(&bag), Failure);
        EXPECT_FALSE(toBoolean(host.get(u"IsReady"))) << "read before the failing key";
    }
}

TEST(PropertyBagRules, AControlComesBackAsItWasSaved) {
    const std::vector<std::pair<StringView, Variant>> settings = {
        {u"IsReady", false},
        {u"Count", Integer{-3}},
        {u"Total", Long{100000}},
        {u"Ratio", 0.1F},
        {u"Title", u"Ünïcode \U0001F0A1"},
        {u"Mood", Long{77}},
        {u"Font", StdFont::make({.Name = u"Comic Sans MS", .Size = 12, .Weight = 700})}};
    for (const Defaults defaults : {Defaults::LeftOut, Defaults::Kept})
        for (const bool changed : {false, true}) {
            GalleryHost saved;
            if (changed)
                for (const auto& [name, value] : settings)
                    saved->put(name, value);
            MemoryPropertyBag bag(defaults);
            saved->save(bag);
            const std::size_t kept = defaults == Defaults::Kept || changed ? settings.size() : 2;
            EXPECT_EQ(bag.settings().size(), kept) << "Total has no default, the title is not the empty one";

            ControlHost loaded(createObject<WidgetGallery>(galleryModule()));
            loaded.open(&bag);
            for (const auto& [name, value] : settings)
                EXPECT_TRUE(equalByValue(loaded.get(name), saved->get(name))) << toUtf8(name);
        }
}

} // namespace
} // namespace zilvo
