#pragma once

#include "zilvo/platform/values/Text.h"

#include <algorithm>
#include <vector>

namespace zilvo::fuzz {

/// Whether a text is a whole XML document as far as the library writes any: tags that match, nothing else that could be
/// taken for one or for an entity, and what an XML document may hold, in UTF-8.
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
        const auto tag = document.substr(begin + 1, end - begin - 1);
        const auto name = tag.substr(0, tag.find(' '));
        document.remove_prefix(end + 1);
        if (!tag.starts_with('/')) {
            if (!tag.ends_with('/')) open.push_back(name);
        } else if (open.empty() || name.substr(1) != open.back()) {
            return false;
        } else {
            open.pop_back();
        }
    } while (!open.empty());
    return document == "\n";
}

} // namespace zilvo::fuzz
