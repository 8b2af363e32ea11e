#include "platform/widgets/SpinButton.h"

#include "platform/widgets/Look.h"

namespace zilvo::platform {

SpinButton::SpinButton(Container& container, const Design& design, SpinHandler spinUp, SpinHandler spinDown)
    : Widget(container, placementOf(design)), spinUp_(spinUp), spinDown_(spinDown), backColor_(design.BackColor) {}

Point SpinButton::pointFor(Spin spin) const noexcept {
    return {bounds().width / 2, bounds().height * (spin == Spin::Up ? 0.25F : 0.75F)};
}

void SpinButton::pointerDown(Integer button, Integer /*shift*/, Point at) {
    if (button != 1) return;
    spinning_ = at.y < bounds().height / 2 ? Spin::Up : Spin::Down;
    untilRepeat_ = RepeatDelay;
    changed();
    spin(spinning_);
}

void SpinButton::pointerUp() {
    spinning_ = Spin::None;
    changed();
}

void SpinButton::held(std::chrono::milliseconds elapsed) {
    // A handler may disable or hide the button, or let go of it: then nothing spins until it is pressed again.
    untilRepeat_ -= elapsed;
    while (untilRepeat_.count() <= 0 && spinning_ != Spin::None) {
        if (!acceptsInput()) return pointerUp();
        untilRepeat_ += RepeatEvery;
        spin(spinning_);
    }
}

bool SpinButton::arrowKey(Direction direction) {
    spin(direction == Direction::Up || direction == Direction::Right ? Spin::Up : Spin::Down);
    return true;
}

void SpinButton::spin(Spin way) {
    if (way == Spin::Up)
        spinUp_();
    else
        spinDown_();
}

const ClassDescription& SpinButton::description() const noexcept {
    static constexpr ClassDescription description{.name = u"Spin.SpinButton", .members = {}, .base = &commonMembers};
    return description;
}

void SpinButton::paint(Painter& painter) const {
    const Single half = bounds().height / 2;
    const Rectangle upper{0, 0, bounds().width, half};
    const Rectangle lower{0, half, bounds().width, half};
    look::buttonFace(painter, upper, rgbOf(backColor_), isPressed() && spinning_ == Spin::Up, false);
    look::arrow(painter, upper, true, !get_Enabled());
    look::buttonFace(painter, lower, rgbOf(backColor_), isPressed() && spinning_ == Spin::Down, false);
    look::arrow(painter, lower, false, !get_Enabled());
    if (!isFocused()) return;
    look::focus(painter, upper.inset(3 * TwipsPerPixel));
    look::focus(painter, lower.inset(3 * TwipsPerPixel));
}

} // namespace zilvo::platform
