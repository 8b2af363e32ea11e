#include "zilvo-qt/Keys.h"

#include <array>

namespace zilvo::qt {

using namespace platform;

std::optional<Integer> buttonOf(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return input::LeftButton;
    case Qt::RightButton:
        return input::RightButton;
    case Qt::MiddleButton:
        return input::MiddleButton;
    default:
        return std::nullopt;
    }
}

Integer shiftOf(Qt::KeyboardModifiers modifiers) {
    int shift = 0;
    if (modifiers.testFlag(Qt::ShiftModifier)) shift |= input::ShiftMask;
    if (modifiers.testFlag(Qt::ControlModifier)) shift |= input::CtrlMask;
    if (modifiers.testFlag(Qt::AltModifier)) shift |= input::AltMask;
    return static_cast<Integer>(shift);
}

std::optional<input::KeyDown> keyOf(const QKeyEvent& event) {
    struct Named {
        int code;
        input::Key key;
    };
    constexpr std::array keys = {Named{Qt::Key_Return, input::Key::Enter},  Named{Qt::Key_Enter, input::Key::Enter},
                                 Named{Qt::Key_Escape, input::Key::Escape}, Named{Qt::Key_Space, input::Key::Space},
                                 Named{Qt::Key_Up, input::Key::Up},         Named{Qt::Key_Down, input::Key::Down},
                                 Named{Qt::Key_Left, input::Key::Left},     Named{Qt::Key_Right, input::Key::Right},
                                 Named{Qt::Key_Menu, input::Key::Menu}};
    const Integer shift = shiftOf(event.modifiers());
    for (const Named& named : keys)
        if (event.key() == named.code) return input::KeyDown{named.key, 0, shift};
    if (event.key() == Qt::Key_F10 && shift == input::ShiftMask) return input::KeyDown{input::Key::Menu, 0, shift};
    // With Alt some keyboards type another character than the letter that the key has on it.
    const bool alt = (shift & input::AltMask) != 0;
    if (alt && event.key() > 0x20 && event.key() < 0x10000)
        return input::KeyDown{input::Key::Character, static_cast<char16_t>(event.key()), shift};
    const QString text = event.text();
    if (text.size() != 1 || !text.front().isPrint()) return std::nullopt;
    return input::KeyDown{input::Key::Character, text.front().unicode(), shift};
}

} // namespace zilvo::qt
