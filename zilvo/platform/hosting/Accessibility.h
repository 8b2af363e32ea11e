#pragma once

#include "zilvo/platform/hosting/Input.h"
#include "zilvo/platform/widgets/Surface.h"

/// Who each widget of a live control is, for an assistive technology: computed when it asks. What it does is handed in
/// as input::Invoke and input::FocusOn; what changes, the control's site hears from WidgetChanged.
namespace zilvo::platform::accessible {

/// What the user hears of it, never empty for what can be clicked: what its control calls it, else the text on it, else
/// that of the label just before it in Tab order, else its tool tip, else its design name made readable.
String nameOf(const Widget& widget);
/// Its tool tip, unless that is its name.
String descriptionOf(const Widget& widget);
/// Of a spin button the text of the only field in its container, when it is the only one there to change it.
String valueOf(const Widget& widget);
/// The spin button whose value the widget shows; null for none.
Widget* steppedBy(const Widget& widget);

/// Of a radio button: which of those shown it is, in Tab order, from 1. Nothing for all else.
struct GroupPlace {
    std::size_t position;
    std::size_t size;
};
std::optional<GroupPlace> groupPlaceOf(const Widget& widget);

/// Where the pointer can meet it, twips on the surface that the host drives; empty outside of what it lies in, and for
/// menus.
Rectangle boundsOf(const Widget& widget);

struct State {
    bool shown;   ///< with all that it lies in on the control; never a menu, which shows as a pop-up only
    bool enabled; ///< with all that it lies in, and the control
    bool focusable;
    bool focused;
    bool pressed; ///< held down by the user
    bool isDefault;
    std::optional<Checked> checked;
};
/// Fails as the host does.
State stateOf(const Widget& widget);

/// "Alt+6", of a menu item "D"; empty for none.
String accessKeyOf(const Widget& widget);
/// What the user can do with it at all, also while it is disabled.
std::vector<input::Action> actionsOf(const Widget& widget);

/// The tree: panels and frames hold what lies in them, menus their items. An embedded control is not told of: its
/// widgets are those of the container that it lies in. Null directly on the surface that the host drives.
Widget* parentOf(const Widget& widget);
/// In Tab order, hidden ones too; then the menus.
std::vector<Widget*> childrenOf(const Surface& surface);
std::vector<Widget*> childrenOf(const Widget& widget);

} // namespace zilvo::platform::accessible
