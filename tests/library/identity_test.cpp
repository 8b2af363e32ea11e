#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ComponentRuntime.h"

#include <bit>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace zilvo {

namespace {

std::string hexadecimal(std::uint32_t number) {
    std::ostringstream out;
    out << std::showbase << std::hex << number;
    return out.str();
}

std::string flagsOf(std::uint16_t flags) {
    return " flags " + hexadecimal(flags);
}

std::string typeOf(const Type& type) {
    return type.kind == Kind::Empty ? "-" : toUtf8(type.name());
}

std::string accessesOf(const MemberDescription& member) {
    if (member.kind == MemberKind::Method) return " method";
    std::string text;
    for (const Access how : {Access::Get, Access::Put, Access::PutReference})
        if (member.accessor(how)) text += std::string(" ") + nameOf(how);
    return text;
}

std::string argumentsOf(std::span<const ArgumentDescription> arguments) {
    std::string text;
    for (const ArgumentDescription& argument : arguments)
        text += std::string(text.empty() ? " " : ", ") + (argument.byReference ? "byref " : "") +
                toUtf8(argument.name) + " " + typeOf(argument.type);
    return text;
}

/// What the component publishes, as lines of identity.txt with single blanks.
std::vector<std::string> published(const ComponentDescription& component) {
    const LibraryIdentity& library = component.library;
    std::vector<std::string> lines = {"library " + toUtf8(library.name) + " " + library.id.text() + " version " +
                                          versionOf(library) + " locale " + std::to_string(library.locale) +
                                          flagsOf(library.flags),
                                      toUtf8(library.helpString)};
    for (const EnumerationDescription* enumeration : component.enumerations) {
        lines.push_back("enumeration " + toUtf8(enumeration->name) + " " + enumeration->id.text());
        for (const EnumerationMember& member : enumeration->members)
            lines.push_back(std::to_string(member.value) + " " +
                            toUtf8(member.helpString == member.name ? member.name : u"another help string"));
    }
    for (const ClassEntry& entry : component.classes) {
        const ClassIdentity& identity = entry.identity;
        lines.push_back("class " + toUtf8(identity.name) + " " + identity.classId.text());
        if (identity.toolboxBitmap) lines.back() += " bitmap " + std::to_string(*identity.toolboxBitmap);
        if (identity.miscStatus) lines.back() += " misc " + hexadecimal(*identity.miscStatus);
        lines.back() += flagsOf(identity.flags);
        lines.push_back("interface " + toUtf8(interfaceNameOf(identity)) + " " + identity.interfaceId.text() +
                        flagsOf(identity.interfaceFlags));
        for (const MemberDescription& member : entry.description.members)
            lines.push_back(hexadecimal(std::bit_cast<std::uint32_t>(member.id)) + accessesOf(member) + " " +
                            toUtf8(member.name) + " " + typeOf(member.type) + argumentsOf(member.arguments()));
        if (identity.eventInterfaceId)
            lines.push_back("events " + toUtf8(eventInterfaceNameOf(identity)) + " " +
                            identity.eventInterfaceId->text() + flagsOf(identity.eventInterfaceFlags));
        for (const EventDescription& event : entry.description.events)
            lines.push_back(std::to_string(event.number) + " " + toUtf8(event.name) + argumentsOf(event.arguments()));
    }
    return lines;
}

/// The line without its indentation and the padding of its columns.
std::string singleBlanks(const std::string& line) {
    std::istringstream in(line);
    std::string text;
    for (std::string word; in >> word;)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

} // namespace

TEST(Identity, IsWhatHostsWereCompiledAgainst) {
    const LoadedComponent component(COMPONENT_FILE);
    const std::vector<std::string> lines = published(component.description());
    auto next = lines.begin();
    std::ifstream table(SOURCE_FOLDER "/tests/library/identity.txt");
    std::string line;
    for (int number = 1; std::getline(table, line); ++number) {
        const std::string expected = singleBlanks(line);
        if (expected.empty() || expected.front() == '#') continue;
        const std::string got = next == lines.end() ? "nothing more" : *next++;
        ASSERT_EQ(expected, got) << "identity.txt:" << number;
    }
    ASSERT_TRUE(next == lines.end()) << "identity.txt lacks " << *next;
}

} // namespace zilvo
