#pragma once

#include "zilvo/platform/hosting/Input.h"

#include <QKeyEvent>

namespace zilvo::qt {

/// Nothing for a button that controls do not know.
Q_DECL_HIDDEN std::optional<platform::Integer> buttonOf(Qt::MouseButton button);
Q_DECL_HIDDEN platform::Integer shiftOf(Qt::KeyboardModifiers modifiers);
/// Nothing for a key that is none of a control's.
Q_DECL_HIDDEN std::optional<platform::input::KeyDown> keyOf(const QKeyEvent& event);

} // namespace zilvo::qt
