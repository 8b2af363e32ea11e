// A form with typed controls. What was set up, and left with OK, is there again the next time.
#include "zilvo-qt/CardShufflingOptions.h"
#include "zilvo-qt/DeckButtons.h"
#include "zilvo-qt/SpinCounter.h"
#include "zilvo-qt/ssOKCancel.h"
#include <QtWidgets>
#include <iostream>

using namespace zilvo::qt;

class TableForm : public QDialog {
public:
    TableForm() {
        auto* layout = new QGridLayout(this);
        layout->addWidget(decks, 0, 0, 1, 3);
        layout->addWidget(shuffle, 1, 0, 1, 3);
        layout->addWidget(summary, 2, 0, Qt::AlignCenter);
        layout->addWidget(rounds, 2, 1, Qt::AlignCenter);
        layout->addWidget(pair, 2, 2, Qt::AlignRight);
        connect(decks, &DeckButtons::NumberOfDecksChanged, this,
                [this](int count) { summary->setText(QString("%1 decks; rounds to play:").arg(count)); });
        connect(pair, &ssOKCancel::OKWasClicked, this, &QDialog::accept);
        connect(pair, &ssOKCancel::CancelWasClicked, this, &QDialog::reject);
        pair->setOKEnabled(true);
        rounds->setMaximumLimit(100);
        decks->setNumberOfDecks(settings.value("decks", 6).toInt());
    }
    void accept() override {
        settings.setValue("shuffle", shuffle->saveSettings());
        settings.setValue("rounds", rounds->saveSettings());
        settings.setValue("decks", decks->NumberOfDecks()); // its control saves nothing
        QDialog::accept();
    }

private:
    QSettings settings{"qt-form"};
    DeckButtons* decks = new DeckButtons;
    CardShufflingOptions* shuffle = new CardShufflingOptions(settings.value("shuffle").toMap());
    SpinCounter* rounds = new SpinCounter(settings.value("rounds").toMap());
    QLabel* summary = new QLabel;
    ssOKCancel* pair = new ssOKCancel;
};

int main(int argc, char** argv) try {
    const bool isPicture = argc == 3 && argv[1] == std::string("--screenshot");
    const auto isUnset = [](const char* name) { return qEnvironmentVariableIsEmpty(name); };
    if (isUnset("DISPLAY") && isUnset("WAYLAND_DISPLAY") && isUnset("QT_QPA_PLATFORM")) {
        if (!isPicture) throw std::runtime_error("there is no display; --screenshot FILE needs none");
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    TableForm form;
    if (!isPicture) return form.exec(), 0;
    if (!form.grab().save(argv[2])) throw std::runtime_error(std::string(argv[2]) + " cannot be written");
} catch (const std::exception& failure) {
    std::cerr << "qt-form: " << failure.what() << '\n';
    return 1;
}
