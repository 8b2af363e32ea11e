#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace zilvo::console {

inline constexpr std::array<std::string_view, 22> keywords = {
    "and", "break", "do",  "else", "elseif", "end",    "false",  "for",  "function", "goto",  "if",
    "in",  "local", "nil", "not",  "or",     "repeat", "return", "then", "true",     "until", "while"};

/// Whether the letter can stand in a name of Lua, or only behind its first.
constexpr bool isOfWord(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9') ||
           letter == '_';
}

/// Whether the text is a word that does not begin with a digit: a name or a keyword.
constexpr bool isWord(std::string_view text) {
    return !text.empty() && !(text.front() >= '0' && text.front() <= '9') &&
           std::all_of(text.begin(), text.end(), isOfWord);
}

constexpr bool isName(std::string_view text) {
    return isWord(text) && std::find(std::begin(keywords), std::end(keywords), text) == std::end(keywords);
}

} // namespace zilvo::console
