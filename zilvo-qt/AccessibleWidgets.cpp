#include "zilvo-qt/AccessibleWidgets.h"

#include "zilvo-qt/ControlWidget.h"

#include "zilvo/platform/hosting/Accessibility.h"

#include <QRegularExpression>
#include <algorithm>

namespace zilvo::qt {

using namespace platform;

/// One widget. What the user does through it comes to the control only after the call has returned: a handler may open
/// a dialog, for which no assistive technology waits, or take the widget away.
class AccessibleWidgets::Object final : public QAccessibleInterface,
                                        public QAccessibleActionInterface,
                                        public QAccessibleValueInterface {
public:
    Object(AccessibleWidgets& widgets, const Widget& widget) : widgets_(widgets), widget_(widget) {}

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return widgets_.host_.window()->windowHandle(); }
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override { return widgets_.child(&widget_, index); }
    int childCount() const override { return widgets_.childCount(&widget_); }
    int indexOfChild(const QAccessibleInterface* child) const override { return widgets_.indexOf(&widget_, child); }
    QAccessibleInterface* childAt(int x, int y) const override { return widgets_.childAt(&widget_, {x, y}); }

    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

    /// The number in the value's text, if there is one. Nobody but the control knows its bounds, and it is only ever
    /// stepped.
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& /*value*/) override {}
    QVariant maximumValue() const override { return {}; }
    QVariant minimumValue() const override { return {}; }
    QVariant minimumStepSize() const override { return {}; }

private:
    void hand(const InputEvent& event);

    AccessibleWidgets& widgets_;
    const Widget& widget_;
};

void* AccessibleWidgets::Object::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ActionInterface && !actionNames().isEmpty())
        return static_cast<QAccessibleActionInterface*>(this);
    if (type == QAccessible::ValueInterface && !accessible::valueOf(widget_).empty())
        return static_cast<QAccessibleValueInterface*>(this);
    return nullptr;
}

QAccessibleInterface* AccessibleWidgets::Object::parent() const {
    const Widget* outer = accessible::parentOf(widget_);
    return outer ? widgets_.of(outer) : QAccessible::queryAccessibleInterface(&widgets_.host_);
}

QString AccessibleWidgets::Object::text(QAccessible::Text kind) const {
    switch (kind) {
    case QAccessible::Name:
        return toQString(accessible::nameOf(widget_));
    case QAccessible::Description: {
        QString description = toQString(accessible::descriptionOf(widget_));
        const auto place = accessible::groupPlaceOf(widget_); // for which the toolkit has no word of its own
        if (!place) return description;
        const QString of = ControlWidget::tr("%1 of %2").arg(place->position).arg(place->size);
        return description.isEmpty() ? of : of + QStringLiteral(". ") + description;
    }
    case QAccessible::Value:
        return toQString(accessible::valueOf(widget_));
    case QAccessible::Accelerator:
        return toQString(accessible::accessKeyOf(widget_));
    default:
        return {};
    }
}

QRect AccessibleWidgets::Object::rect() const {
    const QRect own = ControlWidget::toPixels(accessible::boundsOf(widget_)).toRect();
    return {widgets_.host_.mapToGlobal(own.topLeft()), own.size()};
}

QAccessible::Role AccessibleWidgets::Object::role() const {
    switch (widget_.role()) {
    case Role::Label:
        return QAccessible::StaticText;
    case Role::Picture:
        return QAccessible::Graphic;
    case Role::PushButton:
    case Role::PictureButton:
        return QAccessible::Button;
    case Role::ToggleButton: // as the toolkit calls its own
    case Role::CheckBox:
        return QAccessible::CheckBox;
    case Role::RadioButton:
        return QAccessible::RadioButton;
    case Role::SpinButton:
        return QAccessible::SpinBox;
    case Role::Group:
        return QAccessible::Grouping;
    case Role::Menu:
        return widget_.parent() ? QAccessible::MenuItem : QAccessible::PopupMenu;
    case Role::MenuItem:
        return QAccessible::MenuItem;
    case Role::Separator:
        return QAccessible::Separator;
    case Role::None:
        break;
    }
    return QAccessible::NoRole;
}

