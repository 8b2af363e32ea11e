#include "hosts/console/validate/Driver.h"
#include "zilvo/platform/component/ComponentFile.h"
#include "zilvo/platform/component/RegistrationStore.h"
#include "zilvo/platform/component/RegistrationText.h"

#include <algorithm>
#include <fstream>
#include <sstream>

/// The file, its class factories and how it registers itself.

namespace zilvo::console {

using namespace platform;

namespace {

constexpr Guid UnknownId = "{0D5E4A7C-2B1F-4E8D-9A36-71C0F2E5B894}"_guid;

bool refusesToUnload(LoadedComponent& component) {
    return attempt([&] { component.unload(); }).status == Status::InUse;
}

bool isMapped(const std::filesystem::path& file) {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
        if (line.ends_with(std::filesystem::canonical(file).string())) return true;
    return false;
}

/// Nothing keeps the component any more.
bool expectUnload(Check& check, LoadedComponent& component) {
    if (const std::size_t alive = component.liveObjects())
        return check.expect(false, std::to_string(alive) + " objects are alive after all were let go of");
    return expectOk(check, attempt([&] { component.unload(); }));
}

class SilentSink final : public EventSink {
    void Event(Long /*number*/, std::span<Variant> /*arguments*/) override {}
};

} // namespace

void checks::loads(Check& /*check*/, LoadedComponent& /*component*/) {
    // Being here is enough: a file that lacks an entry point is no component.
}

void checks::fileAndRuntime(Check& check, LoadedComponent& component) {
    check.step("the file");
    const ComponentFile file(component.file());
    const std::vector<Resource> running = resourcesOf(component.description());
    check.expect(file.resources().size() == running.size(), "has " + std::to_string(file.resources().size()) +
                                                                " resources, the loaded component " +
                                                                std::to_string(running.size()));
    for (const Resource& resource : running) {
        const auto name = toUtf8(resource.type) + " " + toUtf8(resource.name);
        const auto at = std::find_if(file.resources().begin(), file.resources().end(), [&](const Resource& each) {
            return each.type == resource.type && each.name == resource.name;
        });
        if (check.expect(at != file.resources().end(), "lacks " + name))
            check.expect(at->bytes == resource.bytes, name + " is another than that of the loaded component");
    }
}

void checks::classFactories(Check& check, LoadedComponent& component) {
    check.expect(!component.description().classes.empty(), "the component publishes no class");
    forEachClass(check, component, [&](const ClassEntry& entry) {
        const Ref<Object> object = createInstance(component, entry);
        const StringView name = object->description().name;
        check.expect(name == entry.identity.name, "the instance calls its class " + toUtf8(name));
        const Ref<Object> other = createInstance(component, entry);
        check.expect(other.get() != object.get(), "two instances are the same object");
    });
}

void checks::unknownClasses(Check& check, LoadedComponent& component) {
    const auto expectNothing = [&](const Guid& classId, const Guid& interfaceId, Status expected) {
        check.step("class " + classId.text() + ", interface " + interfaceId.text());
        void* object = &component;
        const Status status = component.getClassObject(classId, interfaceId, &object);
        check.expect(status == expected, "expected " + shown(expected) + ", came " + shown(status));
        check.expect(!object, "the pointer to the class object is not null");
    };
    expectNothing(UnknownId, ClassFactoryInterface, Status::ClassNotAvailable);
    expectNothing(Guid(), ClassFactoryInterface, Status::ClassNotAvailable);
    forEachClass(check, component, [&](const ClassEntry& entry) {
        expectNothing(entry.identity.interfaceId, ClassFactoryInterface, Status::ClassNotAvailable);
        expectNothing(entry.identity.classId, UnknownId, Status::NoInterface);
        expectNothing(entry.identity.classId, entry.identity.interfaceId, Status::NoInterface);
    });
}

void checks::staysLoadedInUse(Check& check, LoadedComponent& component) {
    SilentSink sink;
    forEachClass(check, component, [&](const ClassEntry& entry) {
        LoadedComponent again(component.file()); // so that one unloaded by mistake is still there
        Ref<ClassFactory> factory = again.classFactory(entry.identity.classId);
        check.expect(refusesToUnload(again), "unloads while a class factory lives");
        factory = nullptr;
        Ref<Object> object = createInstance(again, entry);
        check.expect(refusesToUnload(again), "unloads while an object lives");
        if (!entry.description.events.empty()) {
            Connection connection;
            const Long number = entry.description.events.front().number;
            expectOk(check,
                     answerOf([&](ErrorInfo* error) { return object->Connect(number, sink, connection, error); }));
            object = nullptr;
            check.expect(refusesToUnload(again), "unloads while an event connection lives");
        }
        object = nullptr;
        expectUnload(check, again);
    });
}

namespace {

/// The sections of a store's text, which blank lines part.
std::vector<std::string> sectionsOf(std::span<const Registration> registrations) {
    std::istringstream text(textOf(registrations));
    std::vector<std::string> sections(1);
    for (std::string line; std::getline(text, line);)
        if (line.empty())
            sections.emplace_back();
        else
            sections.back() += line + ' ';
    return sections;
}

void expectRegistered(Check& check, std::span<const Registration> expected) {
    const std::vector<Registration> registered = RegistrationStore().read();
    const auto expectedSections = sectionsOf(expected);
    const auto sections = sectionsOf(registered);
    check.expect(sections.size() == expectedSections.size(), "registers " + std::to_string(sections.size()) +
                                                                 " sections, expected " +
                                                                 std::to_string(expectedSections.size()));
    for (std::size_t i = 0; i < std::min(sections.size(), expectedSections.size()); ++i)
        check.expect(sections[i] == expectedSections[i],
                     "registers " + sections[i] + "expected " + expectedSections[i]);
}

} // namespace

void checks::registration(Check& check, LoadedComponent& component) {
    const std::array registered = {registrationOf(component.description(), component.file())};
    for (const char* time : {"DllRegisterServer", "DllRegisterServer again"}) {
        check.step(time);
        if (expectOk(check, attempt([&] { component.registerServer(); }))) expectRegistered(check, registered);
    }
    for (const char* time : {"DllUnregisterServer", "DllUnregisterServer again"}) {
        check.step(time);
        if (expectOk(check, attempt([&] { component.unregisterServer(); }))) expectRegistered(check, {});
    }
}

namespace {

/// Makes and drives one of the component's classes, another in each round, and lets go of it.
void useOneClass(Check& check, const LoadedComponent& component, std::size_t round) {
    const auto classes = component.description().classes;
    if (classes.empty()) return;
    const ClassEntry& entry = classes[round % classes.size()];
    check.step(nameOf(entry) + ", round " + std::to_string(round));
    const Ref<Object> object = createInstance(component, entry);
    if (!entry.identity.isControl()) return carryOut(check, memberDeeds(*object));
    ControlHost host(object);
    host.open();
    carryOut(check, widgetDeeds(*object));
}

} // namespace

void checks::unloads(Check& check, LoadedComponent& component) {
    constexpr std::size_t Rounds = 50;
    const auto file = component.file();
    check.step("without use");
    if (!expectUnload(check, component)) return;
    for (std::size_t round = 0; round < Rounds; ++round) {
        LoadedComponent again(file);
        useOneClass(check, again, round);
        if (!expectUnload(check, again)) return;
    }
    check.step("after the last use");
    if (isMapped(file)) check.warn("the process still maps the file");
}

} // namespace zilvo::console
