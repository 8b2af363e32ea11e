#pragma once

#include "zilvo/platform/component/Events.h"

#include <optional>

namespace zilvo::platform {

class Object;

/// One event of a class, with the way to attach a late-bound sink to it.
struct EventDescription {
    static constexpr std::size_t MostArguments = 2;

    Long number = 0;
    StringView name;
    /// All are passed by reference.
    std::array<ArgumentDescription, MostArguments> argument{};
    std::size_t argumentCount = 0;
    Connection (*connect)(Object& object, EventSink& sink) = nullptr;

    constexpr std::span<const ArgumentDescription> arguments() const noexcept {
        return {argument.data(), argumentCount};
    }
};

/// What a class publishes: its members and its events.
struct ObjectDescription : ClassDescription {
    constexpr ObjectDescription(StringView className, std::span<const MemberDescription> classMembers,
                                std::span<const EventDescription> classEvents) noexcept
        : ClassDescription{className, classMembers, nullptr}, events(classEvents) {
        for (std::size_t i = members.size(); i-- > 0;)
            likely_[slotOf(members[i].id)] = static_cast<std::uint8_t>(i);
    }

    std::span<const EventDescription> events;

    using ClassDescription::find;
    const MemberDescription* find(MemberId id) const noexcept {
        // A host calls by id again and again: looked for first where the id's last digit says.
        const std::size_t likely = likely_[slotOf(id)];
        if (likely < members.size() && members[likely].id == id) return &members[likely];
        return ClassDescription::find(id);
    }
    const EventDescription* findEvent(StringView eventName) const noexcept {
        for (const EventDescription& event : events)
            if (sameName(event.name, eventName)) return &event;
        return nullptr;
    }

private:
    /// Properties and methods are numbered apart, from the same digit on.
    static constexpr std::size_t slotOf(MemberId id) noexcept {
        const auto bits = static_cast<std::uint32_t>(id);
        return (bits ^ (bits >> 24U)) & 0xFU;
    }

    std::array<std::uint8_t, 16> likely_{};
};

/// What a class or an interface is, and a library as a whole: bits, numbered as in every type library.
namespace typeflags {
inline constexpr std::uint16_t ApplicationObject = 0x1; ///< its members are called without naming an instance
inline constexpr std::uint16_t CanCreate = 0x2;         ///< a host can make instances
inline constexpr std::uint16_t Predeclared = 0x8;       ///< an instance is there before anybody makes one
inline constexpr std::uint16_t Hidden = 0x10;           ///< not shown to people who look for something to use
inline constexpr std::uint16_t Control = 0x20;
inline constexpr std::uint16_t Dual = 0x40;          ///< called by the members' places as well as by their ids
inline constexpr std::uint16_t NonExtensible = 0x80; ///< has the members described and no others
inline constexpr std::uint16_t OleAutomation = 0x100;
inline constexpr std::uint16_t Dispatchable = 0x1000; ///< called by member id
} // namespace typeflags
namespace libraryflags {
inline constexpr std::uint16_t Control = 0x2; ///< describes controls
} // namespace libraryflags

/// The identifiers under which a class is published, and what it and its interfaces are.
struct ClassIdentity {
    StringView name;
    Guid classId;
    Guid interfaceId;
    /// Null for a class without an event interface, a toolbox bitmap, a misc status: no control.
    std::optional<Guid> eventInterfaceId;
    std::optional<Integer> toolboxBitmap;
    std::optional<std::uint32_t> miscStatus;
    std::uint16_t flags = typeflags::Control | typeflags::CanCreate;
    std::uint16_t interfaceFlags = typeflags::Hidden | typeflags::Dual | typeflags::NonExtensible |
                                   typeflags::OleAutomation | typeflags::Dispatchable;
    std::uint16_t eventInterfaceFlags = typeflags::Hidden | typeflags::NonExtensible | typeflags::Dispatchable;

    constexpr bool isControl() const noexcept { return (flags & typeflags::Control) != 0; }
    constexpr bool isApplicationObject() const noexcept { return (flags & typeflags::ApplicationObject) != 0; }
};

struct LibraryIdentity {
    StringView name;
    Guid id;
    Integer majorVersion = 0;
    Integer minorVersion = 0;
    Long locale = 0;
    StringView helpString;
    std::uint16_t flags = libraryflags::Control;
};

struct VersionString {
    StringView key;
    StringView value;
};

/// What a component file says of its own version, in US English.
struct VersionRecord {
    /// Of the file and of the product: 3.0.0.4.
    std::array<std::uint16_t, 4> version{};
    std::span<const VersionString> strings;
};

struct ToolboxPicture;

/// A class of a component: who it is, what it publishes and how an instance is made.
struct ClassEntry {
    const ClassIdentity& identity;
    const ObjectDescription& description;
    Ref<Object> (*create)(ComponentModule& module);
    const ToolboxPicture* toolboxPicture = nullptr; ///< null for a class that is no control
};

/// All that a component publishes. A host reads it through the runtime without creating any object.
struct ComponentDescription {
    const LibraryIdentity& library;
    const VersionRecord& version;
    std::span<const EnumerationDescription* const> enumerations;
    std::span<const ClassEntry> classes;

    const ClassEntry* find(const Guid& classId) const noexcept;
    /// By class name, ProgID ("Library.Class") or class id, without case.
    const ClassEntry* find(StringView name) const;
};

/// The library name, a full stop and the class name.
String progIdOf(const LibraryIdentity& library, const ClassIdentity& identity);
/// The class name behind one leading underscore; behind two.
String interfaceNameOf(const ClassIdentity& identity);
String eventInterfaceNameOf(const ClassIdentity& identity);
/// "10.0"
std::string versionOf(const LibraryIdentity& library);

} // namespace zilvo::platform
