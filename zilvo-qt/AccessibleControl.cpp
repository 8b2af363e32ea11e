#include "zilvo-qt/AccessibleControl.h"

#include "zilvo-qt/AccessibleWidgets.h"
#include "zilvo-qt/ControlWidget.h"

#include <QAccessibleWidget>

namespace zilvo::qt {

/// The hosting widget: a group of what the control shows.
class AccessibleControl final : public QAccessibleWidget {
public:
    explicit AccessibleControl(ControlWidget& host) : QAccessibleWidget(&host, QAccessible::Grouping) {}

    int childCount() const override { return widgets() ? widgets()->childCount(nullptr) : 0; }
    QAccessibleInterface* child(int index) const override {
        return widgets() ? widgets()->child(nullptr, index) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return widgets() ? widgets()->indexOf(nullptr, child) : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        return widgets() ? widgets()->childAt(nullptr, {x, y}) : nullptr;
    }
    QAccessibleInterface* focusChild() const override { return widgets() ? widgets()->focus() : nullptr; }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (focusChild()) state.focused = false; // the widget in it is
        return state;
    }

private:
    /// Null before there is a control, and once the hosting widget is being destroyed.
    AccessibleWidgets* widgets() const {
        const auto* host = qobject_cast<const ControlWidget*>(object());
        return host ? host->accessibleWidgets() : nullptr;
    }
};

void installAccessibleControls() {
    QAccessible::installFactory([](const QString& className, QObject* object) -> QAccessibleInterface* {
        if (className != QLatin1String(ControlWidget::staticMetaObject.className())) return nullptr;
        return new AccessibleControl(*qobject_cast<ControlWidget*>(object));
    });
}

} // namespace zilvo::qt
