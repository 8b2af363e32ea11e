#include "zilvo/platform/component/ComponentFile.h"
#include "zilvo/platform/component/ComponentRuntime.h"
#include "zilvo/platform/component/Files.h"

#include <iostream>

/// zilvo-seal COMPONENT SECTION: loads a component that has just been linked and writes what it says of itself, its
/// resources, into the file SECTION. The build then adds that to the component as a section.
int main(int argc, char** argv) try {
    using namespace zilvo::platform;
    if (argc != 3) {
        std::cerr << "Usage: zilvo-seal COMPONENT SECTION\n";
        return 1;
    }
    const LoadedComponent component(argv[1]);
    const Bytes section = resourceSection(resourcesOf(component.description()));
    writeFile(argv[2], std::string(section.begin(), section.end()));
    return 0;
} catch (const std::exception& exception) {
    std::cerr << "zilvo-seal: " << exception.what() << '\n';
    return 1;
}
