#include "demos/drill/Felt.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace drill {

namespace {

const QColor Green(0x1C, 0x6B, 0x3C);
const QColor Line(0xD8, 0xC0, 0x6A);
constexpr double HandWidth = 100; ///< that a hand's cards are fanned out to
constexpr double ArcTop = 92;     ///< from which on the table is an arc

} // namespace

QString placeName(int place) {
    return place == DealtCard::Dealer ? Felt::tr("Dealer") : Felt::tr("Seat %1").arg(place);
}

Felt::Felt(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    QPalette green = palette();
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Button})
        green.setColor(role, Green);
    setPalette(green); // before there are letters, which take over what they find
    for (int seat = 1; seat <= Seats; ++seat) {
        auto* letter = letters_[static_cast<std::size_t>(seat)] = new zilvo::qt::LetterButton(this);
        letter->resize(letter->sizeHint());
    }
    setSettings(settings_);
}

void Felt::setSettings(const Settings& settings) {
    settings_ = settings;
    char16_t hand = u'A';
    for (int seat = 1; seat <= Seats; ++seat) {
        auto* letter = letters_[static_cast<std::size_t>(seat)];
        letter->setVisible(settings.plays(seat));
        if (settings.plays(seat)) letter->setLetter(QString(QChar(hand++)));
        letter->setToolTip(tr("Your hand at seat %1").arg(seat));
    }
    describe();
}

void Felt::setDrill(const Drill* drill) {
    drill_ = drill;
    setAccessibleName(tr("Table"));
    describe();
}

void Felt::cardDealt() {
    const DealtCard& dealt = drill_->dealt().back();
    setAccessibleName(tr("%1: %2").arg(placeName(dealt.place), spoken(dealt.card, look_)));
    describe();
}

void Felt::switchCards() {
    look_ = look_ == CardLook::Faces ? CardLook::Ranks : CardLook::Faces;
    describe();
}

/// All that lies there, for those who ask; the name tells the latest card only.
void Felt::describe() {
    QStringList hands;
    for (int place = DealtCard::Dealer; place <= Seats; ++place) {
        QStringList cards;
        for (const DealtCard& dealt : drill_ ? drill_->onTable() : std::span<const DealtCard>())
            if (dealt.place == place) cards.append(spoken(dealt.card, look_));
        if (place != DealtCard::Dealer && settings_.plays(place)) cards.prepend(tr("yours"));
        if (!cards.isEmpty()) hands.append(tr("%1: %2").arg(placeName(place), cards.join(", ")));
    }
    setAccessibleDescription(hands.join("; "));
    update();
}

QPointF Felt::middleOf(int place) const {
    if (place == DealtCard::Dealer) return {width() / 2.0, 16 + CardSize.height() / 2};
    const double angle = std::numbers::pi * (0.045 + 0.91 * (place - 1) / (Seats - 1));
    return {width() / 2.0 + std::cos(angle) * (width() / 2.0 - 66),
            ArcTop + 6 + std::sin(angle) * (height() - ArcTop - 84)};
}

void Felt::resizeEvent(QResizeEvent* /*event*/) {
    for (int seat = 1; seat <= Seats; ++seat) {
        auto* letter = letters_[static_cast<std::size_t>(seat)];
        const QPointF below = middleOf(seat) + QPointF(0, CardSize.height() / 2 + 4);
        letter->move(below.toPoint() - QPoint(letter->width() / 2, 0));
    }
}

/// As high as the cards in it make it, twelve decks filling all of it.
void Felt::paintPile(QPainter& painter, QRectF within, const QString& name, int cards) const {
    painter.setPen(Line);
    painter.setBrush(Qt::NoBrush);
    painter.drawText(within, Qt::AlignHCenter | Qt::AlignTop, name);
    within.adjust(0, 20, 0, 0);
    painter.drawRect(within);
    QRectF pile = within.adjusted(3, 3, -3, -3);
    pile.setTop(pile.bottom() - pile.height() * cards / (12 * CardsPerDeck));
    if (cards > 0) painter.fillRect(pile, QBrush(QColor(0xF4, 0xF0, 0xE4)));
}

void Felt::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), window()->palette().window());
    painter.fillRect(QRectF(0, 0, width(), ArcTop), Green);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Green);
    painter.drawEllipse(QPointF(width() / 2.0, ArcTop), width() / 2.0, height() - ArcTop);
    painter.setPen(QPen(Line, 1));
    painter.setBrush(Qt::NoBrush);
    for (int place = DealtCard::Dealer; place <= Seats; ++place) {
        const QRectF spot(middleOf(place) - QPointF(CardSize.width() / 2, CardSize.height() / 2), CardSize);
        painter.drawRoundedRect(spot.adjusted(-3.5, -3.5, 3.5, 3.5), 6, 6);
        painter.drawText(spot, Qt::AlignCenter, place == DealtCard::Dealer ? tr("Dealer") : QString::number(place));
    }
    const int discarded = drill_ ? static_cast<int>(drill_->inDiscardTray().size()) : 0;
    const int left = drill_ ? drill_->cardsLeft() : settings_.decks * CardsPerDeck;
    paintPile(painter, QRectF(width() / 2.0 - 200, 12, 70, 80), tr("Discards"), discarded);
    paintPile(painter, QRectF(width() / 2.0 + 130, 12, 70, 80), tr("Shoe"), left);

    if (!drill_) return;
    std::array<int, Seats + 1> counts{};
    std::array<int, Seats + 1> painted{};
    for (const DealtCard& dealt : drill_->onTable())
        ++counts[static_cast<std::size_t>(dealt.place)];
    for (const DealtCard& dealt : drill_->onTable()) {
        const auto place = static_cast<std::size_t>(dealt.place);
        // One upon the other, as far apart as there is room for.
        const double apart =
            counts[place] < 2 ? 0 : std::min(18.0, (HandWidth - CardSize.width()) / (counts[place] - 1));
        const double first = -(CardSize.width() + apart * (counts[place] - 1)) / 2;
        const QPointF offset(first + apart * painted[place]++, -CardSize.height() / 2);
        paintCard(painter, middleOf(dealt.place) + offset, dealt.card, look_);
    }
    if (!hasFocus()) return;
    painter.setPen(QPen(Line, 1, Qt::DotLine));
    painter.drawRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5));
}

} // namespace drill
