#pragma once

#include "zilvo/framework/Enumerations.h"

namespace zilvo {

/// Five functions on a seat descriptor, a 16-bit set in which bit k stands for seat k.
/// No control and no state: a host calls them without naming an instance, or on one of its own.
/// The last three return the changed descriptor, sign-extended to 32 bits, and leave the host's variable as it is.
class ZilvoButtonGoodies final : public Object {
public:
    static const ObjectDescription Description;
    explicit ZilvoButtonGoodies(ComponentModule& module) noexcept : Object(module) {}

    /// Whether the bit is clear; False for a bit number outside 0 to 15.
    bool SeatBitIsNotSet(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit);
    /// Whether the bit is set; False for a bit number outside 0 to 15.
    bool SeatBitIsSet(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit);
    /// The descriptor without the bit. -14 to -1 change nothing and -15 means 15; beyond, the descriptor comes negated,
    /// and the most negative bit number fails with Overflow.
    SeatSpreadPossibilities SeatBitReset(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit);
    /// The descriptor with the bit; bit numbers outside 0 to 15 as in SeatBitReset.
    SeatSpreadPossibilities SeatBitSet(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit);
    /// The descriptor with the bit inverted; negated for a bit number outside 0 to 15.
    SeatSpreadPossibilities SeatBitToggle(Integer& SeatDescriptor, SeatSpreadPossibilities& WhichBit);

private:
    const ObjectDescription& description() const noexcept override { return Description; }
};

} // namespace zilvo
