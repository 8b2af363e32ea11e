// A host in typed C++: places an OK/Cancel pair, hears its events and does what a user would.
#include "library/ZilvoButtons.h"
#include "platform/component/ControlHost.h"

#include <iostream>

int main() {
    const auto buttons = zilvo::create<zilvo::ssOKCancel>();
    const auto ok = buttons->OKWasClicked.attach([] { std::cout << "OK was clicked\n"; });
    const auto cancel = buttons->CancelWasClicked.attach([] { std::cout << "Cancel was clicked\n"; });

    zilvo::platform::ControlHost host(buttons);
    host.open();
    buttons->put_OKEnabled(true);
    host.click(u"cmdOK");
    host.input(zilvo::platform::input::KeyTyped{27});

    zilvo::platform::MemoryPropertyBag settings;
    host.save(settings);
    std::cout << settings.settings().size() << " settings saved\n";
}
