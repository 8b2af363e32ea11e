#include "zilvo/platform/values/Conversions.h"

#include "zilvo/platform/values/Status.h"
#include "zilvo/platform/values/StdFont.h"
#include "zilvo/platform/values/Text.h"

#include <array>
#include <bit>
#include <cerrno>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>

namespace zilvo::platform {

namespace {

[[noreturn]] void fail(Status status, const Variant& value, StringView what, Kind wanted) {
    const auto name = what.empty() ? std::string() : toUtf8(what) + ": ";
    const auto* why = status == Status::Overflow ? " is out of the range of " : " does not convert to ";
    throw Failure(status, name + describe(value) + why + toUtf8(nameOf(wanted)));
}

/// The number that a text of decimal digits holds, blanks around it allowed, in any locale. Infinity stands for what is
/// beyond all doubles or too near to 0 for them.
std::optional<double> parseNumber(StringView text) {
    std::string digits;
    for (const char16_t unit : text) {
        if (unit > 0x7E) return std::nullopt;
        digits.push_back(static_cast<char>(unit));
    }
    const auto first = digits.find_first_not_of(" \t");
    if (first == std::string::npos) return std::nullopt;
    const auto number = digits.substr(first, digits.find_last_not_of(" \t") - first + 1);
    // strtod() takes more than that: hexadecimal digits, words, other blanks.
    if (number.find_first_not_of("0123456789.eE+-") != std::string::npos) return std::nullopt;
    static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
    char* end = nullptr;
    errno = 0;
    const double result = strtod_l(number.c_str(), &end, classic);
    if (end != number.c_str() + number.size()) return std::nullopt;
    const bool isOut = errno == ERANGE && (result == 0 || std::isinf(result)); // a denormal number is none
    return isOut ? std::numeric_limits<double>::infinity() : result;
}

double numberOf(const Variant& value, StringView what, Kind wanted) {
    switch (value.kind()) {
    case Kind::Boolean:
        return isTrue(*value.find<Boolean>()) ? -1 : 0;
    case Kind::Integer:
        return *value.find<Integer>();
    case Kind::Long:
        return *value.find<Long>();
    case Kind::Single:
        return static_cast<double>(*value.find<Single>());
    case Kind::Colour:
        return std::bit_cast<Long>(value.find<Colour>()->value);
    case Kind::String:
        if (const auto number = parseNumber(*value.find<String>())) return *number;
        break;
    case Kind::Empty:
    case Kind::Missing:
    case Kind::Font:
    case Kind::BooleanArray:
        break;
    }
    fail(Status::TypeMismatch, value, what, wanted);
}

/// `number` rounded to the nearest whole number, halves to even, when T holds it.
template <class T>
std::optional<T> rounded(double number) {
    const double whole = std::nearbyint(number);
    if (!(whole >= std::numeric_limits<T>::min() && whole <= std::numeric_limits<T>::max())) return std::nullopt;
    return static_cast<T>(whole);
}

template <class T>
T wholeNumber(const Variant& value, StringView what, Kind wanted) {
    const auto number = rounded<T>(numberOf(value, what, wanted));
    if (!number) fail(Status::Overflow, value, what, wanted);
    return *number;
}

String asText(const char* first, const char* last) {
    return String(first, last);
}

} // namespace

bool toBoolean(const Variant& value, StringView what) {
    if (const Boolean* held = value.find<Boolean>()) return isTrue(*held);
    if (const String* text = value.find<String>()) {
        if (sameName(*text, u"True")) return true;
        if (sameName(*text, u"False")) return false;
    }
    return numberOf(value, what, Kind::Boolean) != 0;
}

Integer toInteger(const Variant& value, StringView what) {
    if (const Integer* held = value.find<Integer>()) return *held;
    return wholeNumber<Integer>(value, what, Kind::Integer);
}

Long toLong(const Variant& value, StringView what) {
    if (const Long* held = value.find<Long>()) return *held;
    return wholeNumber<Long>(value, what, Kind::Long);
}

Single toSingle(const Variant& value, StringView what) {
    if (const Single* held = value.find<Single>()) return *held;
    const double number = numberOf(value, what, Kind::Single);
    if (!(std::abs(number) <= static_cast<double>(std::numeric_limits<Single>::max())))
        fail(Status::Overflow, value, what, Kind::Single);
    return static_cast<Single>(number);
}

String toString(const Variant& value, StringView what) {
    if (const String* held = value.find<String>()) return *held;
    std::array<char, 32> out{};
    char* const end = out.data() + out.size();
    switch (value.kind()) {
    case Kind::Empty:
        return {};
    case Kind::Boolean:
        return isTrue(*value.find<Boolean>()) ? u"True" : u"False";
    case Kind::Integer:
        return asText(out.data(), std::to_chars(out.data(), end, *value.find<Integer>()).ptr);
    case Kind::Long:
        return asText(out.data(), std::to_chars(out.data(), end, *value.find<Long>()).ptr);
    case Kind::Colour:
        return asText(out.data(), std::to_chars(out.data(), end, std::bit_cast<Long>(value.find<Colour>()->value)).ptr);
    case Kind::Single:
        return asText(out.data(),
                      std::to_chars(out.data(), end, *value.find<Single>(), std::chars_format::general, 7).ptr);
    default:
        fail(Status::TypeMismatch, value, what, Kind::String);
    }
}

Colour toColour(const Variant& value, StringView what) {
    if (const Colour* held = value.find<Colour>()) return *held;
    return Colour{std::bit_cast<std::uint32_t>(wholeNumber<Long>(value, what, Kind::Colour))};
}

FontRef toFont(const Variant& value, StringView what) {
    const FontRef* held = value.find<FontRef>();
    if (!held) fail(Status::TypeMismatch, value, what, Kind::Font);
    if (!*held) fail(Status::InvalidPropertyValue, value, what, Kind::Font);
    return *held;
}

BooleanArray toBooleanArray(const Variant& value, StringView what) {
    const BooleanArray* held = value.find<BooleanArray>();
    if (!held) fail(Status::TypeMismatch, value, what, Kind::BooleanArray);
    return *held;
}

double toNumber(const Variant& value, StringView what) {
    return numberOf(value, what, Kind::Single);
}

Integer narrow(Long value, StringView what) {
    return toInteger(Variant(value), what);
}

Integer roundToInteger(Single value, StringView what) {
    return toInteger(Variant(value), what);
}

std::string describe(const Variant& value) {
    const auto kind = toUtf8(nameOf(value.kind()));
    switch (value.kind()) {
    case Kind::String:
        return "\"" + toUtf8(*value.find<String>()) + "\" (String)";
    case Kind::Empty:
    case Kind::Missing:
        return "a value that is " + kind;
    case Kind::Font: {
        const FontRef& font = *value.find<FontRef>();
        return font ? "the font " + toUtf8(font->get_Name()) : "a font that is nothing";
    }
    case Kind::BooleanArray:
        return "an array of " + std::to_string(value.find<BooleanArray>()->size()) + " Booleans";
    default:
        return toUtf8(toString(value)) + " (" + kind + ")";
    }
}

} // namespace zilvo::platform
