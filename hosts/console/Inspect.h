#pragma once

#include "hosts/console/Describe.h"
#include "zilvo/platform/component/Object.h"

namespace zilvo::console {

/// The widget tree of a control, positions in twips. Fails with NoInterface for an object that is no control.
Json inspection(platform::Object& object);

/// A tree for people, made of what inspection() gives.
std::string inspectionText(const Json& inspection);

} // namespace zilvo::console
