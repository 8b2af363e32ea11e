#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

namespace zilvo::platform {

struct ClassEntry;
struct ComponentDescription;
class Object;
template <class T>
class Ref;

/// The one piece of state that a component has: what of it is alive. It must not be unloaded while anything is.
/// Everything runs on the host's user-interface thread, so the counts are plain numbers.
class ComponentModule {
public:
    explicit constexpr ComponentModule(const ComponentDescription& description) noexcept : description_(description) {}
    ComponentModule(const ComponentModule&) = delete;
    ComponentModule& operator=(const ComponentModule&) = delete;

    const ComponentDescription& description() const noexcept { return description_; }
    std::size_t liveObjects() const noexcept { return objects_; }
    /// Whether no object, class factory or event connection is alive.
    bool canUnload() const noexcept { return objects_ == 0 && locks_ == 0; }

private:
    friend class Object;
    friend class ModuleLock;
    friend Ref<Object> applicationObject(ComponentModule& module, const ClassEntry& entry);

    const ComponentDescription& description_;
    std::size_t objects_ = 0;
    std::size_t locks_ = 0;
    /// The application objects that are alive, one of each class, in a chain that they leave when they die. Nothing
    /// here needs to be destroyed: objects may go away after the component's static ones.
    Object* applications_ = nullptr;
};

/// The module of the component that the call is made in. Each component defines it, for its entry points.
ComponentModule& componentModule() noexcept;

/// Keeps the component loaded as long as it lives.
class ModuleLock {
public:
    explicit ModuleLock(ComponentModule& module) noexcept : module_(module) { ++module_.locks_; }
    ModuleLock(const ModuleLock&) = delete;
    ModuleLock& operator=(const ModuleLock&) = delete;
    ~ModuleLock() { --module_.locks_; }

    ComponentModule& module() const noexcept { return module_; }

private:
    ComponentModule& module_;
};

/// A counted reference to a T that has AddRef and Release.
template <class T>
class Ref {
public:
    Ref() = default;
    Ref(std::nullptr_t) noexcept {}
    /// Takes part in the ownership of a living object.
    explicit Ref(T& object) noexcept : object_(&object) { object_->AddRef(); }
    Ref(const Ref& other) noexcept : object_(other.object_) {
        if (object_) object_->AddRef();
    }
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    template <class Derived>
    requires std::is_convertible_v<Derived*, T*> Ref(const Ref<Derived>& other)
    noexcept : Ref(other.get() ? Ref(*other.get()) : Ref()) {}
    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Ref() {
        if (object_) object_->Release();
    }

    T* get() const noexcept { return object_; }
    T& operator*() const noexcept { return *object_; }
    T* operator->() const noexcept { return object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

} // namespace zilvo::platform
