#include "hosts/console/Registrations.h"

#include "hosts/console/Register.h"
#include "zilvo/platform/component/ComponentFile.h"
#include "zilvo/platform/component/RegistrationStore.h"

#include <algorithm>
#include <iostream>
#include <set>
#include <sstream>

namespace zilvo::console {

using namespace platform;

namespace {

/// What became of a registered component file.
struct State {
    std::string_view name;
    std::string problem;
};
constexpr std::string_view Gone = "gone";

template <class Part>
bool areAmong(const std::vector<Part>& parts, const std::vector<Part>& all) {
    const auto isAmong = [&](const Part& part) { return std::find(all.begin(), all.end(), part) != all.end(); };
    return std::all_of(parts.begin(), parts.end(), isAmong);
}

/// All that is registered is published, and each class that is published is registered, if for another component.
bool isTheSame(const Registration& registered, const Registration& published, const std::set<Guid>& registeredClasses) {
    const auto isRegistered = [&](const Registration::Class& each) { return registeredClasses.contains(each.classId); };
    return (!registered.library || registered.library == published.library) &&
           areAmong(registered.classes, published.classes) && areAmong(registered.interfaces, published.interfaces) &&
           std::all_of(published.classes.begin(), published.classes.end(), isRegistered);
}

State stateOf(const Registration& registered, const std::set<Guid>& registeredClasses) {
    try {
        const ComponentFile file(registered.file);
        const Registration published = registrationOf(file.description(), registered.file);
        return {isTheSame(registered, published, registeredClasses) ? "there" : "other classes", {}};
    } catch (const Failure& failure) {
        return {failure.status() == Status::FileNotFound ? Gone : "no component", failure.what()};
    }
}

Json orNull(const std::string& text) {
    return text.empty() ? Json() : Json(text);
}

Json componentJson(const Registration& registration, const State& state) {
    Json library;
    if (registration.library)
        library = {{"name", toUtf8(registration.library->name)},
                   {"id", registration.library->id.text()},
                   {"version", registration.library->version}};
    Json classes = Json::array();
    for (const auto& each : registration.classes)
        classes.push_back({{"name", toUtf8(each.name)},
                           {"classId", each.classId.text()},
                           {"progId", toUtf8(each.progId)},
                           {"control", each.isControl}});
    return {{"file", registration.file.string()},
            {"state", state.name},
            {"problem", orNull(state.problem)},
            {"library", library},
            {"classes", classes}};
}

Json componentsOf(const Registrations& registrations) {
    std::set<Guid> classes;
    for (const Registration& registration : registrations)
        for (const auto& each : registration.classes)
            classes.insert(each.classId);
    Json components = Json::array();
    for (const Registration& registration : registrations)
        components.push_back(componentJson(registration, stateOf(registration, classes)));
    return components;
}

Json storeJson(const RegistrationStore& store) {
    Json components = Json::array();
    std::string problem;
    try {
        components = componentsOf(store.read());
    } catch (const Failure& failure) {
        problem = failure.what();
    }
    return {{"file", store.file().string()}, {"problem", orNull(problem)}, {"components", components}};
}

} // namespace

Json registrations() {
    Json files = Json::array();
    for (const RegistrationStore& store : RegistrationStore::all())
        files.push_back(storeJson(store));
    return {{"files", files}};
}

std::string registrationsText(const Json& registrations) {
    std::ostringstream out;
    const auto text = [](const Json& from, const char* key) { return from.at(key).get<std::string>(); };
    for (const Json& file : registrations.at("files")) {
        out << text(file, "file") << '\n';
        if (!file.at("problem").is_null())
            out << "    " << text(file, "problem") << '\n';
        else if (file.at("components").empty())
            out << "    nothing is registered\n";
        for (const Json& component : file.at("components")) {
            out << "    " << text(component, "file") << ": " << text(component, "state") << '\n';
            if (!component.at("problem").is_null()) out << "        " << text(component, "problem") << '\n';
            for (const Json& each : component.at("classes"))
                out << "        " << text(each, "progId") << ' ' << text(each, "classId") << '\n';
        }
    }
    return out.str();
}

void repairRegistrations() {
    RegistrationStore store;
    bool isSound = !setAsideWhenDamaged(store);
    for (const Registration& each : store.read()) {
        if (stateOf(each, {}).name != Gone) continue;
        std::cout << each.file.string() << " is gone: " << std::flush << unregisterComponent(each.file);
        isSound = false;
    }
    if (isSound) std::cout << "nothing is to be repaired in " << store.file().string() << '\n';
}

} // namespace zilvo::console
