#include "hosts/console/validate/Driver.h"

#include <algorithm>

/// Properties and methods.

namespace zilvo::console {

using namespace platform;

namespace {

void forEachMember(Check& check, Object& object, const std::function<void(const MemberDescription&)>& body) {
    for (const MemberDescription& member : object.description().members) {
        check.step(nameOf(object, member));
        body(member);
    }
}

void getAndPutBack(Check& check, Object& object, const MemberDescription& member) {
    const Answer byId = invoke(object, member.id, Access::Get, {});
    if (!expectOk(check, byId)) return;
    check.expect(byId.result.kind() == member.type.kind,
                 "gives " + describe(byId.result) + ", not a value of type " + toUtf8(member.type.name()));
    for (const String& name : {String(member.name), lowerCase(member.name)}) {
        const Answer byName = invoke(object, StringView(name), Access::Get, {});
        if (expectOk(check, byName))
            check.expect(equalByValue(byId.result, byName.result) && byId.result.kind() == byName.result.kind(),
                         "gives " + describe(byId.result) + " by id and " + describe(byName.result) + " by the name " +
                             toUtf8(name));
    }
    const auto setting = accessToSet(member);
    if (!setting) return;
    Variant got = byId.result;
    check.step(nameOf(object, member) + ", put back " + describe(got));
    expectClean(check, invoke(object, member.id, *setting, {&got, 1}));
}

} // namespace

void checks::properties(Check& check, LoadedComponent& component) {
    forEachLiveObject(check, component, [&](Object& object) {
        forEachMember(check, object, [&](const MemberDescription& member) {
            if (member.kind != MemberKind::Property) return;
            if (member.accessor(Access::Get)) return getAndPutBack(check, object, member);
            expectStatus(check, invoke(object, member.id, Access::Get, {}), Status::WriteOnlyProperty);
        });
    });
}

namespace {

/// A late-bound host's variable, for an argument by reference.
struct Variable {
    Boolean truth = Boolean::False;
    Integer integer = 0;
    Long number = 0;
    Single fraction = 0;
    String text;
    FontRef font = StdFont::make({});
    BooleanArray array;

