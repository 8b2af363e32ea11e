#include "zilvo-qt/ControlWidget.h"

#include "zilvo-qt/AccessibleControl.h"
#include "zilvo-qt/AccessibleWidgets.h"
#include "zilvo-qt/Calls.h"
#include "zilvo-qt/Components.h"
#include "zilvo-qt/Keys.h"
#include "zilvo-qt/Painter.h"
#include "zilvo-qt/PopupMenu.h"
#include "zilvo-qt/WindowKeys.h"

#include "zilvo/platform/values/Text.h"
#include "zilvo/platform/widgets/SpinButton.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>
#include <QToolTip>
#include <algorithm>
#include <cmath>

namespace zilvo::qt {

using namespace platform;

namespace {

Single twipsOf(int pixels) {
    return static_cast<Single>(pixels) * TwipsPerPixel;
}

/// Whole pixels that nothing sticks out of; a twip more or less is none.
QSize pixelsOf(const Rectangle& area) {
    const auto side = [](Single twips) { return static_cast<int>(std::ceil((twips - 1) / TwipsPerPixel)); };
    return {side(area.width), side(area.height)};
}

} // namespace

/// The control's site; with each instance another one.
class Q_DECL_HIDDEN ControlWidget::Host final : public ControlHost {
public:
    Host(ControlWidget& widget, Ref<Object> object) : ControlHost(std::move(object)), widget_(widget) {}

    AccessibleWidgets& accessible() noexcept { return accessible_; }

private:
    void PropertyChanged(StringView name) override { widget_.changed(name); }
    void SizeChanged(Single width, Single height) override {
        ControlHost::SizeChanged(width, height);
        widget_.controlSized();
    }
    void Beep() override { QApplication::beep(); }
    bool ShowPopup(Menu& root, Point at) override { return widget_.showPopup(root, at), true; }
    bool LeaveFocus(bool /*forward*/) override { return widget_.leaves_ = true; }
    void ViewChanged() noexcept override { widget_.viewChanged(); }
    void WidgetChanged(const Widget& widget, Aspect aspect) noexcept override {
        accessible_.widgetChanged(widget, aspect);
        widget_.widgetChanged(widget, aspect);
    }
    void ExtenderChanged(Aspect aspect) override {
        if (widget_.host_.get() == this) widget_.extenderChanged(aspect); // else once it is the widget's
    }

    ControlWidget& widget_;
    AccessibleWidgets accessible_{widget_, control()};
};

/// A size is on its way in or out and is not to come back, for a scope that the widget may not survive.
class ControlWidget::Sizing {
public:
    explicit Sizing(ControlWidget& widget) : widget_(&widget), before_(std::exchange(widget.sizing_, true)) {}
    Sizing(const Sizing&) = delete;
    Sizing& operator=(const Sizing&) = delete;
    ~Sizing() {
        if (widget_) widget_->sizing_ = before_;
    }

private:
    QPointer<ControlWidget> widget_;
    bool before_;
};

template <class Body>
bool ControlWidget::guarded(const Body& body) const {
    return qt::guarded(*this, body);
}

// ---- The control

ControlWidget::ControlWidget(const QString& controlClass, QWidget* parent)
    : QWidget(parent), controlClass_(controlClass) {
    open(nullptr);
}

ControlWidget::ControlWidget(const QString& controlClass, const QVariantMap& settings, QWidget* parent)
    : QWidget(parent), controlClass_(controlClass) {
    open(&settings);
}

ControlWidget::~ControlWidget() = default;

void ControlWidget::open(const QVariantMap* settings) {
    installAccessibleControls();
    host_ = instance(settings, {});
    followExtender();
    hint_ = pixelsOf(control().surface().area());
    resize(hint_);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent); // its window then paints nothing else for it
    setSizePolicy(control().ownsWidth() ? QSizePolicy::Fixed : QSizePolicy::Preferred, QSizePolicy::Preferred);
}

