#pragma once

#include "demos/drill/Felt.h"
#include "zilvo-qt/GamingCardSelection.h"
#include "zilvo-qt/PlusMinusButton.h"
#include "zilvo-qt/SpinCounter.h"
#include "zilvo-qt/StartStopButtons.h"
#include "zilvo-qt/SwitchCardsButton.h"
#include "zilvo-qt/paneledGOButton.h"
#include "zilvo-qt/verticalOK.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <optional>

namespace drill {

/// Where a drill is dealt and its running count is asked for.
class TablePage : public QWidget {
    Q_OBJECT

public:
    explicit TablePage(QWidget* parent = nullptr);

    const Settings& settings() const { return settings_; }
    void setSettings(const Settings& settings);

    /// Begins a drill, in place of any other.
    void deal(std::uint64_t seed);
    /// The next card; asks for the count instead when the drill is over. Called at the pace of the settings.
    void dealCard();
    /// From START until the count has been handed in.
    bool isInDrill() const { return drill_.has_value(); }
    /// Holds the cards back, or goes on with them if they were dealt.
    void pause() { pace_.stop(); }
    void resume();

signals:
    void startWanted();
    void setUpWanted();
    void resultsWanted();
    /// Neither is there any longer after this.
    void answered(const drill::Drill& drill, const drill::Result& result);

private:
    /// No drill.
    void clear();
    void stop();
    void handIn();
    /// What can be used now.
    void updateState(const QString& prompt);

    Settings settings_;
    std::optional<Drill> drill_;
    bool asks_ = false; ///< for the count of the drill
    QTimer pace_;
    Felt* felt_;
    zilvo::qt::GamingCardSelection* played_; ///< where the cards of a round go: discard tray, table or shoe
    zilvo::qt::SwitchCardsButton* look_;     ///< shows the cards as they are or by their ranks alone
    zilvo::qt::paneledGOButton* sign_;       ///< lit while cards are dealt, its shape telling the pace
    zilvo::qt::StartStopButtons* startStop_; ///< begins to deal, and ends it where the player likes
    zilvo::qt::PlusMinusButton* plusMinus_;  ///< the sign of the count that is handed in
    zilvo::qt::SpinCounter* count_;          ///< the running count that is handed in, without its sign
    zilvo::qt::verticalOK* handIn_;          ///< hands the count in
    QLabel* prompt_;
    QPushButton* setUp_;
    QPushButton* results_;
};

} // namespace drill
