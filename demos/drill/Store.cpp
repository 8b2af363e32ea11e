#include "demos/drill/Store.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QLockFile>
#include <QSaveFile>

namespace drill {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("drill::Store", text);
}

/// Throws std::invalid_argument for what is no number.
qint64 number(const QJsonObject& object, const char* name) {
    if (!object[name].isDouble()) throw std::invalid_argument(std::string(name) + " is no number");
    return object[name].toInteger();
}

QJsonObject toJson(const Settings& settings) {
    return {{"decks", settings.decks},
            {"shuffle", static_cast<int>(settings.shuffle)},
            {"seat", settings.seat},
            {"spread", settings.spread},
            {"others", settings.others},
            {"played", static_cast<int>(settings.played)},
            {"pace", static_cast<int>(settings.pace)}};
}

Settings settingsOf(const QJsonObject& object) {
    const auto get = [&](const char* name) { return static_cast<int>(number(object, name)); };
    return check({.decks = get("decks"),
                  .shuffle = static_cast<ShuffleMethod>(get("shuffle")),
                  .seat = get("seat"),
                  .spread = get("spread"),
                  .others = get("others"),
                  .played = static_cast<PlayedCards>(get("played")),
                  .pace = static_cast<Pace>(get("pace"))});
}

QJsonObject toJson(const Result& result) {
    return {{"when", qint64{result.when}},
            {"settings", toJson(result.settings)},
            {"seed", static_cast<qint64>(result.seed)},
            {"cards", result.cards},
            {"answer", result.answer},
            {"count", result.count}};
}

std::vector<Result> resultsOf(const QJsonDocument& document) {
    if (!document.isArray()) throw std::invalid_argument("there are no results");
    std::vector<Result> results;
    for (const auto& value : document.array()) {
        const QJsonObject object = value.toObject();
        results.push_back({.when = number(object, "when"),
                           .settings = settingsOf(object["settings"].toObject()),
                           .seed = static_cast<std::uint64_t>(number(object, "seed")),
                           .cards = static_cast<int>(number(object, "cards")),
                           .answer = static_cast<int>(number(object, "answer")),
                           .count = static_cast<int>(number(object, "count"))});
    }
    return results;
}

} // namespace

template <typename Content>
Content Store::read(const QString& name, Content (*parse)(const QJsonDocument&)) const {
    QFile file(path(name));
    if (!file.exists()) return {};
    QString damage;
    try {
        if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error(file.errorString().toStdString());
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
        if (document.isNull()) throw std::runtime_error(error.errorString().toStdString());
        return parse(document);
    } catch (const std::exception& failure) {
        damage = QString::fromStdString(failure.what());
    }
    QString aside = path(name) + ".damaged";
    for (int count = 2; QFile::exists(aside); ++count)
        aside = path(name) + ".damaged-" + QString::number(count);
    tell_(QFile::rename(path(name), aside)
              ? tr("%1 could not be read (%2). It was set aside as %3.").arg(path(name), damage, aside)
              : tr("%1 could not be read (%2).").arg(path(name), damage));
    return {};
}

void Store::write(const QString& name, const QJsonDocument& content) const {
    QDir().mkpath(folder_);
    QSaveFile file(path(name));
    if (file.open(QIODevice::WriteOnly)) file.write(content.toJson());
    if (!file.commit()) tell_(tr("%1 could not be written (%2).").arg(path(name), file.errorString()));
}

Settings Store::settings() const {
    return read<Settings>("settings.json", [](const QJsonDocument& document) { return settingsOf(document.object()); });
}

void Store::save(const Settings& settings) const {
    write("settings.json", QJsonDocument(toJson(settings)));
}

std::vector<Result> Store::results() const {
    return read<std::vector<Result>>("results.json", resultsOf);
}

std::vector<Result> Store::add(const Result& result) const {
    QDir().mkpath(folder_);
    QLockFile lock(path("results.lock"));
    lock.tryLock(2000); // without it a result of a program beside this one may be lost, but none of this one
    std::vector<Result> all = results();
    all.push_back(result);
    QJsonArray array;
    for (const Result& each : all)
        array.append(toJson(each));
    write("results.json", QJsonDocument(array));
    return all;
}

} // namespace drill
