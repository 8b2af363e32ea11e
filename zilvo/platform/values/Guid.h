#pragma once

#include "zilvo/platform/values/Kinds.h"

#include <array>
#include <compare>
#include <optional>

namespace zilvo::platform {

/// A 128-bit identifier, written in upper-case hexadecimal in braces.
struct Guid {
    std::uint32_t data1 = 0;
    std::uint16_t data2 = 0;
    std::uint16_t data3 = 0;
    std::array<std::uint8_t, 8> data4{};

    // NOLINTNEXTLINE(modernize-use-nullptr): clang-tidy takes what is compared for pointers
    friend constexpr std::strong_ordering operator<=>(const Guid&, const Guid&) noexcept = default;

    /// Reads "{78BA38B1-7CB9-47F3-A24F-FD60854497AE}"; the braces may be missing, the case does not matter.
    static constexpr std::optional<Guid> parse(std::string_view text) noexcept;
    std::string text() const;
};

namespace detail {

constexpr int hexDigit(char digit) noexcept {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    return -1;
}

} // namespace detail

constexpr std::optional<Guid> Guid::parse(std::string_view text) noexcept {
    if (text.size() == 38 && text.front() == '{' && text.back() == '}') text = text.substr(1, 36);
    if (text.size() != 36) return std::nullopt;
    std::array<std::uint8_t, 16> bytes{};
    std::size_t nibbles = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            if (text[i] != '-') return std::nullopt;
            continue;
        }
        const int digit = detail::hexDigit(text[i]);
        if (digit < 0) return std::nullopt;
        auto& byte = bytes[nibbles++ / 2];
        byte = static_cast<std::uint8_t>(byte * 16 + digit);
    }
    Guid guid;
    guid.data1 = (std::uint32_t{bytes[0]} << 24) | (std::uint32_t{bytes[1]} << 16) | (std::uint32_t{bytes[2]} << 8) |
                 std::uint32_t{bytes[3]};
    guid.data2 = static_cast<std::uint16_t>(bytes[4] * 256 + bytes[5]);
    guid.data3 = static_cast<std::uint16_t>(bytes[6] * 256 + bytes[7]);
    for (std::size_t i = 0; i < 8; ++i)
        guid.data4[i] = bytes[8 + i];
    return guid;
}

/// An identifier written in the source; a misspelled one does not compile.
consteval Guid operator""_guid(const char* text, std::size_t length) {
    return Guid::parse({text, length}).value();
}

} // namespace zilvo::platform
