#pragma once

#include "zilvo/platform/component/TypeInformation.h"

namespace zilvo::platform {

class HostedControl;

/// An instance of a class of a component: counted, reached by member id or name, with events. The calls give a
/// status and throw nothing; `error` may be null. Each holds the object alive until it returns.
class Object : public Described {
public:
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    void AddRef() noexcept { ++references_; }
    /// The last release destroys the object.
    void Release() noexcept {
        if (--references_ == 0) destroy();
    }

    const ObjectDescription& description() const noexcept override = 0;
    /// What a host drives; null for a class that is no control.
    virtual HostedControl* hostedControl() noexcept { return nullptr; }

    /// Calls a member. By-reference arguments are left in `arguments`; `result` may be null. Gives UnknownMember,
    /// ArgumentCount, TypeMismatch, Overflow or what the member itself fails with.
    Status Invoke(MemberId id, Access how, std::span<Variant> arguments, Variant* result,
                  ErrorInfo* error = nullptr) noexcept;
    /// Names compare without case.
    Status Invoke(StringView name, Access how, std::span<Variant> arguments, Variant* result,
                  ErrorInfo* error = nullptr) noexcept;
    /// Attaches a sink, which must stay as long as the connection, to the event of that number.
    Status Connect(Long eventNumber, EventSink& sink, Connection& connection, ErrorInfo* error = nullptr) noexcept;

    ComponentModule& module() const noexcept { return module_; }

    /// Keeps the object alive for a scope. A member that goes on after it may have raised an event holds its object:
    /// a handler may release the last reference that the caller has.
    [[nodiscard]] Ref<Object> hold() noexcept { return Ref<Object>(*this); }

protected:
    explicit Object(ComponentModule& module) noexcept : module_(module) { ++module_.objects_; }
    virtual ~Object() {
        --module_.objects_;
        for (Object** at = &module_.applications_; *at; at = &(*at)->nextApplication_)
            if (*at == this) {
                *at = nextApplication_;
                break;
            }
    }

private:
    void destroy() noexcept;
    template <class Which>
    Status invoke(const MemberDescription* member, const Which& which, Access how, std::span<Variant> arguments,
                  Variant* result, ErrorInfo* error) noexcept;

    ComponentModule& module_;
    Object* nextApplication_ = nullptr;
    unsigned references_ = 0;

    friend struct std::default_delete<Object>;
    friend Ref<Object> applicationObject(ComponentModule& module, const ClassEntry& entry);
};

/// The members of a widget, font or other described thing, called as a host calls those of an object.
Status invoke(Described& target, StringView name, Access how, std::span<Variant> arguments, Variant* result,
              ErrorInfo* error = nullptr) noexcept;

/// A host's way to call: by name, with failures thrown: `get(*pair, u"Default")`.
Variant get(Object& object, StringView name);
void put(Object& object, StringView name, const Variant& value);
Variant call(Object& object, StringView name, std::span<Variant> arguments = {});

} // namespace zilvo::platform
