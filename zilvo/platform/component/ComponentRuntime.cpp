#include "zilvo/platform/component/ComponentRuntime.h"

#include "zilvo/platform/component/ElfFile.h"
#include "zilvo/platform/component/Files.h"

#include <dlfcn.h>

namespace zilvo::platform {

namespace {

[[noreturn]] void refuse(const std::filesystem::path& file, const std::string& why) {
    throw Failure(Status::BadComponent, file.string() + " is not a component: " + why);
}

/// Adds the name to the missing ones when there is no such entry point.
template <class Entry>
Entry* entryPoint(void* library, const char* name, std::string& missing) {
    void* entry = dlsym(library, name);
    if (!entry) missing += std::string(" ") + name;
    return reinterpret_cast<Entry*>(entry); // what dlsym gives has no type
}

} // namespace

LoadedComponent::LoadedComponent(const std::filesystem::path& file) : file_(absolutePath(file)) {
    const ElfFile whole(file_);
    library_.reset(dlopen(file_.c_str(), RTLD_NOW | RTLD_LOCAL));
    if (!library_) refuse(file_, dlerror());
    std::string missing;
    getClassObject_ = entryPoint<GetClassObjectEntry>(library_.get(), "DllGetClassObject", missing);
    canUnloadNow_ = entryPoint<CanUnloadNowEntry>(library_.get(), "DllCanUnloadNow", missing);
    registerServer_ = entryPoint<RegistrationEntry>(library_.get(), "DllRegisterServer", missing);
    unregisterServer_ = entryPoint<RegistrationEntry>(library_.get(), "DllUnregisterServer", missing);
    if (!missing.empty()) refuse(file_, "it lacks the entry points" + missing);
    void* module = nullptr;
    getClassObject_(&InformationClass, &InformationInterface, &module);
    if (!module) refuse(file_, "it does not tell what it publishes");
    module_ = static_cast<const ComponentModule*>(module);
}

LoadedComponent::~LoadedComponent() {
    if (library_ && canUnloadNow_() != static_cast<std::uint32_t>(Status::Ok)) (void)library_.release();
}

void LoadedComponent::Unload::operator()(void* library) const noexcept {
    dlclose(library);
}

const ComponentModule& LoadedComponent::module() const {
    if (!module_) throw Failure(Status::UnexpectedCall, file_.string() + " has been unloaded");
    return *module_;
}

Status LoadedComponent::getClassObject(const Guid& classId, const Guid& interfaceId, void** object) const {
    module();
    return Status{getClassObject_(&classId, &interfaceId, object)};
}

template <class T>
inline Ref<T> LoadedComponent::classObject(const Guid& classId, const Guid& interfaceId) const {
    void* object = nullptr;
    const Status status = getClassObject(classId, interfaceId, &object);
    if (!succeeded(status)) throw Failure(status, file_.string() + ": class " + classId.text() + ": " + nameOf(status));
    Ref<T> given(*static_cast<T*>(object));
    given->Release();
    return given;
}

Ref<ClassFactory> LoadedComponent::classFactory(const Guid& classId) const {
    return classObject<ClassFactory>(classId, ClassFactoryInterface);
}

const ClassEntry& LoadedComponent::entryOf(StringView className) const {
    if (const ClassEntry* entry = description().find(className)) return *entry;
    throw Failure(Status::ClassNotAvailable, file_.string() + " has no class " + toUtf8(className));
}

Ref<Object> LoadedComponent::create(StringView className) const {
    Ref<Object> instance;
    ErrorInfo error;
    throwUnlessOk(classFactory(entryOf(className).identity.classId)->CreateInstance(instance, &error), error);
    return instance;
}

Ref<Object> LoadedComponent::application(StringView className) const {
    return classObject<Object>(entryOf(className).identity.classId, ApplicationInterface);
}

void LoadedComponent::registerServer() const {
    module();
    const Status status{registerServer_()};
    throwUnlessOk(status, takeRegistrationError());
}

void LoadedComponent::unregisterServer() const {
    module();
    const Status status{unregisterServer_()};
    throwUnlessOk(status, takeRegistrationError());
}

void LoadedComponent::unload() {
    module();
    if (canUnloadNow_() != static_cast<std::uint32_t>(Status::Ok))
        throw Failure(Status::InUse, file_.string() + " cannot be unloaded: " + std::to_string(liveObjects()) +
                                         " of its objects are alive, or a class factory or event connection is");
    library_.reset();
    module_ = nullptr;
}

} // namespace zilvo::platform
