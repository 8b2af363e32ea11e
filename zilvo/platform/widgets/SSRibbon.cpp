#include "zilvo/platform/widgets/SSRibbon.h"

#include "zilvo/platform/widgets/Look.h"
#include "zilvo/platform/widgets/Surface.h"

namespace zilvo::platform {

namespace {

constexpr std::array members = {
    property<&SSRibbon::get_Value, &SSRibbon::put_Value>(1, u"Value", u"newValue"),
    property<&SSRibbon::get_BackColor, &SSRibbon::put_BackColor>(2, u"BackColor", u"newBackColor"),
    property<&SSRibbon::get_Outline, &SSRibbon::put_Outline>(3, u"Outline", u"newOutline"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

SSRibbon::SSRibbon(Container& container, const Design& design, ClickHandler click)
    : Widget(container, placementOf(design)),
      pictureUp_(design.PictureUp),
      pictureDown_(design.PictureDown),
      backColor_(design.BackColor),
      outline_(design.Outline),
      click_(click) {
    if (design.Value) container.pressedRibbon = this;
}

void SSRibbon::put_Value(bool newValue) {
    if (newValue == get_Value()) return;
    const SSRibbon* before = std::exchange(container().pressedRibbon, newValue ? this : nullptr);
    const HeldSurface held(surface());
    if (before && before != this) before->changed(Aspect::Value);
    changed(Aspect::Value);
}

void SSRibbon::put_Outline(bool newOutline) {
    if (outline_ == newOutline) return;
    outline_ = newOutline;
    changed(Aspect::Look);
}

void SSRibbon::put_BackColor(Colour newBackColor) {
    backColor_ = newBackColor;
    changed(Aspect::Look);
}

void SSRibbon::userClick() {
    put_Value(!get_Value());
    Integer index = this->index();
    auto value = static_cast<Integer>(asBoolean(get_Value()));
    click_(index, value);
}

const ClassDescription& SSRibbon::description() const noexcept {
    static constexpr ClassDescription description{
        .name = u"Threed.SSRibbon", .members = members, .base = &commonMembers};
    return description;
}

void SSRibbon::paint(Painter& painter) const {
    const Rectangle area = drawnArea();
    const bool down = get_Value() || isPressed();
    const Rectangle inside = look::buttonFace(painter, area, backColor_, down, outline_);
    if (const Bitmap* picture = down && pictureDown_ ? pictureDown_ : pictureUp_) {
        const Single width = static_cast<Single>(picture->width()) * TwipsPerPixel;
        const Single height = static_cast<Single>(picture->height()) * TwipsPerPixel;
        const Single shift = down ? TwipsPerPixel : 0;
        const PaintedArea shown(painter, inside);
        painter.bitmap(*picture, {wholePixels((inside.width - width) / 2) + shift,
                                  wholePixels((inside.height - height) / 2) + shift, width, height});
    }
    if (isGreyed()) painter.dim(area.inset(2 * TwipsPerPixel), backColor_);
    if (isFocused()) painter.focusFrame(area.inset(3 * TwipsPerPixel));
}

} // namespace zilvo::platform
