#pragma once

#include "zilvo/platform/values/Text.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace zilvo::platform {

/// Whether what follows a tag's name are attributes, each with its value between quotes.
inline bool areAttributes(std::string_view text) {
    while (!text.empty()) {
        const auto value = text.find("=\"");
        const auto end = text.find('"', value == text.npos ? value : value + 2);
        if (!text.starts_with(' ') || end == text.npos) return false;
        const auto isOfAName = [](char unit) { return std::isalpha(unit) != 0 || unit == '-' || unit == ':'; };
        if (!std::ranges::all_of(text.substr(1, value - 1), isOfAName)) return false;
        text.remove_prefix(end + 1);
    }
    return true;
}

/// Whether a text is a whole XML document as far as the library writes any: tags that match, with attributes between
/// quotes, nothing else that could be taken for one or for an entity, and what an XML document may hold, in UTF-8.
inline bool isWellFormed(std::string_view document) {
    const String text = toUtf16(document);
    const auto isCharacter = [](char16_t unit) { return (unit >= 0x20 && unit < 0xFFFE) || unit == u'\n'; };
    if (toUtf8(text) != document || !std::ranges::all_of(text, isCharacter)) return false;
    for (auto at = document.find('&'); at != document.npos; at = document.find('&', at + 1))
        if (const auto entity = document.substr(at, document.find(';', at) - at);
            entity != "&amp" && entity != "&lt" && entity != "&gt" && entity != "&quot")
            return false;

    std::vector<std::string_view> open;
    do {
        const auto begin = document.find_first_of("<>");
        const auto end = document.find_first_of("<>", begin + 1);
        if (end == document.npos || document[begin] != '<' || document[end] != '>') return false;
        const auto tag = document.substr(begin + 1, end - begin - 1);
        const bool isWhole = tag.ends_with('/');
        const auto name = tag.substr(0, tag.find_first_of(isWhole ? " /" : " "));
        if (!areAttributes(tag.substr(name.size(), tag.size() - name.size() - (isWhole ? 1 : 0)))) return false;
        document.remove_prefix(end + 1);
        if (!tag.starts_with('/')) {
            if (!isWhole) open.push_back(name);
        } else if (open.empty() || name.substr(1) != open.back()) {
            return false;
        } else {
            open.pop_back();
        }
    } while (!open.empty());
    return document == "\n";
}

} // namespace zilvo::platform
