#pragma once

#include "zilvo/platform/component/Registration.h"

#include <functional>

namespace zilvo::platform {

/// Registrations in one file that any number of processes read and change at once. All calls throw Failures:
/// RegistrationsUnreadable for a file that is damaged, naming the line, that a newer version wrote, or that is no file;
/// RegistrationsUnwritable where it cannot be replaced. A change that fails leaves the file as it was, unless its
/// folder fails to reach the disk: see writeFile().
class RegistrationStore {
public:
    /// Names another file than the usual one.
    static constexpr const char* EnvironmentVariable = "ZILVO_REGISTRATIONS";

    /// The usual file; fails with RegistrationsUnreadable when there is none.
    RegistrationStore();
    explicit RegistrationStore(const std::filesystem::path& file);

    /// The user's: $ZILVO_REGISTRATIONS, else $XDG_DATA_HOME/zilvo/registrations, else
    /// $HOME/.local/share/zilvo/registrations, where the latter two count when they are absolute; nothing when none
    /// does. Fails with RegistrationsUnreadable when the first is set but empty: whoever sets it wants another file
    /// than the user's own.
    static std::optional<std::filesystem::path> usualFile();
    /// Where a host looks for a class, one after the other: in the usual file, then in those of the machine,
    /// zilvo/registrations in each absolute folder of $XDG_DATA_DIRS, which an administrator writes, and the files
    /// without an extension in the folder zilvo/registrations.d beside it, of which each package brings its own.
    /// $ZILVO_REGISTRATIONS names the only one.
    static std::vector<RegistrationStore> all();

    const std::filesystem::path& file() const noexcept { return file_; }

    /// In the order in which they were made; none when there is no file yet.
    Registrations read() const;
    std::optional<Registration> find(const std::filesystem::path& componentFile) const;

    /// As enter() and takeOut() do.
    void add(const Registration& registration);
    Registrations remove(const Registration& own);

    /// What is wrong with the text of the file, with the line; null when it is sound or there is none.
    std::optional<std::string> damage() const;
    /// Gives a damaged file another name, so that a new one can be begun, and tells it. Null when it is not damaged.
    std::optional<std::filesystem::path> setAside();

private:
    /// Writes only what differs.
    void change(const std::function<void(Registrations&)>& edit);

    std::filesystem::path file_;
};

} // namespace zilvo::platform
