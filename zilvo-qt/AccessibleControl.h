#pragma once

#include <QAccessible>

namespace zilvo::qt {

/// Gives the widgets that host controls their accessible objects from now on. May be called again.
Q_DECL_HIDDEN void installAccessibleControls();

} // namespace zilvo::qt
