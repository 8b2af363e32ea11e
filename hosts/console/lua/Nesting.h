#pragma once

#include <string>
#include <string_view>

namespace zilvo::console {

inline constexpr std::string_view Comment = "--";

/// Where the word, the text in quotes or the single character ends that `text` begins with; behind the end of `text`
/// when quotes are missing.
std::size_t tokenLength(std::string_view text);

/// Counts, line by line, what is open at the end of a piece of Lua: blocks, brackets, long texts and comments. While
/// something is, the piece cannot be whole; to compile it anew with each line would take ever longer.
class Nesting {
public:
    void read(std::string_view line);
    bool isOpen() const noexcept { return depth_ > 0 || !ending_.empty(); }

private:
    int depth_ = 0;
    std::string ending_; ///< of the long text or comment that goes on in the next line: "]==]"
};

} // namespace zilvo::console
