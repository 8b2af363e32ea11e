#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ComponentRuntime.h"
#include "zilvo/platform/component/ControlHost.h"

#include <algorithm>
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
                                          versionOf(library) + " locale " + std::to_string(library.locale),
                                      toUtf8(library.helpString)};
    for (const EnumerationDescription* enumeration : component.enumerations) {
        lines.push_back("enumeration " + toUtf8(enumeration->name) + " " + enumeration->id.text());
        for (const EnumerationMember& member : enumeration->members)
            lines.push_back(std::to_string(member.value) + " " + toUtf8(member.name));
    }
    for (const ClassEntry& entry : component.classes) {
        const ClassIdentity& identity = entry.identity;
        lines.push_back("class " + toUtf8(identity.name) + " " + identity.classId.text());
        if (identity.toolboxBitmap) lines.back() += " bitmap " + std::to_string(*identity.toolboxBitmap);
        if (identity.miscStatus) lines.back() += " misc " + hexadecimal(*identity.miscStatus);
        lines.push_back("interface " + toUtf8(interfaceNameOf(identity)) + " " + identity.interfaceId.text());
        for (const MemberDescription& member : entry.description.members)
            lines.push_back(hexadecimal(std::bit_cast<std::uint32_t>(member.id)) + accessesOf(member) + " " +
                            toUtf8(member.name) + " " + typeOf(member.type) + argumentsOf(member.arguments()));
        if (identity.eventInterfaceId)
            lines.push_back("events " + toUtf8(eventInterfaceNameOf(identity)) + " " +
                            identity.eventInterfaceId->text());
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

/// Something of the kind that a member of the library accepts.
Variant sampleOf(const Type& type) {
    switch (type.kind) {
    case Kind::Boolean:
        return true;
    case Kind::Integer:
        return Integer{4};
    case Kind::Long:
        return Long{2};
    case Kind::Single:
        return Single{30};
    case Kind::String:
        return u"Q";
    case Kind::Font:
        return std::make_shared<StdFont>(FontDesign{.Name = u"Arial"});
    case Kind::BooleanArray:
        return BooleanArray(1, {true, false, true, true, false, true, true});
    default:
        return {};
    }
}

/// A live control, or an object that is no control.
struct Instance {
    explicit Instance(const LoadedComponent& component, StringView className) : object(component.create(className)) {
        if (!object->hostedControl()) return;
        host = std::make_unique<ControlHost>(object);
        host->open();
    }
    Ref<Object> object;
    std::unique_ptr<ControlHost> host;
};

/// What a call gives: its status, its result and what it leaves in its arguments.
struct Outcome {
    Status status = Status::Ok;
    Variant result;
    std::vector<Variant> arguments;

    friend bool operator==(const Outcome& one, const Outcome& other) {
        return one.status == other.status && equalByValue(one.result, other.result) &&
               std::ranges::equal(one.arguments, other.arguments, equalByValue);
    }
};

/// By id or by name.
template <class Which>
Outcome outcomeOf(Object& object, const Which& which, const MemberDescription& member, Access how) {
    Outcome outcome;
    if (how != Access::Get)
        for (const ArgumentDescription& argument : member.arguments())
            outcome.arguments.push_back(sampleOf(argument.type));
    outcome.status = object.Invoke(which, how, outcome.arguments, &outcome.result);
    return outcome;
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

TEST(PublishedMembers, AreReachedByIdAndGiveWhatTheNameGives) {
    const LoadedComponent component(COMPONENT_FILE);
    for (const ClassEntry& entry : component.description().classes)
        for (const MemberDescription& member : entry.description.members)
            for (const Access how : {Access::Get, Access::Put, Access::PutReference, Access::Method}) {
                if (!member.accessor(how)) continue;
                SCOPED_TRACE(toUtf8(entry.identity.name) + "." + toUtf8(member.name) + ": " + nameOf(how));
                const Instance calledById(component, entry.identity.name);
                const Instance calledByName(component, entry.identity.name);
                const Outcome byId = outcomeOf(*calledById.object, member.id, member, how);
                EXPECT_EQ(byId.status, Status::Ok);
                EXPECT_EQ(byId, outcomeOf(*calledByName.object, member.name, member, how));
                EXPECT_EQ(byId.result.kind(),
                          how == Access::Put || how == Access::PutReference ? Kind::Empty : member.type.kind);
                if (member.accessor(Access::Get)) {
                    EXPECT_EQ(outcomeOf(*calledById.object, member.id, member, Access::Get),
                              outcomeOf(*calledByName.object, member.name, member, Access::Get))
                        << "afterwards";
                }
            }
}

} // namespace zilvo
