// Any bytes as a component file, or as what lies in its section: they are refused, or describe a component that is
// written as it was read.
#include "tests/fuzz/Fuzz.h"
#include "zilvo/platform/component/ComponentFile.h"

#include <cstring>
#include <elf.h>
#include <fstream>
#include <sys/mman.h>
#include <unistd.h>

using namespace zilvo;
using platform::ByteReader;
using platform::Bytes;
using platform::ComponentFile;
using platform::Resource;

namespace {

/// A file without a name.
class MemoryFile {
public:
    explicit MemoryFile(const Bytes& content) : number_(memfd_create("component", 0)) {
        std::ofstream out(path(), std::ios::binary);
        std::ranges::copy(content, std::ostreambuf_iterator<char>(out));
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(number_); }

    std::string path() const { return "/proc/self/fd/" + std::to_string(number_); }

private:
    int number_;
};

template <class Structure>
void put(Bytes& file, std::size_t at, const Structure& structure) {
    std::memcpy(file.data() + at, &structure, sizeof structure);
}

/// The smallest module that has a component's section and nothing else.
Bytes moduleWith(const Bytes& section) {
    constexpr char names[] = "\0.zilvo";
    constexpr std::size_t headers = sizeof(Elf64_Ehdr);
    constexpr std::size_t content = headers + 2 * sizeof(Elf64_Shdr) + sizeof names;
    Elf64_Ehdr header{};
    std::memcpy(header.e_ident, ELFMAG, SELFMAG);
    header.e_ident[EI_CLASS] = ELFCLASS64;
    header.e_ident[EI_DATA] = ELFDATA2LSB;
    header.e_type = ET_DYN;
    header.e_machine = EM_X86_64;
    header.e_phentsize = sizeof(Elf64_Phdr);
    header.e_shentsize = sizeof(Elf64_Shdr);
    header.e_shoff = headers;
    header.e_shnum = 2;
    Elf64_Shdr namesHeader{};
    namesHeader.sh_offset = content - sizeof names;
    namesHeader.sh_size = sizeof names;
    Elf64_Shdr contentHeader{};
    contentHeader.sh_name = 1;
    contentHeader.sh_type = SHT_PROGBITS;
    contentHeader.sh_offset = content;
    contentHeader.sh_size = section.size();
    Bytes file(content);
    put(file, 0, header);
    put(file, headers, namesHeader);
    put(file, headers + sizeof(Elf64_Shdr), contentHeader);
    put(file, namesHeader.sh_offset, names);
    file.insert(file.end(), section.begin(), section.end());
    return file;
}

void requirePlace(const Failure& failure) {
    fuzz::require(failure.status() == Status::BadComponent &&
                      std::string_view(failure.what()).find(": at offset ") != std::string_view::npos,
                  std::string("a refusal tells the place: ") + failure.what());
}

void readFile(const Bytes& bytes) {
    const MemoryFile file(bytes);
    const ComponentFile component(file.path());
    const auto section = platform::resourceSection(component.resources());
    const MemoryFile copy(moduleWith(section));
    const ComponentFile again(copy.path());
    fuzz::require(std::ranges::equal(again.resources(), component.resources()), "resources are read as written");
}

void readLibrary(const std::string& name, const Bytes& bytes) {
    const platform::VersionRecord version;
    const platform::TypeLibrary library(ByteReader(name, 0, bytes), version);
    fuzz::require(typeLibraryOf(library.description()) == bytes, "a type library is written as it was read");
}

void readVersion(const std::string& name, const Bytes& bytes) {
    const platform::VersionResource version(ByteReader(name, 0, bytes));
    const Bytes written = versionResourceOf(version.record());
    const platform::VersionResource again(ByteReader(name, 0, written));
    fuzz::require(versionResourceOf(again.record()) == written, "a version record is read as it is written");
}

/// A module with any resources.
Bytes anyModule(std::span<const std::uint8_t> bytes) {
    fuzz::Input in(bytes.data(), bytes.size());
    constexpr std::array<StringView, 4> types = {u"TYPELIB", u"VERSION", u"BITMAP", u""};
    std::vector<Resource> resources;
    while (in.ConsumeBool()) {
        Resource& resource = resources.emplace_back();
        resource.type = in.oneOf(types);
        resource.name = in.text();
        const std::string content = in.ConsumeRandomLengthString(400);
        resource.bytes.assign(content.begin(), content.end());
    }
    return moduleWith(platform::resourceSection(resources));
}

} // namespace

/// The first byte tells what the others are.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string name = "the component";
    const Bytes bytes(data + 1, data + size);
    try {
        switch (*data) {
        case 'F':
            readFile(bytes);
            break;
        case 'R':
            readFile(anyModule(bytes));
            break;
        case 'T':
            readLibrary(name, bytes);
            break;
        case 'V':
            readVersion(name, bytes);
            break;
        default:
            return -1; // not worth keeping
        }
    } catch (const Failure& failure) {
        requirePlace(failure);
    }
    return 0;
}