std::unique_ptr<ControlWidget::Host> ControlWidget::instance(const QVariantMap* settings, std::optional<QSize> size) {
    auto host = std::make_unique<Host>(*this, Components::ofApplication().create(controlClass_));
    giveAmbient(*host);
    Extender& extender = host->extenderObject();
    extender.put_Left(twipsOf(x()));
    extender.put_Top(twipsOf(y()));
    extender.put_Enabled(isEnabled());
    if (host_) extender.put_Visible(host_->extenderObject().get_Visible());
    for (const auto& [event, handler] : handlers_)
        host->on(toString(event), handler);
    for (const EventDescription* event : heard_)
        listen(*host, *event);

    MemoryPropertyBag bag;
    if (settings) fill(bag, *settings);
    std::optional<Single> width;
    std::optional<Single> height;
    if (size) {
        width = twipsOf(size->width());
        height = twipsOf(size->height());
    }
    const Sizing sizing(*this);
    host->open(settings ? &bag : nullptr, width, height);
    return host;
}

AccessibleWidgets* ControlWidget::accessibleWidgets() const {
    return host_ ? &host_->accessible() : nullptr;
}

void ControlWidget::giveAmbient(ControlHost& host) const {
    StandardAmbient& ambient = host.ambientProperties();
    ambient.put_BackColor(toColour(palette().color(QPalette::Window)));
    ambient.put_ForeColor(toColour(palette().color(QPalette::WindowText)));
    ambient.put_Font(toFont(font()));
    if (!host_) return;
    ambient.put_UserMode(userMode());
    ambient.put_DisplayAsDefault(displaysDefault());
}

HostedControl& ControlWidget::control() const {
    return host_->control();
}

Widget* ControlWidget::keyboardWidget() const {
    if (Widget* focus = control().focus()) return focus;
    Widget* picture = nullptr;
    for (Widget& widget : control().surface()) {
        if (widget.takesFocus()) return nullptr;
        if (!picture && widget.role() == Role::PictureButton && widget.acceptsInput()) picture = &widget;
    }
    return picture;
}

QVariant ControlWidget::get(const QString& name) const {
    return toQVariant(host_->get(toString(name)));
}

void ControlWidget::put(const QString& name, const QVariant& value) {
    const String member = toString(name);
    host_->put(member, toVariant(value, member));
}

QVariant ControlWidget::call(const QString& name, QVariantList& arguments) {
    return qt::call(host_->object(), toString(name), arguments);
}

QVariant ControlWidget::call(const QString& name, const QVariantList& arguments) {
    QVariantList copies = arguments;
    return call(name, copies);
}

void ControlWidget::on(const QString& event, Handler handler) {
    host_->on(toString(event), handler);
    handlers_.emplace_back(event, std::move(handler));
}

QVariant ControlWidget::read(StringView property) const {
    QVariant value;
    guarded([&] { value = toQVariant(host_->get(property)); });
    return value;
}

void ControlWidget::write(StringView property, const QVariant& value) {
    guarded([&] { host_->put(property, toVariant(value, property)); });
}

void ControlWidget::reset(StringView property) {
    guarded([&] {
        ControlHost other(Components::ofApplication().create(controlClass_));
        giveAmbient(other);
        other.open();
        host_->put(property, other.get(property));
    });
}

QVariant ControlWidget::run(StringView method, QVariantList arguments) {
    QVariant result;
    guarded([&] { result = qt::call(host_->object(), method, arguments); });
    return result;
}

QVariantMap ControlWidget::saveSettings() const {
    MemoryPropertyBag bag;
    host_->save(bag);
    return toMap(bag);
}

void ControlWidget::restoreSettings(const QVariantMap& settings) {
    const QPointer<ControlWidget> alive(this);
    auto host = instance(&settings, size());
    if (!alive) return;
    qDeleteAll(findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly)); // with the items of the control that goes
    clock_.stop();
    host_.swap(host);
    host.reset();
    followExtender();
    if (QAccessible::isActive()) {
        QAccessibleEvent other(this, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&other);
    }
    if (hasFocus()) input(input::FocusIn{});
    viewChanged();
    const QMetaObject& members = *metaObject();
    for (int i = staticMetaObject.propertyCount(); alive && i < members.propertyCount(); ++i)
        members.property(i).notifySignal().invoke(this);
}

