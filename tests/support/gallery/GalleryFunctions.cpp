#include "tests/support/gallery/GalleryFunctions.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    method<&GalleryFunctions::IsBitSet>(0x60030000, u"IsBitSet", u"Number", u"Bit"),
    method<&GalleryFunctions::SetBit>(0x60030001, u"SetBit", u"Number", u"Bit"),
};
static_assert(idsAndNamesAreUnique(members));

Long bitAt(Integer Bit) {
    if (Bit < 0 || Bit > 30) throw Failure(Status::Overflow, "there is no bit " + std::to_string(Bit));
    return Long{1} << Bit;
}

} // namespace

constinit const ObjectDescription GalleryFunctions::Description{u"GalleryFunctions", members, {}};

bool GalleryFunctions::IsBitSet(Long Number, Integer Bit) {
    return (Number & bitAt(Bit)) != 0;
}

void GalleryFunctions::SetBit(Long& Number, Integer Bit) {
    Number |= bitAt(Bit);
}

} // namespace zilvo
