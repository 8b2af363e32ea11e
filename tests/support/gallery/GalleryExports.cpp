#include "tests/support/gallery/GalleryLibrary.h"

namespace {

constexpr std::uint32_t code(zilvo::Status status) noexcept {
    return static_cast<std::uint32_t>(status);
}

} // namespace

extern "C" std::uint32_t DllGetClassObject(const zilvo::Guid* classId, const zilvo::Guid* interfaceId, void** object) {
    return code(zilvo::getClassObject(zilvo::galleryModule(), *classId, *interfaceId, object));
}

extern "C" std::uint32_t DllCanUnloadNow() {
    return code(zilvo::canUnloadNow(zilvo::galleryModule()));
}
