#include "ui/column_grid.h"

namespace kivu::ui {

namespace {

// From wide to tight, in whole pixels.
constexpr int levels = 6;
constexpr int gaps[levels] = {120, 105, 90, 75, 60, 45};
constexpr int margins[levels] = {380, 320, 260, 195, 135, 75};
constexpr int rowCount = 3;

// Names in three lines are common, longer ones are cut.
constexpr int mostLines = 3;

int HeightOfDrives(const ColumnRows& rows, const ColumnNeeds& needs) {
    return needs.drivesHeight + rows.gap + needs.favouriteRows * rows.Pitch();
}

bool Fits(const ColumnRows& rows, const ColumnNeeds& needs, int lines) {
    return nameTop + lines * needs.nameLine + rows.gap + rows.TopOf(rowCount - 1) +
               (rows.outside ? 0 : HeightOfDrives(rows, needs)) <=
           needs.frameHeight;
}

}  // namespace

ColumnRows FitColumn(const ColumnNeeds& needs) {
    ColumnRows rows;
    for (const bool outside : {false, true}) {
        for (int lines = mostLines; lines > 0; --lines) {
            for (int level = 0; level < levels; ++level) {
                rows = {gaps[level], margins[level], outside, 0};
                if (Fits(rows, needs, lines)) return rows;
            }
        }
    }
    // The rows alone, without the name.
    while (rows.hidden < rowCount - 1 && rows.TopOf(rowCount - 1 - rows.hidden) > needs.frameHeight)
        ++rows.hidden;
    return rows;
}

}  // namespace kivu::ui
