#include "library/ZilvoButtons.h"

namespace zilvo {

namespace {

template <class T>
Ref<Object> creator(ComponentModule& module) {
    return createControl<T>(module);
}

/// Every class of the library, with its identity, what it publishes and how it is made; in published order.
constinit const std::array classes = {
    ClassEntry{identityOf(u"ssOKCancel"), ssOKCancel::Description, creator<ssOKCancel>},
};

constinit const ComponentDescription description{libraryIdentity, enumerations, classes};

} // namespace

ComponentModule& libraryModule() noexcept {
    static constinit ComponentModule module(description);
    return module;
}

} // namespace zilvo
