#pragma once

#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/values/Conversions.h"

namespace zilvo {

/// What a host heard, in order: "CommandClicked(0)", "RibbonClicked(1, -1)", "SpunUp()".
class EventLog {
public:
    using Entries = std::vector<std::string>;

    /// Attaches to every event of the control.
    explicit EventLog(platform::ControlHost& host) {
        for (const platform::EventDescription& event : host.object().description().events)
            host.on(event.name, [this, name = event.name](std::span<platform::Variant> arguments) {
                entries_.push_back(entry(name, arguments));
            });
    }
    EventLog(const EventLog&) = delete;
    EventLog& operator=(const EventLog&) = delete;
    ~EventLog() = default;

    /// What was heard since the last call.
    Entries take() { return std::exchange(entries_, {}); }

private:
    static std::string entry(platform::StringView name, std::span<const platform::Variant> arguments) {
        std::string text = platform::toUtf8(name) + "(";
        for (const platform::Variant& argument : arguments)
            text += (text.back() == '(' ? "" : ", ") + platform::toUtf8(platform::toString(argument));
        return text + ")";
    }

    Entries entries_;
};

} // namespace zilvo
