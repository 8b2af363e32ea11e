#pragma once

#include "zilvo/platform/values/Kinds.h"

#include <initializer_list>
#include <vector>

namespace zilvo::platform {

/// A one-dimensional array of Booleans with a lower bound of its own. Its elements are references that stay valid
/// for the array's life; its size is fixed at creation.
class BooleanArray {
public:
    /// An array without elements, whose bounds cannot be read.
    BooleanArray() = default;
    /// Elements lowerBound to lowerBound + values.size() - 1.
    BooleanArray(Long lowerBound, std::vector<Boolean> values);
    BooleanArray(Long lowerBound, std::initializer_list<bool> values);

    bool hasElements() const noexcept { return !elements_.empty(); }
    std::size_t size() const noexcept { return elements_.size(); }

    /// Both fail with SubscriptOutOfRange when there are no elements.
    Long LowerBound() const;
    Long UpperBound() const;
    /// Fails with SubscriptOutOfRange outside the bounds.
    Boolean& At(Long index) { return elements_[offsetOf(index)]; }
    const Boolean& At(Long index) const { return elements_[offsetOf(index)]; }

    friend bool operator==(const BooleanArray&, const BooleanArray&) = default;

private:
    std::size_t offsetOf(Long index) const {
        const auto offset = static_cast<std::size_t>(std::int64_t{index} - lowerBound_);
        if (offset >= elements_.size()) failOutside(index);
        return offset;
    }
    [[noreturn]] void failOutside(Long index) const;

    Long lowerBound_ = 0;
    std::vector<Boolean> elements_;
};

} // namespace zilvo::platform
