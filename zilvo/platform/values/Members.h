#pragma once

#include "zilvo/platform/values/Conversions.h"
#include "zilvo/platform/values/Guid.h"
#include "zilvo/platform/values/Status.h"
#include "zilvo/platform/values/Text.h"

#include <array>
#include <span>
#include <tuple>
#include <utility>

namespace zilvo::platform {

/// One description per class: each member once, with its id, name, argument names and C++ accessors. Dispatch by
/// id and by name, the type library and everything generated from it read this one description.

using MemberId = Long;

struct EnumerationMember {
    StringView name;
    Long value = 0;
    StringView helpString = name;
};

struct EnumerationDescription {
    StringView name;
    Guid id;
    std::span<const EnumerationMember> members;
};

/// A declared type: a kind, or an enumeration (whose kind is Long).
struct Type {
    Kind kind = Kind::Empty;
    const EnumerationDescription* enumeration = nullptr;

    StringView name() const noexcept { return enumeration ? enumeration->name : nameOf(kind); }
};

struct ArgumentDescription {
    StringView name;
    Type type;
    bool byReference = false;
};

enum class MemberKind : std::uint8_t { Property, Method };
enum class Access : std::uint8_t { Get, Put, PutReference, Method };

const char* nameOf(Access access) noexcept;

struct ClassDescription;

/// Anything whose members can be reached by id or by name: a control, a widget, a font.
class Described {
public:
    virtual const ClassDescription& description() const noexcept = 0;

protected:
    Described() = default;
    Described(const Described&) = default;
    Described& operator=(const Described&) = default;
    ~Described() = default;
};

/// Runs one accessor: converts the arguments, calls it, and leaves its result where `result` points, unless null.
using Accessor = void (*)(Described& object, std::span<Variant> arguments, Variant* result);

struct MemberDescription {
    static constexpr std::size_t MostArguments = 4;

    MemberId id = 0;
    StringView name;
    MemberKind kind = MemberKind::Property;
    /// The property's type, or the method's result; Empty when a method gives none.
    Type type;
    /// A method's arguments, or the one argument that a property's set takes.
    std::array<ArgumentDescription, MostArguments> argument{};
    std::size_t argumentCount = 0;

    /// By Access; null for what the member does not have.
    std::array<Accessor, 4> accessors{};

    constexpr std::span<const ArgumentDescription> arguments() const noexcept {
        return {argument.data(), argumentCount};
    }
    constexpr Accessor accessor(Access access) const noexcept { return accessors[static_cast<std::size_t>(access)]; }
    constexpr Accessor& accessor(Access access) noexcept { return accessors[static_cast<std::size_t>(access)]; }
};

[[noreturn]] void refuseAccess(const MemberDescription& member, Access how, std::size_t given);

struct ClassDescription {
    StringView name;
    std::span<const MemberDescription> members;
    /// The members that this class has besides its own; null for none.
    const ClassDescription* base = nullptr;

    const MemberDescription* find(MemberId id) const noexcept {
        for (const auto* at = this; at; at = at->base)
            for (const MemberDescription& member : at->members)
                if (member.id == id) return &member;
        return nullptr;
    }
    const MemberDescription* find(StringView memberName) const noexcept {
        for (const auto* at = this; at; at = at->base)
            for (const MemberDescription& member : at->members)
                if (sameName(member.name, memberName)) return &member;
        return nullptr;
    }
};

/// Calls one accessor of a member. Fails with ArgumentCount, UnknownMember (a method asked as a property), the
/// read- or write-only statuses, the failure of an argument's conversion (earlier arguments converted, nothing
/// called), or whatever the member itself fails with. By-reference arguments are left in `arguments`.
inline void access(Described& object, const MemberDescription& member, Access how, std::span<Variant> arguments,
                   Variant* result) {
    const Accessor accessor = member.accessor(how);
    const std::size_t wanted = how == Access::Get ? 0 : member.argumentCount;
    if (!accessor || arguments.size() != wanted) refuseAccess(member, how, arguments.size());
    accessor(object, arguments, result);
}

/// The same by name, for widgets and fonts: fails with UnknownMember when there is no such member.
Variant getMember(Described& object, StringView name);
void putMember(Described& object, StringView name, const Variant& value);

namespace detail {

template <class T>
constexpr Type typeOf() noexcept {
    if constexpr (std::is_void_v<T>)
        return {};
    else if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, Boolean>)
        return {Kind::Boolean};
    else if constexpr (std::is_same_v<T, Integer>)
        return {Kind::Integer};
    else if constexpr (std::is_same_v<T, Long>)
        return {Kind::Long};
    else if constexpr (std::is_same_v<T, Single>)
        return {Kind::Single};
    else if constexpr (std::is_same_v<T, String> || std::is_same_v<T, StringView>)
        return {Kind::String};
    else if constexpr (std::is_same_v<T, Colour>)
        return {Kind::Colour};
    else if constexpr (std::is_same_v<T, FontRef>)
        return {Kind::Font};
    else if constexpr (std::is_same_v<T, BooleanArray>)
        return {Kind::BooleanArray};
    else // each public enumeration is described beside its declaration
        return {Kind::Long, &descriptionOf(T{})};
}

/// An argument on its way into a member: passed by value (or const reference).
template <class T>
class Argument {
    using Plain = std::remove_cvref_t<T>;
    using Held = std::conditional_t<std::is_same_v<Plain, StringView>, String, Plain>;

public:
    explicit Argument(Variant& value) : value_(convert<Held>(value)) {}
    const Held& pass() noexcept { return value_; }

private:
    Held value_;
};

/// An argument passed by reference: the very variable when the caller passed a reference to one of this kind,
/// else a converted copy, whose final value goes back to the caller when the member changed it.
template <class T>
requires(!std::is_const_v<T>) class Argument<T&> {
public:
    explicit Argument(Variant& source)
        : source_(source),
          variable_(source.findVariable<T>()),
          given_(variable_ ? T{} : convert<T>(source)),
          copy_(given_) {}
    T& pass() noexcept { return variable_ ? *variable_ : copy_; }
    void giveBack() {
        if (copy_ != given_) source_.assign(toVariant(copy_));
    }

private:
    Variant& source_;
    T* variable_;
    T given_;
    T copy_;
};

template <>
class Argument<BooleanArray&> {
public:
    explicit Argument(Variant& source) : array_(source.findArray()) {
        if (!array_) (void)toBooleanArray(source); // fails
    }
    BooleanArray& pass() noexcept { return *array_; }

private:
    BooleanArray* array_;
};

/// What a pointer to a member function says of the function.
template <class>
struct Signature;
template <class C, class R, class... A>
struct Signature<R (C::*)(A...)> {
    using Class = C;
    using Result = R;
    using Arguments = std::tuple<Argument<A>...>;
    static constexpr std::size_t count = sizeof...(A);
    template <std::size_t... I>
    static constexpr void describe(MemberDescription& member, const StringView* names, std::index_sequence<I...>) {
        ((member.argument[I] = {names[I], typeOf<std::remove_cvref_t<A>>(),
                                std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>>}),
         ...);
        member.argumentCount = count;
    }
};
template <class C, class R, class... A>
struct Signature<R (C::*)(A...) const> : Signature<R (C::*)(A...)> {};
template <class C, class R, class... A>
struct Signature<R (C::*)(A...) noexcept> : Signature<R (C::*)(A...)> {};
template <class C, class R, class... A>
struct Signature<R (C::*)(A...) const noexcept> : Signature<R (C::*)(A...)> {};

/// The accessor that calls `Function`; `access` has checked the number of arguments.
template <auto Function>
struct Call {
    using Of = Signature<decltype(Function)>;

