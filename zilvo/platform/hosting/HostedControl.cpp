#include "zilvo/platform/hosting/HostedControl.h"

namespace zilvo::platform {

String toolTipAt(HostedControl& control, Point at) {
    const Hit hit = control.surface().hitTest(at);
    return hit.widget ? hit.widget->get_ToolTipText() : String();
}

} // namespace zilvo::platform
