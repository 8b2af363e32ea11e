#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zilvo::platform {

/// The kind a value has. The order is that of the alternatives of `Variant`.
enum class Kind : std::uint8_t {
    Empty,   ///< no value
    Missing, ///< an optional argument that was left out
    Boolean,
    Integer,
    Long,
    Single,
    String,
    Colour,
    Font,
    BooleanArray,
};

/// The value kinds that properties, arguments and saved settings are made of. A `bool` is the Boolean of the
/// typed interface; `Boolean` is the 16-bit one of variants, arrays and by-reference arguments.
using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
using String = std::u16string;
using StringView = std::u16string_view;

/// True is all bits set; any other non-zero value that is read counts as True.
enum class Boolean : std::int16_t { False = 0, True = -1 };

constexpr Boolean asBoolean(bool value) noexcept {
    return value ? Boolean::True : Boolean::False;
}
constexpr bool isTrue(Boolean value) noexcept {
    return value != Boolean::False;
}

/// 0x00BBGGRR, or the top bit set and the index of a system colour in the low byte.
struct Colour {
    std::uint32_t value = 0;

    friend constexpr bool operator==(Colour, Colour) noexcept = default;
    constexpr bool isSystem() const noexcept { return (value & 0x80000000U) != 0; }
};

namespace colours {
inline constexpr Colour Black{0x00000000};
inline constexpr Colour White{0x00FFFFFF};
inline constexpr Colour LightGrey{0x00C0C0C0};
inline constexpr Colour Menu{0x80000004};
inline constexpr Colour WindowBackground{0x80000005};
inline constexpr Colour WindowFrame{0x80000006};
inline constexpr Colour MenuText{0x80000007};
inline constexpr Colour WindowText{0x80000008};
inline constexpr Colour Highlight{0x8000000D};
inline constexpr Colour HighlightText{0x8000000E};
inline constexpr Colour ButtonFace{0x8000000F};
inline constexpr Colour ButtonShadow{0x80000010};
inline constexpr Colour GreyText{0x80000011};
inline constexpr Colour ButtonText{0x80000012};
inline constexpr Colour ButtonHighlight{0x80000014};
inline constexpr Colour ButtonDarkShadow{0x80000015};
inline constexpr Colour ButtonLight{0x80000016};
} // namespace colours

/// The kind's published name: "Boolean", "Integer", "Font"; an array is "Boolean()".
StringView nameOf(Kind kind) noexcept;

} // namespace zilvo::platform
