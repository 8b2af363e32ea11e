#include "hosts/console/Describe.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <sstream>

namespace zilvo::console {

using namespace platform;

namespace {

constexpr std::array propertyAccesses = {Access::Get, Access::Put, Access::PutReference};

Json argumentsOf(std::span<const ArgumentDescription> arguments, bool allByReference) {
    Json list = Json::array();
    for (const ArgumentDescription& argument : arguments)
        list.push_back({{"name", toUtf8(argument.name)},
                        {"type", toUtf8(argument.type.name())},
                        {"byRef", allByReference || argument.byReference}});
    return list;
}

Json accessOf(const MemberDescription& member) {
    if (member.kind == MemberKind::Method) return nullptr;
    Json list = Json::array();
    for (const Access access : propertyAccesses)
        if (member.accessor(access)) list.push_back(nameOf(access));
    return list;
}

/// What an interface is, in the words that hosts ask for.
void addFlags(Json& interface, std::uint16_t flags) {
    interface["hidden"] = (flags & typeflags::Hidden) != 0;
    interface["extensible"] = (flags & typeflags::NonExtensible) == 0;
    interface["dispatchOnly"] = (flags & typeflags::Dispatchable) != 0 && (flags & typeflags::Dual) == 0;
}

Json memberJson(const MemberDescription& member) {
    return {{"id", member.id},
            {"name", toUtf8(member.name)},
            {"kind", member.kind == MemberKind::Method ? "method" : "property"},
            {"access", accessOf(member)},
            {"type", member.type.kind == Kind::Empty ? Json() : Json(toUtf8(member.type.name()))},
            {"arguments", argumentsOf(member.arguments(), false)}};
}

Json eventJson(const EventDescription& event) {
    return {{"id", event.number}, {"name", toUtf8(event.name)}, {"arguments", argumentsOf(event.arguments(), true)}};
}

Json classJson(const ComponentDescription& component, const ClassEntry& entry) {
    const ClassIdentity& identity = entry.identity;
    Json members = Json::array();
    for (const MemberDescription& member : entry.description.members)
        members.push_back(memberJson(member));
    Json events;
    if (identity.eventInterfaceId) {
        Json list = Json::array();
        for (const EventDescription& event : entry.description.events)
            list.push_back(eventJson(event));
        events = {{"name", toUtf8(eventInterfaceNameOf(identity))},
                  {"id", identity.eventInterfaceId->text()},
                  {"members", list}};
        addFlags(events, identity.eventInterfaceFlags);
    }
    Json interface = {
        {"name", toUtf8(interfaceNameOf(identity))}, {"id", identity.interfaceId.text()}, {"members", members}};
    addFlags(interface, identity.interfaceFlags);
    return {
        {"name", toUtf8(identity.name)},
        {"classId", identity.classId.text()},
        {"progId", toUtf8(progIdOf(component.library, identity))},
        {"bitmap", identity.toolboxBitmap ? Json(*identity.toolboxBitmap) : Json()},
        {"miscStatus", identity.miscStatus ? Json(*identity.miscStatus) : Json()},
        {"control", identity.isControl()},
        {"applicationObject", identity.isApplicationObject()},
        {"interface", interface},
        {"events", events},
    };
}

Json enumerationJson(const EnumerationDescription& enumeration) {
    Json members = Json::array();
    for (const EnumerationMember& member : enumeration.members)
        members.push_back(
            {{"name", toUtf8(member.name)}, {"value", member.value}, {"helpString", toUtf8(member.helpString)}});
    return {{"name", toUtf8(enumeration.name)}, {"id", enumeration.id.text()}, {"members", members}};
}

bool uses(const ClassEntry& entry, const EnumerationDescription& enumeration) {
    const auto carries = [&](const ArgumentDescription& argument) { return argument.type.enumeration == &enumeration; };
    const auto anyCarries = [&](std::span<const ArgumentDescription> arguments) {
        return std::any_of(arguments.begin(), arguments.end(), carries);
    };
    for (const MemberDescription& member : entry.description.members)
        if (member.type.enumeration == &enumeration || anyCarries(member.arguments())) return true;
    for (const EventDescription& event : entry.description.events)
        if (anyCarries(event.arguments())) return true;
    return false;
}

std::string signature(std::span<const ArgumentDescription> arguments, bool allByReference) {
    std::string text = "(";
    for (const ArgumentDescription& argument : arguments) {
        if (text.size() > 1) text += ", ";
        if (allByReference || argument.byReference) text += "ByRef ";
        text += toUtf8(argument.name) + " As " + toUtf8(argument.type.name());
    }
    return text + ")";
}

std::string memberText(const MemberDescription& member) {
    const auto name = toUtf8(member.name);
    const auto type = member.type.kind == Kind::Empty ? std::string() : " As " + toUtf8(member.type.name());
    if (member.kind == MemberKind::Method) return "method " + name + signature(member.arguments(), false) + type;
    std::string accesses;
    for (const Access access : propertyAccesses)
        if (member.accessor(access)) accesses += (accesses.empty() ? "" : ", ") + std::string(nameOf(access));
    return "property " + name + type + " (" + accesses + ")";
}

void writeClass(std::ostream& out, const ComponentDescription& component, const ClassEntry& entry) {
    const ClassIdentity& identity = entry.identity;
    out << "\nclass " << toUtf8(identity.name) << ' ' << identity.classId.text() << '\n';
    out << "  ProgID " << toUtf8(progIdOf(component.library, identity)) << '\n';
    if (identity.isApplicationObject()) out << "  application object\n";
    if (identity.toolboxBitmap) out << "  toolbox bitmap " << *identity.toolboxBitmap << '\n';
    if (identity.miscStatus) out << "  misc status " << hexadecimal(*identity.miscStatus) << '\n';
    out << "  interface " << toUtf8(interfaceNameOf(identity)) << ' ' << identity.interfaceId.text() << '\n';
    for (const MemberDescription& member : entry.description.members)
        out << "    " << hexadecimal(std::bit_cast<std::uint32_t>(member.id)) << ' ' << memberText(member) << '\n';
    if (!identity.eventInterfaceId) return;
    out << "  events " << toUtf8(eventInterfaceNameOf(identity)) << ' ' << identity.eventInterfaceId->text() << '\n';
    for (const EventDescription& event : entry.description.events)
        out << "    " << event.number << ' ' << toUtf8(event.name) << signature(event.arguments(), true) << '\n';
}

} // namespace

std::vector<const EnumerationDescription*> enumerationsOf(const ComponentDescription& component,
                                                          const ClassEntry* only) {
    std::vector<const EnumerationDescription*> chosen;
    for (const EnumerationDescription* enumeration : component.enumerations)
        if (!only || uses(*only, *enumeration)) chosen.push_back(enumeration);
    return chosen;
}

std::vector<const ClassEntry*> classesOf(const ComponentDescription& component, const ClassEntry* only) {
    if (only) return {only};
    std::vector<const ClassEntry*> all;
    for (const ClassEntry& entry : component.classes)
        all.push_back(&entry);
    return all;
}

Json description(const ComponentDescription& component, const ClassEntry* only) {
    const LibraryIdentity& library = component.library;
    Json enumerations = Json::array();
    for (const EnumerationDescription* enumeration : enumerationsOf(component, only))
        enumerations.push_back(enumerationJson(*enumeration));
    Json classes = Json::array();
    for (const ClassEntry* entry : classesOf(component, only))
        classes.push_back(classJson(component, *entry));
    return {{"library",
             {{"name", toUtf8(library.name)},
              {"id", library.id.text()},
              {"version", versionOf(library)},
              {"locale", library.locale},
              {"control", (library.flags & libraryflags::Control) != 0},
              {"helpString", toUtf8(library.helpString)}}},
            {"enumerations", enumerations},
            {"classes", classes}};
}

std::string descriptionText(const ComponentDescription& component, const ClassEntry* only) {
    const LibraryIdentity& library = component.library;
    std::ostringstream out;
    out << "library " << toUtf8(library.name) << ' ' << versionOf(library) << ' ' << library.id.text() << ", locale "
        << library.locale << "\n  " << toUtf8(library.helpString) << '\n';
    for (const EnumerationDescription* enumeration : enumerationsOf(component, only)) {
        out << "\nenumeration " << toUtf8(enumeration->name) << ' ' << enumeration->id.text() << '\n';
        for (const EnumerationMember& member : enumeration->members)
            out << "  " << toUtf8(member.name) << " = " << member.value << '\n';
    }
    for (const ClassEntry* entry : classesOf(component, only))
        writeClass(out, component, *entry);
    return out.str();
}

std::string classTable(const ComponentDescription& component) {
    std::size_t widest = 0;
    for (const ClassEntry& entry : component.classes)
        widest = std::max(widest, entry.identity.name.size());
    const auto padded = [](std::string text, std::size_t width) {
        text.resize(std::max(text.size(), width), ' ');
        return text;
    };
    std::string lines;
    for (const ClassEntry& entry : component.classes) {
        const auto progId = toUtf8(progIdOf(component.library, entry.identity));
        lines += padded(toUtf8(entry.identity.name), widest) + "  " +
                 padded(progId, component.library.name.size() + 1 + widest) + "  " + entry.identity.classId.text() +
                 "\n";
    }
    return lines;
}

const ClassEntry& findClass(const ComponentDescription& component, const std::string& name) {
    if (const ClassEntry* entry = component.find(toUtf16(name))) return *entry;
    throw Failure(Status::ClassNotAvailable, toUtf8(component.library.name) + " has no class " + name);
}

std::string hexadecimal(std::uint32_t number) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "0x";
    for (unsigned shift = 32; shift > 0; shift -= 4)
        text.push_back(digits[(number >> (shift - 4)) & 0xFU]);
    return text;
}

std::string decimal(Single number) {
    std::array<char, 32> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

} // namespace zilvo::console
