#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ControlHost.h"
#include <iostream>

int main() {
    const auto pair = zilvo::create<zilvo::ssOKCancel>();
    const auto ok = pair->OKWasClicked.attach([] { std::cout << "OK was clicked\n"; });
    const auto cancel = pair->CancelWasClicked.attach([] { std::cout << "Cancel was clicked\n"; });

    zilvo::platform::ControlHost host(pair);
    host.open();
    pair->put_OKEnabled(true);
    host.click(u"cmdOK");
    host.input(zilvo::platform::input::KeyTyped{27});

    zilvo::platform::MemoryPropertyBag settings;
    host.save(settings);
    std::cout << settings.settings().size() << " settings saved\n";
}
