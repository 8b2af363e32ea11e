#include "demos/drill/ResultPage.h"

#include "demos/drill/Felt.h"
#include "demos/drill/SeatSets.h"

#include <QDateTime>
#include <QGridLayout>
#include <QHeaderView>
#include <QLocale>
#include <algorithm>

namespace drill {

using namespace zilvo::qt;

namespace {

constexpr int PlaceRole = Qt::UserRole;

QString signedText(int count) {
    return (count > 0 ? QStringLiteral("+") : QString()) + QString::number(count);
}

QString shuffleName(ShuffleMethod method) {
    const QString names[] = {ResultPage::tr("None"), ResultPage::tr("Strip"), ResultPage::tr("Straight-through"),
                             ResultPage::tr("Machine box"), ResultPage::tr("Random")};
    return names[static_cast<std::size_t>(method)];
}

QPixmap picture(Card card, double ratio) {
    QPixmap pixmap((CardSize * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintCard(painter, {}, card, CardLook::Faces);
    return pixmap;
}

} // namespace

ResultPage::ResultPage(QWidget* parent)
    : QWidget(parent),
      hands_(new PlayerButtons),
      seats_(new SeatCheckBoxes(QVariantMap())),
      verdict_(new QLabel),
      cards_(new QListWidget),
      again_(new QPushButton),
      table_(new QPushButton(tr("To the &table"))),
      summary_(new QLabel),
      results_(new QTableWidget(0, 6)) {
    verdict_->setFocusPolicy(Qt::StrongFocus); // so that it is heard
    QFont large = verdict_->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    verdict_->setFont(large);
    cards_->setViewMode(QListView::IconMode);
    cards_->setMovement(QListView::Static);
    cards_->setResizeMode(QListView::Adjust);
    cards_->setUniformItemSizes(true);
    cards_->setIconSize(CardSize.toSize());
    cards_->setSpacing(2);
    cards_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    cards_->setAccessibleName(tr("The cards again, with the count after each"));
    results_->setHorizontalHeaderLabels(
        {tr("When"), tr("Decks"), tr("Shuffle"), tr("Cards"), tr("Your count"), tr("Count")});
    results_->setAccessibleName(tr("Results"));
    results_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    results_->setSelectionBehavior(QAbstractItemView::SelectRows);
    results_->setTabKeyNavigation(false);
    results_->verticalHeader()->hide();
    results_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    results_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    results_->setMaximumHeight(190);

    auto* layout = new QGridLayout(this);
    layout->addWidget(verdict_, 0, 0, 1, 2);
    layout->addWidget(cards_, 1, 0, 1, 2);
    layout->addWidget(hands_, 2, 0, 1, 2, Qt::AlignHCenter);
    layout->addWidget(results_, 3, 0, 3, 1);
    layout->addWidget(seats_, 3, 1, Qt::AlignHCenter);
    layout->addWidget(again_, 4, 1);
    layout->addWidget(table_, 5, 1);
    layout->addWidget(summary_, 6, 0, 1, 2);
    layout->setRowStretch(1, 1);

    connect(hands_, &PlayerButtons::PlayerSeatSelected, this, &ResultPage::selectCardsOf);
    connect(seats_, &SeatCheckBoxes::SeatSpreadToWas, this, [this](SeatSelectionPossibilities seat) {
        spread_ = folded(std::exchange(spreadIsChosen_, true) ? spread_ : 0, seat);
        tellAgain();
    });
    connect(again_, &QPushButton::clicked, this, [this] {
        Settings settings = result_.settings;
        settings.spread = spread_;
        emit againWanted(settings, result_.seed);
    });
    connect(table_, &QPushButton::clicked, this, &ResultPage::tableWanted);
}

void ResultPage::setResults(const std::vector<Result>& results) {
    results_->setRowCount(static_cast<int>(results.size()));
    int row = static_cast<int>(results.size());
    for (const Result& result : results) { // the latest one on top
        --row;
        const QString texts[] = {QLocale().toString(QDateTime::fromSecsSinceEpoch(result.when), QLocale::ShortFormat),
                                 QString::number(result.settings.decks),
                                 shuffleName(result.settings.shuffle),
                                 QString::number(result.cards),
                                 signedText(result.answer),
                                 result.right() ? tr("right") : signedText(result.count)};
        for (int column = 0; column < results_->columnCount(); ++column)
            results_->setItem(row, column, new QTableWidgetItem(texts[column]));
    }
    const auto right = std::ranges::count_if(results, &Result::right);
    summary_->setText(tr("%1 of %2 counts were right.").arg(right).arg(results.size()));
}

void ResultPage::setDrill(const Drill& drill, const Result& result) {
    showDrillParts(true);
    result_ = result;
    const QString count = signedText(result.count);
    verdict_->setText(result.right()
                          ? tr("Right: the running count is %1.").arg(count)
                          : tr("Wrong: the running count is %1, and not %2.").arg(count, signedText(result.answer)));
    cards_->clear();
    for (const DealtCard& dealt : drill.dealt()) {
        auto* item =
            new QListWidgetItem(picture(dealt.card, devicePixelRatioF()), signedText(dealt.runningCount), cards_);
        item->setData(PlaceRole, dealt.place);
        const QString told = tr("%1: %2, count %3, true count %4")
                                 .arg(placeName(dealt.place), spoken(dealt.card, CardLook::Faces),
                                      signedText(dealt.runningCount), signedText(dealt.trueCount));
        item->setData(Qt::AccessibleTextRole, told);
        item->setToolTip(told);
    }
    SeatSet dealtTo = 0;
    for (int seat = 1; seat <= Seats; ++seat)
        if (result.settings.isTaken(seat)) dealtTo |= only(seat);
    hands_->SetupTheRadioButtons(seatsFreeOf(~dealtTo));
    hands_->SelectButton(result.settings.seat);
    selectCardsOf(result.settings.seat); // also where that button was selected before
    seats_->AvailableSeatsAre(seatsFreeOf(only(result.settings.seat) | result.settings.others));
    seats_->MySeatIS(static_cast<SeatSpreadPossibilities>(result.settings.seat));
    spread_ = result.settings.spread;
    spreadIsChosen_ = false;
    tellAgain();
    verdict_->setFocus();
}

void ResultPage::setNoDrill() {
    showDrillParts(false);
    verdict_->setText(tr("Results so far"));
    results_->setFocus();
}

void ResultPage::showDrillParts(bool shown) {
    for (QWidget* part : std::initializer_list<QWidget*>{cards_, hands_, seats_, again_})
        part->setVisible(shown);
}

void ResultPage::selectCardsOf(int seat) {
    for (int row = 0; row < cards_->count(); ++row)
        cards_->item(row)->setSelected(cards_->item(row)->data(PlaceRole) == seat);
}

void ResultPage::tellAgain() {
    again_->setText(tr("Deal &again to %1").arg(seatList(spread_ | only(result_.settings.seat))));
}

} // namespace drill
