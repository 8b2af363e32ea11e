#include "zilvo/platform/component/VersionResource.h"

namespace zilvo::platform {

namespace {

constexpr std::uint32_t Signature = 0xFEEF04BD;
constexpr std::size_t FixedBytes = 52;
constexpr StringView Root = u"VS_VERSION_INFO";
constexpr StringView Strings = u"StringFileInfo";
constexpr std::size_t Alignment = 4;

/// The version record is a tree of nodes, each of which starts on a multiple of four bytes: its length in bytes,
/// the length of its value, whether that is text, its key, the value, the nodes below it.
class VersionWriter {
public:
    template <class Below>
    void branch(StringView key, const Below& below) {
        const std::size_t start = open(key, 0, true);
        below();
        close(start);
    }
    /// The length of a text counts characters, with the terminating one.
    void text(StringView key, StringView value) {
        const std::size_t start = open(key, value.size() + 1, true);
        append(value);
        close(start);
    }
    template <class Value, class Below>
    void binary(StringView key, std::size_t valueBytes, const Value& value, const Below& below) {
        const std::size_t start = open(key, valueBytes, false);
        value();
        align();
        below();
        close(start);
    }
    void number(std::uint32_t value, unsigned bytes) { appendLittleEndian(out_, value, bytes); }

    Bytes take() { return std::move(out_); }

private:
    std::size_t open(StringView key, std::size_t valueLength, bool isText) {
        align();
        const std::size_t start = out_.size();
        number(0, 2); // its length, once it is known
        number(static_cast<std::uint32_t>(valueLength), 2);
        number(isText ? 1 : 0, 2);
        append(key);
        align();
        return start;
    }
    void close(std::size_t start) {
        const std::size_t length = out_.size() - start;
        out_[start] = static_cast<std::uint8_t>(length);
        out_[start + 1] = static_cast<std::uint8_t>(length >> 8U);
    }
    void append(StringView text) {
        for (const char16_t unit : text)
            number(unit, 2);
        number(0, 2);
    }
    void align() { out_.resize((out_.size() + 3) / 4 * 4); }

    Bytes out_;
};

/// A node as it is read: `rest` is its value and the nodes below.
struct VersionNode {
    explicit VersionNode(ByteReader& from) : rest(from.part(ByteReader(from).number<std::uint16_t>())) {
        rest.number<std::uint16_t>(); // its length
        valueLength = rest.number<std::uint16_t>();
        rest.number<std::uint16_t>(); // whether that is text
        while (const auto unit = rest.number<char16_t>())
            key += unit;
        rest.align(Alignment);
    }

    template <class Body>
    void forEachBelow(const Body& body) {
        while (!rest.isAtEnd()) {
            rest.align(Alignment);
            body(VersionNode(rest));
        }
    }

    ByteReader rest;
    std::size_t valueLength = 0;
    String key;
};

} // namespace

Bytes versionResourceOf(const VersionRecord& record) {
    constexpr std::uint32_t StructureVersion = 0x00010000;
    constexpr std::uint32_t Windows32 = 0x00000004;
    constexpr std::uint32_t DynamicLibrary = 0x00000002;
    constexpr std::uint32_t UsEnglish = 0x0409;
    constexpr std::uint32_t Unicode = 1200;

    VersionWriter out;
    const auto version = [&] {
        out.number((std::uint32_t{record.version[0]} << 16U) | record.version[1], 4);
        out.number((std::uint32_t{record.version[2]} << 16U) | record.version[3], 4);
    };
    const auto fixed = [&] {
        out.number(Signature, 4);
        out.number(StructureVersion, 4);
        version();        // of the file
        version();        // of the product
        out.number(0, 4); // no flag
        out.number(0, 4); // of none
        out.number(Windows32, 4);
        out.number(DynamicLibrary, 4);
        out.number(0, 4); // no kind of library in particular
        out.number(0, 4); // no date
        out.number(0, 4);
    };
    out.binary(Root, FixedBytes, fixed, [&] {
        out.branch(Strings, [&] {
            out.branch(u"040904B0", [&] {
                for (const VersionString& string : record.strings)
                    out.text(string.key, string.value);
            });
        });
        out.branch(u"VarFileInfo", [&] {
            out.binary(
                u"Translation", 4, [&] { out.number((Unicode << 16U) | UsEnglish, 4); }, [] {});
        });
    });
    return out.take();
}

VersionResource::VersionResource(ByteReader bytes) {
    VersionNode root(bytes);
    bytes.finish();
    if (root.key != Root || root.valueLength != FixedBytes) root.rest.refuse("it is no version record");
    ByteReader fixed = root.rest.part(FixedBytes);
    if (fixed.number<std::uint32_t>() != Signature) fixed.refuse("it is no version record");
    fixed.number<std::uint32_t>();                  // the version of its structure
    for (const std::size_t part : {1U, 0U, 3U, 2U}) // two numbers of 32 bits, the low half of each first
        record_.version[part] = fixed.number<std::uint16_t>();
    root.forEachBelow([&](VersionNode branch) {
        if (branch.key != Strings) return;
        branch.forEachBelow([&](VersionNode language) {
            language.forEachBelow([&](VersionNode string) {
                if (string.valueLength == 0) string.rest.refuse("a text without its end");
                const String& key = texts_.emplace_back(std::move(string.key));
                strings_.push_back({key, texts_.emplace_back(string.rest.text(string.valueLength - 1))});
            });
        });
    });
    record_.strings = strings_;
}

} // namespace zilvo::platform
