#include "zilvo/library/ZilvoButtons.h"

zilvo::ComponentModule& zilvo::platform::componentModule() noexcept {
    return zilvo::libraryModule();
}
