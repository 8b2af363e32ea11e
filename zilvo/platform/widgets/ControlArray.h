#pragma once

#include "zilvo/platform/widgets/Widget.h"

#include <utility>

namespace zilvo::platform {

/// Like widgets under one name, told apart by their index: a table of designs, one handler for all.
template <class Kind, std::size_t Count>
class ControlArray {
public:
    using Design = typename Kind::Design;

    template <class Parent, class... Handlers>
    ControlArray(Parent& parent, const Design (&designs)[Count], const Handlers&... handlers)
        : ControlArray(parent, designs, std::make_index_sequence<Count>(), handlers...) {}

    /// The element; fails with MissingElement when there is none with that index.
    Kind& Item(Integer index) {
        // Most arrays are numbered without gaps: looked for first where the index says.
        const auto likely = static_cast<std::size_t>(index - elements_[0].index());
        if (likely < Count && elements_[likely].index() == index) return elements_[likely];
        for (Kind& element : elements_)
            if (element.index() == index) return element;
        throw Failure(Status::MissingElement, toUtf8(elements_[0].name()) + " has no element " + std::to_string(index));
    }

private:
    template <class Parent, std::size_t... I, class... Handlers>
    ControlArray(Parent& parent, const Design (&designs)[Count], std::index_sequence<I...>, const Handlers&... handlers)
        : elements_{Kind(parent, designs[I], handlers...)...} {}

    std::array<Kind, Count> elements_;
};

} // namespace zilvo::platform
