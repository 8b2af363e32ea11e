#include "zilvo/platform/widgets/CommandButton.h"

#include "zilvo/platform/widgets/Look.h"
#include "zilvo/platform/widgets/Surface.h"

namespace zilvo::platform {

namespace {

bool anyHasFocus(const Surface& surface) {
    for (const Widget& widget : surface)
        if (widget.isFocused() && dynamic_cast<const CommandButton*>(&widget)) return true;
    return false;
}

constexpr std::array members = {
    property<&CommandButton::get_Default, &CommandButton::put_Default>(3, u"Default", u"newDefault"),
    property<&CommandButton::get_Cancel, &CommandButton::put_Cancel>(4, u"Cancel", u"newCancel"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

CommandButton::CommandButton(Container& container, const Design& design, ClickHandler click)
    : CaptionedWidget(container, placementOf(design), appearanceOf(design)), click_(click) {
    if (design.Default) surface().defaultButton = this;
    if (design.Cancel) surface().cancelButton = this;
}

bool CommandButton::get_Default() const noexcept {
    return surface().defaultButton == this;
}

void CommandButton::put_Default(bool newDefault) {
    if (newDefault == get_Default()) return;
    const CommandButton* before = std::exchange(surface().defaultButton, newDefault ? this : nullptr);
    const HeldSurface held(surface());
    if (before && before != this) before->changed(Aspect::Default);
    changed(Aspect::Default);
}

bool CommandButton::get_Cancel() const noexcept {
    return surface().cancelButton == this;
}

void CommandButton::put_Cancel(bool newCancel) {
    if (newCancel == get_Cancel()) return;
    surface().cancelButton = newCancel ? this : nullptr;
    changed(Aspect::Look);
}

void CommandButton::userClick() {
    Integer index = this->index();
    click_(index);
}

const ClassDescription& CommandButton::description() const noexcept {
    static constexpr ClassDescription description{
        .name = u"CommandButton", .members = members, .base = &captionedMembers};
    return description;
}

void CommandButton::paint(Painter& painter) const {
    const Rectangle area = drawnArea();
    // A push button that has the keyboard takes the heavy frame from the default one: Enter presses it.
    const bool framed = isFocused() || (get_Default() && !anyHasFocus(surface()) && surface().displaysDefault());
    const Rectangle face = look::buttonFace(painter, area, get_BackColor(), isPressed(), framed);
    Rectangle inner = area.inset(4 * TwipsPerPixel);
    if (isPressed()) inner = {inner.left + TwipsPerPixel, inner.top + TwipsPerPixel, inner.width, inner.height};
    Rectangle text;
    {
        const PaintedArea shown(painter, face);
        text = paintCaption(painter, {inner.left - face.left, inner.top - face.top, inner.width, inner.height},
                            {.designed = caption(), .font = font(), .colour = get_ForeColor(), .greyed = isGreyed()});
    }
    // A caption as wide as the face leaves the frame no place but the bevel.
    const bool isFull = text.width > inner.width - 2 * TwipsPerPixel;
    if (isFocused()) painter.focusFrame(isFull ? area.inset(2 * TwipsPerPixel) : inner);
}

} // namespace zilvo::platform
