#pragma once

#include "zilvo/platform/component/Registration.h"
#include "zilvo/platform/values/Status.h"

#include <span>

namespace zilvo::platform {

/// The text of a registration store, in UTF-8:
///
///     zilvo registrations, format 1
///
///     [component]
///     file = /opt/zilvo/ZilvoButtons-445.Ocx
///
///     [class]
///     id = {F183CFF5-42C5-44A4-958C-928E204EBE8B}
///     name = ssOKCancel
///     ...
///     end
///
/// The sections type library, class and interface belong to the component above them. A byte that would break its line
/// stands as a backslash, x and two hexadecimal digits, as does every byte beyond ASCII of a value that is no UTF-8.
/// The last line shows that the text is whole.
std::string textOf(std::span<const Registration> registrations);

/// What reading a text fails with that is not whole, or was altered: RegistrationsUnreadable.
class DamagedRegistrations final : public Failure {
public:
    using Failure::Failure;
};

/// Reads such a text. Fails with DamagedRegistrations for anything that textOf() would not write, blank lines and the
/// order of the keys apart, and with a mere Failure, RegistrationsUnreadable, for a text that a newer version wrote;
/// the message names the source, the line and what is wrong there.
Registrations registrationsIn(std::string_view text, const std::string& source);

} // namespace zilvo::platform
