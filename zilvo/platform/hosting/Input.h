#pragma once

#include "zilvo/platform/values/Kinds.h"
#include "zilvo/platform/values/Units.h"

#include <chrono>
#include <optional>
#include <variant>

namespace zilvo::platform {

class Widget;

/// What a host hands a control of the user's doings. Positions are twips from the control's upper left corner.
namespace input {

inline constexpr Integer LeftButton = 1;
inline constexpr Integer RightButton = 2;
inline constexpr Integer MiddleButton = 4;

inline constexpr Integer ShiftMask = 1;
inline constexpr Integer CtrlMask = 2;
inline constexpr Integer AltMask = 4;

struct PointerDown {
    Point at;
    Integer button = LeftButton;
    Integer shift = 0;
};
struct PointerMove {
    Point at;
};
struct PointerUp {
    Point at;
    Integer button = LeftButton;
};

/// The host takes the pointer away while a button is down, for a dialog or another window: what is held is let go of
/// without a click.
struct PointerLost {};

/// The keyboard comes to the control: to the first of its widgets in Tab order, the last, or the one that had it last.
enum class Entry : std::uint8_t { First, Last, Same };
struct FocusIn {
    Entry entry = Entry::Same;
};
/// The keyboard comes to one widget of it.
struct FocusOn {
    Widget& widget;
};
/// The keyboard leaves the control.
struct FocusOut {};

/// A typed character, by its code: 13 is Enter, 27 Escape.
struct KeyTyped {
    Integer keyAscii;
};

/// Menu is the key, or Shift+F10, that asks for the menu of what has the keyboard.
enum class Key : std::uint8_t { Character, Tab, Enter, Escape, Space, Up, Down, Left, Right, Menu };

/// A key that goes down. Enter, Escape, Space and characters go on as typed characters, but not with Ctrl or Alt.
struct KeyDown {
    Key key;
    char16_t character = 0; ///< for Key::Character
    Integer shift = 0;
};

/// Time that passed on the host's clock since the last input; what is held down repeats by it. A clock that leaps,
/// after the machine slept or was set, counts as `Most`, one that goes back as no time. It stands still while an input
/// is handled, be it that a handler runs a loop of its own.
struct TimePassed {
    static constexpr std::chrono::milliseconds Most = std::chrono::minutes(1);
    std::chrono::milliseconds elapsed;
};

/// A user's click on a widget or a spin of a spin button, for hosts that have no pointer: done with a press and a
/// release where the widget can be reached, or not at all.
enum class Action : std::uint8_t { Click, SpinUp, SpinDown };
struct Act {
    Widget& widget;
    Action action = Action::Click;
};

/// The same for an assistive technology, or the window's default button: done without a pointer, wherever the widget is
/// and whatever covers it, and the keyboard stays where it is.
struct Invoke {
    Widget& widget;
    Action action = Action::Click;
};

} // namespace input

using InputEvent = std::variant<input::PointerDown, input::PointerMove, input::PointerUp, input::PointerLost,
                                input::FocusIn, input::FocusOn, input::FocusOut, input::KeyTyped, input::KeyDown,
                                input::TimePassed, input::Act, input::Invoke>;

/// Reads "Tab", "Shift+Tab", "Left", "Alt+6", "Escape", "a"; nothing for anything else.
std::optional<input::KeyDown> parseKey(StringView text);

} // namespace zilvo::platform
