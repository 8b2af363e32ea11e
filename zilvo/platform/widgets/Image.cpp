#include "zilvo/platform/widgets/Image.h"

namespace zilvo::platform {

Image::Image(Container& container, const Design& design, ClickHandler click)
    : Widget(container, placementOf(design)), picture_(design.Picture), click_(click) {}

void Image::userClick() {
    Integer index = this->index();
    click_(index);
}

const ClassDescription& Image::description() const noexcept {
    static constexpr ClassDescription description{.name = u"Image", .members = {}, .base = &commonMembers};
    return description;
}

void Image::paint(Painter& painter) const {
    if (picture_) painter.bitmap(*picture_, drawnArea());
}

} // namespace zilvo::platform
