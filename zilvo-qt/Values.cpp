#include "zilvo-qt/Values.h"

#include "zilvo/platform/values/StdFont.h"
#include "zilvo/platform/values/Text.h"
#include "zilvo/platform/values/Units.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>

namespace zilvo::qt {

using namespace platform;

namespace {

QVariant toQVariant(Colour colour) {
    if (colour.isSystem()) return std::bit_cast<int>(colour.value);
    const auto part = [&](unsigned shift) { return static_cast<int>(colour.value >> shift & 0xFFU); };
    return QColor(part(0), part(8), part(16));
}

Long toLong(qlonglong number, StringView what) {
    if (number < std::numeric_limits<Long>::min() || number > std::numeric_limits<Long>::max())
        throw Failure(Status::Overflow, toUtf8(what) + ": " + std::to_string(number) + " is no Long");
    return static_cast<Long>(number);
}

/// 0.1 for the Single nearest to it, which itself is 0.10000000149.
double toDouble(Single number) {
    std::array<char, 32> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    double result = 0;
    std::from_chars(digits.data(), end, result);
    return result;
}

} // namespace

QString toQString(StringView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

String toString(const QString& text) {
    return text.toStdU16String();
}

Colour toColour(const QColor& colour) {
    const auto part = [](int level, unsigned shift) { return static_cast<std::uint32_t>(level) << shift; };
    return {part(colour.red(), 0) | part(colour.green(), 8) | part(colour.blue(), 16)};
}

QFont toQFont(const StdFont& font) {
    QFont result(toQString(font.get_Name()));
    result.setPointSizeF(double{font.get_Size()});
    result.setWeight(static_cast<QFont::Weight>(font.get_Weight()));
    result.setItalic(font.get_Italic());
    result.setUnderline(font.get_Underline());
    result.setStrikeOut(font.get_Strikethrough());
    return result;
}

FontRef toFont(const QFont& font) {
    FontRef result = StdFont::make({});
    result->put_Name(toString(font.family()));
    // A font that is sized in pixels has no points of its own.
    const double points =
        font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * double{TwipsPerPixel} / double{TwipsPerPoint};
    result->put_Size(static_cast<Single>(points));
    result->put_Weight(static_cast<Integer>(font.weight()));
    result->put_Italic(font.italic());
    result->put_Underline(font.underline());
    result->put_Strikethrough(font.strikeOut());
    return result;
}

QVariant toQVariant(const Variant& given) {
    const Variant value = given.value();
    switch (value.kind()) {
    case Kind::Empty:
    case Kind::Missing:
        return {};
    case Kind::Boolean:
        return toBoolean(value);
    case Kind::Integer:
    case Kind::Long:
        return platform::toLong(value);
    case Kind::Single:
        return toDouble(toSingle(value));
    case Kind::String:
        return toQString(platform::toString(value));
    case Kind::Colour:
        return toQVariant(platform::toColour(value));
    case Kind::Font: {
        const FontRef& font = *value.find<FontRef>();
        return font ? QVariant(toQFont(*font)) : QVariant();
    }
    case Kind::BooleanArray:
        return QVariant::fromValue(toList(toBooleanArray(value)));
    }
    return {};
}

Variant toVariant(const QVariant& value, StringView what) {
    if (value.metaType() == QMetaType::fromType<QList<bool>>()) return toArray(value.value<QList<bool>>());
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return toLong(value.toLongLong(), what);
    case QMetaType::UInt: // a system colour among others
        return Colour{value.toUInt()};
    case QMetaType::Float:
    case QMetaType::Double:
        return toSingle(Variant(toString(QString::number(value.toDouble(), 'g', 17))), what);
    case QMetaType::QString:
        return toString(value.toString());
    case QMetaType::QColor:
        return toColour(value.value<QColor>());
    case QMetaType::QFont:
        return toFont(value.value<QFont>());
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        QList<bool> list;
        for (const QVariant& element : value.toList())
            list.append(element.toBool());
        return toArray(list);
    }
    default:
        // An enumeration of the typed classes is a Long.
        if ((value.metaType().flags() & QMetaType::IsEnumeration) != 0) return toLong(value.toLongLong(), what);
        throw Failure(Status::TypeMismatch, toUtf8(what) + ": a control knows no " + value.typeName());
    }
}

QList<bool> toList(const BooleanArray& array) {
    QList<bool> list;
    if (!array.hasElements()) return list;
    for (Long i = 0; i <= array.UpperBound(); ++i)
        list.append(i >= array.LowerBound() && isTrue(array.At(i)));
    return list;
}

BooleanArray toArray(const QList<bool>& list) {
    std::vector<Boolean> values(static_cast<std::size_t>(list.size()));
    std::transform(list.begin(), list.end(), values.begin(), asBoolean);
    return {0, std::move(values)};
}

QVariantMap toMap(const MemoryPropertyBag& settings) {
    QVariantMap map;
    for (const auto& [name, value] : settings.settings()) {
        QVariant saved = toQVariant(value);
        if (value.kind() == Kind::BooleanArray) {
            const QList<bool> list = saved.value<QList<bool>>();
            saved = QVariantList(list.begin(), list.end());
        }
        map.insert(toQString(name), saved);
    }
    return map;
}

void fill(MemoryPropertyBag& settings, const QVariantMap& map) {
    for (auto setting = map.begin(); setting != map.end(); ++setting) {
        if (!setting.value().isValid()) continue;
        const String name = toString(setting.key());
        settings.set(name, toVariant(setting.value(), name));
    }
}

} // namespace zilvo::qt
