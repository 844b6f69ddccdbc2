#pragma once

#include "core/ports.h"
#include "forms/types.h"
#include "platform/beeper.h"
#include "profile/ini.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::launch {

// Which disks lie in the five drives. DiskSlots is what a launch goes by; the panel's boxes show
// it, and are nothing but a display.
class DriveSlots : public core::Drives {
 public:
    DriveSlots(core::Form1& form, profile::Ini& ini, platform::Beeper& beeper)
        : form(form), ini(ini), beeper(beeper) {}

    // Fills the drives from Df0 on with the disks whose file names differ in less than `Limit`
    // places from that of UAE_FULL's row: in list order, from `RowsBack` rows before `FromRow` to
    // 14 behind UAE_Short's row. `RowsForward` has no effect. Drives that no disk is found for keep
    // theirs.
    void SelectSimilarDisks(int FromRow, int RowsBack, int RowsForward, int Limit) override;

    // The user's click in UAE_Short, once UAE_FULL's row has followed it: one disk and those like
    // it, or with hand selection the rows that the user has chosen.
    void FillFromFile() override;
    void FillFromGame(int row) override;
    void ShowOneDisk() override;

    // A box cannot be ticked for an empty drive, neither by the mouse nor by a key.
    void Check_Dfx_MouseUp(int Index);
    void Check_Dfx_KeyPress(int Index, forms::Character& character);

    bool SelectsByHand() const override;

 private:
    int SmartRomSelection();
    void Empty();
    void FillByHand();
    void Show(std::size_t drive, const std::string& path);

    core::Form1& form;
    profile::Ini& ini;
    platform::Beeper& beeper;
};

}  // namespace kivu::launch
