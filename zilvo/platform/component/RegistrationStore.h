#pragma once

#include "zilvo/platform/component/Registration.h"

#include <functional>

namespace zilvo::platform {

/// The user's registrations, in one file that any number of processes read and change at once. All calls throw
/// Failures: RegistrationsUnreadable for a file that is damaged, naming the line, that a newer version wrote, or that
/// is no file; RegistrationsUnwritable where it cannot be replaced. A change that fails leaves the file as it was.
class RegistrationStore {
public:
    /// Names another file than the usual one.
    static constexpr const char* EnvironmentVariable = "ZILVO_REGISTRATIONS";

    /// The usual file; fails with RegistrationsUnreadable when there is none.
    RegistrationStore();
    explicit RegistrationStore(const std::filesystem::path& file);

    /// $ZILVO_REGISTRATIONS, else $XDG_DATA_HOME/zilvo/registrations, else $HOME/.local/share/zilvo/registrations;
    /// nothing when none of the variables is set. Fails with RegistrationsUnreadable when the first is set but empty:
    /// whoever sets it wants another file than the user's own.
    static std::optional<std::filesystem::path> usualFile();

    const std::filesystem::path& file() const noexcept { return file_; }

    /// In the order in which they were made; none when there is no file yet.
    std::vector<Registration> read() const;
    std::optional<Registration> find(const std::filesystem::path& componentFile) const;

    /// Replaces what that file registered before. What another component registered under the same class id, interface
    /// id or type library is taken over; the other one keeps the rest.
    void add(const Registration& registration);
    /// Forgets what is registered for that file; false when nothing is.
    bool remove(const std::filesystem::path& componentFile);

private:
    /// Writes only what differs; false when nothing does.
    bool change(const std::function<void(std::vector<Registration>&)>& edit);

    std::filesystem::path file_;
};

} // namespace zilvo::platform
