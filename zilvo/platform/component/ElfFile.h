#pragma once

#include "zilvo/platform/values/Bytes.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

namespace zilvo::platform {

/// A loadable module of this machine as a file, of which nothing is run. Its headers are checked when it is opened: the
/// loader maps what they promise and dies when the file ends before that.
class ElfFile {
public:
    /// Fails with FileNotFound, or with BadComponent for what cannot be read, is no module of this machine, or is cut
    /// short; the message names the offset.
    explicit ElfFile(const std::filesystem::path& file);

    struct Section {
        std::uint64_t offset; ///< in the file
        Bytes bytes;
    };
    /// Null when there is none of that name. Fails with BadComponent when it is cut short, or larger than `limit`.
    std::optional<Section> section(const std::string& name, std::uint64_t limit);

    const std::string& name() const noexcept { return name_; }

private:
    /// Fails unless the file has so many bytes from there on.
    void require(std::uint64_t offset, std::uint64_t size, const std::string& what) const;
    Bytes read(std::uint64_t offset, std::uint64_t size, const std::string& what);
    template <class Structure>
    Structure structure(std::uint64_t offset, const std::string& what);

    struct SectionHeader {
        std::uint64_t name; ///< where it stands in the file
        std::uint64_t offset;
        std::uint64_t size;
    };

    std::string name_;
    std::ifstream in_;
    std::uint64_t size_ = 0;
    std::vector<SectionHeader> sections_;
};

} // namespace zilvo::platform
