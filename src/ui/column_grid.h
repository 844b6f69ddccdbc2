#pragma once

namespace kivu::ui {

// The right column's grid, in twips from the edges of the frame below the picture.
inline constexpr int columnLeft = 100;
inline constexpr int columnRight = 300;  // of the buttons; the pin alone reaches further
inline constexpr int rowHeight = 420;
inline constexpr int rowPitch = 540;
inline constexpr int rowGap = rowPitch - rowHeight;
inline constexpr int lowestRow = 800;  // from the frame's bottom to the row's top
// The drives panel stands on top of three rows.
inline constexpr int belowDrives = lowestRow + 2 * rowPitch + rowGap;

}  // namespace kivu::ui
