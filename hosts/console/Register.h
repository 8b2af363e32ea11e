#pragma once

#include "zilvo/platform/component/RegistrationStore.h"

namespace zilvo::console {

/// Sets a damaged registration file aside, having said so on standard error. False for one that is not damaged.
bool setAsideWhenDamaged(platform::RegistrationStore& store);

/// Both read what the component says of itself, run none of it, and give lines that say what was done where.

/// A damaged registration file is set aside first.
std::string registerComponent(const std::filesystem::path& file);
/// Takes out what is the component's own, wherever it was registered; of a file that is gone or broken, what is
/// registered for that path. That nothing is registered is no failure.
std::string unregisterComponent(const std::filesystem::path& file);

} // namespace zilvo::console
