#include "zilvo/platform/hosting/Input.h"

#include "zilvo/platform/values/Text.h"

#include <array>

namespace zilvo::platform {

namespace {

template <class Value>
struct Named {
    StringView name;
    Value value;
};

constexpr std::array<Named<Integer>, 4> modifiers = {{
    {u"Shift+", input::ShiftMask},
    {u"Ctrl+", input::CtrlMask},
    {u"Control+", input::CtrlMask},
    {u"Alt+", input::AltMask},
}};

constexpr std::array<Named<input::Key>, 11> keys = {{
    {u"Tab", input::Key::Tab},
    {u"Enter", input::Key::Enter},
    {u"Return", input::Key::Enter},
    {u"Escape", input::Key::Escape},
    {u"Esc", input::Key::Escape},
    {u"Space", input::Key::Space},
    {u"Up", input::Key::Up},
    {u"Down", input::Key::Down},
    {u"Left", input::Key::Left},
    {u"Right", input::Key::Right},
    {u"Menu", input::Key::Menu},
}};

} // namespace

std::optional<input::KeyDown> parseKey(StringView text) {
    input::KeyDown key{input::Key::Character};
    for (bool found = true; found;) {
        found = false;
        for (const auto& modifier : modifiers) {
            if (text.size() <= modifier.name.size()) continue;
            if (!sameName(text.substr(0, modifier.name.size()), modifier.name)) continue;
            key.shift = static_cast<Integer>(key.shift | modifier.value);
            text.remove_prefix(modifier.name.size());
            found = true;
        }
    }
    for (const auto& named : keys) {
        if (!sameName(text, named.name)) continue;
        key.key = named.value;
        return key;
    }
    if (text.size() != 1) return std::nullopt;
    key.character = text.front();
    if (key.character == u' ') key.key = input::Key::Space;
    return key;
}

} // namespace zilvo::platform
