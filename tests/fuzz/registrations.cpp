// Any text as the file of a registration store: it is refused, or read, written and changed without loss. Its bytes are
// moreover names that a component registers.
#include "tests/fuzz/Fuzz.h"
#include "zilvo/platform/component/RegistrationText.h"

using namespace zilvo;
using platform::Registration;
using platform::Registrations;

namespace {

Registrations readBack(std::span<const Registration> registrations) {
    return platform::registrationsIn(textOf(registrations), "a store as it is written");
}

void change(Registrations all, const Registration& newcomer) {
    enter(newcomer, all);
    fuzz::require(readBack(all) == all && std::ranges::count(all, newcomer) == 1,
                  "what is entered is read as it is written");
    fuzz::require(takeOut(newcomer, all) == Registrations{newcomer}, "what was entered is taken out");
    fuzz::require(readBack(all) == all && takeOut(newcomer, all).empty(), "what was taken out is gone");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    Registration newcomer = registrationOf(galleryModule().description(), "/lib/Gallery.Ocx");
    newcomer.library->helpString = platform::toUtf16(text);
    newcomer.classes.front().name = newcomer.library->helpString;
    fuzz::require(readBack({&newcomer, 1}).front() == newcomer, "any name is read as it is written");

    std::optional<Registrations> all;
    fuzz::attempt([&] { all = platform::registrationsIn(text, "a store"); });
    if (!all) return 0;
    fuzz::require(readBack(*all) == all, "a store is read as it is written");
    change(*all, newcomer);
    return 0;
}
