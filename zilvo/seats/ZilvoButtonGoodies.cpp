#include "zilvo/seats/ZilvoButtonGoodies.h"

#include <limits>

namespace zilvo {

namespace {

constexpr std::array members = {
    method<&ZilvoButtonGoodies::SeatBitIsNotSet>(0x60030000, u"SeatBitIsNotSet", u"SeatDescriptor", u"WhichBit"),
    method<&ZilvoButtonGoodies::SeatBitIsSet>(0x60030001, u"SeatBitIsSet", u"SeatDescriptor", u"WhichBit"),
    method<&ZilvoButtonGoodies::SeatBitReset>(0x60030002, u"SeatBitReset", u"SeatDescriptor", u"WhichBit"),
    method<&ZilvoButtonGoodies::SeatBitSet>(0x60030003, u"SeatBitSet", u"SeatDescriptor", u"WhichBit"),
    method<&ZilvoButtonGoodies::SeatBitToggle>(0x60030004, u"SeatBitToggle", u"SeatDescriptor", u"WhichBit"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr Long SignBit = 15;
constexpr Long SignMask = -0x8000; ///< the sign bit and its extension to 32 bits
constexpr Long WithoutSign = 0x7FFF;

constexpr bool isBit(Long number) noexcept {
    return number >= 0 && number <= SignBit;
}

/// 2 to the power of a bit number from -14 to 14, rounded to a whole number: nothing for the negative ones.
constexpr Long maskOf(Long number) noexcept {
    return number < 0 ? 0 : Long{1} << number;
}

bool isSet(Integer descriptor, Long number) noexcept {
    return number == SignBit ? descriptor < 0 : (descriptor & maskOf(number)) != 0;
}

Long absolute(SeatSpreadPossibilities bit) {
    const auto number = static_cast<Long>(bit);
    if (number == std::numeric_limits<Long>::min())
        throw Failure(Status::Overflow, "WhichBit " + std::to_string(number) + " has no absolute value");
    return number < 0 ? -number : number;
}

constexpr SeatSpreadPossibilities asResult(Long descriptor) noexcept {
    return static_cast<SeatSpreadPossibilities>(descriptor);
}

} // namespace

constinit const ObjectDescription ZilvoButtonGoodies::Description{u"ZilvoButtonGoodies", members, {}};

bool ZilvoButtonGoodies::SeatBitIsNotSet(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit) {
    const auto number = static_cast<Long>(WhichBit);
    return isBit(number) && !isSet(SeatDescriptor, number);
}

bool ZilvoButtonGoodies::SeatBitIsSet(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit) {
    const auto number = static_cast<Long>(WhichBit);
    return isBit(number) && isSet(SeatDescriptor, number);
}

SeatSpreadPossibilities ZilvoButtonGoodies::SeatBitReset(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit) {
    const Long number = absolute(WhichBit);
    if (number > SignBit) return asResult(-Long{SeatDescriptor});
    if (number == SignBit) return asResult(SeatDescriptor & WithoutSign);
    return asResult(SeatDescriptor & ~maskOf(static_cast<Long>(WhichBit)));
}

SeatSpreadPossibilities ZilvoButtonGoodies::SeatBitSet(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit) {
    const Long number = absolute(WhichBit);
    if (number > SignBit) return asResult(-Long{SeatDescriptor});
    if (number == SignBit) return asResult(SeatDescriptor | SignMask);
    return asResult(SeatDescriptor | maskOf(static_cast<Long>(WhichBit)));
}

SeatSpreadPossibilities ZilvoButtonGoodies::SeatBitToggle(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit) {
    const auto number = static_cast<Long>(WhichBit);
    if (!isBit(number)) return asResult(-Long{SeatDescriptor});
    return asResult(SeatDescriptor ^ (number == SignBit ? SignMask : maskOf(number)));
}

} // namespace zilvo
