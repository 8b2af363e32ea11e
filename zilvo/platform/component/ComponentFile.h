#pragma once

#include "zilvo/platform/component/Resources.h"
#include "zilvo/platform/component/TypeLibrary.h"
#include "zilvo/platform/component/VersionResource.h"

#include <filesystem>

namespace zilvo::platform {

/// What a component file says of itself, read without running any of it: its resources lie in a section of the file.
class ComponentFile {
public:
    static constexpr const char* SectionName = ".zilvo";

    /// Fails with FileNotFound, or with BadComponent for a file that cannot be read, is no component of this machine,
    /// is cut short, was altered or has no such section; the message names the offset.
    explicit ComponentFile(const std::filesystem::path& file);
    ComponentFile(const ComponentFile&) = delete;
    ComponentFile& operator=(const ComponentFile&) = delete;

    /// Absolute.
    const std::filesystem::path& file() const noexcept { return file_; }
    /// Its accessors, events and creators fail; see TypeLibrary.
    const ComponentDescription& description() const noexcept { return library_.description(); }
    /// As resourcesOf() gives them of the loaded component.
    std::span<const Resource> resources() const noexcept { return content_.resources; }

private:
    /// The resources, and where the bytes of each lie in the file.
    struct Content {
        std::vector<Resource> resources;
        std::vector<std::uint64_t> offsets;
    };
    static Content contentOf(const std::string& name);
    /// Fails with BadComponent when there is none.
    ByteReader resource(StringView type) const;

    std::filesystem::path file_;
    std::string name_; ///< for messages
    Content content_;
    VersionResource version_;
    TypeLibrary library_;
};

/// The content of the section that carries those resources; docs/component-file.md describes it.
Bytes resourceSection(std::span<const Resource> resources);

} // namespace zilvo::platform
