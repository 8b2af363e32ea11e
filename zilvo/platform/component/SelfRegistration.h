#pragma once

#include "zilvo/platform/component/Module.h"
#include "zilvo/platform/values/Status.h"

#include <cstdint>

namespace zilvo::platform {

/// Serve DllRegisterServer and DllUnregisterServer: enter the component that the module lies in into the user's
/// registration store, and take it out again, wherever it was registered. Doing either twice changes nothing and is no
/// failure.
Status registerServer(const ComponentModule& module) noexcept;
Status unregisterServer(const ComponentModule& module) noexcept;

/// Takes the message of the one of them that ran last on this thread, since an entry point gives a status only. Empty
/// after a success, and once it has been taken.
ErrorInfo takeRegistrationError() noexcept;

/// What the two exported entry points look like.
using RegistrationEntry = std::uint32_t();

} // namespace zilvo::platform
