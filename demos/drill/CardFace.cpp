#include "demos/drill/CardFace.h"

#include <QCoreApplication>

namespace drill {

namespace {

constexpr const char* Ranks[] = {"",      "Ace",   "Two",  "Three", "Four", "Five",  "Six",
                                 "Seven", "Eight", "Nine", "Ten",   "Jack", "Queen", "King"};
constexpr const char* Suits[] = {"clubs", "diamonds", "hearts", "spades"};
constexpr char16_t Signs[] = u"\u2663\u2666\u2665\u2660";

QString tr(const char* text) {
    return QCoreApplication::translate("drill::Card", text);
}

QString shortRank(Rank rank) {
    return rank == Rank::Ten ? QStringLiteral("10") : QString(QLatin1Char(text({rank, Suit::Clubs}).front()));
}

} // namespace

QString spoken(Card card, CardLook look) {
    const QString rank = tr(Ranks[static_cast<std::size_t>(card.rank)]);
    return look == CardLook::Ranks ? rank : tr("%1 of %2").arg(rank, tr(Suits[static_cast<std::size_t>(card.suit)]));
}

void paintCard(QPainter& painter, QPointF at, Card card, CardLook look) {
    const QRectF bounds(at, CardSize);
    const bool isRed = look == CardLook::Faces && (card.suit == Suit::Diamonds || card.suit == Suit::Hearts);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x60, 0x60, 0x60), 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(bounds.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.setPen(isRed ? QColor(0xB0, 0x00, 0x18) : QColor(Qt::black));
    QFont font(QStringLiteral("Liberation Sans"));
    font.setBold(true);
    const QString rank = shortRank(card.rank);
    if (look == CardLook::Ranks) {
        font.setPixelSize(28);
        painter.setFont(font);
        painter.drawText(bounds, Qt::AlignCenter, rank);
    } else {
        font.setPixelSize(16);
        painter.setFont(font);
        painter.drawText(bounds.adjusted(4, 2, 0, 0), Qt::AlignLeft | Qt::AlignTop, rank);
        font.setPixelSize(30);
        painter.setFont(font);
        painter.drawText(bounds.adjusted(0, 14, -3, 0), Qt::AlignRight | Qt::AlignBottom,
                         QString(QChar(Signs[static_cast<std::size_t>(card.suit)])));
    }
    painter.restore();
}

} // namespace drill
