#pragma once

#include "hosts/console/Describe.h"

namespace zilvo::console {

/// What is registered for the user and for the machine, file by file in the order in which hosts look there:
///
///     {"files": [{"file", "problem", "components": [{"file", "state", "problem", "library", "classes"}]}]}
///
/// The state of a component is "there", "gone", "no component" or "other classes": what its file says now is not what
/// is registered. A problem is text or null, the library may be null.
Json registrations();
/// The same for people.
std::string registrationsText(const Json& registrations);

/// Sets a damaged registration file of the user aside and takes out components that are gone, and says so each time
/// before it does it.
void repairRegistrations();

} // namespace zilvo::console
