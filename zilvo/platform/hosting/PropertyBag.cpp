#include "zilvo/platform/hosting/PropertyBag.h"

#include "zilvo/platform/values/StdFont.h"
#include "zilvo/platform/values/Text.h"

#include <algorithm>

namespace zilvo::platform {

namespace {

Variant ownCopy(const Variant& value) {
    const FontRef* font = value.find<FontRef>();
    return font ? Variant(StdFont::copyOf(*font)) : value.value();
}

} // namespace

Variant PropertyBag::ReadProperty(StringView name, const Variant& defaultValue) const {
    const auto stored = read(name);
    return ownCopy(stored ? *stored : defaultValue);
}

void PropertyBag::WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) {
    write(name, ownCopy(value), equalByValue(value, defaultValue));
}

void PropertyBag::WriteProperty(StringView name, const Variant& value) {
    write(name, ownCopy(value), false);
}

void MemoryPropertyBag::set(StringView name, Variant value) {
    const auto at = std::find_if(settings_.begin(), settings_.end(),
                                 [&](const Setting& setting) { return sameName(setting.name, name); });
    if (at != settings_.end())
        at->value = std::move(value);
    else
        settings_.push_back({String(name), std::move(value)});
}

std::optional<Variant> MemoryPropertyBag::read(StringView name) const {
    for (const Setting& setting : settings_)
        if (sameName(setting.name, name)) return setting.value;
    return std::nullopt;
}

void MemoryPropertyBag::write(StringView name, const Variant& value, bool equalsDefault) {
    if (!equalsDefault || defaults_ == Defaults::Kept) {
        set(name, value);
    } else {
        std::erase_if(settings_, [&](const Setting& setting) { return sameName(setting.name, name); });
    }
}

} // namespace zilvo::platform
