#include "zilvo-qt/ComponentObject.h"

#include "zilvo-qt/Calls.h"
#include "zilvo-qt/Components.h"

namespace zilvo::qt {

using namespace platform;

ComponentObject::ComponentObject(const QString& objectClass, QObject* parent)
    : QObject(parent), object_(Components::ofApplication().create(objectClass)) {}

QVariant ComponentObject::read(StringView property) const {
    QVariant value;
    guarded(*this, [&] { value = toQVariant(get(*object_, property)); });
    return value;
}

void ComponentObject::write(StringView property, const QVariant& value) {
    guarded(*this, [&] { put(*object_, property, toVariant(value, property)); });
}

QVariant ComponentObject::run(StringView method, QVariantList arguments) {
    QVariant result;
    guarded(*this, [&] { result = call(*object_, method, arguments); });
    return result;
}

} // namespace zilvo::qt
