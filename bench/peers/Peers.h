#pragma once

#include <QButtonGroup>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <benchmark/benchmark.h>
#include <functional>
#include <string>

namespace zilvo::bench {

/// What ours takes is stated as a share of what the peer takes, beside the most that it should be; 0 for no limit.
void compare(const std::string& what, std::function<void(benchmark::State&)> ours, const std::string& peerName,
             std::function<void(benchmark::State&)> peer, double limit = 0);

void compareCalls();
void compareWidgets();
/// Prints what ten thousand controls on one form cost, each beside one of ten.
void stateManyControls();

/// What an OK/Cancel pair tells and takes.
class PeerObject : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool okEnabled READ okEnabled WRITE setOkEnabled)

public:
    bool okEnabled() const { return okEnabled_; }
    void setOkEnabled(bool enabled) { okEnabled_ = enabled; }
    Q_INVOKABLE void reset() { okEnabled_ = false; }

signals:
    void okWasClicked();

private:
    bool okEnabled_ = false;
};

/// Deck buttons as a host author would put them together.
class PeerDecks : public QWidget {
    Q_OBJECT

public:
    PeerDecks();
    void setDecks(int decks) { group_.button(decks)->setChecked(true); }

signals:
    void decksChanged(int decks);

private:
    QLabel caption_{"# of Decks", this};
    QButtonGroup group_;
    QMenu menu_;
};

} // namespace zilvo::bench
