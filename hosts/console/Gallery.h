#pragma once

#include "zilvo/platform/component/ComponentRuntime.h"

namespace zilvo::console {

/// All controls of the component, fresh and each under its name, as one SVG document.
std::string galleryOf(const platform::LoadedComponent& component);

} // namespace zilvo::console
