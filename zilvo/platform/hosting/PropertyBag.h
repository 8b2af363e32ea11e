#pragma once

#include "zilvo/platform/values/Conversions.h"

#include <optional>
#include <vector>

namespace zilvo::platform {

/// The host's store of one instance's saved settings. A control sees it only while it loads and saves.
class PropertyBag {
public:
    PropertyBag() = default;
    PropertyBag(const PropertyBag&) = delete;
    PropertyBag& operator=(const PropertyBag&) = delete;
    virtual ~PropertyBag() = default;

    /// The value stored under the name, or the default when there is none. A font is a copy either way, and so is one
    /// that is written: what a control does with it changes no saved setting.
    Variant ReadProperty(StringView name, const Variant& defaultValue) const;
    /// The same, converted; the message of a failing conversion names the key.
    template <class T>
    T ReadProperty(StringView name, const Variant& defaultValue) const {
        return convert<T>(ReadProperty(name, defaultValue), name);
    }
    /// A value that equals its default may be left out of the store; it reads back the same with that default.
    void WriteProperty(StringView name, const Variant& value, const Variant& defaultValue);
    /// Without a default the value is always stored.
    void WriteProperty(StringView name, const Variant& value);

private:
    /// A store reports that it cannot read or write by throwing a Failure.
    virtual std::optional<Variant> read(StringView name) const = 0;
    virtual void write(StringView name, const Variant& value, bool equalsDefault) = 0;
};

/// Settings in memory, in the order of their first writing; names compare without case.
class MemoryPropertyBag final : public PropertyBag {
public:
    enum class Defaults : std::uint8_t { LeftOut, Kept };
    struct Setting {
        String name;
        Variant value;
    };

    explicit MemoryPropertyBag(Defaults defaults = Defaults::LeftOut) : defaults_(defaults) {}

    const std::vector<Setting>& settings() const noexcept { return settings_; }
    void set(StringView name, Variant value);

private:
    std::optional<Variant> read(StringView name) const override;
    void write(StringView name, const Variant& value, bool equalsDefault) override;

    Defaults defaults_;
    std::vector<Setting> settings_;
};

} // namespace zilvo::platform
