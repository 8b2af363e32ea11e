#pragma once

#include "zilvo/platform/component/Object.h"
#include "zilvo/platform/hosting/HostedControl.h"

namespace zilvo {

/// The framework and the controls speak of the platform's values and widgets by their plain names.
using namespace platform;

} // namespace zilvo
