#include "zilvo/platform/component/Resources.h"

#include <algorithm>

namespace zilvo::platform {

namespace {

/// A 32-bit length, then the identifier in its binary form: three little-endian numbers and eight bytes.
Bytes interfaceIdResource(const Guid& id) {
    Bytes out;
    appendLittleEndian(out, 16, 4);
    appendLittleEndian(out, id.data1, 4);
    appendLittleEndian(out, id.data2, 2);
    appendLittleEndian(out, id.data3, 2);
    out.insert(out.end(), id.data4.begin(), id.data4.end());
    return out;
}

String capitals(StringView name) {
    String text(name);
    for (char16_t& letter : text)
        if (letter >= u'a' && letter <= u'z') letter = static_cast<char16_t>(letter - u'a' + u'A');
    return text;
}

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

Bytes versionResource(const VersionRecord& record) {
    constexpr std::uint32_t Signature = 0xFEEF04BD;
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
    out.binary(u"VS_VERSION_INFO", 52, fixed, [&] {
        out.branch(u"StringFileInfo", [&] {
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

} // namespace

Bitmap bitmapOf(const ToolboxPicture& picture) {
    Bitmap bitmap(ToolboxPicture::Width, ToolboxPicture::Height);
    for (int y = 0; y < ToolboxPicture::Height; ++y)
        for (int x = 0; x < ToolboxPicture::Width; ++x)
            bitmap.set(
                x, y,
                *ToolboxPicture::colourOf(picture.rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
    return bitmap;
}

std::vector<Resource> resourcesOf(const ComponentDescription& component) {
    std::vector<Resource> resources;
    for (const ClassEntry& entry : component.classes)
        if (entry.identity.toolboxBitmap && entry.toolboxPicture)
            resources.push_back({u"BITMAP", toUtf16(std::to_string(*entry.identity.toolboxBitmap)),
                                 bitmapOf(*entry.toolboxPicture).deviceIndependent()});
    std::ranges::sort(resources, {}, &Resource::name);
    for (const ClassEntry& entry : component.classes) {
        const String name = capitals(entry.identity.name);
        resources.push_back({u"RCDATA", u"_IID_" + name, interfaceIdResource(entry.identity.interfaceId)});
        if (entry.identity.eventInterfaceId)
            resources.push_back({u"RCDATA", u"_SRCIID_" + name, interfaceIdResource(*entry.identity.eventInterfaceId)});
    }
    resources.push_back({u"VERSION", u"1", versionResource(component.version)});
    return resources;
}

} // namespace zilvo::platform
