#pragma once

#include "zilvo/platform/values/BooleanArray.h"
#include "zilvo/platform/values/Kinds.h"

#include <concepts>
#include <memory>
#include <type_traits>
#include <variant>

namespace zilvo::platform {

class StdFont;
using FontRef = std::shared_ptr<StdFont>;

/// The value of an optional argument that was left out.
struct Missing {
    friend constexpr bool operator==(Missing, Missing) noexcept = default;
};

/// A value tagged with its kind, or a reference to a variable of a kind. A reference does not own its variable:
/// whoever made it keeps the variable alive for the call that it is passed to.
class Variant {
public:
    Variant() = default;
    Variant(Missing value) : value_(value) {}
    Variant(Boolean value) : value_(value) {}
    Variant(Integer value) : value_(value) {}
    Variant(Long value) : value_(value) {}
    Variant(Single value) : value_(value) {}
    Variant(String value) : value_(std::move(value)) {}
    Variant(StringView value) : value_(String(value)) {}
    Variant(const char16_t* value) : value_(String(value)) {}
    Variant(Colour value) : value_(value) {}
    Variant(FontRef value) : value_(std::move(value)) {}
    Variant(BooleanArray value) : value_(std::move(value)) {}
    /// Only a bool: pointers and numbers do not become Booleans by accident.
    template <std::same_as<bool> Bool>
    Variant(Bool value) : value_(asBoolean(value)) {}

    /// A reference to `variable`.
    template <class T>
    static Variant to(T& variable) {
        Variant reference;
        reference.value_ = &variable;
        return reference;
    }

    /// The kind of the value, or of the variable that is referred to.
    Kind kind() const noexcept;
    bool isReference() const noexcept { return value_.index() >= FirstReference; }

    /// The value of exactly this kind, here or in the variable that is referred to; null when the kind is another.
    template <class T>
    const T* find() const noexcept {
        if (const T* value = std::get_if<T>(&value_)) return value;
        return findVariable<T>();
    }
    /// The variable that a reference of this kind refers to; null for a plain value or another kind.
    template <class T>
    T* findVariable() const noexcept {
        constexpr bool isEnumeration = std::is_enum_v<T> && !std::same_as<T, Boolean>;
        if constexpr (isEnumeration || std::same_as<T, bool> || std::same_as<T, Missing> || std::same_as<T, Colour>) {
            return nullptr; // there are no references to these
        } else {
            T* const* variable = std::get_if<T*>(&value_);
            return variable ? *variable : nullptr;
        }
    }
    /// The array held or referred to, to be read and written in place; null for another kind.
    BooleanArray* findArray() noexcept;

    /// A copy that refers to nothing.
    Variant value() const;
    /// Stores `value` in the variable that this refers to, converted to its kind, or takes it over as it is when
    /// this is no reference. Fails as the conversion does.
    void assign(const Variant& value);

private:
    using Storage = std::variant<std::monostate, Missing, Boolean, Integer, Long, Single, String, Colour, FontRef,
                                 BooleanArray, Boolean*, Integer*, Long*, Single*, String*, FontRef*, BooleanArray*>;
    static constexpr std::size_t FirstReference = 10;

    Storage value_;
};

/// Whether a stored value counts as its default: numbers compare by value whatever their width, Booleans with
/// Booleans, strings as text, fonts by their members; anything else differs.
bool equalByValue(const Variant& one, const Variant& other);

} // namespace zilvo::platform
