#pragma once

#include "zilvo/platform/component/Components.h"

#include <QObject>
#include <QString>

namespace zilvo::qt {

/// The components of an application, one for all its widgets: kept by the QCoreApplication and gone with it. All calls
/// throw Failures.
class Components final : public QObject {
    Q_OBJECT

public:
    /// Fails with UnexpectedCall while there is no application.
    static Components& ofApplication();

    /// Makes a component file known before the others. Fails as reading it does.
    void add(const QString& file);

    /// Creates an instance by class name, ProgID or class id: of a component that is known, else of one that lies
    /// beside the program (*.Ocx), else of one that is registered or installed. Fails with ClassNotAvailable, and as
    /// loading the component does.
    platform::Ref<platform::Object> create(const QString& controlClass);

private:
    explicit Components(QObject* parent) : QObject(parent) {}

    platform::Components components_;
    bool hasLookedBeside_ = false;
};

} // namespace zilvo::qt
