#include "zilvo-qt/Calls.h"

#include <algorithm>

namespace zilvo::qt {

using namespace platform;

QVariant call(Object& object, StringView method, QVariantList& arguments) {
    std::vector<Variant> given;
    for (const QVariant& argument : arguments)
        given.push_back(toVariant(argument, method));
    const Variant result = platform::call(object, method, given);
    std::transform(given.begin(), given.end(), arguments.begin(),
                   [](const Variant& argument) { return toQVariant(argument); });
    return toQVariant(result);
}

} // namespace zilvo::qt
