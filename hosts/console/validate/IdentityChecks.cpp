#include "hosts/console/Describe.h"
#include "hosts/console/validate/Driver.h"
#include "zilvo/platform/component/Resources.h"

#include <algorithm>
#include <map>

/// What the component publishes: identifiers, names, numbers, resources.

namespace zilvo::console {

using namespace platform;

namespace {

/// Finds what stands twice.
class Unique {
public:
    Unique(Check& check, std::string kind) : check_(check), kind_(std::move(kind)) {}

    void add(const std::string& shown, const std::string& owner) {
        const auto [at, isNew] = owners_.emplace(shown, owner);
        check_.expect(isNew, kind_ + " " + shown + " stands twice: for " + at->second + " and for " + owner);
    }

private:
    Check& check_;
    std::string kind_;
    std::map<std::string, std::string> owners_;
};

/// Names compare without case.
class UniqueNames {
public:
    UniqueNames(Check& check, std::string kind) : names_(check, std::move(kind)), check_(check) {}

    void add(StringView name, const std::string& owner) {
        const auto folded = toUtf8(lowerCase(name));
        names_.add(folded, owner);
        check_.expect(isIdentifier(folded), owner + ": \"" + toUtf8(name) + "\" is no identifier");
    }

private:
    static bool isIdentifier(std::string_view folded) {
        const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
        const auto isInside = [&](char c) { return isLetter(c) || (c >= '0' && c <= '9') || c == '_'; };
        return !folded.empty() && isLetter(folded.front()) && std::all_of(folded.begin(), folded.end(), isInside);
    }

