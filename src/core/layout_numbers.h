#pragma once

namespace kivu::core {

// The columns of the main window, in twips: the lists in the left two thirds, two narrow columns
// beside them. Made anew at each resize.
struct LayoutNumbers {
    int ListLeft = 0;
    int ListWidth = 0;
    int Col2Left = 0;
    int Col2Width = 0;
    int Col3Left = 0;
    int Col3Width = 0;
    int ListHeight = 0;
    int DriveBoxHeight = 0;  // at most ListHeight
    // For the search lists.
    int ThirdWidth = 0;
    int QuarterWidth = 0;
    int HalfWidth = 0;
};

}  // namespace kivu::core
