#pragma once

#include "platform/component/ClassFactory.h"
#include "tests/support/gallery/GalleryFunctions.h"
#include "tests/support/gallery/Outer.h"
#include "tests/support/gallery/Small.h"
#include "tests/support/gallery/WidgetGallery.h"

namespace zilvo {

/// A component of its own, with controls that use all that the platform and the framework offer.
ComponentModule& galleryModule() noexcept;

} // namespace zilvo
