#pragma once

#include "zilvo/platform/component/Files.h"

#include <optional>
#include <string>

namespace zilvo::platform {

/// The text of a file that several processes read and change; null when there is none. Fails with `onFailure`; the
/// message names the contents and the file: "the registrations in FILE cannot be read".
std::optional<std::string> readSharedFile(const std::filesystem::path& file, const std::string& contents,
                                          Status onFailure);

/// Keeps other processes from changing the file as long as it lives; readers go on. All calls fail with `onFailure`.
class SharedFileLock {
public:
    /// Makes the folder of a new file. The lock is a file beside it, NAME.lock, which stays.
    SharedFileLock(const std::filesystem::path& file, Status onFailure);

    /// As writeFile() does.
    void replace(std::string_view text) const;
    /// Renames the file to a name that nothing has yet, and gives it: NAME.damaged, NAME.damaged-2, ...
    std::filesystem::path setAside() const;

private:
    std::filesystem::path file_; ///< no link
    Status onFailure_;
    FileDescriptor lock_;
};

} // namespace zilvo::platform
