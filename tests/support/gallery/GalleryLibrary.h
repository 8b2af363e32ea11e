#pragma once

#include "zilvo/framework/Platform.h"

namespace zilvo {

/// A component of its own: WidgetGallery, Outer and Small, which use all that the platform and the framework offer.
ComponentModule& galleryModule() noexcept;

} // namespace zilvo
