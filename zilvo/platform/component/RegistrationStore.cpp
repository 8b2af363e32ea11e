#include "zilvo/platform/component/RegistrationStore.h"

#include "zilvo/platform/component/Files.h"
#include "zilvo/platform/component/RegistrationText.h"
#include "zilvo/platform/component/SharedFile.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace zilvo::platform {

namespace {

constexpr const char* BelowData = "zilvo/registrations";

} // namespace

RegistrationStore::RegistrationStore() {
    const auto file = usualFile();
    if (!file)
        throw Failure(Status::RegistrationsUnreadable,
                      std::string("there is no place for registrations: none of ") + EnvironmentVariable +
                          ", XDG_DATA_HOME and HOME is set, the latter two to an absolute path");
    file_ = absolutePath(*file);
}

RegistrationStore::RegistrationStore(const std::filesystem::path& file) : file_(absolutePath(file)) {}

std::optional<std::filesystem::path> RegistrationStore::usualFile() {
    if (const char* given = std::getenv(EnvironmentVariable)) {
        if (*given) return given;
        throw Failure(Status::RegistrationsUnreadable, std::string(EnvironmentVariable) + " is set, but names no file");
    }
    if (const auto data = folderIn("XDG_DATA_HOME")) return *data / BelowData;
    if (const auto home = folderIn("HOME")) return *home / ".local/share" / BelowData;
    return std::nullopt;
}

std::vector<RegistrationStore> RegistrationStore::all() {
    std::vector<RegistrationStore> stores;
    if (const auto file = usualFile()) stores.emplace_back(*file);
    if (std::getenv(EnvironmentVariable)) return stores;
    const char* given = std::getenv("XDG_DATA_DIRS");
    std::istringstream folders(given && *given ? given : "/usr/local/share:/usr/share");
    for (std::string folder; std::getline(folders, folder, ':');)
        if (folder.starts_with('/')) {
            const auto file = std::filesystem::path(folder) / BelowData;
            stores.emplace_back(file);
            // One with an extension is another's: its lock, or what a package is about to put there.
            for (const auto& ofPackage : filesIn(file.string() + ".d", ""))
                stores.emplace_back(ofPackage);
        }
    return stores;
}

Registrations RegistrationStore::read() const {
    const auto text = readSharedFile(file_, "registrations", Status::RegistrationsUnreadable);
    return text ? registrationsIn(*text, file_.string()) : Registrations();
}

std::optional<Registration> RegistrationStore::find(const std::filesystem::path& componentFile) const {
    const auto all = read();
    const auto path = registeredPath(componentFile);
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const Registration& each) { return each.file == path; });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

void RegistrationStore::add(const Registration& registration) {
    change([&](Registrations& all) { enter(registration, all); });
}

Registrations RegistrationStore::remove(const Registration& own) {
    Registrations taken;
    change([&](Registrations& all) { taken = takeOut(own, all); });
    return taken;
}

std::optional<std::string> RegistrationStore::damage() const {
    try {
        read();
        return std::nullopt;
    } catch (const DamagedRegistrations& damaged) {
        return damaged.what();
    }
}

std::optional<std::filesystem::path> RegistrationStore::setAside() {
    const SharedFileLock lock(file_, Status::RegistrationsUnwritable);
    return damage() ? std::optional(lock.setAside()) : std::nullopt;
}

void RegistrationStore::change(const std::function<void(Registrations&)>& edit) {
    const auto edited = [&]() -> std::optional<Registrations> {
        const Registrations before = read();
        Registrations after = before;
        edit(after);
        return after == before ? std::nullopt : std::optional(after);
    };
    if (!edited()) return; // which needs neither a lock nor permission
    const SharedFileLock lock(file_, Status::RegistrationsUnwritable);
    const auto after = edited();
    if (!after) return;
    const std::string text = textOf(*after);
    registrationsIn(text, file_.string() + ", as it would be written"); // a store that cannot be read is not written
    lock.replace(text);
}

} // namespace zilvo::platform
