#pragma once

#include "zilvo/platform/hosting/Input.h"
#include "zilvo/platform/hosting/PopupMenu.h"
#include "zilvo/platform/widgets/Surface.h"

namespace zilvo::platform {

/// Takes a user's input to the widget or handler that it is for: hit testing, capture, focus, Tab order, access
/// keys, arrow keys in option groups, default and cancel buttons, pop-up menus. One router serves a control and
/// whatever controls it embeds. Failures of handlers come through.
class InputRouter {
public:
    explicit InputRouter(Surface& root) noexcept : root_(root) {}

    /// True when the input did something or was kept from doing more; for Act, when the user could do it.
    bool route(const InputEvent& event);

    /// The widget that has the keyboard; null for none. One that can no longer take input hands it on.
    Widget* focus();
    /// How long until something that is held down repeats; nothing while nothing is.
    std::optional<std::chrono::milliseconds> clockWanted() const;
    /// The letters that, typed with Alt, do something now, in Tab order.
    String accessKeys() const;
    /// The first surface's, from the root inwards, that the user could press; null for none.
    Widget* windowButton(CommandButton* Surface::*button) const;
    /// Where the pointer was last.
    Point pointer() const noexcept { return pointer_; }

    /// The pop-up takes the pointer: what is held down is let go of without a click.
    void showPopup(Menu& root);
    const PopupMenu& popup() const noexcept { return popup_; }

private:
    bool on(const input::PointerDown& event);
    bool on(const input::PointerMove& event);
    bool on(const input::PointerUp& event);
    bool on(const input::PointerLost& event);
    bool on(const input::FocusIn& event);
    bool on(const input::FocusOn& event);
    bool on(const input::FocusOut& event);
    bool on(const input::KeyTyped& event);
    bool on(const input::KeyDown& event);
    bool on(const input::TimePassed& event);
    bool on(const input::Act& event);
    bool on(const input::Invoke& event);

    void setFocus(Widget* widget);
    bool enterFocus(bool forward);
    /// To the next stop, or round; past the end only when the host does not take the keyboard.
    bool tab(bool forward);
    void advanceFocus(bool forward);
    bool accessKey(char16_t letter);
    bool arrow(input::Key key);
    bool menuKey(Integer shift);
    bool click(Widget* widget);
    bool choose(Menu* item);
    bool chooseNow(Menu& item, input::Action action);
    Widget* letGo();
    bool press(Widget& widget, Point at);

    Surface& root_;
    PopupMenu popup_;
    Point pointer_;
    Widget* focus_ = nullptr;
    Widget* lastFocus_ = nullptr; ///< when the keyboard left the control
    Widget* captured_ = nullptr;
    bool handles_ = false; ///< an input, which may lead to others
};

} // namespace zilvo::platform
