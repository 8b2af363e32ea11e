#pragma once

#include "zilvo/buttons/GOButton.h"
#include "zilvo/buttons/GamingCardSelection.h"
#include "zilvo/buttons/LetterButton.h"
#include "zilvo/buttons/PlusMinusButton.h"
#include "zilvo/buttons/StartStopButtons.h"
#include "zilvo/buttons/SwitchCardsButton.h"
#include "zilvo/buttons/paneledGOButton.h"
#include "zilvo/buttons/ssOKCancel.h"
#include "zilvo/buttons/verticalOK.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/framework/Identity.h"
#include "zilvo/platform/component/ClassFactory.h"
#include "zilvo/seats/PlayerButtons.h"
#include "zilvo/seats/SeatCheckBoxes.h"
#include "zilvo/seats/SitDownButton.h"
#include "zilvo/seats/SpreadSeatButtons.h"
#include "zilvo/seats/ZilvoButtonGoodies.h"
#include "zilvo/seats/paneledSeatBoxes.h"
#include "zilvo/setup/CardShufflingOptions.h"
#include "zilvo/setup/DeckButtons.h"
#include "zilvo/setup/SpinCounter.h"

namespace zilvo {

/// The library for hosts that link it: every control's typed interface, and the classes by identifier.

/// The module that typed hosts and the component's entry points share.
ComponentModule& libraryModule() noexcept;

/// A fresh instance of a class of the library: `create<ssOKCancel>()`. Fails as the class's Initialize does.
template <class T>
Ref<T> create() {
    return createObject<T>(libraryModule());
}

/// The one instance of an application object that the library provides, the same one that late-bound hosts get:
/// `application<ZilvoButtonGoodies>()->SeatBitSet(...)`.
template <class T>
Ref<T> application() {
    ComponentModule& module = libraryModule();
    const Ref<Object> object = platform::applicationObject(module, *module.description().find(T::Description.name));
    return Ref<T>(static_cast<T&>(*object));
}

} // namespace zilvo
