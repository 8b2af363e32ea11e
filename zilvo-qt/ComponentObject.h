#pragma once

#include "zilvo/platform/component/Object.h"

#include <QObject>
#include <QVariant>

namespace zilvo::qt {

/// An instance of a component's class that is no control, for the typed classes to derive from.
class ComponentObject : public QObject {
    Q_OBJECT

public:
    /// By class name, ProgID or class id; throws what Components::create() does.
    explicit ComponentObject(const QString& objectClass, QObject* parent = nullptr);

signals:
    /// What a member failed with.
    void failed(int status, const QString& message) const;

protected:
    // What a member fails with is told by failed(); what it would have given is then invalid.
    QVariant read(platform::StringView property) const;
    void write(platform::StringView property, const QVariant& value);
    QVariant run(platform::StringView method, QVariantList arguments = {});

private:
    platform::Ref<platform::Object> object_;
};

} // namespace zilvo::qt
