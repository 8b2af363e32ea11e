#pragma once

#include "zilvo/platform/hosting/PropertyBag.h"

#include <QColor>
#include <QFont>
#include <QVariant>

namespace zilvo::qt {

/// Values of the controls as values of the toolkit, and back. Both fail with TypeMismatch for what the other side has
/// no kind for.

QString toQString(platform::StringView text);
platform::String toString(const QString& text);

/// Points, weight and style; the family by its name, installed or not.
QFont toQFont(const platform::StdFont& font);
platform::FontRef toFont(const QFont& font);

platform::Colour toColour(const QColor& colour);

/// Whole numbers become int, Singles the double of the same shortest digits, Boolean arrays QList<bool>. A system
/// colour, whose look is the palette's affair, becomes its number.
QVariant toQVariant(const platform::Variant& value);
/// Also of what text files make of values: a number or Boolean that has become text stays text, which controls
/// convert, and a list of such texts is a Boolean array. `what` names the value in the message of a failure.
platform::Variant toVariant(const QVariant& value, platform::StringView what = {});

/// An array whose element of each number is the list's of that index; what lies below its lower bound is false.
QList<bool> toList(const platform::BooleanArray& array);
/// An array from element 0 on.
platform::BooleanArray toArray(const QList<bool>& list);

/// Of kinds that QSettings keeps and brings back from a file, whoever reads it: a Boolean array is a QVariantList.
QVariantMap toMap(const platform::MemoryPropertyBag& settings);
/// Leaves out what is invalid: it counts as not saved.
void fill(platform::MemoryPropertyBag& settings, const QVariantMap& map);

} // namespace zilvo::qt
