#pragma once

#include "zilvo/platform/component/ComponentFile.h"

#include <filesystem>

namespace zilvo::console {

/// One line for each resource: type, name, number of bytes; below them the strings of the version record.
std::string resourceTable(const platform::ComponentFile& component);

/// Writes the resources of those names, or all when there are none, byte for byte into files of the directory:
/// "BITMAP-30015.dib", "RCDATA-_IID_SSOKCANCEL.bin", "VERSION-1.bin", "TYPELIB-1.bin". Fails with Failed for an unknown
/// name, before anything is written.
void extractResources(const platform::ComponentFile& component, const std::vector<std::string>& names,
                      const std::filesystem::path& directory);

} // namespace zilvo::console
