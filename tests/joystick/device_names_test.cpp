#include "joystick/device_names.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace kivu::joystick {
namespace {

struct Row {
    const char* name;
    bool open, calibrate, poll;
};

TEST(DeviceNames, EachStageKnowsItsOwnWords) {
    const std::vector<Row> rows{
        {"", false, true, true},          {"Maus", true, true, true},
        {"Tastatur", true, true, true},   {"Mouse", true, true, true},
        {"Keyboard", true, true, true},   {"HID-", true, true, true},
        {"HID-Keypad", true, true, true}, {"C-Media USB", true, true, false},
        {"C-Media", true, true, false},   {"USB To Serial", true, false, false},
        {"USB To ", true, false, false},  {"Pad", false, false, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(IsNoController(row.name, Stage::open), row.open) << row.name;
        EXPECT_EQ(IsNoController(row.name, Stage::calibrate), row.calibrate) << row.name;
        EXPECT_EQ(IsNoController(row.name, Stage::poll), row.poll) << row.name;
    }
}

TEST(DeviceNames, WholeNamesCountWholeAndCaseCounts) {
    for (const char* name : {"Mouse X", "maus", "MOUSE", " Mouse", "Keyboards", "hid-a", "HID",
                             "c-media", "USB To", "USB to X", "My USB To X"}) {
        EXPECT_FALSE(IsNoController(name, Stage::open)) << name;
    }
}

}  // namespace
}  // namespace kivu::joystick
