// A host that knows no header of the controls and not where their component lies: only what is published.
#include "zilvo/platform/component/Components.h"
#include "zilvo/platform/component/ControlHost.h"
#include <iostream>

using namespace zilvo::platform;

int main() try {
    Components components;
    ControlHost host(components.create(u"ZILVO_ZilvoButtons.DeckButtons"));
    host.on(u"NumberOfDecksChanged", [](std::span<Variant> arguments) {
        std::cout << "the table has " << toInteger(arguments[0]) << " decks\n";
    });
    host.open();
    host.put(u"NumberOfDecks", Integer{6});
    host.click(u"optDeckCount", 8);

    Variant decks; // the same by member id, as a compiled host calls
    constexpr MemberId NumberOfDecks = 0x68030001;
    ErrorInfo error;
    throwUnlessOk(host.object().Invoke(NumberOfDecks, Access::Get, {}, &decks, &error), error);
    std::cout << "NumberOfDecks is " << toInteger(decks) << '\n';
} catch (const Failure& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
}
