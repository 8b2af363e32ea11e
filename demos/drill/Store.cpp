#include "demos/drill/Store.h"

#include <QCoreApplication>
#include <QDir>
#include <QLockFile>
#include <QSaveFile>

namespace drill {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("drill::Store", text);
}

} // namespace

template <typename Read>
auto Store::read(const QString& name, const Read& parse) const -> decltype(parse({})) {
    QFile file(path(name));
    if (!file.exists()) return {};
    QString damage;
    if (file.open(QIODevice::ReadOnly)) {
        const std::string content = file.readAll().toStdString();
        if (file.error() == QFile::NoError) try {
                return parse(content);
            } catch (const DamagedLine& damaged) {
                damage = damaged.what();
            }
    }
    if (damage.isEmpty()) damage = file.errorString();
    QString aside = path(name) + ".damaged";
    for (int count = 2; QFile::exists(aside); ++count)
        aside = path(name) + ".damaged-" + QString::number(count);
    tell_(QFile::rename(path(name), aside)
              ? tr("%1 could not be read (%2). It was set aside as %3.").arg(path(name), damage, aside)
              : tr("%1 could not be read (%2).").arg(path(name), damage));
    return {};
}

void Store::write(const QString& name, const std::string& content) const {
    QDir().mkpath(folder_);
    QSaveFile file(path(name));
    if (file.open(QIODevice::WriteOnly)) file.write(content.data(), static_cast<qint64>(content.size()));
    if (!file.commit()) tell_(tr("%1 could not be written (%2).").arg(path(name), file.errorString()));
}

Settings Store::settings() const {
    return read("settings", readSettings);
}

void Store::save(const Settings& settings) const {
    write("settings", text(settings));
}

std::vector<Result> Store::results() const {
    return read("results", readResults);
}

std::vector<Result> Store::add(const Result& result) const {
    QDir().mkpath(folder_);
    QLockFile lock(path("results.lock"));
    lock.tryLock(2000);
    std::vector<Result> all = results();
    all.push_back(result);
    std::string content;
    for (const Result& each : all)
        content += text(each);
    write("results", content);
    return all;
}

} // namespace drill