QAccessible::State AccessibleWidgets::Object::state() const {
    const accessible::State is = accessible::stateOf(widget_);
    const ControlWidget& host = widgets_.host_;
    QAccessible::State state;
    state.disabled = !is.enabled || !host.isEnabled();
    state.invisible = !is.shown || !host.isVisible();
    state.offscreen = is.shown && rect().isEmpty();
    const bool keyboardActs = &widget_ == host.keyboardWidget();
    state.focusable = (is.focusable || keyboardActs) && !state.disabled;
    state.focused = keyboardActs && host.hasFocus();
    state.pressed = is.pressed;
    state.defaultButton = is.isDefault;
    state.checkable = is.checked.has_value();
    state.checked = is.checked == Checked::Yes;
    state.checkStateMixed = is.checked == Checked::Mixed;
    state.hasPopup = widget_.role() == Role::Menu && widget_.parent();
    return state;
}

QStringList AccessibleWidgets::Object::actionNames() const {
    QStringList names;
    for (const input::Action action : accessible::actionsOf(widget_)) {
        if (action == input::Action::SpinUp) names += increaseAction();
        if (action == input::Action::SpinDown) names += decreaseAction();
        if (action != input::Action::Click) continue;
        if (widget_.checked()) names += toggleAction();
        names += pressAction();
    }
    if (widget_.takesFocus() || &widget_ == widgets_.host_.keyboardWidget()) names += setFocusAction();
    return names;
}

void AccessibleWidgets::Object::doAction(const QString& name) {
    if (!actionNames().contains(name)) return;
    const Surface& surface = widget_.surface();
    Widget& widget = *std::find_if(surface.begin(), surface.end(), [&](const Widget& one) { return &one == &widget_; });
    if (name == setFocusAction()) {
        QMetaObject::invokeMethod(&widgets_.host_, qOverload<>(&QWidget::setFocus), Qt::QueuedConnection);
        return hand(input::FocusOn{widget});
    }
    hand(input::Invoke{widget, name == increaseAction()   ? input::Action::SpinUp
                               : name == decreaseAction() ? input::Action::SpinDown
                                                          : input::Action::Click});
}

/// Unless the widget is gone by then.
void AccessibleWidgets::Object::hand(const InputEvent& event) {
    ControlWidget& host = widgets_.host_;
    QMetaObject::invokeMethod(
        &host,
        [&host, event, id = QAccessible::uniqueId(this)] {
            if (QAccessible::accessibleInterface(id)) host.input(event);
        },
        Qt::QueuedConnection);
}

QStringList AccessibleWidgets::Object::keyBindingsForAction(const QString& name) const {
    const QString key = text(QAccessible::Accelerator);
    return key.isEmpty() || name == setFocusAction() ? QStringList() : QStringList(key);
}

QVariant AccessibleWidgets::Object::currentValue() const {
    const QString value = text(QAccessible::Value);
    const QString digits = QRegularExpression(QStringLiteral("-?\\d+")).match(value).captured();
    return digits.isEmpty() ? QVariant(value) : QVariant(digits.toInt());
}

// ---- All of a control

AccessibleWidgets::~AccessibleWidgets() {
    ends_ = true;
    for (const auto& [widget, id] : ids_) {
        if (QAccessible::isActive()) {
            QAccessibleEvent gone(QAccessible::accessibleInterface(id), QAccessible::ObjectDestroyed);
            QAccessible::updateAccessibility(&gone);
        }
        QAccessible::deleteAccessibleInterface(id);
    }
}

QAccessibleInterface* AccessibleWidgets::focus() {
    return of(host_.keyboardWidget());
}

QAccessibleInterface* AccessibleWidgets::of(const Widget* widget) {
    if (!widget || ends_) return nullptr;
    const auto known = ids_.find(widget);
    if (known != ids_.end()) return QAccessible::accessibleInterface(known->second);
    auto object = std::make_unique<Object>(*this, *widget);
    ids_.emplace(widget, QAccessible::registerAccessibleInterface(object.get()));
    return object.release();
}

std::vector<Widget*> AccessibleWidgets::childrenOf(const Widget* parent) const {
    return parent ? accessible::childrenOf(*parent) : accessible::childrenOf(control_.surface());
}

QAccessibleInterface* AccessibleWidgets::child(const Widget* parent, int index) {
    const auto children = childrenOf(parent);
    return index < 0 || index >= static_cast<int>(children.size()) ? nullptr
                                                                   : of(children[static_cast<std::size_t>(index)]);
}

