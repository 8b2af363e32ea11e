#include "zilvo/platform/hosting/InputRouter.h"

#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/SpinButton.h"

#include <algorithm>

namespace zilvo::platform {

namespace {

constexpr Integer Enter = 13;
constexpr Integer Escape = 27;
constexpr Integer Space = 32;

/// The widgets that can have the keyboard, embedded controls included, in Tab order.
void collectTabOrder(const Surface& surface, std::vector<Widget*>& order) {
    for (Widget* widget : surface.inTabOrder()) {
        if (const Surface* inner = widget->embeddedSurface())
            collectTabOrder(*inner, order);
        else if (widget->acceptsInput())
            order.push_back(widget);
    }
}

std::vector<Widget*> tabOrderOf(const Surface& root) {
    std::vector<Widget*> order;
    collectTabOrder(root, order);
    return order;
}

/// The widget's corner on the surface that the host drives.
Point originOf(const Widget& widget) {
    Point origin;
    for (const Widget* at = &widget; at; at = at->outer())
        origin = {origin.x + at->bounds().left, origin.y + at->bounds().top};
    return origin;
}

/// The surfaces from the one that the widget lies on outwards to the root.
std::vector<Surface*> surfacesFrom(Surface& root, const Widget* widget) {
    std::vector<Surface*> surfaces;
    Surface* at = widget ? &widget->surface() : &root;
    while (at) {
        surfaces.push_back(at);
        const Widget* outer = at->embeddingWidget();
        at = outer ? &outer->surface() : nullptr;
    }
    return surfaces;
}

/// Sets a flag for a scope.
class Handling {
public:
    explicit Handling(bool& flag) noexcept : flag_(flag), before_(std::exchange(flag, true)) {}
    Handling(const Handling&) = delete;
    Handling& operator=(const Handling&) = delete;
    ~Handling() { flag_ = before_; }

private:
    bool& flag_;
    bool before_;
};

} // namespace

bool InputRouter::route(const InputEvent& event) {
    // What is only let go of is let go of also when the host has hidden the control meanwhile.
    const bool letsGo =
        std::holds_alternative<input::PointerLost>(event) || std::holds_alternative<input::FocusOut>(event);
    if (!letsGo && !root_.acceptsInput()) return false;
    if (handles_ && std::holds_alternative<input::TimePassed>(event)) return false;
    const Handling handling(handles_);
    const bool acted = std::visit([this](const auto& given) { return on(given); }, event);
    focus(); // a widget that a handler has disabled or hidden hands the keyboard on
    return acted;
}

bool InputRouter::on(const input::PointerDown& event) {
    pointer_ = event.at;
    if (popup_.isOpen()) {
        choose(popup_.pointerDown(event.at));
        return true;
    }
    const Hit hit = root_.hitTest(event.at);
    if (!hit.surface || !hit.surface->acceptsInput()) return false;
    if (!hit.widget) {
        hit.surface->surfaceMouseDown(event.button, event.shift, hit.at);
        return true;
    }
    if (!hit.widget->acceptsInput()) return false;
    if (event.button == input::LeftButton) {
        if (hit.widget->takesFocus()) setFocus(hit.widget);
        letGo();
        captured_ = hit.widget;
        captured_->setPressed(true);
    }
    hit.widget->pointerDown(event.button, event.shift, hit.at);
    return true;
}

bool InputRouter::on(const input::PointerMove& event) {
    pointer_ = event.at;
    if (popup_.isOpen()) {
        popup_.pointerMove(event.at);
        root_.viewChanged();
        return true;
    }
    if (captured_) captured_->setPressed(root_.hitTest(event.at).widget == captured_);
    return captured_ != nullptr;
}

bool InputRouter::on(const input::PointerUp& event) {
    pointer_ = event.at;
    if (popup_.isOpen()) {
        if (event.button == input::LeftButton) choose(popup_.pointerUp(event.at));
        return true;
    }
    if (event.button != input::LeftButton || !captured_) return false;
    Widget* released = letGo();
    return root_.hitTest(event.at).widget == released && click(released);
}

bool InputRouter::on(const input::PointerLost& /*event*/) {
    return letGo() != nullptr;
}

bool InputRouter::on(const input::FocusIn& event) {
    if (event.entry != input::Entry::Same) return enterFocus(event.entry == input::Entry::First);
    if (focus()) return true;
    if (!lastFocus_ || !lastFocus_->acceptsInput()) return enterFocus(true);
    setFocus(lastFocus_);
    return true;
}

bool InputRouter::on(const input::FocusOn& event) {
    if (!event.widget.takesFocus() || !event.widget.acceptsInput()) return false;
    setFocus(&event.widget);
    return true;
}

bool InputRouter::on(const input::FocusOut& /*event*/) {
    if (!focus_) return false;
    lastFocus_ = focus_;
    setFocus(nullptr);
    return true;
}

bool InputRouter::on(const input::KeyTyped& event) {
    if (popup_.isOpen()) {
        const auto letter = static_cast<char16_t>(event.keyAscii);
        choose(event.keyAscii == Enter    ? popup_.key(input::Key::Enter)
               : event.keyAscii == Escape ? popup_.key(input::Key::Escape)
                                          : popup_.accessKey(letter));
        return true;
    }
    Widget* focused = focus();
    if (event.keyAscii == Enter && dynamic_cast<CommandButton*>(focused)) return click(focused);
    const auto surfaces = surfacesFrom(root_, focused);
    Integer code = event.keyAscii;
    for (auto outer = surfaces.rbegin(); outer != surfaces.rend(); ++outer)
        if ((*outer)->surfaceKeyPress(code)) return true;

    if (code == Space) return click(focused);
    if (code != Enter && code != Escape) return false;
    for (const Surface* surface : surfaces)
        if (Widget* button = code == Enter ? surface->defaultButton : surface->cancelButton) return click(button);
    return false;
}

bool InputRouter::on(const input::KeyDown& event) {
    using input::Key;
    const bool alt = (event.shift & input::AltMask) != 0;
    const bool types = (event.shift & (input::AltMask | input::CtrlMask)) == 0;
    if (popup_.isOpen()) {
        choose(event.key == Key::Character ? popup_.accessKey(event.character) : popup_.key(event.key));
        return true;
    }
    switch (event.key) {
    case Key::Tab:
        return tab((event.shift & input::ShiftMask) == 0);
    case Key::Enter:
        return types && on(input::KeyTyped{Enter});
    case Key::Escape:
        return types && on(input::KeyTyped{Escape});
    case Key::Space:
        return types && on(input::KeyTyped{Space});
    case Key::Character:
        if (types) return on(input::KeyTyped{static_cast<Integer>(event.character)});
        return alt && accessKey(event.character);
    case Key::Menu:
        return menuKey(event.shift);
    default:
        return arrow(event.key);
    }
}

bool InputRouter::on(const input::TimePassed& event) {
    if (!captured_ || !captured_->isPressed()) return false;
    captured_->held(std::clamp(event.elapsed, std::chrono::milliseconds::zero(), input::TimePassed::Most));
    return true;
}

bool InputRouter::on(const input::Act& event) {
    Widget& widget = event.widget;
    if (auto* item = dynamic_cast<Menu*>(&widget)) return chooseNow(*item, event.action);
    if (!widget.acceptsInput()) return false;
    Rectangle area{0, 0, widget.bounds().width, widget.bounds().height};
    if (event.action != input::Action::Click) {
        const auto* spin = dynamic_cast<SpinButton*>(&widget);
        if (!spin) return false;
        area = spin->half(event.action == input::Action::SpinUp ? SpinButton::Spin::Up : SpinButton::Spin::Down);
    } else if (!widget.isClickable()) {
        return false;
    }
    // The middle first, then a grid: what covers the middle may leave a rim.
    constexpr std::array<Single, 5> fractions = {0.5F, 0.02F, 0.25F, 0.75F, 0.98F};
    for (const Single down : fractions)
        for (const Single across : fractions)
            if (press(widget, {area.left + area.width * across, area.top + area.height * down})) return true;
    return false;
}

bool InputRouter::on(const input::Invoke& event) {
    Widget& widget = event.widget;
    if (auto* item = dynamic_cast<Menu*>(&widget)) return chooseNow(*item, event.action);
    if (event.action == input::Action::Click) return click(&widget);
    auto* spin = dynamic_cast<SpinButton*>(&widget);
    return spin && spin->acceptsInput() &&
           spin->arrowKey(event.action == input::Action::SpinUp ? Direction::Up : Direction::Down);
}

bool InputRouter::chooseNow(Menu& item, input::Action action) {
    if (action != input::Action::Click || !PopupMenu::canChoose(item)) return false;
    popup_.close();
    return choose(&item);
}

/// A press and a release at a point of the widget, when that is where the pointer would meet it.
bool InputRouter::press(Widget& widget, Point at) {
    const Point origin = originOf(widget);
    const Point point{origin.x + at.x, origin.y + at.y};
    if (root_.hitTest(point).widget != &widget) return false;
    popup_.close();
    on(input::PointerDown{point});
    on(input::PointerUp{point});
    return true;
}

bool InputRouter::click(Widget* widget) {
    if (!widget || !widget->isClickable() || !widget->acceptsInput()) return false;
    widget->userClick();
    return true;
}

/// Carries out what the user chose in the pop-up, which shows something else now.
bool InputRouter::choose(Menu* item) {
    root_.viewChanged();
    if (!item || !PopupMenu::canChoose(*item)) return false;
    item->userClick();
    return true;
}

void InputRouter::showPopup(Menu& root) {
    letGo();
    popup_.open(root, pointer_, root_.area());
}

/// Ends the capture; gives the widget that had it.
Widget* InputRouter::letGo() {
    Widget* held = std::exchange(captured_, nullptr);
    if (held) {
        held->setPressed(false);
        held->pointerUp();
    }
    return held;
}

Widget* InputRouter::focus() {
    if (focus_ && !focus_->acceptsInput()) advanceFocus(true);
    return focus_;
}

void InputRouter::setFocus(Widget* widget) {
    if (focus_ != widget) Widget::moveFocus(std::exchange(focus_, widget), widget);
}

bool InputRouter::enterFocus(bool forward) {
    setFocus(nullptr);
    advanceFocus(forward);
    return focus_ != nullptr;
}

bool InputRouter::tab(bool forward) {
    auto order = tabOrderOf(root_);
    if (!forward) std::reverse(order.begin(), order.end());
    const auto at = std::find(order.begin(), order.end(), focus_);
    const bool isLast = at != order.end() &&
                        std::none_of(at + 1, order.end(), [](const Widget* widget) { return widget->isTabStop(); });
    if (isLast && root_.leaveFocus(forward)) {
        on(input::FocusOut());
        return false;
    }
    advanceFocus(forward);
    return focus_ != nullptr;
}

void InputRouter::advanceFocus(bool forward) {
    auto order = tabOrderOf(root_);
    if (!forward) std::reverse(order.begin(), order.end());
    // After the focused one, then from the start again. One that can no longer take input is in no order, so the
    // place to go on from is found by its tab index.
    const auto after = std::find_if(order.begin(), order.end(), [&](const Widget* widget) {
        if (!focus_ || widget == focus_) return widget == focus_;
        if (focus_->acceptsInput() || &widget->surface() != &focus_->surface()) return false;
        return forward ? widget->get_TabIndex() > focus_->get_TabIndex()
                       : widget->get_TabIndex() < focus_->get_TabIndex();
    });
    std::rotate(order.begin(), after == order.end() ? order.begin() : after, order.end());
    if (!order.empty() && order.front() == focus_) std::rotate(order.begin(), order.begin() + 1, order.end());
    const auto stop =
        std::find_if(order.begin(), order.end(), [](const Widget* widget) { return widget->isTabStop(); });
    setFocus(stop == order.end() ? nullptr : *stop);
}

std::optional<std::chrono::milliseconds> InputRouter::clockWanted() const {
    return captured_ && captured_->isPressed() ? captured_->untilHeld() : std::nullopt;
}

String InputRouter::accessKeys() const {
    String letters;
    for (const Widget* widget : tabOrderOf(root_))
        if (const char16_t letter = widget->accessKey(); letter && widget->isClickable()) letters += letter;
    return letters;
}

Widget* InputRouter::windowButton(CommandButton* Surface::*button) const {
    const auto find = [&](const auto& self, const Surface& surface) -> Widget* {
        if (CommandButton* own = surface.*button; own && own->acceptsInput()) return own;
        for (Widget& widget : surface) {
            const Surface* inner = widget.embeddedSurface();
            if (Widget* found = inner ? self(self, *inner) : nullptr) return found;
        }
        return nullptr;
    };
    return find(find, root_);
}

bool InputRouter::accessKey(char16_t letter) {
    const char16_t wanted = accessKeyOf(String{u'&', letter});
    auto order = tabOrderOf(root_);
    // Those behind the focused one come first, so that a shared letter goes round.
    const auto focused = std::find(order.begin(), order.end(), focus());
    if (focused != order.end()) std::rotate(order.begin(), focused + 1, order.end());
    for (Widget* widget : order) {
        if (!wanted || widget->accessKey() != wanted || !widget->isClickable()) continue;
        setFocus(widget);
        return click(widget);
    }
    return false;
}

/// As the right button would at the widget that has the keyboard, were it not there: what lies behind it is asked.
bool InputRouter::menuKey(Integer shift) {
    const Widget* focused = focus();
    const Point origin = focused ? originOf(*focused) : Point();
    pointer_ = focused ? Point{origin.x, origin.y + focused->bounds().height} : Point{};
    for (Widget* at = focused ? focused->parent() : nullptr; at; at = at->parent()) {
        if (!at->isClickable() || !at->acceptsInput()) continue;
        at->pointerDown(input::RightButton, shift, {});
        return true;
    }
    Surface& surface = focused ? focused->surface() : root_;
    surface.surfaceMouseDown(input::RightButton, shift, {});
    return true;
}

bool InputRouter::arrow(input::Key key) {
    using input::Key;
    Widget* focused = focus();
    if (!focused) return false;
    const auto direction = key == Key::Up     ? Direction::Up
                           : key == Key::Down ? Direction::Down
                           : key == Key::Left ? Direction::Left
                                              : Direction::Right;
    if (focused->arrowKey(direction)) return true;
    if (!focused->isInGroupWith(*focused)) return false;
    auto group = tabOrderOf(root_);
    std::erase_if(group, [&](const Widget* widget) { return !focused->isInGroupWith(*widget); });
    if (group.empty()) return false; // the host has hidden the control when it was asked
    if (key == Key::Up || key == Key::Left) std::reverse(group.begin(), group.end());
    auto next = std::find(group.begin(), group.end(), focused);
    next = next == group.end() || next + 1 == group.end() ? group.begin() : next + 1;
    if (*next == focused) return false;
    setFocus(*next);
    return click(*next);
}

} // namespace zilvo::platform
