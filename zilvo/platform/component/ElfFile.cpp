#include "zilvo/platform/component/ElfFile.h"

#include "zilvo/platform/component/ByteReader.h"

#include <cerrno>
#include <cstring>
#include <elf.h>

/// The header of the module that this code lies in, which the linker puts there: what this machine runs.
extern "C" const Elf64_Ehdr __ehdr_start __attribute__((visibility("hidden"))); // NOLINT: the linker's name

namespace zilvo::platform {

namespace {

[[noreturn]] void cannotRead(const std::string& file, const std::string& why) {
    throw Failure(Status::BadComponent, "the component file " + file + " cannot be read: " + why);
}

} // namespace

ElfFile::ElfFile(const std::filesystem::path& file) : name_(file.string()) {
    std::error_code error;
    const auto found = std::filesystem::status(file, error);
    if (found.type() == std::filesystem::file_type::not_found)
        throw Failure(Status::FileNotFound, "there is no component file " + name_);
    if (!std::filesystem::status_known(found)) cannotRead(name_, error.message());
    if (!std::filesystem::is_regular_file(found))
        throw Failure(Status::BadComponent, name_ + " is not a component: it is no file");
    errno = 0;
    in_.open(file, std::ios::binary);
    if (!in_) cannotRead(name_, std::generic_category().message(errno));
    size_ = std::filesystem::file_size(file, error);
    if (error) cannotRead(name_, error.message());

    if (size_ == 0) ByteReader::refuse(name_, 0, "the file is empty");
    const auto ident = read(0, std::min<std::uint64_t>(size_, SELFMAG), "the first bytes");
    if (ident.size() != SELFMAG || std::memcmp(ident.data(), ELFMAG, SELFMAG) != 0)
        ByteReader::refuse(name_, 0, "it is no loadable module");
    const auto header = structure<Elf64_Ehdr>(0, "the header of the module");
    for (const auto kind : {std::uint64_t{EI_CLASS}, std::uint64_t{EI_DATA}})
        if (header.e_ident[kind] != __ehdr_start.e_ident[kind])
            ByteReader::refuse(name_, kind, "it is a module for a machine of another kind");
    if (header.e_machine != __ehdr_start.e_machine)
        ByteReader::refuse(name_, offsetof(Elf64_Ehdr, e_machine),
                           "it is a module for a processor of another kind, number " +
                               std::to_string(header.e_machine));
    if (header.e_type != ET_DYN)
        ByteReader::refuse(name_, offsetof(Elf64_Ehdr, e_type), "it is a module of another kind");
    if (header.e_phentsize != sizeof(Elf64_Phdr))
        ByteReader::refuse(name_, offsetof(Elf64_Ehdr, e_phentsize), "its segments are described in another way");
    if (header.e_shnum != 0 && header.e_shentsize != sizeof(Elf64_Shdr))
        ByteReader::refuse(name_, offsetof(Elf64_Ehdr, e_shentsize), "its sections are described in another way");

    for (std::uint64_t i = 0; i < header.e_phnum; ++i) {
        const std::string what = "segment " + std::to_string(i);
        const auto segment = structure<Elf64_Phdr>(header.e_phoff + i * sizeof(Elf64_Phdr), "the header of " + what);
        if (segment.p_type != PT_NULL) require(segment.p_offset, segment.p_filesz, what);
    }
    std::vector<Elf64_Shdr> headers;
    for (std::uint64_t i = 0; i < header.e_shnum; ++i)
        headers.push_back(structure<Elf64_Shdr>(header.e_shoff + i * sizeof(Elf64_Shdr),
                                                "the header of section " + std::to_string(i)));
    if (headers.empty()) return;
    if (header.e_shstrndx >= headers.size())
        ByteReader::refuse(name_, offsetof(Elf64_Ehdr, e_shstrndx), "its sections have no names");
    const auto& names = headers[header.e_shstrndx];
    for (const Elf64_Shdr& section : headers)
        if (section.sh_type != SHT_NOBITS && section.sh_name < names.sh_size)
            sections_.push_back({names.sh_offset + section.sh_name, section.sh_offset, section.sh_size});
}

std::optional<ElfFile::Section> ElfFile::section(const std::string& name, std::uint64_t limit) {
    const std::string what = "the section " + name;
    for (const SectionHeader& section : sections_) {
        const auto wanted = name.size() + 1; // with the zero at its end
        if (section.name > size_ || wanted > size_ - section.name) continue;
        if (std::memcmp(read(section.name, wanted, "a name").data(), name.c_str(), wanted) != 0) continue;
        if (section.size > limit)
            ByteReader::refuse(name_, section.offset,
                               what + " has " + std::to_string(section.size) + " bytes, at most " +
                                   std::to_string(limit) + " are read");
        return Section{section.offset, read(section.offset, section.size, what)};
    }
    return std::nullopt;
}

void ElfFile::require(std::uint64_t offset, std::uint64_t size, const std::string& what) const {
    if (offset > size_ || size > size_ - offset)
        ByteReader::refuse(name_, offset, what + " is cut short: the file has " + std::to_string(size_) + " bytes");
}

Bytes ElfFile::read(std::uint64_t offset, std::uint64_t size, const std::string& what) {
    require(offset, size, what);
    Bytes bytes(size);
    in_.seekg(static_cast<std::streamoff>(offset));
    in_.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size)); // as streams see bytes
    if (!in_) cannotRead(name_, "reading " + what + " failed");
    return bytes;
}

template <class Structure>
inline Structure ElfFile::structure(std::uint64_t offset, const std::string& what) {
    const Bytes bytes = read(offset, sizeof(Structure), what);
    Structure structure{};
    std::memcpy(&structure, bytes.data(), sizeof(Structure));
    return structure;
}

} // namespace zilvo::platform
