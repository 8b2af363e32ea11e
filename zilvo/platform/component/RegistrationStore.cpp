#include "zilvo/platform/component/RegistrationStore.h"

#include "zilvo/platform/component/RegistrationFile.h"
#include "zilvo/platform/component/RegistrationText.h"

#include <algorithm>
#include <cstdlib>

namespace zilvo::platform {

namespace {

using Registrations = std::vector<Registration>;

/// Takes from an earlier registration what the newcomer registers too.
void takeOver(Registration& earlier, const Registration& newcomer) {
    if (earlier.library && newcomer.library && earlier.library->id == newcomer.library->id) earlier.library.reset();
    const auto take = [](auto& from, const auto& newOnes, auto id) {
        std::erase_if(from, [&](const auto& each) {
            return std::ranges::find(newOnes, std::invoke(id, each), id) != newOnes.end();
        });
    };
    take(earlier.classes, newcomer.classes, &Registration::Class::classId);
    take(earlier.interfaces, newcomer.interfaces, &Registration::Interface::id);
}

bool isEmpty(const Registration& registration) {
    return !registration.library && registration.classes.empty() && registration.interfaces.empty();
}

void removeFor(const std::filesystem::path& file, Registrations& from) {
    std::erase_if(from, [&](const Registration& each) { return each.file == file; });
}

/// Null when the variable is not set, or empty, which counts as the same.
std::optional<std::filesystem::path> pathIn(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value ? std::optional<std::filesystem::path>(value) : std::nullopt;
}

} // namespace

RegistrationStore::RegistrationStore() {
    const auto file = usualFile();
    if (!file)
        throw Failure(Status::RegistrationsUnreadable, std::string("there is no place for registrations: none of ") +
                                                           EnvironmentVariable + ", XDG_DATA_HOME and HOME is set");
    file_ = std::filesystem::absolute(*file);
}

RegistrationStore::RegistrationStore(const std::filesystem::path& file) : file_(std::filesystem::absolute(file)) {}

std::optional<std::filesystem::path> RegistrationStore::usualFile() {
    constexpr const char* BelowData = "zilvo/registrations";
    if (const char* given = std::getenv(EnvironmentVariable)) {
        if (*given) return given;
        throw Failure(Status::RegistrationsUnreadable, std::string(EnvironmentVariable) + " is set, but names no file");
    }
    if (const auto data = pathIn("XDG_DATA_HOME"); data && data->is_absolute()) return *data / BelowData;
    if (const auto home = pathIn("HOME")) return *home / ".local/share" / BelowData;
    return std::nullopt;
}

Registrations RegistrationStore::read() const {
    const auto text = readRegistrationFile(file_);
    return text ? registrationsIn(*text, file_.string()) : Registrations();
}

std::optional<Registration> RegistrationStore::find(const std::filesystem::path& componentFile) const {
    const auto all = read();
    const auto found = std::ranges::find(all, registeredPath(componentFile), &Registration::file);
    return found == all.end() ? std::nullopt : std::optional(*found);
}

void RegistrationStore::add(const Registration& registration) {
    change([&](Registrations& all) {
        if (std::ranges::find(all, registration) != all.end()) return;
        removeFor(registration.file, all);
        for (Registration& earlier : all)
            takeOver(earlier, registration);
        std::erase_if(all, isEmpty);
        all.push_back(registration);
    });
}

bool RegistrationStore::remove(const std::filesystem::path& componentFile) {
    return change([file = registeredPath(componentFile)](Registrations& all) { removeFor(file, all); });
}

bool RegistrationStore::change(const std::function<void(Registrations&)>& edit) {
    const auto edited = [&]() -> std::optional<Registrations> {
        const Registrations before = read();
        Registrations after = before;
        edit(after);
        return after == before ? std::nullopt : std::optional(after);
    };
    if (!edited()) return false; // which needs neither a lock nor permission
    const RegistrationFileLock lock(file_);
    const auto after = edited();
    if (!after) return false;
    const std::string text = textOf(*after);
    registrationsIn(text, file_.string() + ", as it would be written"); // a store that cannot be read is not written
    lock.replace(text);
    return true;
}

} // namespace zilvo::platform