void ControlWidget::connectNotify(const QMetaMethod& signal) {
    const String name = toString(QString::fromLatin1(signal.name()));
    for (const EventDescription& event : host_->object().description().events) {
        if (name != u"raised" && name != event.name) continue;
        if (std::find(heard_.begin(), heard_.end(), &event) != heard_.end()) continue;
        heard_.push_back(&event);
        listen(*host_, event);
    }
}

void ControlWidget::listen(Host& host, const EventDescription& event) {
    host.on(event.name, [this, &event](std::span<Variant> arguments) { hear(event, arguments); });
}

void ControlWidget::hear(const EventDescription& event, std::span<Variant> arguments) {
    const QPointer<ControlWidget> alive(this);
    const QString name = toQString(event.name);
    QVariantList copies;
    for (const Variant& argument : arguments)
        copies.append(toQVariant(argument));
    raise(event.number, copies);
    if (alive) emit raised(name, copies);
}

void ControlWidget::changed(StringView property) {
    const QPointer<ControlWidget> alive(this);
    const String name(property);
    emit propertyChanged(toQString(name));
    if (!alive) return;
    const QMetaObject& members = *metaObject();
    for (int i = staticMetaObject.propertyCount(); i < members.propertyCount(); ++i)
        if (sameName(toString(QString::fromLatin1(members.property(i).name())), name)) {
            members.property(i).notifySignal().invoke(this);
            return;
        }
}

// ---- Input

/// Of everything that the user does, the time that passed before comes first.
bool ControlWidget::input(const InputEvent& event) {
    const QPointer<ControlWidget> alive(this);
    if (clock_.isActive()) passTime();
    bool acted = false;
    if (alive) guarded([&] { acted = host_->input(event); });
    if (alive) runClock();
    return acted;
}

void ControlWidget::passTime() {
    const qint64 now = sinceClock_.elapsed();
    const std::chrono::milliseconds elapsed(now - std::exchange(toldTime_, now));
    guarded([&] { host_->input(input::TimePassed{elapsed}); });
}

void ControlWidget::runClock() {
    const auto wanted = control().clockWanted();
    if (!wanted) return clock_.stop();
    if (!clock_.isActive()) {
        sinceClock_.start();
        toldTime_ = 0;
    }
    clock_.start(std::max(1, static_cast<int>(wanted->count())), Qt::PreciseTimer, this);
}

void ControlWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() != clock_.timerId()) return QWidget::timerEvent(event);
    const QPointer<ControlWidget> alive(this);
    passTime();
    if (alive) runClock();
}

void ControlWidget::mousePressEvent(QMouseEvent* event) {
    const auto button = buttonOf(event->button());
    if (!button) return QWidget::mousePressEvent(event);
    const QPointer<ControlWidget> alive(this);
    showedPopup_ = false;
    input(input::PointerDown{toTwips(event->position()), *button, shiftOf(event->modifiers())});
    // A press beside the widgets leaves the keyboard where it was.
    if (alive && hasFocus() && !control().focus()) input(input::FocusIn{});
}

void ControlWidget::mouseMoveEvent(QMouseEvent* event) {
    input(input::PointerMove{toTwips(event->position())});
}

void ControlWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (const auto button = buttonOf(event->button())) input(input::PointerUp{toTwips(event->position()), *button});
}

/// Turns the spin button under the pointer, or the only one that the control has.
void ControlWidget::wheelEvent(QWheelEvent* event) {
    std::vector<SpinButton*> spins;
    for (Widget& widget : control().surface())
        if (auto* spin = dynamic_cast<SpinButton*>(&widget)) spins.push_back(spin);
    const Widget* under = control().surface().hitTest(toTwips(event->position())).widget;
    std::erase_if(spins, [&](const SpinButton* spin) { return spins.size() > 1 && spin != under; });
    if (spins.size() != 1) return event->ignore();

    constexpr int step = QWheelEvent::DefaultDeltasPerStep;
    wheel_ += event->angleDelta().y();
    const QPointer<ControlWidget> alive(this);
    while (alive && std::abs(wheel_) >= step) {
        const bool up = wheel_ > 0;
        wheel_ += up ? -step : step;
        const Host* host = host_.get();
        input(input::Invoke{*spins.front(), up ? input::Action::SpinUp : input::Action::SpinDown});
        if (alive && host != host_.get()) return; // a handler has restored settings
    }
}

