#pragma once

#include "zilvo/platform/component/ClassFactory.h"
#include "zilvo/platform/component/SelfRegistration.h"

#include <filesystem>
#include <memory>

namespace zilvo::platform {

/// A component file that is loaded into the process, which runs its code. All calls throw Failures.
class LoadedComponent {
public:
    /// Fails with FileNotFound, or with BadComponent for a file that cannot be read, is cut short, no component of this
    /// machine, or needs what is not there.
    explicit LoadedComponent(const std::filesystem::path& file);
    LoadedComponent(const LoadedComponent&) = delete;
    LoadedComponent& operator=(const LoadedComponent&) = delete;
    /// Unloads the component, or leaves it in the process when something of it is still alive.
    ~LoadedComponent();

    const std::filesystem::path& file() const noexcept { return file_; }
    /// Both fail with UnexpectedCall after unload().
    const ComponentDescription& description() const { return module().description(); }
    std::size_t liveObjects() const { return module().liveObjects(); }

    /// As the component's entry point answers; see getClassObject() in ClassFactory.h.
    Status getClassObject(const Guid& classId, const Guid& interfaceId, void** object) const;
    /// Fails with ClassNotAvailable.
    Ref<ClassFactory> classFactory(const Guid& classId) const;
    /// Creates an instance by class name, ProgID or class id.
    Ref<Object> create(StringView className) const;
    /// The one instance of an application object that the component provides, by class name, ProgID or class id: the
    /// same for all as long as anybody holds it. Fails with ClassNotAvailable, or NoInterface for any other class.
    Ref<Object> application(StringView className) const;

    /// Enters the component into the user's registration store, and takes it out again; see RegistrationStore.
    void registerServer() const;
    void unregisterServer() const;

    /// Fails with InUse, and leaves the component loaded, while any object, class factory or event connection of it
    /// is alive.
    void unload();

private:
    const ComponentModule& module() const;
    const ClassEntry& entryOf(StringView className) const;
    /// The reference that the component gives becomes the result's own.
    template <class T>
    Ref<T> classObject(const Guid& classId, const Guid& interfaceId) const;

    struct Unload {
        void operator()(void* library) const noexcept;
    };

    std::filesystem::path file_;
    std::unique_ptr<void, Unload> library_;
    const ComponentModule* module_ = nullptr;
    GetClassObjectEntry* getClassObject_ = nullptr;
    CanUnloadNowEntry* canUnloadNow_ = nullptr;
    RegistrationEntry* registerServer_ = nullptr;
    RegistrationEntry* unregisterServer_ = nullptr;
};

} // namespace zilvo::platform
