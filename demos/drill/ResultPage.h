#pragma once

#include "demos/drill/engine/Drill.h"
#include "zilvo-qt/PlayerButtons.h"
#include "zilvo-qt/SeatCheckBoxes.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>

namespace drill {

/// How a drill went, its cards again with the count after each, and the results over time.
class ResultPage : public QWidget {
    Q_OBJECT

public:
    explicit ResultPage(QWidget* parent = nullptr);

    void setResults(const std::vector<Result>& results);
    /// What is shown above the results.
    void setDrill(const Drill& drill, const Result& result);
    void setNoDrill();

signals:
    /// The same shoe once more, maybe with other seats that the player spreads to.
    void againWanted(const drill::Settings& settings, std::uint64_t seed);
    void tableWanted();

private:
    void selectCardsOf(int seat);
    void showDrillParts(bool shown);
    void tellAgain();

    Result result_;
    SeatSet spread_ = 0;               ///< for when the shoe is dealt again
    bool spreadIsChosen_ = false;      ///< rather than what it was
    zilvo::qt::PlayerButtons* hands_;  ///< picks the hand whose cards stand out among those shown again
    zilvo::qt::SeatCheckBoxes* seats_; ///< the seats to spread to when the same shoe is dealt again
    QLabel* verdict_;
    QListWidget* cards_;
    QPushButton* again_;
    QPushButton* table_;
    QLabel* summary_;
    QTableWidget* results_;
};

} // namespace drill
