#pragma once

#include "demos/drill/engine/Drill.h"
#include "zilvo-qt/CardShufflingOptions.h"
#include "zilvo-qt/DeckButtons.h"
#include "zilvo-qt/GOButton.h"
#include "zilvo-qt/SitDownButton.h"
#include "zilvo-qt/SpreadSeatButtons.h"
#include "zilvo-qt/paneledSeatBoxes.h"
#include "zilvo-qt/ssOKCancel.h"

#include <QLabel>
#include <QPushButton>
#include <QSlider>

namespace drill {

/// What a drill is set up with. The seat boxes begin anew each time they are asked for; what holds is told beside them.
class SetupPage : public QWidget {
    Q_OBJECT

public:
    explicit SetupPage(QWidget* parent = nullptr);

    const Settings& settings() const { return settings_; }
    void setSettings(const Settings& settings);

signals:
    void accepted();
    void rejected();

private:
    /// Until they are asked for again; the sets stay.
    void closeBoxes();
    void tellChoice();

    Settings settings_;
    zilvo::qt::DeckButtons* decks_; ///< how many decks the shoe holds; the right button offers what casinos use
    zilvo::qt::CardShufflingOptions* shuffle_; ///< how the shoe is shuffled before it is dealt
    zilvo::qt::SitDownButton* sitDown_;        ///< the player's own seat, one of those that are free
    zilvo::qt::SpreadSeatButtons* spread_;     ///< the seats that the player spreads to, told free when he asks
    zilvo::qt::paneledSeatBoxes* others_;      ///< the seats of other players; Done puts the boxes away
    zilvo::qt::GOButton* sign_;                ///< the pace chosen: the rounder, the faster
    zilvo::qt::ssOKCancel* pair_;              ///< takes what was set up to the table, or leaves it as it was
    QSlider* pace_;
    QPushButton* askOthers_;
    QLabel* seatText_;
    QLabel* spreadText_;
    QLabel* othersText_;
    QLabel* paceText_;
};

} // namespace drill
