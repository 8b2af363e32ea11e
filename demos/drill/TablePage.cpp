#include "demos/drill/TablePage.h"

#include <QBoxLayout>
#include <QDateTime>

namespace drill {

using namespace zilvo::qt;

TablePage::TablePage(QWidget* parent)
    : QWidget(parent),
      felt_(new Felt),
      played_(new GamingCardSelection),
      look_(new SwitchCardsButton),
      sign_(new paneledGOButton),
      startStop_(new StartStopButtons),
      plusMinus_(new PlusMinusButton),
      count_(new SpinCounter),
      handIn_(new verticalOK),
      prompt_(new QLabel),
      setUp_(new QPushButton(tr("Set &up…"))),
      results_(new QPushButton(tr("&Results…"))) {
    auto* row = new QHBoxLayout;
    for (QWidget* control :
         std::initializer_list<QWidget*>{played_, look_, sign_, startStop_, plusMinus_, count_, handIn_})
        row->addWidget(control, 0, Qt::AlignCenter);
    auto* others = new QVBoxLayout;
    others->addWidget(setUp_);
    others->addWidget(results_);
    row->addLayout(others);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(felt_, 1);
    layout->addWidget(prompt_);
    layout->addLayout(row);
    played_->setFixedHeight(49); // below it would be a button that stays hidden
    QSizePolicy keepsRoom = played_->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    played_->setSizePolicy(keepsRoom);
    handIn_->setCaption(tr("O&K"));
    plusMinus_->setAccessibleName(tr("Sign of the running count"));
    count_->setAccessibleName(tr("Running count"));
    count_->ResetSizeToDefault();
    count_->setCounterValue(0);
    count_->setMaximumLimit(16 * 12); // no shoe has a greater count

    connect(startStop_, &StartStopButtons::StartButtonWasClicked, this, &TablePage::startWanted);
    connect(startStop_, &StartStopButtons::StopButtonWasClicked, this, &TablePage::stop);
    connect(look_, &SwitchCardsButton::SwitchCardsButtonWasPressed, felt_, &Felt::switchCards);
    const auto goTo = [this](PlayedCards played) { return [this, played] { settings_.played = played; }; };
    connect(played_, &GamingCardSelection::CardsToDiscardTrayClicked, this, goTo(PlayedCards::ToDiscardTray));
    connect(played_, &GamingCardSelection::CardsToTableClicked, this, goTo(PlayedCards::ToTable));
    connect(played_, &GamingCardSelection::CardsToShoeClicked, this, goTo(PlayedCards::ToShoe));
    connect(handIn_, &verticalOK::OKWasClicked, this, &TablePage::handIn);
    connect(setUp_, &QPushButton::clicked, this, &TablePage::setUpWanted);
    connect(results_, &QPushButton::clicked, this, &TablePage::resultsWanted);
    connect(&pace_, &QTimer::timeout, this, &TablePage::dealCard);
    setFocusProxy(startStop_);
    setSettings(settings_);
}

void TablePage::setSettings(const Settings& settings) {
    settings_ = settings;
    felt_->setSettings(settings);
    sign_->setGOButtonShape(static_cast<GOButtonShapePossibilities>(settings.pace));
    clear();
}

void TablePage::clear() {
    felt_->setDrill(nullptr);
    drill_.reset();
    asks_ = false;
    startStop_->Reset();
    played_->show(); // which its own boxes hide
    updateState(tr("START deals the cards. Keep the running count: +1 for 2 to 6, -1 for tens, faces and aces."));
}

void TablePage::deal(std::uint64_t seed) {
    felt_->setDrill(&drill_.emplace(settings_, seed));
    updateState(tr("STOP ends the drill and asks for the running count."));
    felt_->setFocus(); // where each card is told; Enter is STOP all the same
    resume();
}

void TablePage::dealCard() {
    if (drill_->isOver()) return stop();
    drill_->deal();
    felt_->cardDealt();
}

void TablePage::resume() {
    if (drill_ && !asks_) pace_.start(60000 / cardsPerMinute(settings_.pace));
}

void TablePage::stop() {
    pause();
    if (drill_->dealt().empty()) return clear();
    asks_ = true;
    startStop_->Reset();
    plusMinus_->RestartYourself();
    count_->setCounterValue(0);
    updateState(tr("What is the running count? Choose its sign and the number, then OK."));
    count_->setFocus(Qt::TabFocusReason);
}

void TablePage::handIn() {
    const int sign = plusMinus_->PlusMinusButtonIs() == PlusMinusPossibilities::aMinusButton ? -1 : 1;
    const Drill drill = *drill_;
    clear();
    emit answered(drill, drill.result(sign * count_->CounterValue(), QDateTime::currentSecsSinceEpoch()));
}

void TablePage::updateState(const QString& prompt) {
    prompt_->setText(prompt);
    played_->SelectThisButton(static_cast<GameCardButtonPossibilities>(settings_.played));
    for (QWidget* idle : std::initializer_list<QWidget*>{played_, setUp_, results_})
        idle->setEnabled(!drill_);
    sign_->setEnabled(drill_ && !asks_);
    startStop_->setEnabled(!asks_);
    for (QWidget* asked : std::initializer_list<QWidget*>{plusMinus_, count_, handIn_})
        asked->setEnabled(asks_);
}

} // namespace drill
