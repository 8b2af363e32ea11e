#pragma once

#include "zilvo/platform/widgets/Menu.h"

#include <QPoint>

class QMenu;

namespace zilvo::qt {

class ControlWidget;

/// Pops a control's menu up as one of the toolkit's, with its corner at that point of the screen. It goes away with the
/// widget, or by itself; the user's choice goes to the control.
Q_DECL_HIDDEN void popUp(ControlWidget& widget, platform::Menu& root, QPoint at);

} // namespace zilvo::qt
