// A control loads whatever settings it is given or fails, and saves what it was loaded with.
#include "tests/fuzz/Fuzz.h"
#include "zilvo/platform/component/ControlHost.h"

using namespace zilvo;
using platform::ControlHost;
using platform::MemoryPropertyBag;

namespace {

using Defaults = MemoryPropertyBag::Defaults;

std::string shown(const MemoryPropertyBag& bag) {
    std::string text;
    for (const auto& [name, value] : bag.settings())
        text += platform::toUtf8(name) + " = " + platform::describe(value) + "\n";
    return text;
}

bool isSame(const MemoryPropertyBag& one, const MemoryPropertyBag& other) {
    return std::ranges::equal(one.settings(), other.settings(), [](const auto& left, const auto& right) {
        return left.name == right.name && left.value.kind() == right.value.kind() &&
               platform::equalByValue(left.value, right.value);
    });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    {
        fuzz::Input in(data, size);
        const Ref<Object> object = in.object();
        if (!object->hostedControl()) return 0;
        const auto another = [&] {
            ComponentModule& module = object->module();
            return module.description().find(object->description().name)->create(module);
        };
        MemoryPropertyBag known(Defaults::Kept);
        {
            ControlHost host(another());
            host.open();
            host.save(known);
        }

        MemoryPropertyBag given;
        for (const auto& [name, value] : known.settings())
            if (in.ConsumeBool()) given.set(name, in.value().value());
        while (in.ConsumeBool())
            given.set(in.text(), in.value().value());
        const auto defaults = in.ConsumeBool() ? Defaults::Kept : Defaults::LeftOut;
        MemoryPropertyBag first(defaults);
        MemoryPropertyBag second(defaults);
        ControlHost host(object);
        if (fuzz::attempt([&] { host.open(&given); })) {
            host.save(first);
            ControlHost loaded(another());
            loaded.open(&first);
            loaded.save(second);
            fuzz::require(isSame(first, second), "saved settings are loaded and saved again as they were:\n" +
                                                     shown(first) + "and then\n" + shown(second));
        }
    }
    fuzz::requireNothingAlive();
    return 0;
}
