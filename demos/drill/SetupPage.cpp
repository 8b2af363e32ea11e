#include "demos/drill/SetupPage.h"

#include "demos/drill/SeatSets.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <algorithm>

namespace drill {

using namespace zilvo::qt;

SetupPage::SetupPage(QWidget* parent)
    : QWidget(parent),
      decks_(new DeckButtons),
      shuffle_(new CardShufflingOptions),
      // Loaded ones are laid out for seven seats.
      sitDown_(new SitDownButton(QVariantMap())),
      spread_(new SpreadSeatButtons(QVariantMap())),
      others_(new paneledSeatBoxes(QVariantMap())),
      sign_(new GOButton),
      pair_(new ssOKCancel),
      pace_(new QSlider(Qt::Horizontal)),
      askOthers_(new QPushButton(tr("Other &players…"))),
      seatText_(new QLabel),
      spreadText_(new QLabel),
      othersText_(new QLabel),
      paceText_(new QLabel) {
    pace_->setRange(0, static_cast<int>(std::size(Paces)) - 1);
    pace_->setPageStep(1);
    pace_->setAccessibleName(tr("Pace"));
    pair_->setOKEnabled(true);
    pair_->setOKToolTipText(tr("To the table"));
    pair_->setCancelToolTipText(tr("To the table as it was"));

    auto* layout = new QGridLayout(this);
    layout->addWidget(decks_, 0, 0, 1, 5, Qt::AlignHCenter);
    layout->addWidget(shuffle_, 1, 0, 1, 5, Qt::AlignHCenter);
    const std::initializer_list<QWidget*> columns[] = {
        {seatText_, sitDown_}, {spreadText_, spread_}, {othersText_, askOthers_, others_}, {paceText_, pace_, sign_}};
    int column = 0;
    for (const auto& widgets : columns) {
        auto* box = new QVBoxLayout;
        for (QWidget* widget : widgets)
            box->addWidget(widget, 0, Qt::AlignHCenter);
        box->addStretch();
        layout->addLayout(box, 2, column++);
    }
    layout->addWidget(pair_, 2, column, Qt::AlignRight | Qt::AlignBottom);
    pace_->setMinimumWidth(160);

    connect(decks_, &DeckButtons::NumberOfDecksChanged, this, [this](int count) { settings_.decks = count; });
    connect(shuffle_, &CardShufflingOptions::CardShuffleMethodChanged, this,
            [this](int method) { settings_.shuffle = static_cast<ShuffleMethod>(method); });
    connect(sitDown_, &SitDownButton::TellMeWhichSeatsAreAvailable, this, &SetupPage::tellChoice);
    connect(sitDown_, &SitDownButton::SeatSelectedWas, this, [this](SeatSelectionPossibilities seat) {
        settings_.seat = static_cast<int>(seat);
        closeBoxes();
    });
    connect(spread_, &SpreadSeatButtons::TellMeWhichSeatsAreAvailable, this, [this] {
        closeBoxes();
        settings_.spread = 0;
        spread_->AvailableSeatsAre(seatsFreeOf(only(settings_.seat) | settings_.others));
        tellChoice();
    });
    connect(spread_, &SpreadSeatButtons::SeatSpreadToWas, this, [this](SeatSelectionPossibilities seat) {
        settings_.spread = folded(settings_.spread, seat);
        tellChoice();
    });
    connect(askOthers_, &QPushButton::clicked, this, [this] {
        closeBoxes();
        settings_.others = 0;
        others_->AvailableSeatsAre(seatsFreeOf(only(settings_.seat) | settings_.spread));
        others_->MySeatIS(static_cast<SeatSpreadPossibilities>(settings_.seat));
        others_->show();
        others_->setFocus(Qt::TabFocusReason);
        tellChoice();
    });
    connect(others_, &paneledSeatBoxes::SeatSpreadToWas, this, [this](SeatSelectionPossibilities seat) {
        settings_.others = folded(settings_.others, seat);
        tellChoice();
    });
    connect(others_, &paneledSeatBoxes::DoneButtonWasClicked, this, &SetupPage::closeBoxes);
    connect(pace_, &QSlider::valueChanged, this, [this](int value) {
        settings_.pace = Paces[value];
        tellChoice();
    });
    connect(pair_, &ssOKCancel::OKWasClicked, this, &SetupPage::accepted);
    connect(pair_, &ssOKCancel::CancelWasClicked, this, &SetupPage::rejected);
    setFocusProxy(decks_);
    setSettings(settings_);
}

void SetupPage::setSettings(const Settings& settings) {
    settings_ = settings;
    decks_->setNumberOfDecks(settings.decks);
    shuffle_->setCardShuffleMethod(static_cast<GenericCardShufflePossibilities>(settings.shuffle));
    pace_->setValue(static_cast<int>(std::ranges::find(Paces, settings.pace) - std::begin(Paces)));
    closeBoxes();
}

void SetupPage::closeBoxes() {
    const Settings kept = settings_;
    spread_->AvailableSeatsAre(seatsFreeOf(~0)); // withdraws what is ticked
    others_->AvailableSeatsAre(seatsFreeOf(~0));
    settings_ = kept;
    others_->hide();
    tellChoice();
}

void SetupPage::tellChoice() {
    sitDown_->AvailableSeatsAre(seatsFreeOf(settings_.spread | settings_.others));
    sign_->setGOButtonShape(static_cast<GOButtonShapePossibilities>(settings_.pace));
    seatText_->setText(tr("You sit at: %1").arg(settings_.seat));
    spreadText_->setText(tr("You spread to: %1").arg(seatList(settings_.spread)));
    othersText_->setText(tr("Other players: %1").arg(seatList(settings_.others)));
    paceText_->setText(tr("%1 cards a minute").arg(cardsPerMinute(settings_.pace)));
}

} // namespace drill
