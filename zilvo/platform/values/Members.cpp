#include "zilvo/platform/values/Members.h"

namespace zilvo::platform {

const char* nameOf(Access access) noexcept {
    switch (access) {
    case Access::Get:
        return "get";
    case Access::Put:
        return "put";
    case Access::PutReference:
        return "putref";
    case Access::Method:
        return "method";
    }
    return "";
}

void refuseAccess(const MemberDescription& member, Access how, std::size_t given) {
    if (member.accessor(how)) {
        const auto wanted = how == Access::Get ? std::size_t{0} : member.argumentCount;
        throw Failure(Status::ArgumentCount, "takes " + std::to_string(wanted) +
                                                 (wanted == 1 ? " argument, not " : " arguments, not ") +
                                                 std::to_string(given));
    }
    if (member.kind == MemberKind::Method) throw Failure(Status::UnknownMember, "is a method, not a property");
    if (how == Access::Method) throw Failure(Status::UnknownMember, "is a property, not a method");
    if (how == Access::Get) throw Failure(Status::WriteOnlyProperty, "can only be set");
    if (!member.accessor(Access::Put) && !member.accessor(Access::PutReference))
        throw Failure(Status::ReadOnlyProperty, "can only be read");
    throw Failure(Status::UnknownMember, std::string("has no ") + nameOf(how));
}

namespace {

const MemberDescription& memberOf(const Described& object, StringView name) {
    if (const auto* member = object.description().find(name)) return *member;
    throw Failure(Status::UnknownMember, toUtf8(object.description().name) + " has no member named " + toUtf8(name));
}

} // namespace

Variant getMember(Described& object, StringView name) {
    Variant result;
    access(object, memberOf(object, name), Access::Get, {}, &result);
    return result;
}

void putMember(Described& object, StringView name, const Variant& value) {
    Variant argument = value;
    access(object, memberOf(object, name), Access::Put, {&argument, 1}, nullptr);
}

} // namespace zilvo::platform
