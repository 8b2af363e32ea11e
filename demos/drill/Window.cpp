#include "demos/drill/Window.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QVBoxLayout>

namespace drill {

Window::Window(const Options& options)
    : message_(new QLabel),
      store_(options.folder, [this](const QString& message) { tell(message); }),
      seed_(options.seed),
      pages_(new QStackedWidget),
      setup_(new SetupPage),
      table_(new TablePage),
      result_(new ResultPage) {
    setWindowTitle(tr("Count drill"));
    message_->setWordWrap(true);
    message_->setTextFormat(Qt::PlainText);
    message_->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(message_);
    layout->addWidget(pages_);
    for (QWidget* page : std::initializer_list<QWidget*>{setup_, table_, result_})
        pages_->addWidget(page);

    connect(setup_, &SetupPage::accepted, this, [this] {
        table_->setSettings(setup_->settings());
        store_.save(setup_->settings());
        turnTo(table_);
    });
    connect(setup_, &SetupPage::rejected, this, [this] { turnTo(table_); });
    connect(table_, &TablePage::setUpWanted, this, [this] {
        setup_->setSettings(table_->settings());
        turnTo(setup_);
    });
    connect(table_, &TablePage::startWanted, this, &Window::deal);
    connect(table_, &TablePage::answered, this, [this](const Drill& drill, const Result& result) {
        result_->setResults(store_.add(result));
        turnTo(result_);
        result_->setDrill(drill, result);
    });
    connect(table_, &TablePage::resultsWanted, this, [this] {
        result_->setResults(store_.results());
        turnTo(result_);
        result_->setNoDrill();
    });
    connect(result_, &ResultPage::againWanted, this, [this](const Settings& settings, std::uint64_t seed) {
        again_ = seed;
        table_->setSettings(settings);
        turnTo(table_);
    });
    connect(result_, &ResultPage::tableWanted, this, [this] { turnTo(table_); });

    Settings settings = store_.settings();
    if (options.decks) settings.decks = *options.decks;
    table_->setSettings(settings);
    setup_->setSettings(settings);
}

void Window::tell(const QString& message) {
    message_->setText(message_->text().isEmpty() ? message : message_->text() + '\n' + message);
    message_->show();
    QAccessibleEvent alert(message_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void Window::turnTo(QWidget* page) {
    pages_->setCurrentWidget(page);
    page->setFocus();
}

void Window::deal() {
    message_->hide();
    message_->clear();
    store_.save(table_->settings());
    table_->deal(again_ ? *std::exchange(again_, {}) : seed_ ? (*seed_)++ : QRandomGenerator::system()->generate64());
}

void Window::closeEvent(QCloseEvent* event) {
    if (!table_->isInDrill()) return event->accept();
    table_->pause();
    const QString question = tr("Leave in the middle of a drill? It will not be counted.");
    event->setAccepted(QMessageBox::question(this, windowTitle(), question) == QMessageBox::Yes);
    if (!event->isAccepted()) table_->resume();
}

} // namespace drill
