#pragma once

#include "framework/Enumerations.h"

namespace zilvo {

/// Five functions on a seat descriptor, a 16-bit set in which bit k stands for seat k.
/// No control and no state: a host calls them without naming an instance, or on one of its own.
/// The descriptor is sign-extended to 32 bits; out of range, the changing functions give it negated.
class ZilvoButtonGoodies final : public Object {
public:
    static const ObjectDescription Description;
    explicit ZilvoButtonGoodies(ComponentModule& module) noexcept : Object(module) {}

    /// Both tests are False for a bit number outside 0 to 15.
    bool SeatBitIsNotSet(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit);
    bool SeatBitIsSet(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit);
    /// These two look at the absolute value of the bit number; the most negative one has none and fails with Overflow.
    SeatSpreadPossibilities SeatBitReset(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit);
    SeatSpreadPossibilities SeatBitSet(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit);
    SeatSpreadPossibilities SeatBitToggle(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit);

private:
    const ObjectDescription& description() const noexcept override { return Description; }
};

} // namespace zilvo