/// The right button has asked for it already, when it went down; so has the key.
void ControlWidget::contextMenuEvent(QContextMenuEvent* event) {
    event->setAccepted(showedPopup_);
}

void ControlWidget::keyPressEvent(QKeyEvent* event) {
    const auto key = keyOf(*event);
    // Letters with Alt are the window's affair.
    const bool isOwn = key && (key->key != input::Key::Character || (key->shift & input::AltMask) == 0);
    showedPopup_ = false;
    Widget* const picture = control().focus() ? nullptr : keyboardWidget();
    const bool clicks = isOwn && picture && key->key == input::Key::Space && key->shift == 0;
    event->setAccepted(isOwn && (clicks ? input(input::Invoke{*picture}) : input(*key)));
}

bool ControlWidget::focusNextPrevChild(bool next) {
    const QPointer<ControlWidget> alive(this);
    leaves_ = false;
    input(input::KeyDown{input::Key::Tab, 0, next ? Integer{0} : input::ShiftMask});
    if (!alive || (!leaves_ && control().focus())) return true;
    if (QWidget::focusNextPrevChild(next)) return true;
    input(input::FocusIn{next ? input::Entry::First : input::Entry::Last}); // there is no other
    return alive && control().focus();
}

void ControlWidget::focusInEvent(QFocusEvent* event) {
    const bool forward = event->reason() != Qt::BacktabFocusReason;
    const bool byTab = event->reason() == Qt::TabFocusReason || !forward;
    // The pointer goes to its widget, and a letter to its own.
    if (event->reason() == Qt::MouseFocusReason || event->reason() == Qt::ShortcutFocusReason) return;
    const QPointer<ControlWidget> alive(this);
    input(input::FocusIn{!byTab ? input::Entry::Same : forward ? input::Entry::First : input::Entry::Last});
    if (alive) viewChanged();
    if (!alive || !byTab || passesOn_ || keyboardWidget()) return;
    passesOn_ = true;
    QWidget::focusNextPrevChild(forward);
    if (alive) passesOn_ = false;
}

void ControlWidget::focusOutEvent(QFocusEvent* event) {
    if (event->reason() == Qt::PopupFocusReason) return; // a menu gives it back
    viewChanged();
    input(input::FocusOut{});
}

bool ControlWidget::event(QEvent* event) {
    const QPointer<ControlWidget> alive(this);
    switch (event->type()) {
    case QEvent::ToolTip: {
        const auto* help = static_cast<QHelpEvent*>(event);
        const Point at = toTwips(help->pos());
        const QString text = toQString(toolTipAt(control(), at));
        if (text.isEmpty()) break; // the widget's own, if it has one
        const Hit hit = control().surface().hitTest(at);
        const Rectangle& bounds = hit.widget->bounds();
        QToolTip::showText(help->globalPos(), text, this,
                           toPixels({at.x - hit.at.x, at.y - hit.at.y, bounds.width, bounds.height}).toAlignedRect());
        return true;
    }
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        guarded([&] { host_->extenderObject().put_Visible(!isHidden()); });
        if (alive && isHidden()) input(input::PointerLost{});
        break;
    case QEvent::Show:
        WindowKeys::of(*window()).updateDefault();
        break;
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        input(input::PointerLost{});
        break;
    default:
        break;
    }
    return alive ? QWidget::event(event) : true;
}

// ---- Colours, font, sizes

void ControlWidget::setAmbient(StringView name, const Variant& value) {
    guarded([&] { host_->setAmbient(name, value); });
}

bool ControlWidget::userMode() const {
    return host_->ambientProperties().get_UserMode();
}

void ControlWidget::setUserMode(bool userMode) {
    if (userMode != this->userMode()) setAmbient(u"UserMode", userMode);
}

bool ControlWidget::displaysDefault() const {
    return host_->ambientProperties().get_DisplayAsDefault();
}

