#pragma once

#include "demos/drill/engine/Drill.h"

#include <QJsonDocument>
#include <functional>

namespace drill {

/// The player's settings and results, each in a JSON file of its own in a folder of his. A file is written whole or not
/// at all, whatever happens meanwhile, and programs that run side by side do not lose each other's results. One that
/// cannot be read or is damaged is set aside, beside itself, and taken for empty.
class Store {
public:
    /// What the player is told when something could not be done.
    using Tell = std::function<void(const QString& message)>;

    Store(QString folder, Tell tell) : folder_(std::move(folder)), tell_(std::move(tell)) {}

    /// What it would be without a file, if there is none.
    Settings settings() const;
    void save(const Settings& settings) const;

    std::vector<Result> results() const;
    /// All results with the new one; it is there also when it could not be written.
    std::vector<Result> add(const Result& result) const;

private:
    template <typename Content>
    Content read(const QString& name, Content (*parse)(const QJsonDocument&)) const;
    void write(const QString& name, const QJsonDocument& content) const;
    QString path(const QString& name) const { return folder_ + "/" + name; }

    QString folder_;
    Tell tell_;
};

} // namespace drill
