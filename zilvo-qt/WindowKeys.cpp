#include "zilvo-qt/WindowKeys.h"

#include "zilvo-qt/ControlWidget.h"
#include "zilvo-qt/Keys.h"

#include "zilvo/platform/values/Text.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

namespace zilvo::qt {

using namespace platform;

namespace {

/// The controls of the window that the user can reach, in the order of Tab from the widget with the keyboard on: the
/// one that has it, or the first of all, comes first.
std::vector<ControlWidget*> reachable(const QWidget& window) {
    QWidget* const start = window.focusWidget() ? window.focusWidget() : window.nextInFocusChain();
    std::vector<ControlWidget*> controls;
    QWidget* at = start;
    do {
        auto* control = qobject_cast<ControlWidget*>(at);
        if (control && control->isVisible() && control->isEnabled() && control->window() == &window)
            controls.push_back(control);
        at = at->nextInFocusChain();
    } while (at != start);
    return controls;
}

template <class Has>
ControlWidget* first(const std::vector<ControlWidget*>& controls, const Has& has) {
    const auto found = std::find_if(controls.begin(), controls.end(), has);
    return found == controls.end() ? nullptr : *found;
}

} // namespace

constexpr const char* Property = "zilvoWindowKeys";

WindowKeys* WindowKeys::find(const QWidget& window) {
    return qobject_cast<WindowKeys*>(window.property(Property).value<QObject*>());
}

WindowKeys& WindowKeys::of(QWidget& window) {
    if (WindowKeys* keys = find(window)) return *keys;
    return *new WindowKeys(window);
}

WindowKeys::WindowKeys(QWidget& window) : QObject(&window), window_(window) {
    window.setProperty(Property, QVariant::fromValue<QObject*>(this)); // looked up in no time on a form of many
    window.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this] { updateDefault(); });
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
    const bool asksFirst = event->type() == QEvent::ShortcutOverride;
    if (watched != &window_ || (!asksFirst && event->type() != QEvent::KeyPress)) return false;
    const auto key = keyOf(*static_cast<QKeyEvent*>(event));
    if (!key) return false;
    if (asksFirst) {
        if (key->key == input::Key::Character && key->shift == input::AltMask) takeLetter(*key);
        return false;
    }
    // A key comes to the window itself only when nothing on it has used it; unless it is a control, which is asked
    // next.
    if (qobject_cast<ControlWidget*>(&window_)) return false;
    if (key->shift != 0 || (key->key != input::Key::Enter && key->key != input::Key::Escape)) return false;
    const bool enter = key->key == input::Key::Enter;
    ControlWidget* control = enter ? defaultControl() : cancelControl();
    if (!control) return false;
    Widget* button = enter ? control->control().defaultButton() : control->control().cancelButton();
    return button && control->input(input::Invoke{*button});
}

ControlWidget* WindowKeys::defaultControl() const {
    const auto has = [](const ControlWidget* control) { return control->control().defaultButton() != nullptr; };
    const QWidget* focused = window_.focusWidget();
    const auto* button = qobject_cast<const QPushButton*>(focused);
    if (button && (button->isDefault() || button->autoDefault())) return nullptr;
    const auto controls = reachable(window_);
    if (!controls.empty() && controls.front() == focused && has(controls.front())) return controls.front();
    if (qobject_cast<const QDialog*>(&window_))
        for (const QPushButton* each : window_.findChildren<QPushButton*>())
            if (each->isDefault() && each->isVisible()) return nullptr;
    return first(controls, has);
}

ControlWidget* WindowKeys::cancelControl() const {
    return first(reachable(window_), [](const ControlWidget* control) { return control->control().cancelButton(); });
}

ControlWidget* WindowKeys::answering(char16_t letter) const {
    const char16_t wanted = accessKeyOf(String{u'&', letter});
    auto controls = reachable(window_);
    // Those behind the one with the keyboard come first, so that a shared letter goes round.
    if (!controls.empty() && controls.front() == window_.focusWidget())
        std::rotate(controls.begin(), controls.begin() + 1, controls.end());
    return first(controls, [&](const ControlWidget* each) {
        return wanted && each->control().accessKeys().find(wanted) != String::npos;
    });
}

void WindowKeys::takeLetter(const input::KeyDown& key) {
    QShortcut*& shortcut = letters_[key.character];
    if (!shortcut) {
        shortcut = new QShortcut(QKeySequence(Qt::ALT | Qt::Key(key.character)), &window_);
        const auto act = [this, key] {
            const QPointer<ControlWidget> control(answering(key.character));
            if (control) control->setFocus(Qt::ShortcutFocusReason);
            if (control) control->input(key);
        };
        connect(shortcut, &QShortcut::activated, this, act);
        connect(shortcut, &QShortcut::activatedAmbiguously, this, act); // another's turn may be next
    }
    shortcut->setEnabled(answering(key.character) != nullptr);
}

void WindowKeys::updateDefault() {
    if (std::exchange(marksSoon_, true)) return;
    QMetaObject::invokeMethod(
        this, [this] { markDefault(); }, Qt::QueuedConnection);
}

void WindowKeys::markDefault() {
    marksSoon_ = false;
    const ControlWidget* chosen = defaultControl();
    std::vector<QPointer<ControlWidget>> changing;
    for (ControlWidget* control : window_.findChildren<ControlWidget*>())
        if (control->control().defaultButton() && control->displaysDefault() != (control == chosen))
            changing.emplace_back(control);
    const QPointer<WindowKeys> alive(this);
    for (const auto& control : changing)
        if (alive && control) control->setAmbient(u"DisplayAsDefault", control == chosen);
}

} // namespace zilvo::qt
