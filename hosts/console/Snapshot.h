#pragma once

#include "platform/component/ControlHost.h"

#include <filesystem>

namespace zilvo::console {

/// The control as an SVG document, as large as the control, or larger where an open pop-up reaches beyond it.
std::string svgOf(platform::ControlHost& host);

/// Writes the whole text or, failing with Failed, leaves what was there.
void writeFile(const std::filesystem::path& file, const std::string& text);

} // namespace zilvo::console
