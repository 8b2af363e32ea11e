#pragma once

#include "zilvo/platform/component/Files.h"

#include <optional>
#include <string>

namespace zilvo::platform {

/// The text; null when there is no such file. Fails with RegistrationsUnreadable.
std::optional<std::string> readRegistrationFile(const std::filesystem::path& file);

/// Keeps other processes from changing the file as long as it lives; readers go on. All calls fail with
/// RegistrationsUnwritable.
class RegistrationFileLock {
public:
    /// Makes the folder of a new file. The lock is a file beside it, NAME.lock, which stays.
    explicit RegistrationFileLock(const std::filesystem::path& file);

    /// As writeFile() does.
    void replace(std::string_view text) const;
    /// Renames the file to a name that nothing has yet, and gives it: NAME.damaged, NAME.damaged-2, ...
    std::filesystem::path setAside() const;

private:
    std::filesystem::path file_; ///< no link
    FileDescriptor lock_;
};

} // namespace zilvo::platform
