#pragma once

#include "zilvo/platform/component/ControlHost.h"

#include <string>

namespace zilvo::console {

/// The control as an SVG document, as large as the control, or larger where an open pop-up reaches beyond it.
std::string svgOf(platform::ControlHost& host);

} // namespace zilvo::console
