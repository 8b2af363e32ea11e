#include "zilvo/platform/hosting/PropertyBag.h"
#include "zilvo/platform/values/StdFont.h"

#include <gtest/gtest.h>

namespace zilvo::platform {
namespace {

using Defaults = MemoryPropertyBag::Defaults;

TEST(PropertyBagRules, AValueEqualToItsDefaultMayBeLeftOut) {
    const auto font = [](bool italic) { return StdFont::make({.Name = u"Arial", .Size = 12, .Italic = italic}); };
    Long variable = 7;
    const BooleanArray array(1, {true, false});
    const BooleanArray fromZero(0, {true, false});
    const std::vector<Variant> unlike = {Integer(0),  Integer(7),     Integer(-1), Integer(4464), Long(70000),
                                         Single(0.5), true,           false,       u"",           u"1",
                                         u"True",     u"deck",        u"Deck",     Variant(),     font(false),
                                         font(true),  colours::White, array,       fromZero};
    const auto check = [](const Variant& value, const Variant& defaultValue, bool areEqual) {
        SCOPED_TRACE(describe(value) + " with the default " + describe(defaultValue));
        for (const Defaults defaults : {Defaults::LeftOut, Defaults::Kept}) {
            MemoryPropertyBag bag(defaults);
            bag.WriteProperty(u"Key", value, defaultValue);
            const bool isLeftOut = defaults == Defaults::LeftOut && areEqual;
            EXPECT_EQ(bag.settings().empty(), isLeftOut);
            const Variant read = bag.ReadProperty(u"KEY", defaultValue);
            EXPECT_TRUE(equalByValue(read, value));
            EXPECT_FALSE(read.isReference());
            EXPECT_EQ(read.kind(), isLeftOut ? defaultValue.kind() : value.kind());
        }
    };
    for (const Variant& value : unlike)
        for (const Variant& defaultValue : unlike)
            check(value, defaultValue, &value == &defaultValue);
    check(Long{0}, Integer{0}, true);
    check(Integer{-5}, Single{-5}, true);
    check(Variant::to(variable), Integer{7}, true);
    check(font(true), font(true), true);
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
        EXPECT_EQ(bag.ReadProperty<Integer>(u"Count", Integer{3}), defaults == Defaults::Kept ? 0 : 3);
        EXPECT_EQ(bag.settings().size(), defaults == Defaults::Kept ? 2U : 1U);
    }
}

} // namespace
} // namespace zilvo::platform
