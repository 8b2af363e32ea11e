#pragma once

#include "zilvo/platform/component/Object.h"
#include "zilvo/platform/widgets/Surface.h"

#include <set>
#include <string>

namespace zilvo::console {

/// The names that a script can use on something.
struct MemberNames {
    std::set<std::string> fields;  ///< behind a full stop
    std::set<std::string> methods; ///< behind a colon
    std::set<std::string> events;  ///< in on("...")
    std::set<std::string> widgets; ///< in widget("...")

    void add(const platform::ClassDescription& description);
    void add(const platform::Surface& surface);
};

} // namespace zilvo::console
