#pragma once

#include "zilvo/framework/Platform.h"

namespace zilvo::SeatCheckBoxesInterface {

/// The published identities by which the controls that embed a SeatCheckBoxes reach it.
inline constexpr const char16_t* ClassName = u"SeatCheckBoxes";
inline constexpr MemberId AvailableSeatsAre = 0x60030001;
inline constexpr MemberId MySeatIS = 0x60030003;
inline constexpr MemberId NumberOfSeatsAllowed = 0x68030000;
inline constexpr Long SeatSpreadToWas = 1;

} // namespace zilvo::SeatCheckBoxesInterface