    static void run(Described& object, std::span<Variant> arguments, Variant* result) {
        run(static_cast<typename Of::Class&>(object), arguments, result, std::make_index_sequence<Of::count>());
    }

private:
    template <std::size_t... I>
    static void run(typename Of::Class& object, [[maybe_unused]] std::span<Variant> arguments,
                    [[maybe_unused]] Variant* result, std::index_sequence<I...>) {
        // Braces: the arguments convert from left to right.
        [[maybe_unused]]
        typename Of::Arguments converted{std::tuple_element_t<I, typename Of::Arguments>(arguments[I])...};
        if constexpr (std::is_void_v<typename Of::Result>)
            (object.*Function)(std::get<I>(converted).pass()...);
        else if (auto given = toVariant((object.*Function)(std::get<I>(converted).pass()...)); result)
            *result = std::move(given);
        (giveBack(std::get<I>(converted)), ...);
    }
    template <class A>
    static void giveBack(A& argument) {
        if constexpr (requires { argument.giveBack(); }) argument.giveBack();
    }
};

template <auto Get>
constexpr MemberDescription property(MemberId id, StringView name) {
    MemberDescription member;
    member.id = id;
    member.name = name;
    member.type = typeOf<std::remove_cvref_t<typename Signature<decltype(Get)>::Result>>();
    member.accessor(Access::Get) = &Call<Get>::run;
    return member;
}

} // namespace detail

/// A property that can only be read.
template <auto Get>
constexpr MemberDescription property(MemberId id, StringView name) {
    return detail::property<Get>(id, name);
}

/// A property; `argument` is the published name of the argument of its set.
template <auto Get, auto Put>
constexpr MemberDescription property(MemberId id, StringView name, StringView argument) {
    auto member = detail::property<Get>(id, name);
    detail::Signature<decltype(Put)>::describe(member, &argument, std::index_sequence<0>());
    member.accessor(Access::Put) = &detail::Call<Put>::run;
    return member;
}

/// A property that takes over the object that it is set to.
template <auto Get, auto PutReference>
constexpr MemberDescription propertyByReference(MemberId id, StringView name, StringView argument) {
    auto member = property<Get, PutReference>(id, name, argument);
    std::swap(member.accessor(Access::Put), member.accessor(Access::PutReference));
    return member;
}

template <auto Function, class... Names>
constexpr MemberDescription method(MemberId id, StringView name, const Names&... argumentNames) {
    using Of = detail::Signature<decltype(Function)>;
    static_assert(sizeof...(Names) == Of::count, "a name for each argument");
    MemberDescription member;
    member.id = id;
    member.name = name;
    member.kind = MemberKind::Method;
    member.type = detail::typeOf<std::remove_cvref_t<typename Of::Result>>();
    const std::array<StringView, sizeof...(Names) + 1> names{StringView(argumentNames)...};
    Of::describe(member, names.data(), std::make_index_sequence<Of::count>());
    member.accessor(Access::Method) = &detail::Call<Function>::run;
    return member;
}

/// Whether ids and names are unique, as a published interface needs them; for static_assert.
constexpr bool idsAndNamesAreUnique(std::span<const MemberDescription> members) noexcept {
    for (std::size_t i = 0; i < members.size(); ++i)
        for (std::size_t j = i + 1; j < members.size(); ++j)
            if (members[i].id == members[j].id || members[i].name == members[j].name) return false;
    return true;
}

} // namespace zilvo::platform
