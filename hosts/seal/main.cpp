#include "zilvo/platform/component/ComponentFile.h"
#include "zilvo/platform/component/ComponentRuntime.h"
#include "zilvo/platform/component/Files.h"

#include <cstring>
#include <iostream>

/// The build then adds the file SECTION to the component as a section.
constexpr const char* Help =
    "Usage: zilvo-seal COMPONENT SECTION\n"
    "Loads a component that has just been linked and writes what it says of itself, its resources, into a file.\n";

int main(int argc, char** argv) try {
    using namespace zilvo::platform;
    if (argc != 3) {
        const bool isAsked = argc == 2 && std::strcmp(argv[1], "--help") == 0;
        (isAsked ? std::cout : std::cerr) << Help;
        return isAsked ? 0 : 1;
    }
    const LoadedComponent component(argv[1]);
    const Bytes section = resourceSection(resourcesOf(component.description()));
    writeFile(argv[2], std::string(section.begin(), section.end()));
    return 0;
} catch (const std::exception& exception) {
    std::cerr << "zilvo-seal: " << exception.what() << '\n';
    return 1;
}
