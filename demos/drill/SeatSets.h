#pragma once

#include "demos/drill/engine/Drill.h"
#include "zilvo-qt/Enumerations.h"

#include <QList>
#include <QString>

namespace drill {

/// The set with a seat that was spread to, or without one that was withdrawn, as the seat controls tell it.
SeatSet folded(SeatSet seats, zilvo::qt::SeatSelectionPossibilities spreadTo);

/// What the seat controls are answered: element k tells whether seat k is in none of the sets.
QList<bool> seatsFreeOf(SeatSet taken);

constexpr SeatSet only(int seat) {
    return 1 << seat;
}

/// "2, 3, 5" or "none".
QString seatList(SeatSet seats);

} // namespace drill
