#include "zilvo/platform/component/RegistrationText.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <set>

namespace zilvo::platform {

namespace {

constexpr std::string_view Heading = "zilvo registrations, format ";
constexpr unsigned Format = 1;
constexpr std::string_view End = "end";

// The sections.
constexpr const char* ComponentSection = "component";
constexpr const char* LibrarySection = "type library";
constexpr const char* ClassSection = "class";
constexpr const char* InterfaceSection = "interface";

std::string heading() {
    return std::string(Heading) + std::to_string(Format);
}

/// Of a text that nobody would read to its end, the beginning.
std::string inQuotes(std::string_view text) {
    constexpr std::size_t Most = 300;
    return "\"" + std::string(text.substr(0, Most)) + (text.size() > Most ? "...\"" : "\"");
}

std::string hexadecimal(std::uint32_t number, std::size_t digits) {
    std::string text(digits, '0');
    for (std::size_t at = digits; at-- > 0; number >>= 4U)
        text[at] = "0123456789ABCDEF"[number & 0xFU];
    return text;
}

template <class Number>
std::optional<Number> parse(std::string_view text, int base = 10) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

// Lines. Any bytes fit into one.

std::string escaped(std::string_view bytes) {
    const bool isAscii = std::all_of(bytes.begin(), bytes.end(), [](unsigned char byte) { return byte < 0x80; });
    const bool isUtf8 = isAscii || toUtf8(toUtf16(bytes)) == bytes;
    const auto isPlain = [&](std::size_t at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        if (byte == ' ') return at > 0 && at + 1 < bytes.size();
        return byte < 0x80 ? byte > ' ' && byte < 0x7F && byte != '\\' : isUtf8;
    };
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); ++at)
        if (isPlain(at))
            text += bytes[at];
        else
            text += "\\x" + hexadecimal(static_cast<unsigned char>(bytes[at]), 2);
    return text;
}

/// Null where a backslash begins no escape.
std::optional<std::string> unescaped(std::string_view text) {
    constexpr std::size_t Length = 4; // of an escape
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] != '\\') {
            bytes += text[at++];
            continue;
        }
        const auto escape = text.substr(at, Length);
        const auto byte = escape.size() == Length ? parse<std::uint8_t>(escape.substr(2), 16) : std::nullopt;
        if (!byte) return std::nullopt;
        bytes += static_cast<char>(*byte);
        at += Length;
    }
    return bytes;
}

std::string lineOf(std::string_view key, std::string_view value) {
    return std::string(key) + (value.empty() ? " =" : " = ") + escaped(value);
}

// Values. Reading gives whether the text is one; it must moreover stand as it would be written.

template <class Value>
bool assign(Value& value, const std::optional<Value>& parsed) {
    if (parsed) value = *parsed;
    return parsed.has_value();
}

std::string written(const String& text) {
    return toUtf8(text);
}
bool read(std::string_view text, String& value) {
    value = toUtf16(text);
    return true;
}

std::string written(const std::string& version) {
    return version;
}
bool read(std::string_view text, std::string& version) {
    version = text;
    const std::size_t stop = text.find('.');
    return stop != std::string_view::npos && parse<Integer>(text.substr(0, stop)) &&
           parse<Integer>(text.substr(stop + 1));
}

std::string written(const std::filesystem::path& file) {
    return file.string();
}
bool read(std::string_view text, std::filesystem::path& file) {
    file = text;
    return file.is_absolute();
}

std::string written(const Guid& id) {
    return id.text();
}
bool read(std::string_view text, Guid& id) {
    return assign(id, Guid::parse(text));
}

std::string written(Long locale) {
    return std::to_string(locale);
}
bool read(std::string_view text, Long& locale) {
    return assign(locale, parse<Long>(text));
}

std::string written(const std::optional<Integer>& bitmap) {
    return bitmap ? std::to_string(*bitmap) : "";
}
bool read(std::string_view text, std::optional<Integer>& bitmap) {
    bitmap = parse<Integer>(text);
    return bitmap.has_value();
}

std::string written(const std::optional<std::uint32_t>& miscStatus) {
    return miscStatus ? "0x" + hexadecimal(*miscStatus, 8) : "";
}
bool read(std::string_view text, std::optional<std::uint32_t>& miscStatus) {
    if (text.starts_with("0x")) miscStatus = parse<std::uint32_t>(text.substr(2), 16);
    return miscStatus.has_value();
}

// The keys of each section, listed once for the writer and the reader below.

