#include "zilvo/seats/ZilvoButtonGoodies.h"

#include "zilvo/library/ZilvoButtons.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace zilvo {

namespace {

/// The rules as they are stated for people, in 64-bit and floating-point arithmetic; nothing is shared with the code.
struct Expected {
    bool isSet = false;
    bool isNotSet = false;
    std::int64_t set = 0, reset = 0, toggle = 0;
};

Expected expectedFor(Integer descriptor, std::int64_t bit) {
    const std::int64_t d = descriptor;
    const auto asLong = [](std::uint32_t bits) { return std::int64_t{std::bit_cast<std::int32_t>(bits)}; };
    const auto bits = static_cast<std::uint32_t>(d);
    const auto change = [&](std::int64_t row, auto withMask, std::int64_t onBit15) {
        if (row >= 0 && row <= 14)
            return withMask(static_cast<std::uint32_t>(std::nearbyint(std::pow(2.0, static_cast<double>(bit)))));
        return row == 15 ? onBit15 : -d;
    };
    const std::int64_t absolute = bit < 0 ? -bit : bit;
    Expected result;
    if (bit >= 0 && bit <= 15) {
        result.isSet = (bits & (1U << bit)) != 0;
        result.isNotSet = !result.isSet;
    }
    result.set = change(
        absolute, [&](std::uint32_t mask) { return asLong(bits | mask); }, asLong(bits | 0xFFFF8000U));
    result.reset = change(
        absolute, [&](std::uint32_t mask) { return asLong(bits & ~mask); }, asLong(bits & 0x7FFFU));
    result.toggle = change(
        bit, [&](std::uint32_t mask) { return asLong(bits ^ mask); }, asLong(bits ^ 0xFFFF8000U));
    return result;
}

} // namespace

TEST(SeatBits, EveryDescriptorWithEveryBitNumberAroundTheRangeAndTheExtremes) {
    const auto goodies = create<ZilvoButtonGoodies>();
    std::vector<Long> bits = {
        std::numeric_limits<Long>::min() + 1, std::numeric_limits<Long>::max(), -65536, 65536, 31, 32, 33, -31, -32};
    for (Long bit = -17; bit <= 17; ++bit)
        bits.push_back(bit);
    for (Long d = -32768; d <= 32767; ++d)
        for (const Long bit : bits) {
            auto descriptor = static_cast<Integer>(d);
            auto which = static_cast<SeatSpreadPossibilities>(bit);
            const Expected expected = expectedFor(descriptor, bit);
            const bool right = goodies->SeatBitIsSet(descriptor, which) == expected.isSet &&
                               goodies->SeatBitIsNotSet(descriptor, which) == expected.isNotSet &&
                               static_cast<Long>(goodies->SeatBitSet(descriptor, which)) == expected.set &&
                               static_cast<Long>(goodies->SeatBitReset(descriptor, which)) == expected.reset &&
                               static_cast<Long>(goodies->SeatBitToggle(descriptor, which)) == expected.toggle &&
                               descriptor == d;
            ASSERT_TRUE(right) << "descriptor " << d << ", bit " << bit;
        }
}

TEST(SeatBits, TheMostNegativeBitNumberHasNoAbsoluteValue) {
    const auto goodies = create<ZilvoButtonGoodies>();
    Integer descriptor = 5;
    auto which = static_cast<SeatSpreadPossibilities>(std::numeric_limits<Long>::min());
    EXPECT_FALSE(goodies->SeatBitIsSet(descriptor, which));
    EXPECT_FALSE(goodies->SeatBitIsNotSet(descriptor, which));
    EXPECT_EQ(static_cast<Long>(goodies->SeatBitToggle(descriptor, which)), -5);
    for (const StringView failing : {u"SeatBitSet", u"SeatBitReset"}) {
        std::array<Variant, 2> arguments = {Variant(Integer{5}), Variant(std::numeric_limits<Long>::min())};
        EXPECT_EQ(goodies->Invoke(failing, Access::Method, arguments, nullptr), Status::Overflow);
    }
}

TEST(SeatBits, LateBoundCallsLeaveTheirVariablesAlone) {
    const auto goodies = create<ZilvoButtonGoodies>();
    Integer descriptor = -32768;
    Long which = 20;
    std::array<Variant, 2> arguments = {Variant::to(descriptor), Variant::to(which)};
    Variant result;
    ASSERT_EQ(goodies->Invoke(0x60030004, Access::Method, arguments, &result), Status::Ok);
    EXPECT_EQ(result.kind(), Kind::Long);
    EXPECT_EQ(toLong(result), 32768);
    EXPECT_EQ(descriptor, -32768);
    EXPECT_EQ(which, 20);
    std::array<Variant, 2> tooLarge = {Variant(Long{32768}), Variant(Long{1})};
    EXPECT_EQ(goodies->Invoke(0x60030003, Access::Method, tooLarge, &result), Status::Overflow);
}

} // namespace zilvo
