#pragma once

#include "zilvo/platform/values/Text.h"

#include <algorithm>
#include <string>
#include <vector>

namespace zilvo::fuzz {

/// Takes an XML document apart as far as the library writes any: elements, attributes, text.
class Markup {
public:
    explicit Markup(std::string_view text) noexcept : left_(text) {}

    /// One element with all that is in it, and nothing behind it.
    bool isDocument() { return takeElements() == 1 && isGood_ && left_.find_first_not_of('\n') == left_.npos; }

private:
    bool take(std::string_view wanted) {
        if (!left_.starts_with(wanted)) return false;
        left_.remove_prefix(wanted.size());
        return true;
    }
    std::string_view takeName() {
        const auto end = std::min(left_.find_first_of(" \n/>=\"<&'"), left_.size());
        const auto name = left_.substr(0, end);
        left_.remove_prefix(end);
        isGood_ = isGood_ && !name.empty();
        return name;
    }
    /// Up to one of the ends, which stays. Each & begins an entity that is known.
    void takeText(std::string_view ends) {
        while (!left_.empty() && ends.find(left_.front()) == ends.npos) {
            if (left_.front() == '&')
                isGood_ = isGood_ && (take("&amp;") || take("&lt;") || take("&gt;") || take("&quot;"));
            else if (left_.front() == '<')
                isGood_ = false;
            else
                left_.remove_prefix(1);
            if (!isGood_) return;
        }
    }
    void takeAttributes() {
        std::vector<std::string_view> names;
        while (isGood_ && (take(" ") || take("\n"))) {
            names.push_back(takeName());
            isGood_ = isGood_ && std::ranges::count(names, names.back()) == 1 && take("=\"");
            takeText("\"");
            isGood_ = isGood_ && take("\"");
        }
    }
    /// Up to the end of the element that they stand in; how many there were.
    std::size_t takeElements() {
        std::size_t count = 0;
        for (takeText("<"); isGood_ && !left_.starts_with("</") && take("<"); takeText("<")) {
            ++count;
            const auto name = takeName();
            takeAttributes();
            if (!isGood_ || take("/>")) continue;
            isGood_ = take(">");
            takeElements();
            isGood_ = isGood_ && take("</") && take(name) && take(">");
        }
        return count;
    }

    std::string_view left_;
    bool isGood_ = true;
};

inline bool isWellFormed(std::string_view document) {
    const String text = platform::toUtf16(document);
    const auto isCharacter = [](char16_t unit) { return (unit >= 0x20 || unit == u'\n') && unit < 0xFFFE; };
    return platform::toUtf8(text) == document && std::ranges::all_of(text, isCharacter) &&
           Markup(document).isDocument();
}

} // namespace zilvo::fuzz
