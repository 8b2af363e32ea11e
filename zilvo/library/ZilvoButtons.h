#pragma once

#include "buttons/GOButton.h"
#include "buttons/GamingCardSelection.h"
#include "buttons/LetterButton.h"
#include "buttons/PlusMinusButton.h"
#include "buttons/StartStopButtons.h"
#include "buttons/SwitchCardsButton.h"
#include "buttons/paneledGOButton.h"
#include "buttons/ssOKCancel.h"
#include "buttons/verticalOK.h"
#include "framework/Enumerations.h"
#include "framework/Identity.h"
#include "platform/component/ClassFactory.h"
#include "seats/PlayerButtons.h"
#include "seats/SeatCheckBoxes.h"
#include "seats/SitDownButton.h"
#include "seats/SpreadSeatButtons.h"
#include "seats/ZilvoButtonGoodies.h"
#include "seats/paneledSeatBoxes.h"
#include "setup/CardShufflingOptions.h"
#include "setup/DeckButtons.h"
#include "setup/SpinCounter.h"

namespace zilvo {

/// The library for hosts that link it: every control's typed interface, and the classes by identifier.

/// The module that typed hosts and the component's entry points share.
ComponentModule& libraryModule() noexcept;

/// A fresh instance of a class of the library: `create<ssOKCancel>()`. Fails as the class's Initialize does.
template <class T>
Ref<T> create() {
    return createObject<T>(libraryModule());
}

} // namespace zilvo
