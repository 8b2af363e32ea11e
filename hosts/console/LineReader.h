#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>

namespace zilvo::console {

class Interrupts;

/// A line of a conversation, or why there is none.
struct Typed {
    enum class How : std::uint8_t { Line, Dropped, End } how;
    std::string line;
};

/// Where the lines of a conversation come from.
class LineReader {
public:
    LineReader() = default;
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;
    virtual ~LineReader() = default;

    /// Prompts are for people.
    virtual Typed read(const std::string& prompt) = 0;
    /// Whether whoever types has had enough of what runs; null where the program as a whole is interrupted.
    virtual const Interrupts* interrupts() const noexcept { return nullptr; }
};

/// Lines as they come.
class StreamReader final : public LineReader {
public:
    StreamReader(std::istream& in, bool prompts) : in_(in), prompts_(prompts) {}

    Typed read(const std::string& prompt) override;

private:
    std::istream& in_;
    bool prompts_;
};

} // namespace zilvo::console
