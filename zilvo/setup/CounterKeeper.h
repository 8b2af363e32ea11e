#pragma once

#include "zilvo/framework/Platform.h"

namespace zilvo {

/// Holds one count and steps it. Nothing overflows: at the ends of the Integer range the count stays.
class CounterKeeper {
public:
    Integer get_CurrentCount() const noexcept { return count_; }
    void put_CurrentCount(Integer newCount) noexcept { count_ = newCount; }

    /// One up; a count at or above the limit stays.
    void IncrementToLimit(const Integer& Limit) noexcept;
    /// One down; a step below 0 gives the limit.
    void DecrementWrapping(const Integer& Limit) noexcept;
    /// One down, below 0 as well.
    void DecrementUnbounded() noexcept;
    /// One down; a count at or below 0 stays.
    void DecrementNotBelowZero() noexcept;

private:
    Integer count_ = 0;
};

} // namespace zilvo
