#pragma once

#include "zilvo/platform/values/Bytes.h"
#include "zilvo/platform/values/Guid.h"
#include "zilvo/platform/values/Status.h"

#include <deque>
#include <span>

namespace zilvo::platform {

/// Takes numbers and texts out of bytes that came from a component file, one after the other. Nothing is believed:
/// what is not there, or is not what it must be, fails with BadComponent and the offset in the file.
class ByteReader {
public:
    /// `at` is where the bytes lie in the file. The file's name, the bytes and the texts must stay.
    ByteReader(const std::string& file, std::uint64_t at, std::span<const std::uint8_t> bytes) noexcept
        : file_(file), start_(at), bytes_(bytes) {}

    /// Where the next byte lies in the file.
    std::uint64_t offset() const noexcept { return start_ + taken_; }
    std::size_t left() const noexcept { return bytes_.size() - taken_; }
    bool isAtEnd() const noexcept { return left() == 0; }

    std::span<const std::uint8_t> take(std::size_t count);
    /// So many bytes, to be read apart.
    ByteReader part(std::size_t count) {
        const auto at = offset();
        return {file_, at, take(count)};
    }
    /// Goes on at the next multiple of so many bytes from the first.
    void align(std::size_t multiple) { take((multiple - taken_ % multiple) % multiple); }

    /// Little-endian.
    template <class Number>
    Number number() {
        std::uint64_t value = 0;
        unsigned shift = 0;
        for (const std::uint8_t byte : take(sizeof(Number))) {
            value |= std::uint64_t{byte} << shift;
            shift += 8;
        }
        return static_cast<Number>(value);
    }
    /// So many UTF-16 units, the low byte of each first.
    String text(std::size_t length);
    Guid id();

    /// Fails at the offset.
    [[noreturn]] void refuse(const std::string& why) const { refuse(file_, offset(), why); }
    [[noreturn]] static void refuse(const std::string& file, std::uint64_t offset, const std::string& why);
    /// Fails unless all bytes were taken.
    void finish() const {
        if (!isAtEnd()) refuse(std::to_string(left()) + " bytes too many");
    }

private:
    const std::string& file_;
    std::uint64_t start_;
    std::span<const std::uint8_t> bytes_;
    std::size_t taken_ = 0;
};

} // namespace zilvo::platform
