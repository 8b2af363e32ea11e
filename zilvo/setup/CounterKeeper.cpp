#include "zilvo/setup/CounterKeeper.h"

#include <limits>

namespace zilvo {

void CounterKeeper::IncrementToLimit(const Integer& Limit) noexcept {
    if (count_ < Limit) ++count_;
}

void CounterKeeper::DecrementWrapping(const Integer& Limit) noexcept {
    if (count_ <= 0)
        count_ = Limit;
    else
        --count_;
}

void CounterKeeper::DecrementUnbounded() noexcept {
    if (count_ > std::numeric_limits<Integer>::min()) --count_;
}

void CounterKeeper::DecrementNotBelowZero() noexcept {
    if (count_ > 0) --count_;
}

} // namespace zilvo
