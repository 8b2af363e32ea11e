#pragma once

#include "zilvo/platform/values/Text.h"

#include <algorithm>
#include <set>
#include <vector>

namespace zilvo::fuzz {

/// Whether what stands between the brackets of a start tag is a name, then attributes, each once. Takes what it finds
/// off the front: at the end a slash is left, or nothing.
inline bool takeStartTag(std::string_view& tag, std::string_view& name) {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ:-";
    const auto take = [&](std::size_t count) {
        const auto taken = tag.substr(0, count);
        tag.remove_prefix(taken.size());
        return taken;
    };
    name = take(tag.find_first_not_of(letters));
    std::set<std::string_view> attributes;
    while (tag.starts_with(' ')) {
        take(1);
        const auto attribute = take(tag.find_first_not_of(letters));
        if (attribute.empty() || !attributes.insert(attribute).second || take(2) != "=\"") return false;
        take(tag.find('"'));
        if (take(1).empty()) return false;
    }
    return !name.empty() && (tag.empty() || tag == "/");
}

/// Whether a text is an XML document as the library writes them: elements with attributes, and text; UTF-8.
inline bool isWellFormed(std::string_view document) {
    const String text = platform::toUtf16(document);
    const auto isCharacter = [](char16_t unit) { return (unit >= 0x20 && unit < 0xFFFE) || unit == u'\n'; };
    if (platform::toUtf8(text) != document || !std::ranges::all_of(text, isCharacter)) return false;
    for (auto at = document.find('&'); at != document.npos; at = document.find('&', at + 1))
        if (const auto entity = document.substr(at, document.find(';', at) - at);
            entity != "&amp" && entity != "&lt" && entity != "&gt" && entity != "&quot")
            return false;

    std::vector<std::string_view> open;
    do {
        const auto begin = document.find_first_of("<>");
        const auto end = document.find_first_of("<>", begin + 1);
        if (end == document.npos || document[begin] != '<' || document[end] != '>') return false;
        auto tag = document.substr(begin + 1, end - begin - 1);
        document.remove_prefix(end + 1);
        std::string_view name;
        if (tag.starts_with('/')) {
            if (open.empty() || tag.substr(1) != open.back()) return false;
            open.pop_back();
        } else if (!takeStartTag(tag, name)) {
            return false;
        } else if (tag.empty()) {
            open.push_back(name);
        }
    } while (!open.empty());
    return document == "\n";
}

} // namespace zilvo::fuzz
