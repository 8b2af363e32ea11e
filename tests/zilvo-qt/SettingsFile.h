#pragma once

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace zilvo::qt {

/// The settings as a later run of the program reads them from an ini file.
inline QVariantMap throughFile(const QVariantMap& saved) {
    const QTemporaryDir folder;
    const QString written = folder.filePath("written.ini");
    for (QSettings settings(written, QSettings::IniFormat); const QString& key : saved.keys())
        settings.setValue(key, saved[key]);
    // In this run the toolkit keeps what was written to that file, with its kinds.
    const QString file = folder.filePath("read.ini");
    QFile::copy(written, file);
    QVariantMap read;
    for (const QSettings settings(file, QSettings::IniFormat); const QString& key : settings.allKeys())
        read[key] = settings.value(key);
    return read;
}

} // namespace zilvo::qt