    Unique names_;
    Check& check_;
};

} // namespace

void checks::identifiers(Check& check, LoadedComponent& component) {
    const ComponentDescription& description = component.description();
    Unique ids(check, "the identifier");
    const auto add = [&](const Guid& id, const std::string& owner) {
        check.expect(id != Guid(), owner + " has no identifier");
        ids.add(id.text(), owner);
    };
    add(description.library.id, "the library");
    for (const EnumerationDescription* enumeration : description.enumerations)
        add(enumeration->id, "the enumeration " + toUtf8(enumeration->name));
    for (const ClassEntry& entry : description.classes) {
        const auto name = nameOf(entry);
        add(entry.identity.classId, "the class " + name);
        add(entry.identity.interfaceId, "the interface of " + name);
        if (entry.identity.eventInterfaceId) add(*entry.identity.eventInterfaceId, "the events of " + name);
    }
}

void checks::names(Check& check, LoadedComponent& component) {
    const ComponentDescription& description = component.description();
    UniqueNames inLibrary(check, "the name");
    inLibrary.add(description.library.name, "the library");
    for (const EnumerationDescription* enumeration : description.enumerations)
        inLibrary.add(enumeration->name, "an enumeration");
    for (const ClassEntry& entry : description.classes) {
        inLibrary.add(entry.identity.name, "a class");
        check.expect(entry.description.name == entry.identity.name,
                     nameOf(entry) + " is called " + toUtf8(entry.description.name) + " in its description");
        const auto addArguments = [&](StringView owner, std::span<const ArgumentDescription> arguments) {
            const auto shownOwner = nameOf(entry) + "." + toUtf8(owner);
            UniqueNames inList(check, "the argument name");
            for (const ArgumentDescription& argument : arguments)
                inList.add(argument.name, shownOwner);
        };
        UniqueNames members(check, "the member name");
        for (const MemberDescription& member : entry.description.members) {
            members.add(member.name, nameOf(entry));
            addArguments(member.name, member.arguments());
        }
        UniqueNames events(check, "the event name");
        for (const EventDescription& event : entry.description.events) {
            events.add(event.name, nameOf(entry));
            addArguments(event.name, event.arguments());
        }
    }
}

namespace {

/// Misc status bits that say how a host may treat a control.
struct MiscStatusBit {
    std::uint32_t bit;
    const char* name;
};
constexpr std::array usualBits = {
    MiscStatusBit{0x80, "inside-out"},
    MiscStatusBit{0x100, "activate-when-visible"},
    MiscStatusBit{0x20000, "set-client-site-first"},
};
constexpr std::uint32_t KnownBits = 0x3FFFFF;

void checkMiscStatus(Check& check, std::uint32_t status) {
    for (const MiscStatusBit& usual : usualBits)
        if ((status & usual.bit) == 0) check.warn("the misc status " + hexadecimal(status) + " lacks " + usual.name);
    if ((status & ~KnownBits) != 0) check.warn("the misc status " + hexadecimal(status) + " has an unknown bit");
}

} // namespace

void checks::controlsAndOthers(Check& check, LoadedComponent& component) {
    Unique bitmaps(check, "the toolbox bitmap");
    forEachClass(check, component, [&](const ClassEntry& entry) {
        const ClassIdentity& identity = entry.identity;
        const bool isControl = createInstance(component, entry)->hostedControl() != nullptr;
        check.expect(identity.isControl() == isControl,
                     isControl ? "is a control and is not described as one" : "is described as a control and is none");
        if (!isControl) {
            check.expect(!identity.eventInterfaceId && entry.description.events.empty(),
                         "is no control and has events");
            check.expect(!identity.toolboxBitmap && !entry.toolboxPicture, "is no control and has a toolbox bitmap");
            check.expect(!identity.miscStatus, "is no control and has a misc status");
            return;
        }
        check.expect(!identity.isApplicationObject(), "is a control and described as an application object");
        check.expect(identity.eventInterfaceId.has_value(), "is a control and has no event interface");
        if (identity.toolboxBitmap)
            bitmaps.add(std::to_string(*identity.toolboxBitmap), nameOf(entry));
        else
            check.warn("is a control and has no toolbox bitmap");
        if (identity.miscStatus)
            checkMiscStatus(check, *identity.miscStatus);
        else
            check.warn("is a control and has no misc status");
    });
}

void checks::membersAndEvents(Check& check, LoadedComponent& component) {
    forEachClass(check, component, [&](const ClassEntry& entry) {
        Unique ids(check, "the member id");
        for (const MemberDescription& member : entry.description.members) {
            const auto name = toUtf8(member.name);
            check.expect(member.id != 0, name + " has the member id 0");
            ids.add(hexadecimal(static_cast<std::uint32_t>(member.id)), name);
            const bool isMethod = member.kind == MemberKind::Method;
            check.expect((member.accessor(Access::Method) != nullptr) == isMethod &&
                             (isMethod || member.accessor(Access::Get) || accessToSet(member)),
                         name + " has no accessor of its kind");
            check.expect(isMethod || member.argumentCount == (accessToSet(member) ? 1U : 0U),
                         name + " is a property and describes " + std::to_string(member.argumentCount) + " arguments");
        }
        Long next = 1;
        for (const EventDescription& event : entry.description.events) {
            check.expect(event.number == next, "the event " + toUtf8(event.name) + " has the number " +
                                                   std::to_string(event.number) + ", not " + std::to_string(next));
            next = event.number + 1;
        }
    });
}

void checks::enumerations(Check& check, LoadedComponent& component) {
    const auto published = component.description().enumerations;
    for (const EnumerationDescription* enumeration : published) {
        const auto name = toUtf8(enumeration->name);
        check.step(name);
        check.expect(!enumeration->members.empty(), "has no member");
        UniqueNames names(check, "the member name");
        for (const EnumerationMember& member : enumeration->members)
            names.add(member.name, name);
    }
    forEachClass(check, component, [&](const ClassEntry& entry) {
        const auto expectPublished = [&](const Type& type, StringView user) {
            if (!type.enumeration) return;
            const auto isIt = [&](const auto* each) { return each->id == type.enumeration->id; };
            check.expect(std::any_of(published.begin(), published.end(), isIt),
                         toUtf8(user) + " uses the enumeration " + toUtf8(type.enumeration->name) +
                             ", which is not published");
            check.expect(type.kind == Kind::Long,
                         toUtf8(user) + " uses an enumeration as " + toUtf8(nameOf(type.kind)));
        };
        for (const MemberDescription& member : entry.description.members) {
            expectPublished(member.type, member.name);
            for (const ArgumentDescription& argument : member.arguments())
                expectPublished(argument.type, member.name);
        }
        for (const EventDescription& event : entry.description.events)
            for (const ArgumentDescription& argument : event.arguments())
                expectPublished(argument.type, event.name);
    });
}

namespace {

/// The class as `zilvo describe --json` writes it, with the members and events of the description that is given.
Json classJson(const ComponentDescription& component, const ClassEntry& entry, const ObjectDescription& description) {
    const std::array only = {ClassEntry{entry.identity, description, entry.create}};
    return console::description({component.library, component.version, component.enumerations, only})
        .at("classes")
        .at(0);
}

void expectSame(Check& check, const Json& table, const Json& instance) {
    check.expect(table.size() == instance.size(), "the instance has " + std::to_string(instance.size()) +
                                                      " members, the class table " + std::to_string(table.size()));
    for (std::size_t i = 0; i < std::min(table.size(), instance.size()); ++i)
        check.expect(table[i] == instance[i],
                     "the instance has " + instance[i].dump() + ", the class table " + table[i].dump());
}

} // namespace

void checks::instanceDescriptions(Check& check, LoadedComponent& component) {
    forEachClass(check, component, [&](const ClassEntry& entry) {
        const Ref<Object> object = createInstance(component, entry);
        const Json table = classJson(component.description(), entry, entry.description);
        const Json instance = classJson(component.description(), entry, object->description());
        expectSame(check, table.at("interface").at("members"), instance.at("interface").at("members"));
        if (entry.identity.isControl())
            expectSame(check, table.at("events").at("members"), instance.at("events").at("members"));
    });
}

namespace {

/// The identifier in a resource of 20 bytes: its length, then three little-endian numbers and eight bytes.
std::optional<Guid> guidIn(std::span<const std::uint8_t> bytes) {
    const auto number = [&](std::size_t at, std::size_t length) {
        std::uint32_t value = 0;
        for (std::size_t i = length; i-- > 0;)
            value = value << 8U | bytes[at + i];
        return value;
    };
    if (bytes.size() != 20 || number(0, 4) != 16) return std::nullopt;
    Guid id{number(4, 4), static_cast<std::uint16_t>(number(8, 2)), static_cast<std::uint16_t>(number(10, 2)), {}};
    std::copy(bytes.begin() + 12, bytes.end(), id.data4.begin());
    return id;
}

const Resource* findResource(std::span<const Resource> resources, StringView type, StringView name) {
    const auto at = std::find_if(resources.begin(), resources.end(),
                                 [&](const Resource& each) { return each.type == type && sameName(each.name, name); });
    return at == resources.end() ? nullptr : &*at;
}

} // namespace

void checks::resources(Check& check, LoadedComponent& component) {
    const ComponentDescription& description = component.description();
    bool areWhole = true;
    for (const ClassEntry& entry : description.classes)
        areWhole &= !entry.toolboxPicture || check.expect(entry.toolboxPicture->isWhole(),
                                                          nameOf(entry) + ": the toolbox picture is no picture");
    if (!areWhole) return;

    const std::vector<Resource> all = resourcesOf(description);
    const auto expectId = [&](StringView prefix, StringView className, const Guid& id) {
        const Resource* resource = findResource(all, u"RCDATA", String(prefix) + String(className));
        check.expect(resource && guidIn(resource->bytes) == id,
                     "the resource " + toUtf8(prefix) + toUtf8(className) + " is not the identifier " + id.text());
    };
    for (const ClassEntry& entry : description.classes) {
        check.step(nameOf(entry));
        const ClassIdentity& identity = entry.identity;
        expectId(u"_IID_", identity.name, identity.interfaceId);
        if (identity.eventInterfaceId) expectId(u"_SRCIID_", identity.name, *identity.eventInterfaceId);
        if (!identity.toolboxBitmap) continue;
        const auto name = std::to_string(*identity.toolboxBitmap);
        const Resource* bitmap = findResource(all, u"BITMAP", toUtf16(name));
        if (!bitmap)
            check.warn("has no picture for the toolbox bitmap " + name);
        else // a header of 40 bytes and 15 rows of 16 pixels
            check.expect(bitmap->bytes.size() == 760, "the toolbox bitmap " + name + " has " +
                                                          std::to_string(bitmap->bytes.size()) + " bytes, not 760");
    }

    check.step("the version record");
    const auto& version = description.version.version;
    check.expect(findResource(all, u"VERSION", u"1") != nullptr, "is missing");
    check.expect(std::any_of(version.begin(), version.end(), [](std::uint16_t part) { return part != 0; }),
                 "states the version 0");
    if (description.version.strings.empty()) check.warn("states nothing but the number");
}

} // namespace zilvo::console
