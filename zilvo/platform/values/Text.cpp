#include "zilvo/platform/values/Text.h"

namespace zilvo::platform {

namespace {

constexpr char32_t Replacement = 0xFFFD;

constexpr bool isHighSurrogate(char32_t unit) noexcept {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool isLowSurrogate(char32_t unit) noexcept {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void appendUtf8(std::string& out, char32_t point) {
    const auto tail = [&](unsigned shift) {
        out.push_back(static_cast<char>(0x80U | ((static_cast<std::uint32_t>(point) >> shift) & 0x3FU)));
    };
    const auto head = [&](std::uint32_t mark, unsigned shift) {
        out.push_back(static_cast<char>(mark | (static_cast<std::uint32_t>(point) >> shift)));
    };
    if (point < 0x80) {
        head(0, 0);
    } else if (point < 0x800) {
        head(0xC0, 6);
        tail(0);
    } else if (point < 0x10000) {
        head(0xE0, 12);
        tail(6);
        tail(0);
    } else {
        head(0xF0, 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

void appendUtf16(String& out, char32_t point) {
    if (point < 0x10000) {
        out.push_back(static_cast<char16_t>(point));
    } else {
        const char32_t offset = point - 0x10000;
        out.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
        out.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
    }
}

/// Reads one code point and moves `position` past it; a lone surrogate gives U+FFFD.
char32_t nextPoint(StringView text, std::size_t& position) noexcept {
    const char32_t unit = text[position++];
    if (isHighSurrogate(unit) && position < text.size() && isLowSurrogate(text[position]))
        return 0x10000 + ((unit - 0xD800) << 10) + (text[position++] - 0xDC00U);
    return isHighSurrogate(unit) || isLowSurrogate(unit) ? Replacement : unit;
}

/// The same of UTF-8; a malformed sequence gives one U+FFFD for its first byte.
char32_t nextPoint(std::string_view text, std::size_t& position) noexcept {
    const auto byteAt = [&](std::size_t at) { return static_cast<char32_t>(static_cast<unsigned char>(text[at])); };
    const char32_t lead = byteAt(position++);
    if (lead < 0x80) return lead;
    const unsigned count = lead >= 0xF0 && lead <= 0xF4 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : 0;
    if (count == 0 || lead > 0xF4 || position + count > text.size()) return Replacement;
    char32_t point = lead & (0x3FU >> count);
    for (unsigned i = 0; i < count; ++i) {
        const char32_t unit = byteAt(position + i);
        if ((unit & 0xC0U) != 0x80U) return Replacement;
        point = (point << 6) | (unit & 0x3FU);
    }
    constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    if (point < smallest[count] || point > 0x10FFFF || isHighSurrogate(point) || isLowSurrogate(point))
        return Replacement;
    position += count;
    return point;
}

constexpr char16_t folded(char16_t unit) noexcept {
    return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
}

} // namespace

std::string toUtf8(StringView text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
        appendUtf8(out, nextPoint(text, position));
    return out;
}

String toUtf16(std::string_view text) {
    String out;
    out.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
        appendUtf16(out, nextPoint(text, position));
    return out;
}

String firstCharacter(StringView text) {
    String out;
    std::size_t position = 0;
    if (!text.empty()) appendUtf16(out, nextPoint(text, position));
    return out;
}

bool sameLetters(StringView one, StringView other) noexcept {
    for (std::size_t i = 0; i < one.size(); ++i)
        if (one[i] != other[i] && folded(one[i]) != folded(other[i])) return false;
    return true;
}

Caption captionOf(StringView designed) {
    Caption caption;
    for (std::size_t i = 0; i < designed.size(); ++i) {
        if (designed[i] == u'&' && i + 1 < designed.size()) {
            ++i;
            if (designed[i] != u'&' && caption.underlined == String::npos) caption.underlined = caption.text.size();
        } else if (designed[i] == u'&') {
            continue;
        }
        caption.text.push_back(designed[i]);
    }
    return caption;
}

char16_t accessKeyOf(StringView designed) noexcept {
    for (std::size_t i = 0; i + 1 < designed.size(); ++i) {
        if (designed[i] != u'&') continue;
        if (designed[i + 1] != u'&') return folded(designed[i + 1]);
        ++i;
    }
    return 0;
}

} // namespace zilvo::platform
