#include "demos/drill/SeatSets.h"
#include "demos/drill/Window.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QKeyEvent>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <climits>
#include <iostream>

namespace {

using namespace drill;

/// Throws std::invalid_argument for what is no number.
std::uint64_t number(const QCommandLineParser& options, const QString& name) {
    bool isNumber = false;
    const std::uint64_t value = options.value(name).toULongLong(&isNumber);
    if (!isNumber)
        throw std::invalid_argument(
            QStringLiteral("--%1: %2 is no number").arg(name, options.value(name)).toStdString());
    return value;
}

/// As a player sees it who has some company, by the keys that he would press.
void writePicture(Window::Options options, const QString& page, const QString& file) {
    const QTemporaryDir folder; // his own files are nobody's business
    options.folder = folder.path();
    if (!options.seed) options.seed = 1;
    Store(options.folder, {}).save({.spread = only(3), .others = only(1) | only(6)});
    Window window(options);
    window.show();
    if (page == QLatin1String("table")) {
        for (int press = 0; press < 2; ++press) { // OK and START
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, {});
            QApplication::sendEvent(&window, &enter);
        }
        for (int card = 0; card < 18; ++card)
            window.table().dealCard();
    } else if (page != QLatin1String("setup")) {
        throw std::invalid_argument(QStringLiteral("--page: there is no page %1").arg(page).toStdString());
    }
    if (!window.grab().save(file)) throw std::runtime_error(file.toStdString() + " cannot be written");
}

} // namespace

int main(int argc, char** argv) try {
    QCommandLineParser options;
    options.setApplicationDescription(
        "Deals blackjack cards from a shoe at a chosen pace, asks for the running count, and keeps the results.");
    const QCommandLineOption help = options.addHelpOption();
    options.addOption(
        {"seed", "Deals the first drill from the shoe with this seed, each other one's is one more.", "N"});
    options.addOption({"decks", "Puts so many decks into the shoe: 1, 2, 4 to 10 or 12.", "N"});
    options.addOption({"screenshot", "Writes a picture into a file, and ends. Needs no display.", "FILE"});
    options.addOption({"page", "The page of that picture: setup, as without this, or table.", "NAME", "setup"});
    const auto isUnset = [](const char* name) { return qEnvironmentVariableIsEmpty(name); };
    const bool hasDisplay = !isUnset("DISPLAY") || !isUnset("WAYLAND_DISPLAY") || !isUnset("QT_QPA_PLATFORM");
    if (!hasDisplay) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setApplicationName("zilvo-drill");
    QApplication::setDesktopFileName("zilvo-drill");
    const QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(":/zilvo-drill.svg"));

    if (!options.parse(QApplication::arguments())) throw std::invalid_argument(options.errorText().toStdString());
    if (!options.positionalArguments().isEmpty())
        throw std::invalid_argument(options.positionalArguments().first().toStdString() + ": no file is taken");
    if (options.isSet(help)) options.showHelp();
    Window::Options choice;
    if (options.isSet("decks")) {
        choice.decks = static_cast<int>(std::min<std::uint64_t>(number(options, "decks"), INT_MAX));
        checkDecks(*choice.decks);
    }
    if (options.isSet("seed")) choice.seed = number(options, "seed");
    if (options.isSet("screenshot")) return writePicture(choice, options.value("page"), options.value("screenshot")), 0;
    if (!hasDisplay) throw std::runtime_error("there is no display; --screenshot FILE needs none");
    choice.folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    Window window(choice);
    window.show();
    return QApplication::exec();
} catch (const std::exception& failure) {
    std::cerr << "zilvo-drill: " << failure.what() << '\n';
    return 1;
}
