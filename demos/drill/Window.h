#pragma once

#include "demos/drill/ResultPage.h"
#include "demos/drill/SetupPage.h"
#include "demos/drill/Store.h"
#include "demos/drill/TablePage.h"

#include <QStackedWidget>

namespace drill {

/// The program's window: one page at a time, and above it what could not be done.
class Window : public QWidget {
    Q_OBJECT

public:
    struct Options {
        QString folder;                    ///< for settings and results
        std::optional<int> decks;          ///< in place of those of the settings
        std::optional<std::uint64_t> seed; ///< of the first drill; each other one's is one more
    };
    explicit Window(const Options& options);

    TablePage& table() { return *table_; }

protected:
    /// Asks first, in the middle of a drill.
    void closeEvent(QCloseEvent* event) override;

private:
    void tell(const QString& message);
    void turnTo(QWidget* page);
    void deal();

    QLabel* message_;
    Store store_;
    std::optional<std::uint64_t> seed_;  ///< of the next drill
    std::optional<std::uint64_t> again_; ///< that of a former one, which comes first
    QStackedWidget* pages_;
    SetupPage* setup_;
    TablePage* table_;
    ResultPage* result_;
};

} // namespace drill
