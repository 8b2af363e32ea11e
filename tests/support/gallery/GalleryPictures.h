#pragma once

#include "zilvo/platform/painting/Bitmap.h"

namespace zilvo {

/// Pictures of 24 by 24 pixels, drawn by code and shared by all instances.

/// A round chip.
const platform::Bitmap& chipPicture();
/// A card, lying or turned up.
const platform::Bitmap& cardPicture(bool turnedUp);

} // namespace zilvo
