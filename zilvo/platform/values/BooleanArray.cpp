#include "zilvo/platform/values/BooleanArray.h"

#include "zilvo/platform/values/Status.h"

#include <limits>
#include <utility>

namespace zilvo::platform {

namespace {

std::vector<Boolean> asBooleans(std::initializer_list<bool> values) {
    std::vector<Boolean> elements;
    elements.reserve(values.size());
    for (const bool value : values)
        elements.push_back(asBoolean(value));
    return elements;
}

} // namespace

BooleanArray::BooleanArray(Long lowerBound, std::vector<Boolean> values)
    : lowerBound_(lowerBound), elements_(std::move(values)) {
    const auto top = std::int64_t{lowerBound} + static_cast<std::int64_t>(elements_.size()) - 1;
    if (top > std::numeric_limits<Long>::max())
        throw Failure(Status::Overflow, "the upper bound " + std::to_string(top) + " of a Boolean array overflows");
}

BooleanArray::BooleanArray(Long lowerBound, std::initializer_list<bool> values)
    : BooleanArray(lowerBound, asBooleans(values)) {}

Long BooleanArray::LowerBound() const {
    if (elements_.empty()) throw Failure(Status::SubscriptOutOfRange, "the array has no elements");
    return lowerBound_;
}

Long BooleanArray::UpperBound() const {
    return static_cast<Long>(std::int64_t{LowerBound()} + static_cast<std::int64_t>(elements_.size()) - 1);
}

void BooleanArray::failOutside(Long index) const {
    const auto bounds = elements_.empty()
                            ? std::string("an array without elements")
                            : "an array from " + std::to_string(lowerBound_) + " to " + std::to_string(UpperBound());
    throw Failure(Status::SubscriptOutOfRange, "there is no element " + std::to_string(index) + " in " + bounds);
}

} // namespace zilvo::platform
