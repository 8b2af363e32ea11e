#include "library/ZilvoButtons.h"

namespace zilvo {

namespace {

template <class T>
Ref<Object> creator(ComponentModule& module) {
    return createObject<T>(module);
}

/// Every class of the library, with its identity, what it publishes and how it is made; in published order.
constinit const std::array classes = {
    ClassEntry{identityOf(u"ssOKCancel"), ssOKCancel::Description, creator<ssOKCancel>},
    ClassEntry{identityOf(u"PlayerButtons"), PlayerButtons::Description, creator<PlayerButtons>},
    ClassEntry{identityOf(u"SpreadSeatButtons"), SpreadSeatButtons::Description, creator<SpreadSeatButtons>},
    ClassEntry{identityOf(u"SitDownButton"), SitDownButton::Description, creator<SitDownButton>},
    ClassEntry{identityOf(u"SeatCheckBoxes"), SeatCheckBoxes::Description, creator<SeatCheckBoxes>},
    ClassEntry{identityOf(u"ZilvoButtonGoodies"), ZilvoButtonGoodies::Description, creator<ZilvoButtonGoodies>},
    ClassEntry{identityOf(u"paneledSeatBoxes"), paneledSeatBoxes::Description, creator<paneledSeatBoxes>},
};

constinit const ComponentDescription description{libraryIdentity, enumerations, classes};

} // namespace

ComponentModule& libraryModule() noexcept {
    static constinit ComponentModule module(description);
    return module;
}

} // namespace zilvo
