// Any text as the file of a registration store: it is refused, or read, written and changed without loss. Its bytes are
// moreover names that a component registers.
#include "tests/fuzz/Fuzz.h"
#include "zilvo/platform/component/RegistrationStore.h"
#include "zilvo/platform/component/RegistrationText.h"

#include <fstream>

using namespace zilvo;
using platform::Registration;
using platform::RegistrationStore;

namespace {

std::vector<Registration> readBack(std::span<const Registration> registrations) {
    return platform::registrationsIn(textOf(registrations), "a store as it is written");
}

void change(const std::string& text, const Registration& newcomer) {
    const std::filesystem::path file = "registrations.fuzzed"; // in the working folder
    std::ofstream(file, std::ios::binary) << text;
    RegistrationStore store(file);
    store.add(newcomer);
    fuzz::require(store.find(newcomer.file) == newcomer, "what is added is found");
    const bool wasThere = store.remove(newcomer.file);
    fuzz::require(wasThere && !store.find(newcomer.file), "what is removed is gone");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    Registration newcomer = registrationOf(galleryModule().description(), "/lib/Gallery.Ocx");
    newcomer.library->helpString = platform::toUtf16(text);
    newcomer.classes.front().name = newcomer.library->helpString;
    fuzz::require(readBack({&newcomer, 1}).front() == newcomer, "any name is read as it is written");

    std::optional<std::vector<Registration>> all;
    fuzz::attempt([&] { all = platform::registrationsIn(text, "a store"); });
    if (!all) return 0;
    fuzz::require(readBack(*all) == all, "a store is read as it is written");
    fuzz::attempt([&] { change(text, newcomer); });
    return 0;
}
