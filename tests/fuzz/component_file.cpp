// Any bytes as a component file, or as a resource in it: they are refused, or describe a component that is written as
// it was read.
#include "tests/fuzz/Fuzz.h"
#include "zilvo/platform/component/ComponentFile.h"

#include <fstream>
#include <sys/mman.h>
#include <unistd.h>

using namespace zilvo;
using platform::ByteReader;
using platform::Bytes;

namespace {

/// The sum that resources carry, CRC-32: no fuzzer comes up with it.
std::uint32_t checksum(std::string_view bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1U) ^ ((sum & 1U) * 0xEDB88320U);
    }
    return ~sum;
}

/// Sets the checksum right of resources that end with the file.
void mend(std::string& file) {
    constexpr std::size_t sumAt = 10;
    constexpr std::size_t contentAt = 14;
    const auto section = file.find("ZRES");
    if (section == file.npos || section + contentAt > file.size()) return;
    const auto sum = checksum(std::string_view(file).substr(section + contentAt));
    for (unsigned i = 0; i < 4; ++i)
        file[section + sumAt + i] = static_cast<char>(sum >> (8 * i));
}

void readFile(const std::string& bytes) {
    static const std::string file = "/proc/self/fd/" + std::to_string(memfd_create("component", 0));
    std::ofstream(file, std::ios::binary) << bytes;
    const platform::ComponentFile component(file);
    const auto written = platform::resourceSection(component.resources());
    fuzz::require(bytes.find(std::string(written.begin(), written.end())) != bytes.npos,
                  "resources are written as they were read");
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

} // namespace

/// The first byte tells what the others are.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::string_view known = "FMTV";
    if (size == 0 || known.find(static_cast<char>(*data)) == known.npos) return -1; // not worth keeping
    const std::string name = "the component";
    std::string file(data + 1, data + size);
    try {
        if (*data == 'M') mend(file);
        if (*data == 'T')
            readLibrary(name, {data + 1, data + size});
        else if (*data == 'V')
            readVersion(name, {data + 1, data + size});
        else
            readFile(file);
    } catch (const Failure& failure) {
        fuzz::require(failure.status() == Status::BadComponent &&
                          std::string_view(failure.what()).find(": at offset ") != std::string_view::npos,
                      std::string("a refusal tells the place: ") + failure.what());
    }
    return 0;
}
