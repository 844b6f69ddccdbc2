#include "ui/font_size.h"

#include <algorithm>

#include "core/form1.h"

namespace kivu::ui {

void FontSize::FontSizeCombo_Click() {
    const int row = form.FontSizeCombo.ListIndex();
    if (row < 0) return;
    const int height = form.FavoritenListe.Height();
    // Not the size that the row's text says: the lists have always been smaller than that.
    form.UAE_Short.SetFontSize(row - 5);
    form.UAE_Short.SetHeight(height);
    for (forms::ListBox* list : {&form.FavoritenListe, &form.WIthoutDoubles, &form.SuchErgList}) {
        list->SetFontSize(form.UAE_Short.FontSize());
        list->SetHeight(height);
    }
    form.Current_ProgramNameFull.SetFontSize(form.EmulatorLongListbox.FontSize() - 1);
    form.EmuListbox.SetFontSize(std::min(row, 52));
    layout.Form_Resize();
}

}  // namespace kivu::ui
