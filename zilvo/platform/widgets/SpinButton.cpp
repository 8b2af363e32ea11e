#include "zilvo/platform/widgets/SpinButton.h"

#include "zilvo/platform/widgets/Look.h"

namespace zilvo::platform {

SpinButton::SpinButton(Container& container, const Design& design, SpinHandler spinUp, SpinHandler spinDown)
    : Widget(container, placementOf(design)), spinUp_(spinUp), spinDown_(spinDown), backColor_(design.BackColor) {}

Rectangle SpinButton::half(Spin way) const noexcept {
    const auto [left, top, width, height] = drawnArea();
    if (isSideBySide()) {
        const Single down = wholePixels(width / 2);
        return way == Spin::Up ? Rectangle{down, 0, width - down, height} : Rectangle{0, 0, down, height};
    }
    const Single up = wholePixels(height / 2);
    return way == Spin::Up ? Rectangle{0, 0, width, up} : Rectangle{0, up, width, height - up};
}

void SpinButton::pointerDown(Integer button, Integer /*shift*/, Point at) {
    if (button != 1) return;
    spinning_ = half(Spin::Up).contains(at) ? Spin::Up : Spin::Down;
    untilRepeat_ = RepeatDelay;
    changed(Aspect::Look);
    spin(spinning_);
}

void SpinButton::pointerUp() {
    spinning_ = Spin::None;
    changed(Aspect::Look);
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

std::optional<std::chrono::milliseconds> SpinButton::untilHeld() const noexcept {
    return spinning_ == Spin::None ? std::nullopt : std::optional(untilRepeat_);
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
    for (const Spin way : {Spin::Up, Spin::Down}) {
        const Rectangle area = half(way);
        look::buttonFace(painter, area, backColor_, isPressed() && spinning_ == way, false);
        // Mounted above or below another widget, a wide button may show its upper half only: the arrows stay there.
        const Single shown = isSideBySide() ? area.height / 2 : area.height;
        look::arrow(painter, {area.left, area.top, area.width, shown}, way == Spin::Up, isGreyed());
        // A low half has room for a frame only on its bevel.
        const Single inset = shown < 16 * TwipsPerPixel ? TwipsPerPixel : 3 * TwipsPerPixel;
        if (isFocused()) painter.focusFrame(Rectangle{area.left, area.top, area.width, shown}.inset(inset));
    }
}

} // namespace zilvo::platform
