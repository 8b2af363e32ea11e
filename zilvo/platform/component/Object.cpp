#include "zilvo/platform/component/Object.h"

namespace zilvo::platform {

namespace {

std::string shown(StringView name) {
    return toUtf8(name);
}

std::string shown(MemberId id) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "member 0x";
    for (unsigned shift = 32; shift > 0; shift -= 4)
        text.push_back(digits[(static_cast<std::uint32_t>(id) >> (shift - 4)) & 0xFU]);
    return text;
}

template <class Which>
[[gnu::cold, gnu::noinline]] Status unknownMember(const ClassDescription& description, const Which& which,
                                                  ErrorInfo* error) noexcept {
    return atTheEdge(
        error, [&] { return toUtf8(description.name); },
        [&] { throw Failure(Status::UnknownMember, "there is no " + shown(which)); });
}

} // namespace

void Object::destroy() noexcept {
    // Whoever is called while the object goes down may hold it for a moment; that must not destroy it again.
    references_ = 1U << 30U;
    std::default_delete<Object>()(this);
}

template <class Which>
inline Status Object::invoke(const MemberDescription* member, const Which& which, Access how,
                             std::span<Variant> arguments, Variant* result, ErrorInfo* error) noexcept {
    if (!member) return unknownMember(description(), which, error);
    const Ref<Object> alive(*this);
    return atTheEdge(
        error, [&] { return toUtf8(description().name) + "." + toUtf8(member->name); },
        [&] { access(*this, *member, how, arguments, result); });
}

Status Object::Invoke(MemberId id, Access how, std::span<Variant> arguments, Variant* result,
                      ErrorInfo* error) noexcept {
    return invoke(description().find(id), id, how, arguments, result, error);
}

Status Object::Invoke(StringView name, Access how, std::span<Variant> arguments, Variant* result,
                      ErrorInfo* error) noexcept {
    return invoke(description().find(name), name, how, arguments, result, error);
}

Status Object::Connect(Long eventNumber, EventSink& sink, Connection& connection, ErrorInfo* error) noexcept {
    return atTheEdge(
        error, [&] { return toUtf8(description().name); },
        [&] {
            for (const EventDescription& event : description().events)
                if (event.number == eventNumber) {
                    connection = event.connect(*this, sink);
                    return;
                }
            throw Failure(Status::UnknownMember, "there is no event " + std::to_string(eventNumber));
        });
}

Status invoke(Described& target, StringView name, Access how, std::span<Variant> arguments, Variant* result,
              ErrorInfo* error) noexcept {
    const auto* member = target.description().find(name);
    if (!member) return unknownMember(target.description(), name, error);
    const StringView className = target.description().name; // the target may be gone when the call has failed
    return atTheEdge(
        error, [&] { return toUtf8(className) + "." + toUtf8(member->name); },
        [&] { access(target, *member, how, arguments, result); });
}

namespace {

Variant invokeOrThrow(Object& object, StringView name, Access how, std::span<Variant> arguments) {
    Variant result;
    ErrorInfo error;
    throwUnlessOk(object.Invoke(name, how, arguments, &result, &error), error);
    return result;
}

} // namespace

Variant get(Object& object, StringView name) {
    return invokeOrThrow(object, name, Access::Get, {});
}

void put(Object& object, StringView name, const Variant& value) {
    const auto* member = object.description().find(name);
    Variant argument = value;
    invokeOrThrow(object, name, member && member->accessor(Access::PutReference) ? Access::PutReference : Access::Put,
                  {&argument, 1});
}

Variant call(Object& object, StringView name, std::span<Variant> arguments) {
    return invokeOrThrow(object, name, Access::Method, arguments);
}

} // namespace zilvo::platform
