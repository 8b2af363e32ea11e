#include "zilvo-qt/DeckButtons.h"
#include <QApplication>
#include <iostream>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    zilvo::qt::DeckButtons decks;
    QObject::connect(&decks, &zilvo::qt::DeckButtons::NumberOfDecksChanged,
                     [](int count) { std::cout << count << " decks\n"; });
    decks.setNumberOfDecks(6);
    decks.show();
    return QApplication::exec();
}
