#include "demos/drill/SeatSets.h"

#include "zilvo-qt/ZilvoButtonGoodies.h"

#include <QCoreApplication>
#include <QStringList>

namespace drill {

using namespace zilvo::qt;

SeatSet folded(SeatSet seats, SeatSelectionPossibilities spreadTo) {
    ZilvoButtonGoodies bits; ///< sets and clears the seats that are spread to
    const int seat = static_cast<int>(spreadTo);
    const auto bit = static_cast<SeatSpreadPossibilities>(std::abs(seat));
    return static_cast<SeatSet>(seat > 0 ? bits.SeatBitSet(seats, bit) : bits.SeatBitReset(seats, bit));
}

QList<bool> seatsFreeOf(SeatSet taken) {
    QList<bool> free;
    for (int seat = 0; seat <= Seats; ++seat)
        free.append(!contains(taken, seat));
    return free;
}

QString seatList(SeatSet seats) {
    QStringList names;
    for (int seat = 1; seat <= Seats; ++seat)
        if (contains(seats, seat)) names.append(QString::number(seat));
    return names.isEmpty() ? QCoreApplication::translate("drill::SeatSets", "none") : names.join(QStringLiteral(", "));
}

} // namespace drill
