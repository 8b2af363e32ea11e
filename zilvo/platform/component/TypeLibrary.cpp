#include "zilvo/platform/component/TypeLibrary.h"

#include "zilvo/platform/component/Object.h"

#include <algorithm>
#include <limits>

namespace zilvo::platform {

namespace {

constexpr std::uint32_t Signature = 0x424C545A; // "ZTLB"
constexpr std::uint16_t Format = 1;
constexpr std::array accesses = {Access::Get, Access::Put, Access::PutReference, Access::Method};

// What each thing is made of, listed once for the writer and the reader below.

template <class Form, class Library>
void layLibrary(Form& form, Library& library) {
    form.text(library.name);
    form.id(library.id);
    form.number(library.majorVersion);
    form.number(library.minorVersion);
    form.number(library.locale);
    form.number(library.flags);
    form.text(library.helpString);
}

template <class Form, class Enumeration>
void layEnumeration(Form& form, Enumeration& enumeration) {
    form.text(enumeration.name);
    form.id(enumeration.id);
    form.list(enumeration.members, [&](auto& member) {
        form.text(member.name);
        form.number(member.value);
        form.text(member.helpString);
    });
}

template <class Form, class Identity>
void layIdentity(Form& form, Identity& identity) {
    form.text(identity.name);
    form.id(identity.classId);
    form.id(identity.interfaceId);
    form.optional(identity.eventInterfaceId, [&](auto& id) { form.id(id); });
    form.optional(identity.toolboxBitmap, [&](auto& bitmap) { form.number(bitmap); });
    form.optional(identity.miscStatus, [&](auto& status) { form.number(status); });
    form.number(identity.flags);
    form.number(identity.interfaceFlags);
    form.number(identity.eventInterfaceFlags);
}

template <class Form, class Owner>
void layArguments(Form& form, Owner& owner) {
    form.count(owner.argumentCount, owner.argument.size());
    for (std::size_t i = 0; i < owner.argumentCount; ++i) {
        form.text(owner.argument[i].name);
        form.type(owner.argument[i].type);
        form.flag(owner.argument[i].byReference);
    }
}

template <class Form, class Member>
void layMember(Form& form, Member& member) {
    form.number(member.id);
    form.text(member.name);
    form.accessors(member);
    form.type(member.type);
    layArguments(form, member);
}

template <class Form, class Event>
void layEvent(Form& form, Event& event) {
    form.number(event.number);
    form.text(event.name);
    layArguments(form, event);
}

class Writer {
public:
    explicit Writer(std::span<const EnumerationDescription* const> enumerations) noexcept
        : enumerations_(enumerations) {}

    template <class Number>
    void number(Number value) {
        appendLittleEndian(bytes_, static_cast<std::uint32_t>(value), sizeof(Number));
    }
    void flag(bool value) { number(static_cast<std::uint8_t>(value)); }
    void count(std::size_t value, std::size_t most) {
        if (value > most) throw Failure(Status::Overflow, "a type library holds no list or text that long");
        number(static_cast<std::uint16_t>(value));
    }
    void text(StringView value) {
        count(value.size(), Most);
        for (const char16_t unit : value)
            number(unit);
    }
    void id(const Guid& value) { appendGuid(bytes_, value); }
    template <class Value, class Lay>
    void optional(const std::optional<Value>& value, const Lay& lay) {
        flag(value.has_value());
        if (value) lay(*value);
    }
    template <class Item, class Lay>
    void list(std::span<const Item> items, const Lay& lay) {
        count(items.size(), Most);
        for (const Item& item : items)
            lay(item);
    }
    void type(const Type& type) {
        number(static_cast<std::uint8_t>(type.kind));
        const auto at = std::find(enumerations_.begin(), enumerations_.end(), type.enumeration);
        count(type.enumeration ? static_cast<std::size_t>(at - enumerations_.begin()) + 1 : 0, enumerations_.size());
    }
    void accessors(const MemberDescription& member) {
        unsigned bits = 0;
        for (const Access access : accesses)
            if (member.accessor(access)) bits |= 1U << static_cast<unsigned>(access);
        number(static_cast<std::uint8_t>(bits));
    }

    Bytes take() { return std::move(bytes_); }

private:
    static constexpr std::size_t Most = std::numeric_limits<std::uint16_t>::max();

