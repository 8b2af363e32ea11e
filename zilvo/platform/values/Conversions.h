#pragma once

#include "zilvo/platform/values/Variant.h"

#include <type_traits>

namespace zilvo::platform {

/// The only place where one kind becomes another. A number outside the kind's range fails with Overflow, a value
/// that holds no number (or no text, font or array) with TypeMismatch. Fractions round to the nearest whole
/// number, halves to the even neighbour. `what` names the value in the message: a member, an argument, a key.

bool toBoolean(const Variant& value, StringView what = {});
Integer toInteger(const Variant& value, StringView what = {});
Long toLong(const Variant& value, StringView what = {});
Single toSingle(const Variant& value, StringView what = {});
/// Digits as written by `str`: no padding, at most seven significant digits; a Boolean is "True" or "False".
String toString(const Variant& value, StringView what = {});
Colour toColour(const Variant& value, StringView what = {});
FontRef toFont(const Variant& value, StringView what = {});
BooleanArray toBooleanArray(const Variant& value, StringView what = {});
/// The number that any numeric value, Boolean or text of digits holds.
double toNumber(const Variant& value, StringView what = {});

/// Fails with Overflow outside -32,768 to 32,767.
Integer narrow(Long value, StringView what = {});
Integer roundToInteger(Single value, StringView what = {});

/// The value as messages show it: text in quotes, other kinds with their kind's name behind them.
std::string describe(const Variant& value);

/// Conversion by C++ type; enumerations accept any 32-bit value.
template <class T>
inline T convert(const Variant& value, StringView what = {}) {
    // What already has the kind, as most values do, is taken without a call.
    using Held = std::conditional_t<std::is_same_v<T, bool>, Boolean, std::conditional_t<std::is_enum_v<T>, Long, T>>;
    if constexpr (!std::is_same_v<T, FontRef>)
        if (const Held* held = value.find<Held>()) return static_cast<T>(*held);

    if constexpr (std::is_same_v<T, bool>)
        return toBoolean(value, what);
    else if constexpr (std::is_same_v<T, Integer>)
        return toInteger(value, what);
    else if constexpr (std::is_same_v<T, Long>)
        return toLong(value, what);
    else if constexpr (std::is_same_v<T, Single>)
        return toSingle(value, what);
    else if constexpr (std::is_same_v<T, String>)
        return toString(value, what);
    else if constexpr (std::is_same_v<T, Colour>)
        return toColour(value, what);
    else if constexpr (std::is_same_v<T, FontRef>)
        return toFont(value, what);
    else {
        static_assert(std::is_enum_v<T>, "this type is no value kind");
        return static_cast<T>(toLong(value, what));
    }
}

/// A C++ value as the Variant of its kind; enumerations become Longs.
template <class T>
inline Variant toVariant(const T& value) {
    if constexpr (std::is_enum_v<T> && !std::is_same_v<T, Boolean>)
        return Variant(static_cast<Long>(value));
    else
        return Variant(value);
}

} // namespace zilvo::platform
