#pragma once

#include "tests/support/gallery/GalleryFunctions.h"
#include "tests/support/gallery/Outer.h"
#include "tests/support/gallery/Small.h"
#include "tests/support/gallery/WidgetGallery.h"
#include "zilvo/platform/component/ClassFactory.h"

namespace zilvo {

/// A component of its own, with controls that use all that the platform and the framework offer.
ComponentModule& galleryModule() noexcept;

} // namespace zilvo
