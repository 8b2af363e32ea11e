#pragma once

#include "zilvo/platform/values/Status.h"

namespace zilvo::platform {

/// How a call ended, and what its failure says.
struct Outcome {
    Status status = Status::Ok;
    std::string message;

    bool says(std::string_view part) const { return message.find(part) != std::string::npos; }
};

template <class Body>
Outcome outcomeOf(const Body& body) {
    try {
        body();
        return {};
    } catch (const Failure& failure) {
        return {failure.status(), failure.what()};
    }
}

} // namespace zilvo::platform
