#pragma once

#include "demos/drill/engine/Cards.h"

#include <QPainter>

namespace drill {

/// How cards are shown: as they are, or by their ranks alone, which is all that counts.
enum class CardLook { Faces, Ranks };

/// Of a card, in logical pixels.
constexpr QSizeF CardSize(42, 58);

/// "Ace of spades", or just "Ace".
QString spoken(Card card, CardLook look);

/// With its upper left corner at the point.
void paintCard(QPainter& painter, QPointF at, Card card, CardLook look);

} // namespace drill