template <class Keys, class Component>
void listComponent(Keys& keys, Component& component) {
    keys.unique("file", component.file);
}

template <class Keys, class Library>
void listLibrary(Keys& keys, Library& library, const std::string& file) {
    keys.unique("id", library.id);
    keys.value("name", library.name);
    keys.value("version", library.version);
    keys.value("locale", library.locale);
    keys.value("help string", library.helpString);
    keys.value("help directory", library.helpDirectory);
    keys.value("flags", library.flags);
    keys.fixed("path", file);
}

template <class Keys, class Class>
void listClass(Keys& keys, Class& theClass, const std::string& file) {
    keys.unique("id", theClass.classId);
    keys.value("name", theClass.name);
    keys.value("ProgID", theClass.progId);
    keys.fixed("server", file);
    keys.value("type library", theClass.libraryId);
    keys.value("version", theClass.version);
    keys.mark("control", theClass.isControl);
    if (!theClass.isControl) return;
    keys.value("toolbox bitmap", theClass.toolboxBitmap, file + ", ");
    keys.value("misc status", theClass.miscStatus);
}

template <class Keys, class Interface>
void listInterface(Keys& keys, Interface& interface) {
    keys.unique("id", interface.id);
    keys.value("name", interface.name);
    keys.value("type library", interface.libraryId);
    keys.value("version", interface.version);
}

class Writer {
public:
    void section(const char* name) { text_ += "\n[" + std::string(name) + "]\n"; }

    void fixed(std::string_view key, std::string_view text) { text_ += lineOf(key, text) + "\n"; }
    template <class Value>
    void value(std::string_view key, const Value& value, const std::string& before = {}) {
        fixed(key, before + written(value));
    }
    template <class Value>
    void unique(std::string_view key, const Value& value) {
        fixed(key, written(value));
    }
    void mark(std::string_view key, bool isSet) {
        if (isSet) fixed(key, Marked);
    }

    static constexpr std::string_view Marked = "yes";
    const std::string& text() const noexcept { return text_; }

private:
    std::string text_;
};

/// Where the text being read comes from.
struct Source {
    const std::string& name;

    std::string at(std::size_t line) const { return name + ", line " + std::to_string(line) + ": "; }
    [[noreturn]] void refuse(std::size_t line, const std::string& why) const {
        throw DamagedRegistrations(Status::RegistrationsUnreadable, at(line) + why);
    }
};

struct Line {
    std::size_t number;
    std::string value;
    bool isRead = false;
};

struct Section {
    std::size_t line;
    std::string name;
    std::map<std::string, Line, std::less<>> lines; ///< by key

    Line* find(std::string_view key) {
        const auto found = lines.find(key);
        return found == lines.end() ? nullptr : &found->second;
    }
};

/// Values with the names of their sections; none stands there twice.
using Uniques = std::set<std::pair<std::string, std::string>>;

/// Gives the values of one section.
class Reader {
public:
    Reader(Section& section, Uniques& uniques, const Source& source)
        : section_(section), uniques_(uniques), source_(source) {}

    void fixed(std::string_view key, std::string_view text) {
        const Line& line = take(key);
        if (line.value != text) refuse(key, line, "is not " + inQuotes(text));
    }
    template <class Value>
    void value(std::string_view key, Value& value, std::string_view before = {}) {
        const Line& line = take(key);
        const auto text = std::string_view(line.value).substr(std::min(before.size(), line.value.size()));
        if (!line.value.starts_with(before) || !read(text, value) || written(value) != text)
            refuse(key, line, "is malformed");
    }
    template <class Value>
    void unique(std::string_view key, Value& value) {
        this->value(key, value);
        const Line& line = take(key);
        if (!uniques_.emplace(section_.name, line.value).second) refuse(key, line, "stands twice");
    }
    void mark(std::string_view key, bool& isSet) {
        isSet = section_.find(key) != nullptr;
        if (isSet) fixed(key, Writer::Marked);
    }

    /// Fails when there is a key that nothing asked for.
    void finish() const {
        const auto unreadFirst = [](const auto& one, const auto& other) {
            return std::tie(one.second.isRead, one.second.number) < std::tie(other.second.isRead, other.second.number);
        };
        const auto first = std::min_element(section_.lines.begin(), section_.lines.end(), unreadFirst);
        if (first != section_.lines.end() && !first->second.isRead)
            source_.refuse(first->second.number, "[" + section_.name + "] has no key " + inQuotes(first->first));
    }

private:
    const Line& take(std::string_view key) {
        Line* line = section_.find(key);
        if (!line) source_.refuse(section_.line, "[" + section_.name + "] lacks the key " + inQuotes(key));
        line->isRead = true;
        return *line;
    }
    [[noreturn]] void refuse(std::string_view key, const Line& line, const std::string& why) const {
        source_.refuse(line.number, "the " + std::string(key) + " " + inQuotes(line.value) + " " + why);
    }

