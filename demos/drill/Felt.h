#pragma once

#include "demos/drill/CardFace.h"
#include "demos/drill/engine/Drill.h"
#include "zilvo-qt/LetterButton.h"

#include <QWidget>
#include <array>

namespace drill {

/// The table as the player sees it: seat 1 at the right end of the arc, the dealer above its middle with the discard
/// tray to his right hand and the shoe to his left. Whoever hears it hears each card as it is dealt.
class Felt : public QWidget {
    Q_OBJECT

public:
    explicit Felt(QWidget* parent = nullptr);

    /// Marks the player's seats and those of others.
    void setSettings(const Settings& settings);
    /// What to show from now on, until another one or null; not owned.
    void setDrill(const Drill* drill);
    /// Shows and tells the card that was dealt last.
    void cardDealt();

    /// From faces to ranks, or back.
    void switchCards();

    QSize sizeHint() const override { return {820, 340}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// The middle of the cards there.
    QPointF middleOf(int place) const;
    void paintPile(QPainter& painter, QRectF within, const QString& name, int cards) const;
    void describe();

    Settings settings_;
    const Drill* drill_ = nullptr;
    CardLook look_ = CardLook::Faces;
    std::array<zilvo::qt::LetterButton*, Seats + 1> letters_{}; ///< A, B and so on mark the player's hands on the felt
};

/// "Seat 3" or "Dealer".
QString placeName(int place);

} // namespace drill
