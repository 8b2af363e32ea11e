#include "hosts/console/Idl.h"

#include "hosts/console/Describe.h"

#include <bit>
#include <sstream>

namespace zilvo::console {

using namespace platform;

namespace {

/// What one of the compilers does not take is left out for it, here alone.
constexpr const char* Prelude = R"(import "oaidl.idl";
import "ocidl.idl";

#ifdef __WIDL__
#define HELP(text)
#define EVENTS_ARE(attribute)
#else
#define HELP(text) [helpstring(text)]
#define EVENTS_ARE(attribute) , attribute
#endif

)";

std::string typeName(const Type& type) {
    if (type.enumeration) return toUtf8(type.enumeration->name);
    switch (type.kind) {
    case Kind::Boolean:
        return "VARIANT_BOOL";
    case Kind::Integer:
        return "short";
    case Kind::Long:
        return "long";
    case Kind::Single:
        return "float";
    case Kind::String:
        return "BSTR";
    case Kind::Colour:
        return "OLE_COLOR";
    case Kind::Font:
        return "IFontDisp*";
    case Kind::BooleanArray:
        return "SAFEARRAY(VARIANT_BOOL)";
    case Kind::Empty:
    case Kind::Missing:
        break;
    }
    return "void";
}

std::string quoted(StringView text) {
    std::string literal = "\"";
    for (const char character : toUtf8(text)) {
        if (character == '"' || character == '\\') literal += '\\';
        literal += character;
    }
    return literal + '"';
}

std::string uuid(const Guid& id) {
    const std::string braced = id.text();
    return "uuid(" + braced.substr(1, braced.size() - 2) + ")";
}

std::string parameter(const ArgumentDescription& argument, bool byReference) {
    return (byReference ? "[in, out] " : "[in] ") + typeName(argument.type) + (byReference ? "* " : " ") +
           toUtf8(argument.name);
}

std::string parameters(std::span<const ArgumentDescription> arguments, bool allByReference) {
    std::string list;
    for (const ArgumentDescription& argument : arguments)
        list += (list.empty() ? "" : ", ") + parameter(argument, allByReference || argument.byReference);
    return list;
}

std::string resultParameter(const Type& type) {
    return "[out, retval] " + typeName(type) + "* result";
}

/// One line for each way to reach the member; a property's all have its id.
std::string memberLines(const MemberDescription& member) {
    std::string lines;
    const auto line = [&](const char* attribute, const std::string& list) {
        lines += "        [id(" + hexadecimal(std::bit_cast<std::uint32_t>(member.id)) + ")" + attribute +
                 "] HRESULT " + toUtf8(member.name) + "(" + list + ");\n";
    };
    if (member.accessor(Access::Get)) line(", propget", resultParameter(member.type));
    if (member.accessor(Access::Put)) line(", propput", parameters(member.arguments(), false));
    if (member.accessor(Access::PutReference)) line(", propputref", parameters(member.arguments(), false));
    if (member.accessor(Access::Method)) {
        std::string list = parameters(member.arguments(), false);
        if (member.type.kind != Kind::Empty) list += (list.empty() ? "" : ", ") + resultParameter(member.type);
        line("", list);
    }
    return lines;
}

struct Attribute {
    std::uint16_t flag;
    const char* text;
};

/// The attributes that the flags stand for, each behind a comma.
std::string attributesOf(std::uint16_t flags) {
    constexpr std::array attributes = {
        Attribute{typeflags::Control, "control"},
        Attribute{typeflags::ApplicationObject, "appobject"},
        Attribute{typeflags::Hidden, "hidden"},
        Attribute{typeflags::Dual, "dual"},
        Attribute{typeflags::NonExtensible, "nonextensible"},
        Attribute{typeflags::OleAutomation, "oleautomation"},
    };
    std::string list;
    for (const Attribute& attribute : attributes)
        if ((flags & attribute.flag) != 0) list += std::string(", ") + attribute.text;
    return list;
}

void writeEnumeration(std::ostream& out, const EnumerationDescription& enumeration) {
    out << "\n    typedef [" << uuid(enumeration.id) << "] enum\n    {\n";
    for (const EnumerationMember& member : enumeration.members)
        out << "        HELP(" << quoted(member.helpString) << ") " << toUtf8(member.name) << " = " << member.value
            << (&member == &enumeration.members.back() ? "\n" : ",\n");
    out << "    } " << toUtf8(enumeration.name) << ";\n";
}

void writeClass(std::ostream& out, const ClassEntry& entry) {
    const ClassIdentity& identity = entry.identity;
    const std::string interfaceName = toUtf8(interfaceNameOf(identity));
    out << "\n    [odl, " << uuid(identity.interfaceId) << attributesOf(identity.interfaceFlags) << "]\n"
        << "    interface " << interfaceName << " : IDispatch\n    {\n";
    for (const MemberDescription& member : entry.description.members)
        out << memberLines(member);
    out << "    };\n";

    const std::string eventInterfaceName = toUtf8(eventInterfaceNameOf(identity));
    if (identity.eventInterfaceId) {
        const bool isExtensible = (identity.eventInterfaceFlags & typeflags::NonExtensible) == 0;
        const auto others = identity.eventInterfaceFlags & ~unsigned{typeflags::NonExtensible};
        out << "\n    [" << uuid(*identity.eventInterfaceId) << attributesOf(static_cast<std::uint16_t>(others))
            << (isExtensible ? "" : " EVENTS_ARE(nonextensible)") << "]\n"
            << "    dispinterface " << eventInterfaceName << "\n    {\n        properties:\n        methods:\n";
        for (const EventDescription& event : entry.description.events)
            out << "            [id(" << event.number << ")] void " << toUtf8(event.name) << "("
                << parameters(event.arguments(), true) << ");\n";
        out << "    };\n";
    }

    out << "\n    [" << uuid(identity.classId) << attributesOf(identity.flags) << "]\n    coclass "
        << toUtf8(identity.name) << "\n    {\n        [default] interface " << interfaceName << ";\n";
    if (identity.eventInterfaceId) out << "        [default, source] dispinterface " << eventInterfaceName << ";\n";
    out << "    };\n";
}

} // namespace

std::string interfaceDefinition(const ComponentDescription& component, const ClassEntry* only) {
    const LibraryIdentity& library = component.library;
    std::ostringstream out;
    out << Prelude << '[' << uuid(library.id) << ", version(" << versionOf(library) << "), lcid(" << library.locale
        << ")" << ((library.flags & libraryflags::Control) != 0 ? ", control" : "") << ",\n helpstring("
        << quoted(library.helpString) << ")]\n"
        << "library " << toUtf8(library.name) << "\n{\n    importlib(\"stdole2.tlb\");\n";
    for (const EnumerationDescription* enumeration : enumerationsOf(component, only))
        writeEnumeration(out, *enumeration);
    for (const ClassEntry* entry : classesOf(component, only))
        writeClass(out, *entry);
    out << "};\n";
    return out.str();
}

} // namespace zilvo::console