    Section& section_;
    Uniques& uniques_;
    const Source& source_;
};

/// Fails for a text that is of another format, or not whole.
void checkFrame(std::string_view text, const Source& source) {
    const auto first = text.substr(0, text.find('\n'));
    const auto format = first.starts_with(Heading) ? parse<unsigned>(first.substr(Heading.size())) : std::nullopt;
    if (format && *format > Format)
        throw Failure(Status::RegistrationsUnreadable,
                      source.at(1) + "it was written by a newer version, in format " + std::to_string(*format));
    if (first != heading()) source.refuse(1, "it does not begin with " + inQuotes(heading()));
    if (!text.ends_with("\n" + std::string(End) + "\n")) {
        const auto ends = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
        source.refuse(ends + (text.ends_with('\n') ? 0 : 1), "it is cut short: its last line is not " + inQuotes(End));
    }
}

void readLine(std::string_view text, std::size_t number, std::optional<Section>& section, const Source& source) {
    const std::size_t equals = text.find(" =");
    const auto key = text.substr(0, equals);
    const auto value = equals == std::string_view::npos
                           ? std::nullopt
                           : unescaped(text.substr(std::min(equals + std::string_view(" = ").size(), text.size())));
    if (!section || !value || lineOf(key, *value) != text)
        source.refuse(number, "it is neither a section nor a key with its value");
    if (!section->lines.try_emplace(std::string(key), Line{number, *value}).second)
        source.refuse(number, "the key " + inQuotes(key) + " stands twice");
}

/// What a component registers besides itself.
void readPart(const Section& section, Reader& reader, Registration& registration, const Source& source) {
    const std::string& file = registration.file.native();
    if (section.name == LibrarySection) {
        if (registration.library) source.refuse(section.line, "the component has a second type library");
        listLibrary(reader, registration.library.emplace(Registration::TypeLibrary()), file);
    } else if (section.name == ClassSection) {
        listClass(reader, registration.classes.emplace_back(), file);
    } else if (section.name == InterfaceSection) {
        listInterface(reader, registration.interfaces.emplace_back());
    } else {
        source.refuse(section.line, "there is no section [" + section.name + "]");
    }
}

void readSection(Section& section, Uniques& uniques, Registrations& registrations, const Source& source) {
    Reader reader(section, uniques, source);
    if (section.name == ComponentSection)
        listComponent(reader, registrations.emplace_back());
    else if (registrations.empty())
        source.refuse(section.line, "[" + section.name + "] stands before any [component]");
    else
        readPart(section, reader, registrations.back(), source);
    reader.finish();
}

} // namespace

std::string textOf(std::span<const Registration> registrations) {
    Writer writer;
    for (const Registration& registration : registrations) {
        const std::string& file = registration.file.native();
        writer.section(ComponentSection);
        listComponent(writer, registration);
        if (registration.library) {
            writer.section(LibrarySection);
            listLibrary(writer, *registration.library, file);
        }
        for (const auto& each : registration.classes) {
            writer.section(ClassSection);
            listClass(writer, each, file);
        }
        for (const auto& each : registration.interfaces) {
            writer.section(InterfaceSection);
            listInterface(writer, each);
        }
    }
    return heading() + "\n" + writer.text() + "\n" + std::string(End) + "\n";
}

Registrations registrationsIn(std::string_view text, const std::string& sourceName) {
    const Source source{sourceName};
    checkFrame(text, source);
    text.remove_suffix(End.size() + 1);

    Uniques uniques;
    Registrations registrations;
    std::optional<Section> section;
    const auto finish = [&] {
        if (section) readSection(*section, uniques, registrations, source);
    };
    std::size_t number = 1;
    for (std::size_t at = text.find('\n') + 1; at < text.size();) {
        const auto line = text.substr(at, text.find('\n', at) - at);
        at += line.size() + 1;
        ++number;
        if (line.starts_with('[') && line.ends_with(']')) {
            finish();
            section.emplace(Section{number, std::string(line.substr(1, line.size() - 2)), {}});
        } else if (!line.empty()) {
            readLine(line, number, section, source);
        }
    }
    finish();
    return registrations;
}

} // namespace zilvo::platform