    Variant reference(Kind kind) {
        switch (kind) {
        case Kind::Boolean:
            return Variant::to(truth);
        case Kind::Integer:
            return Variant::to(integer);
        case Kind::Long:
            return Variant::to(number);
        case Kind::Single:
            return Variant::to(fraction);
        case Kind::String:
            return Variant::to(text);
        case Kind::Font:
            return Variant::to(font);
        case Kind::BooleanArray:
            return Variant::to(array);
        default:
            return Colour(); // there are no references to colours
        }
    }
};

void callMethod(Check& check, Object& object, const MemberDescription& member, Values arguments) {
    std::string what = nameOf(object, member) + ", method";
    for (const Variant& argument : arguments)
        what += (argument.isReference() ? " reference to " : " ") + describe(argument);
    check.step(what);
    const Answer answer = invoke(object, member.id, Access::Method, arguments);
    expectClean(check, answer);
    if (!succeeded(answer.status)) return;
    check.expect(answer.result.kind() == member.type.kind,
                 "gives " + describe(answer.result) + ", not a value of type " + toUtf8(member.type.name()));
    for (std::size_t i = 0; i < arguments.size(); ++i)
        check.expect(arguments[i].kind() == member.arguments()[i].type.kind,
                     "leaves " + describe(arguments[i]) + " in the argument " + toUtf8(member.arguments()[i].name));
}

} // namespace

void checks::methods(Check& check, LoadedComponent& component) {
    forEachLiveObject(check, component, [&](Object& object) {
        forEachMember(check, object, [&](const MemberDescription& member) {
            if (member.kind != MemberKind::Method) return;
            callMethod(check, object, member, plainArguments(member));
            std::array<Variable, MemberDescription::MostArguments> variables;
            Values references;
            for (std::size_t i = 0; i < member.argumentCount; ++i)
                references.push_back(variables[i].reference(member.arguments()[i].type.kind));
            callMethod(check, object, member, references);
        });
    });
}

namespace {

void callUnknown(Check& check, Object& object) {
    const auto members = object.description().members;
    MemberId unknown = 0x7E57;
    const auto isIt = [&](const MemberDescription& each) { return each.id == unknown; };
    while (std::any_of(members.begin(), members.end(), isIt))
        ++unknown;
    constexpr StringView noName = u"NoSuchMember";
    for (const Access how : {Access::Get, Access::Put, Access::PutReference, Access::Method}) {
        check.step(toUtf8(object.description().name) + ", " + nameOf(how) + " of an unknown member");
        expectStatus(check, invoke(object, unknown, how, {}), Status::UnknownMember);
        expectStatus(check, invoke(object, noName, how, {}), Status::UnknownMember);
        expectStatus(check, invoke(object, StringView(), how, {}), Status::UnknownMember);
    }
}

void callWrongly(Check& check, Object& object, const MemberDescription& member, Access how, Values right) {
    const auto what = nameOf(object, member) + ", " + nameOf(how);
    const auto count = right.size();
    right.resize(count + 1);
    check.step(what + " with " + std::to_string(count + 1) + " arguments");
    expectStatus(check, invoke(object, member.id, how, right), Status::ArgumentCount);
    right.pop_back();
    if (count > 0) {
        check.step(what + " with " + std::to_string(count - 1) + " arguments");
        expectStatus(check, invoke(object, member.id, how, Arguments(right).first(count - 1)), Status::ArgumentCount);
    }
    for (std::size_t i = 0; i < count; ++i) {
        Values arguments = right;
        arguments[i] = unconvertible(member.arguments()[i].type.kind);
        check.step(what + " with " + describe(arguments[i]));
        expectStatus(check, invoke(object, member.id, how, arguments), Status::TypeMismatch);
    }
}

} // namespace

void checks::wrongCalls(Check& check, LoadedComponent& component) {
    forEachLiveObject(check, component, [&](Object& object) {
        callUnknown(check, object);
        forEachMember(check, object, [&](const MemberDescription& member) {
            if (member.accessor(Access::Get)) callWrongly(check, object, member, Access::Get, {});
            for (const Access how : {Access::Put, Access::PutReference, Access::Method})
                if (member.accessor(how)) callWrongly(check, object, member, how, plainArguments(member));
            if (member.kind != MemberKind::Property || accessToSet(member)) return;
            check.step(nameOf(object, member) + ", put");
            Variant value = usualValues(member.type).front();
            expectStatus(check, invoke(object, member.id, Access::Put, {&value, 1}), Status::ReadOnlyProperty);
        });
    });
}

void checks::extremeArguments(Check& check, LoadedComponent& component) {
    forEachLiveObject(check, component, [&](Object& object) {
        forEachMember(check, object, [&](const MemberDescription& member) {
            const auto how = member.kind == MemberKind::Method ? Access::Method : accessToSet(member);
            if (!how) return;
            for (std::size_t i = 0; i < member.argumentCount; ++i)
                for (const Variant& extreme : extremeValues(member.arguments()[i].type)) {
                    Values arguments = plainArguments(member);
                    arguments[i] = extreme;
                    const auto what = nameOf(object, member) + ", " + nameOf(*how) + " " +
                                      toUtf8(member.arguments()[i].name) + " = " + describe(extreme);
                    check.step(what);
                    expectClean(check, invoke(object, member.id, *how, arguments));
                    expectToLive(check, object, what);
                }
        });
    });
}

void checks::membersWithoutSite(Check& check, LoadedComponent& component) {
    forEachControl(check, component, [&](const ClassEntry& entry) {
        const Ref<Object> object = createInstance(component, entry);
        const auto useMembers = [&](const std::string& when) {
            carryOut(check, memberDeeds(*object), when);
            expectToLive(check, *object, when);
        };
        useMembers(nameOf(entry) + " without a site");
        { ControlHost(object).open(); }
        useMembers(nameOf(entry) + " after Close");
    });
}

} // namespace zilvo::console
