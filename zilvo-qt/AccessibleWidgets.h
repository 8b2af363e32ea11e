#pragma once

#include "zilvo/platform/hosting/HostedControl.h"

#include <QAccessible>
#include <unordered_map>

namespace zilvo::qt {

class ControlWidget;

/// The accessible objects of one control's widgets, below that of the widget that hosts it. Each is made when an
/// assistive technology first asks for it, belongs to the toolkit's cache, and ends with the control.
class Q_DECL_HIDDEN AccessibleWidgets final {
public:
    AccessibleWidgets(ControlWidget& host, platform::HostedControl& control) : host_(host), control_(control) {}
    AccessibleWidgets(const AccessibleWidgets&) = delete;
    AccessibleWidgets& operator=(const AccessibleWidgets&) = delete;
    ~AccessibleWidgets();

    /// Null for null.
    QAccessibleInterface* of(const platform::Widget* widget);
    /// In the order of accessible::childrenOf(); of the control itself for null. Null outside.
    QAccessibleInterface* child(const platform::Widget* parent, int index);
    int childCount(const platform::Widget* parent) const;
    /// -1 for what is no child.
    int indexOf(const platform::Widget* parent, const QAccessibleInterface* child);
    /// That of the children which the pointer meets at a point of the screen, itself or in it; null for none.
    QAccessibleInterface* childAt(const platform::Widget* parent, QPoint at);
    /// The one with the keyboard; null for none.
    QAccessibleInterface* focus();

    /// Tells those who listen, of what they have asked about; costs a branch while nobody does.
    void widgetChanged(const platform::Widget& widget, platform::Aspect aspect) const {
        if (QAccessible::isActive()) changed(widget, aspect);
    }

private:
    class Object;
    using Change = void (*)(QAccessible::State& changed);

    std::vector<platform::Widget*> childrenOf(const platform::Widget* parent) const;
    /// The widgets known to an assistive technology that lie in that one, and itself.
    std::vector<const platform::Widget*> knownIn(const platform::Widget& outermost) const;
    void changed(const platform::Widget& widget, platform::Aspect aspect) const;
    void tell(const platform::Widget& widget, QAccessible::Event type) const;
    void tellState(const platform::Widget& widget, Change change) const;
    /// Nothing for null.
    void tellValue(const platform::Widget* spin) const;
    /// After the toolkit has told that the hosting widget has the keyboard.
    void tellFocusSoon() const;

    ControlWidget& host_;
    platform::HostedControl& control_;
    std::unordered_map<const platform::Widget*, QAccessible::Id> ids_;
    bool ends_ = false;
};

} // namespace zilvo::qt
