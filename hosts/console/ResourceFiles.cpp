#include "hosts/console/ResourceFiles.h"

#include "zilvo/platform/component/Files.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace zilvo::console {

using namespace platform;

namespace {

std::string fileName(const Resource& resource) {
    const std::string type = toUtf8(resource.type);
    return type + "-" + toUtf8(resource.name) + (type == "BITMAP" ? ".dib" : ".bin");
}

} // namespace

std::string resourceTable(const ComponentFile& component) {
    std::ostringstream out;
    for (const Resource& resource : component.resources())
        out << std::left << std::setw(8) << toUtf8(resource.type) << std::setw(30) << toUtf8(resource.name)
            << std::right << std::setw(4) << resource.bytes.size() << " bytes\n";
    for (const VersionString& string : component.description().version.strings)
        out << "        " << toUtf8(string.key) << " = " << toUtf8(string.value) << '\n';
    return out.str();
}

void extractResources(const ComponentFile& component, const std::vector<std::string>& names,
                      const std::filesystem::path& directory) {
    const auto resources = component.resources();
    std::vector<const Resource*> chosen;
    for (const Resource& resource : resources)
        if (names.empty()) chosen.push_back(&resource);
    for (const std::string& name : names) {
        const auto at = std::find_if(resources.begin(), resources.end(),
                                     [&](const Resource& resource) { return sameName(resource.name, toUtf16(name)); });
        if (at == resources.end())
            throw Failure(Status::Failed, toUtf8(component.description().library.name) + " has no resource " + name);
        chosen.push_back(&*at);
    }
    makeFolder(directory);
    for (const Resource* resource : chosen)
        writeFile(directory / fileName(*resource), std::string(resource->bytes.begin(), resource->bytes.end()));
}

} // namespace zilvo::console