    std::span<const EnumerationDescription* const> enumerations_;
    Bytes bytes_;
};

[[noreturn]] void onlyDescribed() {
    throw Failure(Status::NotImplemented, "it is only described: its component has not been loaded");
}

} // namespace

Bytes typeLibraryOf(const ComponentDescription& component) {
    Writer form(component.enumerations);
    form.number(Signature);
    form.number(Format);
    layLibrary(form, component.library);
    form.list(component.enumerations, [&](const auto* enumeration) { layEnumeration(form, *enumeration); });
    form.list(component.classes, [&](const ClassEntry& entry) {
        layIdentity(form, entry.identity);
        form.list(entry.description.members, [&](const auto& member) { layMember(form, member); });
        form.list(entry.description.events, [&](const auto& event) { layEvent(form, event); });
    });
    return form.take();
}

/// Fills the type library from the bytes.
class TypeLibrary::Reader {
public:
    Reader(TypeLibrary& library, ByteReader& bytes) noexcept : library_(library), bytes_(bytes) {}

    template <class Number>
    void number(Number& value) {
        value = bytes_.number<Number>();
    }
    void flag(bool& value) {
        const auto byte = bytes_.number<std::uint8_t>();
        if (byte > 1) bytes_.refuse("neither yes nor no: " + std::to_string(byte));
        value = byte == 1;
    }
    void count(std::size_t& value, std::size_t most) {
        value = bytes_.number<std::uint16_t>();
        if (value > most) bytes_.refuse(std::to_string(value) + " where at most " + std::to_string(most) + " can be");
    }
    void text(StringView& value) { value = library_.texts_.emplace_back(bytes_.text(bytes_.number<std::uint16_t>())); }
    void id(Guid& value) { value = bytes_.id(); }
    template <class Value, class Lay>
    void optional(std::optional<Value>& value, const Lay& lay) {
        bool isThere = false;
        flag(isThere);
        if (isThere) lay(value.emplace());
    }
    template <class Item, class Lay>
    void list(std::span<const Item>& items, const Lay& lay) {
        auto& stored = std::get<std::deque<std::vector<Item>>>(library_.lists_).emplace_back();
        repeat([&] { lay(stored.emplace_back()); });
        items = stored;
    }
    void type(Type& type) {
        const auto kind = bytes_.number<std::uint8_t>();
        if (kind > static_cast<std::uint8_t>(Kind::BooleanArray))
            bytes_.refuse("there is no kind of value " + std::to_string(kind));
        type.kind = static_cast<Kind>(kind);
        std::size_t enumeration = 0;
        count(enumeration, library_.published_.size());
        if (enumeration == 0) return;
        if (type.kind != Kind::Long) bytes_.refuse("an enumeration is a Long");
        type.enumeration = library_.published_[enumeration - 1];
    }
    void accessors(MemberDescription& member) {
        const auto bits = bytes_.number<std::uint8_t>();
        for (const Access access : accesses)
            if ((bits >> static_cast<unsigned>(access) & 1U) != 0)
                member.accessor(access) = [](Described&, std::span<Variant>, Variant*) { onlyDescribed(); };
        const bool isMethod = member.accessor(Access::Method) != nullptr;
        if (bits == 0 || bits >= 1U << accesses.size() || (isMethod && bits != 1U << 3U))
            bytes_.refuse("no member is reached in such ways: " + std::to_string(bits));
        member.kind = isMethod ? MemberKind::Method : MemberKind::Property;
    }

    void readAll() {
        if (bytes_.number<std::uint32_t>() != Signature) bytes_.refuse("it is no type library");
        const auto format = bytes_.number<std::uint16_t>();
        if (format != Format)
            bytes_.refuse("the type library has the format " + std::to_string(format) + ", not " +
                          std::to_string(Format));
        layLibrary(*this, library_.library_);
        repeat([&] { readEnumeration(); });
        repeat([&] { readClass(); });
        bytes_.finish();
    }

private:
    /// What is not there ends it, however many it is said to be.
    template <class Body>
    void repeat(const Body& body) {
        for (std::size_t left = bytes_.number<std::uint16_t>(); left > 0; --left)
            body();
    }
    void readEnumeration() {
        layEnumeration(*this, library_.enumerations_.emplace_back());
        library_.published_.push_back(&library_.enumerations_.back());
    }
    void readClass() {
        ClassIdentity& identity = library_.identities_.emplace_back();
        layIdentity(*this, identity);
        std::span<const MemberDescription> members;
        list(members, [&](auto& member) { layMember(*this, member); });
        std::span<const EventDescription> events;
        list(events, [&](auto& event) {
            layEvent(*this, event);
            event.connect = [](Object&, EventSink&) -> Connection { onlyDescribed(); };
        });
        const auto& description = library_.objects_.emplace_back(identity.name, members, events);
        library_.classes_.push_back({identity, description, [](ComponentModule&) -> Ref<Object> { onlyDescribed(); }});
    }

    TypeLibrary& library_;
    ByteReader& bytes_;
};

TypeLibrary::TypeLibrary(ByteReader bytes, const VersionRecord& version) : description_{library_, version, {}, {}} {
    Reader(*this, bytes).readAll();
    description_.enumerations = published_;
    description_.classes = classes_;
}

} // namespace zilvo::platform
