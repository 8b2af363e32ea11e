#include "hosts/console/lua/Nesting.h"

#include "hosts/console/lua/LuaWords.h"

#include <algorithm>
#include <array>

namespace zilvo::console {

namespace {

constexpr std::array<std::string_view, 7> openings = {"function", "if", "do", "repeat", "(", "[", "{"};
constexpr std::array<std::string_view, 5> endings = {"end", "until", ")", "]", "}"};

/// "]==]" for what begins with "[==["; else empty.
std::string endingOf(std::string_view text) {
    const auto inner = text.find_first_not_of('=', 1);
    if (!text.starts_with('[') || inner == std::string_view::npos || text[inner] != '[') return {};
    return "]" + std::string(inner - 1, '=') + "]";
}

} // namespace

std::size_t tokenLength(std::string_view text) {
    std::size_t end = 1;
    if (text.front() == '"' || text.front() == '\'') {
        while (end < text.size() && text[end] != text.front())
            end += text[end] == '\\' ? 2 : 1;
        return end + 1;
    }
    while (isOfWord(text.front()) && end < text.size() && isOfWord(text[end]))
        ++end;
    return end;
}

void Nesting::read(std::string_view line) {
    const auto skip = [&](std::size_t length) { line.remove_prefix(std::min(length, line.size())); };
    while (!line.empty()) {
        if (!ending_.empty()) {
            const auto found = line.find(ending_);
            if (found == std::string_view::npos) return;
            skip(found + ending_.size());
            ending_.clear();
            continue;
        }
        const bool comment = line.starts_with(Comment);
        if (comment) skip(Comment.size());
        ending_ = endingOf(line);
        if (comment && ending_.empty()) return;
        const auto token = line.substr(0, ending_.empty() ? tokenLength(line) : ending_.size());
        const auto countIn = [&](const auto& words) {
            return static_cast<int>(std::count(words.begin(), words.end(), token));
        };
        if (ending_.empty()) depth_ += countIn(openings) - countIn(endings);
        skip(token.size());
    }
}

} // namespace zilvo::console
