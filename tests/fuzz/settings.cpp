// A control loads whatever settings it is given or fails, and saves what it was loaded with.
#include "tests/fuzz/Saved.h"

using namespace zilvo;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    {
        fuzz::Input in(data, size);
        const Ref<Object> object = in.object();
        if (!object->hostedControl()) return -1; // not worth keeping
        platform::MemoryPropertyBag known(platform::MemoryPropertyBag::Defaults::Kept);
        platform::ControlHost other(fuzz::another(*object));
        other.open();
        other.save(known);

        platform::MemoryPropertyBag given;
        for (const auto& [name, value] : known.settings())
            if (in.ConsumeBool()) given.set(name, in.value().value());
        while (in.ConsumeBool())
            given.set(in.text(), in.value().value());
        platform::ControlHost host(object);
        if (fuzz::attempt([&] { host.open(&given); })) fuzz::requireSavedWhole(host);
    }
    fuzz::requireNothingAlive();
    return 0;
}