void ControlWidget::changeEvent(QEvent* event) {
    const QPointer<ControlWidget> alive(this);
    switch (event->type()) {
    case QEvent::PaletteChange:
        setAmbient(u"BackColor", toColour(palette().color(QPalette::Window)));
        if (alive) setAmbient(u"ForeColor", toColour(palette().color(QPalette::WindowText)));
        break;
    case QEvent::FontChange:
        setAmbient(u"Font", toFont(font()));
        break;
    case QEvent::EnabledChange:
        guarded([&] { host_->extenderObject().put_Enabled(isEnabled()); });
        if (alive && !isEnabled()) input(input::PointerLost{});
        break;
    default:
        break;
    }
    if (!alive) return;
    viewChanged(); // also in another window's colours, when it is no longer the active one
    QWidget::changeEvent(event);
}

QSize ControlWidget::sizeHint() const {
    return hint_;
}

void ControlWidget::moveEvent(QMoveEvent* event) {
    const QPointer<ControlWidget> alive(this);
    Extender& extender = host_->extenderObject();
    guarded([&] { extender.put_Left(twipsOf(event->pos().x())); });
    if (alive) guarded([&] { extender.put_Top(twipsOf(event->pos().y())); });
}

void ControlWidget::resizeEvent(QResizeEvent* event) {
    const Rectangle& area = control().surface().area();
    if (sizing_ || pixelsOf(area) == event->size()) return;
    const QPointer<ControlWidget> alive(this);
    {
        const Sizing sizing(*this);
        guarded([&] { host_->resize(twipsOf(event->size().width()), twipsOf(event->size().height())); });
    }
    if (alive) controlSized();
}

/// Follows a size that the control has given itself.
void ControlWidget::controlSized() {
    if (sizing_) return;
    const QSize own = pixelsOf(control().surface().area());
    if (own == size()) return;
    hint_ = own;
    updateGeometry();
    const Sizing sizing(*this);
    resize(own);
}

/// What the control did to its extender while it was new or loading. A widget is shown by its host, and not by this.
void ControlWidget::followExtender() {
    if (!host_->extenderObject().get_Visible()) setVisible(false);
    extenderChanged(Aspect::Enabled);
    extenderChanged(Aspect::Place);
}

void ControlWidget::extenderChanged(Aspect aspect) {
    const Extender& extender = host_->extenderObject();
    const QPoint corner = toPixels({extender.get_Left(), extender.get_Top(), 0, 0}).topLeft().toPoint();
    if (aspect == Aspect::Visible && extender.get_Visible() == isHidden()) setVisible(extender.get_Visible());
    if (aspect == Aspect::Enabled && extender.get_Enabled() != isEnabled()) setEnabled(extender.get_Enabled());
    if (aspect == Aspect::Place && corner != pos()) move(corner);
}

// ---- What the control shows

void ControlWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter target(this);
    const QPointer<ControlWidget> alive(this);
    const bool shown = guarded([&] {
        picture_.show(target, size(), [this](QPainter& picture) {
            picture.fillRect(rect(), palette().window()); // where the control is smaller
            Painter painter(picture, PaintCache::ofApplication(), palette(), metrics_);
            host_->paint(painter);
            if (!hasFocus() || control().focus() || !keyboardWidget()) return;
            QStyleOptionFocusRect frame;
            frame.initFrom(this);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &picture, this);
        });
    });
    if (alive && !shown) target.fillRect(rect(), palette().window());
}

void ControlWidget::widgetChanged(const Widget& /*widget*/, Aspect aspect) noexcept {
    viewChanged();
    if (aspect != Aspect::Default && aspect != Aspect::Enabled && aspect != Aspect::Visible) return;
    if (WindowKeys* keys = WindowKeys::find(*window())) keys->updateDefault();
}

void ControlWidget::showPopup(Menu& root, Point at) {
    showedPopup_ = true;
    popUp(*this, root, mapToGlobal(toPixels({at.x, at.y, 0, 0}).topLeft().toPoint()));
}

void ControlWidget::setMetrics(Metrics metrics) {
    metrics_ = metrics;
    viewChanged();
}

Point ControlWidget::toTwips(QPointF pixels) {
    return {static_cast<Single>(pixels.x()) * TwipsPerPixel, static_cast<Single>(pixels.y()) * TwipsPerPixel};
}

QRectF ControlWidget::toPixels(const Rectangle& twips) {
    constexpr double unit{TwipsPerPixel};
    return {double{twips.left} / unit, double{twips.top} / unit, double{twips.width} / unit,
            double{twips.height} / unit};
}

} // namespace zilvo::qt
