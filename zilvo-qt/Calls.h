#pragma once

#include "zilvo-qt/Values.h"

#include "zilvo/platform/component/Object.h"

#include <QPointer>

namespace zilvo::qt {

/// Calls a method, leaves its by-reference arguments in `arguments` and throws what it fails with.
QVariant call(platform::Object& object, platform::StringView method, QVariantList& arguments);

/// Runs what may fail and what may destroy the owner, whose failed() tells of a failure. False when it failed or the
/// owner is gone.
template <class Owner, class Body>
bool guarded(const Owner& owner, const Body& body) {
    const QPointer<const Owner> alive(&owner);
    platform::ErrorInfo error;
    const platform::Status status = platform::atTheEdge(
        &error, [] { return std::string(); }, body);
    if (alive && !platform::succeeded(status))
        emit owner.failed(static_cast<int>(status), QString::fromStdString(error.message));
    return alive && platform::succeeded(status);
}

} // namespace zilvo::qt
