#pragma once

#include "zilvo/framework/Platform.h"
#include "zilvo/platform/painting/Bitmap.h"

namespace zilvo {

/// The pictures on the buttons: drawn when they are first asked for, shared by all instances.

/// 30 by 30 pixels: a round button with a plus or a minus sign.
const Bitmap& plusPicture();
const Bitmap& minusPicture();

/// 32 by 32 pixels: where dealt cards go, on the ground of a raised or of a pressed button.
enum class Ground : std::uint8_t { White, Yellow };
const Bitmap& discardTrayPicture(Ground ground);
const Bitmap& tablePicture(Ground ground);
const Bitmap& shoePicture(Ground ground);

} // namespace zilvo
