#include "tests/support/gallery/GalleryLibrary.h"

zilvo::ComponentModule& zilvo::platform::componentModule() noexcept {
    return zilvo::galleryModule();
}
