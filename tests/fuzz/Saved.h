#pragma once

#include "tests/fuzz/Fuzz.h"
#include "zilvo/platform/component/ControlHost.h"

namespace zilvo::fuzz {

/// A fresh instance of the same class.
inline Ref<Object> another(Object& object) {
    return object.module().description().find(object.description().name)->create(object.module());
}

inline std::string shown(const platform::MemoryPropertyBag& settings) {
    std::string text;
    for (const auto& [name, value] : settings.settings())
        text += platform::toUtf8(name) + " = " + platform::describe(value) + "\n";
    return text;
}

/// What the control saves, another loads and saves again.
inline void requireSavedWhole(platform::ControlHost& host) {
    constexpr auto kept = platform::MemoryPropertyBag::Defaults::Kept; // those that the host gives, too
    platform::MemoryPropertyBag first(kept);
    if (!attempt([&] { host.save(first); })) return; // it is too early or too late for that
    platform::ControlHost loaded(another(host.object()));
    if (!attempt([&] { loaded.open(&first); }))
        return require(&host.object().module() == &galleryModule(),
                       "what a control saves can be loaded:\n" + shown(first));
    platform::MemoryPropertyBag second(kept);
    loaded.save(second);
    require(shown(first) == shown(second),
            "settings are saved as they were loaded:\n" + shown(first) + "\n" + shown(second));
}

} // namespace zilvo::fuzz
