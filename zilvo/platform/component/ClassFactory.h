#pragma once

#include "zilvo/platform/component/Object.h"

namespace zilvo::platform {

/// Makes instances of one class. Holding a factory keeps the component loaded.
class ClassFactory final {
public:
    ClassFactory(ComponentModule& module, const ClassEntry& entry) noexcept : lock_(module), entry_(entry) {}
    ClassFactory(const ClassFactory&) = delete;
    ClassFactory& operator=(const ClassFactory&) = delete;
    ~ClassFactory() = default;

    void AddRef() noexcept { ++references_; }
    void Release() noexcept;

    /// A fresh instance: its children exist with their design values and Initialize has run.
    Status CreateInstance(Ref<Object>& instance, ErrorInfo* error = nullptr) noexcept;

private:
    ModuleLock lock_;
    const ClassEntry& entry_;
    unsigned references_ = 0;
};

/// The interfaces that DllGetClassObject gives. The application interface, of a class that is an application object
/// only, is an Object: the one instance that the component provides, whoever asks, as long as anybody holds it. The
/// information, a const ComponentModule that belongs to the component, tells what it publishes and what of it lives;
/// it is asked for with InformationClass.
inline constexpr Guid ClassFactoryInterface = "{00000001-0000-0000-C000-000000000046}"_guid;
inline constexpr Guid ApplicationInterface = "{5D1F6C0C-64C2-4B0B-9B3E-5F3E0C6F9A11}"_guid;
inline constexpr Guid InformationInterface = "{5D1F6C0A-64C2-4B0B-9B3E-5F3E0C6F9A11}"_guid;
inline constexpr Guid InformationClass = "{5D1F6C0B-64C2-4B0B-9B3E-5F3E0C6F9A11}"_guid;

/// Serves DllGetClassObject from a component's class table. `*object` becomes a ClassFactory or an Object with one
/// reference for the caller, or the information; null on failure. Gives ClassNotAvailable, NoInterface, what the
/// class's Initialize fails with, or NullPointer when one of the pointers is null.
Status getClassObject(ComponentModule& module, const Guid* classId, const Guid* interfaceId, void** object) noexcept;

/// The one instance of an application object of the component.
Ref<Object> applicationObject(ComponentModule& module, const ClassEntry& entry);

/// Serves DllCanUnloadNow: Ok when nothing of the component is alive, else False.
Status canUnloadNow(const ComponentModule& module) noexcept;

/// What the exported entry points look like.
using GetClassObjectEntry = std::uint32_t(const Guid* classId, const Guid* interfaceId, void** object);
using CanUnloadNowEntry = std::uint32_t();

} // namespace zilvo::platform
