#pragma once

#include "zilvo-qt/KeptPicture.h"
#include "zilvo-qt/Values.h"

#include "zilvo/platform/component/ControlHost.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QWidget>
#include <functional>
#include <memory>

namespace zilvo::qt {

class AccessibleWidgets;

/// A widget that hosts a control of any component. What the user does goes to the control; its colours, font and mode
/// come from the widget's palette, font and userMode; sizes follow each other. Positions within the control are twips,
/// fifteen to the logical pixel.
///
/// The constructors, get(), put(), call(), on() and restoreSettings() throw Failures, as in any host; nothing else
/// does: what fails while an event is handled is told by failed(). A handler of the control may do anything, destroy
/// this widget included.
///
/// A class that is derived for one class of control has a Q_PROPERTY for each of its properties, whose NOTIFY signal is
/// emitted when the control tells of a change and when other settings are restored.
class ControlWidget : public QWidget {
    Q_OBJECT
    /// False where the application is designed rather than run.
    Q_PROPERTY(bool userMode READ userMode WRITE setUserMode DESIGNABLE false)

public:
    /// Gets references to the control's own variables: what it assigns to them the control sees.
    using Handler = std::function<void(std::span<platform::Variant> arguments)>;

    /// A new control, by class name, ProgID or class id; see Components::create().
    explicit ControlWidget(const QString& controlClass, QWidget* parent = nullptr);
    /// One with saved settings.
    ControlWidget(const QString& controlClass, const QVariantMap& settings, QWidget* parent = nullptr);
    ~ControlWidget() override;

    /// Names compare without case. Fail with UnknownMember, TypeMismatch, Overflow and as the member does.
    QVariant get(const QString& name) const;
    void put(const QString& name, const QVariant& value);
    /// By-reference arguments are left in `arguments`, converted back.
    QVariant call(const QString& name, QVariantList& arguments);
    QVariant call(const QString& name, const QVariantList& arguments = {});
    /// Attaches a handler for the widget's life. Fails with UnknownMember.
    void on(const QString& event, Handler handler);

    /// The control's saved settings, those at their default left out.
    QVariantMap saveSettings() const;
    /// Puts an instance with these settings in place of the control; handlers, colours and size stay. When that fails
    /// the control is what it was.
    void restoreSettings(const QVariantMap& settings);

    bool userMode() const;
    void setUserMode(bool userMode);

    /// Real ones unless the same picture is wanted on every machine.
    Metrics metrics() const { return metrics_; }
    void setMetrics(Metrics metrics);

    /// Whether a default button of the control is drawn as the window's.
    bool displaysDefault() const;

    /// The size that the control has given itself, designed or since.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// What the keyboard acts on in this widget while that has it: the control's own focus or, where nothing on the
    /// control ever takes it, the picture that a click can meet, which Space then clicks. Null for none.
    platform::Widget* keyboardWidget() const;

    /// The control itself, for what its widgets show; never kept, since another may take its place.
    platform::HostedControl& control() const;
    /// Hands the control an input; true when it acted on it. A handler may destroy this widget meanwhile.
    bool input(const platform::InputEvent& event);

    /// Of positions within the control.
    static platform::Point toTwips(QPointF pixels);
    static QRectF toPixels(const platform::Rectangle& twips);

signals:
    /// Any event of the control, with copies of its arguments. Signals and handlers of on() come in the order of their
    /// first connection.
    void raised(const QString& event, const QVariantList& arguments);
    /// The saved settings are out of date because of that property.
    void propertyChanged(const QString& name);
    /// What a handler of the control, or a member called through a typed class, failed with; nothing else has changed.
    void failed(int status, const QString& message) const;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void connectNotify(const QMetaMethod& signal) override;

    // For the typed classes. What a member fails with is told by failed(); what it would have given is then invalid.
    QVariant read(platform::StringView property) const;
    void write(platform::StringView property, const QVariant& value);
    /// Gives the property the value that it has in a new control.
    void reset(platform::StringView property);
    QVariant run(platform::StringView method, QVariantList arguments = {});
    /// Emits the signal of an event, by its number, that something is connected to or to raised().
    virtual void raise(platform::Long /*event*/, const QVariantList& /*arguments*/) {}

private:
    class Host;
    class Sizing;
    friend class WindowKeys;
    friend class AccessibleControl;

    void open(const QVariantMap* settings);
    /// Live, with all handlers attached; of its own size unless one is given.
    std::unique_ptr<Host> instance(const QVariantMap* settings, std::optional<QSize> size);
    /// What a new control takes over from the widget.
    void giveAmbient(platform::ControlHost& host) const;
    void listen(Host& host, const platform::EventDescription& event);
    void hear(const platform::EventDescription& event, std::span<platform::Variant> arguments);
    /// The control says that the saved settings are out of date because of that property.
    void changed(platform::StringView property);
    void setAmbient(platform::StringView name, const platform::Variant& value);
    /// Null before there is a control.
    AccessibleWidgets* accessibleWidgets() const;

    // What the control tells its site.
    void viewChanged() noexcept {
        if (picture_.isStale()) return; // to be painted already, which takes the toolkit long to find out among many
        picture_.makeStale();
        update();
    }
    void controlSized();
    void followExtender();
    void extenderChanged(platform::Aspect aspect);
    void widgetChanged(const platform::Widget& widget, platform::Aspect aspect) noexcept;
    void showPopup(platform::Menu& root, platform::Point at);

    void passTime();
    void runClock();
    /// Runs what may fail and tells of it. False when it failed or this widget is gone.
    template <class Body>
    bool guarded(const Body& body) const;

    QString controlClass_;
    KeptPicture picture_{PaintCache::ofApplication()}; ///< stays while the control goes and still tells of changes
    std::unique_ptr<Host> host_;
    std::vector<std::pair<QString, Handler>> handlers_;
    std::vector<const platform::EventDescription*> heard_; ///< events with a signal that is connected
    QBasicTimer clock_;                                    ///< runs only while the control wants it
    QElapsedTimer sinceClock_;
    qint64 toldTime_ = 0; ///< of sinceClock_, milliseconds
    QSize hint_;
    Metrics metrics_ = Metrics::Real;
    int wheel_ = 0; ///< eighths of a degree that make no whole step yet
    bool sizing_ = false;
    bool leaves_ = false;      ///< Tab has gone past the last widget
    bool passesOn_ = false;    ///< the keyboard, having no use for it
    bool showedPopup_ = false; ///< since the last press
};

} // namespace zilvo::qt
