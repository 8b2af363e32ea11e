#include "zilvo/platform/component/ComponentFile.h"

#include "zilvo/platform/component/ElfFile.h"
#include "zilvo/platform/component/Files.h"

#include <algorithm>

namespace zilvo::platform {

namespace {

constexpr std::uint32_t Signature = 0x5345525A; // "ZRES"
constexpr std::uint16_t Format = 1;
constexpr std::uint64_t MostBytes = 4U << 20U;

/// CRC-32, as in zip files.
std::uint32_t checksum(std::span<const std::uint8_t> bytes) noexcept {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const std::uint8_t byte : bytes) {
        sum ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~sum;
}

void appendName(Bytes& out, StringView name) {
    appendLittleEndian(out, static_cast<std::uint32_t>(name.size()), 2);
    for (const char16_t unit : name)
        appendLittleEndian(out, unit, 2);
}

} // namespace

Bytes resourceSection(std::span<const Resource> resources) {
    Bytes content;
    appendLittleEndian(content, static_cast<std::uint32_t>(resources.size()), 2);
    for (const Resource& resource : resources) {
        appendName(content, resource.type);
        appendName(content, resource.name);
        appendLittleEndian(content, static_cast<std::uint32_t>(resource.bytes.size()), 4);
        content.insert(content.end(), resource.bytes.begin(), resource.bytes.end());
    }
    Bytes section;
    appendLittleEndian(section, Signature, 4);
    appendLittleEndian(section, Format, 2);
    appendLittleEndian(section, static_cast<std::uint32_t>(content.size()), 4);
    appendLittleEndian(section, checksum(content), 4);
    section.insert(section.end(), content.begin(), content.end());
    return section;
}

ComponentFile::ComponentFile(const std::filesystem::path& file)
    : file_(absolutePath(file)),
      name_(file_.string()),
      content_(contentOf(name_)),
      version_(resource(u"VERSION")),
      library_(resource(u"TYPELIB"), version_.record()) {}

ComponentFile::Content ComponentFile::contentOf(const std::string& name) {
    ElfFile elf(name);
    const auto section = elf.section(SectionName, MostBytes);
    if (!section) ByteReader::refuse(name, 0, std::string("it has no section ") + SectionName);

    ByteReader in(name, section->offset, section->bytes);
    if (in.number<std::uint32_t>() != Signature) in.refuse("the resources do not begin with their signature");
    if (const auto format = in.number<std::uint16_t>(); format != Format)
        in.refuse("the resources have the format " + std::to_string(format) + ", not " + std::to_string(Format));
    const auto size = in.number<std::uint32_t>();
    const auto sum = in.number<std::uint32_t>();
    ByteReader content = in.part(size);
    in.finish();
    if (checksum(std::span(section->bytes).last(size)) != sum)
        content.refuse("the resources were altered: their checksum is another");

    Content found;
    for (auto left = content.number<std::uint16_t>(); left > 0; --left) {
        const auto name16 = [&] { return content.text(content.number<std::uint16_t>()); };
        String type = name16();
        String resourceName = name16();
        const auto length = content.number<std::uint32_t>();
        found.offsets.push_back(content.offset());
        const auto bytes = content.take(length);
        found.resources.push_back({std::move(type), std::move(resourceName), {bytes.begin(), bytes.end()}});
    }
    content.finish();
    return found;
}

ByteReader ComponentFile::resource(StringView type) const {
    for (std::size_t i = 0; i < content_.resources.size(); ++i)
        if (content_.resources[i].type == type) return {name_, content_.offsets[i], content_.resources[i].bytes};
    ByteReader::refuse(name_, 0, "it has no resource of the type " + toUtf8(type));
}

} // namespace zilvo::platform
