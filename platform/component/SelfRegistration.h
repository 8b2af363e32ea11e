#pragma once

#include "platform/component/Module.h"
#include "platform/values/Status.h"

#include <cstdint>

namespace zilvo::platform {

/// Serve DllRegisterServer and DllUnregisterServer: enter the component that the module lies in into the user's
/// registration store, and take it out again. Doing either twice changes nothing and is no failure.
Status registerServer(const ComponentModule& module) noexcept;
Status unregisterServer(const ComponentModule& module) noexcept;

/// An entry point gives a status only; this is the message of the one above that ran last on this thread, and then
/// forgotten. Empty after a success.
ErrorInfo takeRegistrationError() noexcept;

/// What the two exported entry points look like.
using RegistrationEntry = std::uint32_t();

} // namespace zilvo::platform
