#include "zilvo-qt/Components.h"

#include "zilvo-qt/Values.h"

#include <QCoreApplication>

namespace zilvo::qt {

using namespace platform;

Components& Components::ofApplication() {
    QCoreApplication* application = QCoreApplication::instance();
    if (!application)
        throw Failure(Status::UnexpectedCall, "there is no QApplication yet, or no longer, that could have a control");
    if (auto* components = application->findChild<Components*>({}, Qt::FindDirectChildrenOnly)) return *components;
    return *new Components(application);
}

void Components::add(const QString& file) {
    components_.add(file.toStdString());
}

Ref<Object> Components::create(const QString& controlClass) {
    const String name = toString(controlClass);
    const auto isKnown = [&] {
        return std::any_of(components_.known().begin(), components_.known().end(),
                           [&](const KnownComponent& each) { return each.description().find(name) != nullptr; });
    };
    if (!isKnown() && !std::exchange(hasLookedBeside_, true))
        components_.addFrom(QCoreApplication::applicationDirPath().toStdString());
    return components_.create(name);
}

} // namespace zilvo::qt