int AccessibleWidgets::childCount(const Widget* parent) const {
    return static_cast<int>(childrenOf(parent).size());
}

int AccessibleWidgets::indexOf(const Widget* parent, const QAccessibleInterface* child) {
    const auto children = childrenOf(parent);
    const auto found =
        std::find_if(children.begin(), children.end(), [&](const Widget* widget) { return of(widget) == child; });
    return found == children.end() ? -1 : static_cast<int>(found - children.begin());
}

QAccessibleInterface* AccessibleWidgets::childAt(const Widget* parent, QPoint at) {
    const Widget* met = control_.surface().hitTest(ControlWidget::toTwips(host_.mapFromGlobal(QPointF(at)))).widget;
    while (met && accessible::parentOf(*met) != parent)
        met = accessible::parentOf(*met);
    return of(met);
}

void AccessibleWidgets::tell(const Widget& widget, QAccessible::Event type) const {
    const auto known = ids_.find(&widget);
    if (known == ids_.end()) return;
    QAccessibleEvent event(QAccessible::accessibleInterface(known->second), type);
    QAccessible::updateAccessibility(&event);
}

void AccessibleWidgets::tellState(const Widget& widget, Change change) const {
    const auto known = ids_.find(&widget);
    if (known == ids_.end()) return;
    QAccessible::State changed;
    change(changed);
    QAccessibleStateChangeEvent event(QAccessible::accessibleInterface(known->second), changed);
    QAccessible::updateAccessibility(&event);
}

void AccessibleWidgets::tellValue(const Widget* spin) const {
    const auto known = ids_.find(spin);
    if (known == ids_.end()) return;
    QAccessibleInterface* object = QAccessible::accessibleInterface(known->second);
    const QAccessibleValueInterface* value = object->valueInterface();
    QAccessibleValueChangeEvent event(object, value ? value->currentValue() : QVariant());
    QAccessible::updateAccessibility(&event);
}

void AccessibleWidgets::tellFocusSoon() const {
    QMetaObject::invokeMethod(
        &host_,
        [&host = host_] {
            QAccessibleInterface* focus = QAccessible::queryAccessibleInterface(&host)->focusChild();
            if (!focus || !host.hasFocus()) return;
            QAccessibleEvent event(focus, QAccessible::Focus);
            QAccessible::updateAccessibility(&event);
        },
        Qt::QueuedConnection);
}

std::vector<const Widget*> AccessibleWidgets::knownIn(const Widget& outermost) const {
    std::vector<const Widget*> known;
    for (const auto& [widget, id] : ids_)
        for (const Widget* at = widget; at; at = at->outer())
            if (at == &outermost) known.push_back(widget);
    return known;
}

void AccessibleWidgets::changed(const Widget& widget, Aspect aspect) const {
    switch (aspect) {
    case Aspect::Value:
        return tellState(widget, [](QAccessible::State& state) { state.checked = true; });
    case Aspect::Pressed:
        return tellState(widget, [](QAccessible::State& state) { state.pressed = true; });
    case Aspect::Default:
        return tellState(widget, [](QAccessible::State& state) { state.defaultButton = true; });
    case Aspect::Enabled:
        for (const Widget* inner : knownIn(widget))
            tellState(*inner, [](QAccessible::State& state) { state.disabled = true; });
        return;
    case Aspect::Visible:
        for (const Widget* inner : knownIn(widget))
            tell(*inner, accessible::stateOf(*inner).shown ? QAccessible::ObjectShow : QAccessible::ObjectHide);
        for (const Widget& other : widget.surface())
            if (widget.isInGroupWith(other)) tell(other, QAccessible::DescriptionChanged); // its place among them
        if (widget.role() == Role::PictureButton) tellFocusSoon();                         // which may be another now
        return;
    case Aspect::Place:
        for (const Widget* inner : knownIn(widget))
            tell(*inner, QAccessible::LocationChanged);
        return;
    case Aspect::Caption:
        tell(widget, QAccessible::NameChanged);
        return tellValue(accessible::steppedBy(widget));
    case Aspect::ToolTip:
        tell(widget, QAccessible::NameChanged);
        return tell(widget, QAccessible::DescriptionChanged);
    case Aspect::Focus:
        return tellFocusSoon();
    case Aspect::Look:
        return;
    }
}

} // namespace zilvo::qt
