#include "hosts/console/validate/Checks.h"

namespace zilvo::console {

std::span<const NamedCheck> validationChecks() {
    static constexpr std::array table = {
        NamedCheck{"loads and exports", checks::loads},
        NamedCheck{"file says what runs", checks::fileAndRuntime},
        NamedCheck{"class factories", checks::classFactories},
        NamedCheck{"unknown classes and interfaces", checks::unknownClasses},
        NamedCheck{"stays loaded while in use", checks::staysLoadedInUse},
        NamedCheck{"identifiers", checks::identifiers},
        NamedCheck{"names", checks::names},
        NamedCheck{"controls and other classes", checks::controlsAndOthers},
        NamedCheck{"member ids and event numbers", checks::membersAndEvents},
        NamedCheck{"enumerations", checks::enumerations},
        NamedCheck{"instances are as described", checks::instanceDescriptions},
        NamedCheck{"resources", checks::resources},
        NamedCheck{"registration", checks::registration},
        NamedCheck{"properties", checks::properties},
        NamedCheck{"methods", checks::methods},
        NamedCheck{"wrong calls", checks::wrongCalls},
        NamedCheck{"extreme arguments", checks::extremeArguments},
        NamedCheck{"members without a site", checks::membersWithoutSite},
        NamedCheck{"lifecycle", checks::lifecycle},
        NamedCheck{"sizes", checks::sizes},
        NamedCheck{"painting", checks::painting},
        NamedCheck{"ambient properties", checks::ambientProperties},
        NamedCheck{"settings are restored", checks::settingsRoundTrip},
        NamedCheck{"hostile settings", checks::hostileSettings},
        NamedCheck{"failing settings store", checks::failingSettings},
        NamedCheck{"event connections", checks::eventConnections},
        NamedCheck{"events are raised as declared", checks::eventsRaised},
        NamedCheck{"handlers that close the control", checks::closingHandlers},
        NamedCheck{"handlers that call back", checks::callingHandlers},
        NamedCheck{"handlers that fail", checks::failingHandlers},
        NamedCheck{"handlers that disconnect", checks::disconnectingHandlers},
        NamedCheck{"unloads", checks::unloads},
    };
    return table;
}

} // namespace zilvo::console
