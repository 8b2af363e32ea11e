#include "zilvo/platform/values/Variant.h"

#include "zilvo/platform/values/Conversions.h"
#include "zilvo/platform/values/StdFont.h"

#include <array>
#include <type_traits>

namespace zilvo::platform {

StringView nameOf(Kind kind) noexcept {
    constexpr std::array<StringView, 10> names = {u"Empty",  u"Missing", u"Boolean", u"Integer", u"Long",
                                                  u"Single", u"String",  u"Colour",  u"Font",    u"Boolean()"};
    return names[static_cast<std::size_t>(kind)];
}

Kind Variant::kind() const noexcept {
    constexpr std::array<Kind, 7> referred = {Kind::Boolean, Kind::Integer, Kind::Long,        Kind::Single,
                                              Kind::String,  Kind::Font,    Kind::BooleanArray};
    const std::size_t index = value_.index();
    return index < FirstReference ? static_cast<Kind>(index) : referred[index - FirstReference];
}

BooleanArray* Variant::findArray() noexcept {
    if (auto* held = std::get_if<BooleanArray>(&value_)) return held;
    return findVariable<BooleanArray>();
}

Variant Variant::value() const {
    return std::visit(
        [this](const auto& held) -> Variant {
            if constexpr (std::is_pointer_v<std::decay_t<decltype(held)>>)
                return Variant(*held);
            else
                return *this;
        },
        value_);
}

void Variant::assign(const Variant& value) {
    std::visit(
        [&](auto& held) {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, Boolean*>)
                *held = asBoolean(toBoolean(value));
            else if constexpr (std::is_same_v<Held, BooleanArray*>)
                *held = toBooleanArray(value);
            else if constexpr (std::is_pointer_v<Held>)
                *held = convert<std::remove_pointer_t<Held>>(value);
            else
                value_ = value.value().value_;
        },
        value_);
}

namespace {

bool isNumber(Kind kind) noexcept {
    return kind == Kind::Integer || kind == Kind::Long || kind == Kind::Single;
}

} // namespace

bool equalByValue(const Variant& one, const Variant& other) {
    if (isNumber(one.kind()) && isNumber(other.kind())) return toNumber(one) == toNumber(other);
    if (one.kind() != other.kind()) return false;
    switch (one.kind()) {
    case Kind::Empty:
    case Kind::Missing:
        return true;
    case Kind::Boolean:
        return toBoolean(one) == toBoolean(other);
    case Kind::String:
        return *one.find<String>() == *other.find<String>();
    case Kind::Colour:
        return *one.find<Colour>() == *other.find<Colour>();
    case Kind::BooleanArray:
        return *one.find<BooleanArray>() == *other.find<BooleanArray>();
    case Kind::Font: {
        const FontRef& first = *one.find<FontRef>();
        const FontRef& second = *other.find<FontRef>();
        return first == second || (first && second && first->sameMembers(*second));
    }
    default:
        return false;
    }
}

} // namespace zilvo::platform
