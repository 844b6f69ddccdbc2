#include "walker/look.h"

#include "forms/window_host.h"
#include "text/text.h"

namespace kivu::walker {

namespace {

ListLook LookAt(const forms::ListControl& list) {
    return {list.Rows(), list.ListIndex(), list.Visible(), list.FontSize()};
}

}  // namespace

std::vector<List> Look::InFront() const {
    std::vector<List> front;
    for (std::size_t i = 0; i < listCount; ++i) {
        if (lists[i].visible) front.push_back(static_cast<List>(i));
    }
    return front;
}

Look TakeLook(core::Form1& form) {
    Look look;
    look.lists = {LookAt(form.FavoritenListe),
                  LookAt(form.WIthoutDoubles),
                  LookAt(form.UAE_Short),
                  LookAt(form.SuchErgList),
                  LookAt(form.FavoritenListeGlobal),
                  LookAt(form.GlobalSearchList),
                  LookAt(form.EmulatorLongListbox)};
    look.dropDown = LookAt(form.EmuListbox);
    look.paths = LookAt(form.UAE_FULL);
    const std::array<const forms::Label*, 4> tabs{&form.Label1, &form.Label2, &form.Label3,
                                                  &form.Label4};
    for (std::size_t i = 0; i < tabs.size(); ++i)
        look.tabs[i] = {tabs[i]->Caption(), tabs[i]->Visible()};
    if (const forms::Control* focus = form.Focus()) look.focus = focus->FullName();
    look.mode = form.ListMode;
    look.searchText = form.SearchDblsTxt.Text();
    look.title = form.MyCaptionLabel.Caption();
    look.titleVisible = form.MyCaptionLabel.Visible();
    look.started = form.CURRENT_PROGRAM_STARTED;
    look.zoomed = form.GamePicture.IsReachable();
    if (look.zoomed || form.GamePictureVis.IsReachable())
        look.preview = form.GamePictureVis.GetPicture().source;
    look.loaded = form.CurrentEmuIndex;
    look.watching = form.EmuActiveTimer.Enabled();
    look.picture = form.AppRunningPicture.Visible();
    look.gameRuns = form.GameIsRunning;
    look.busyLabel = form.LoadingBtn.Visible();
    look.busy = form.Busy;
    look.ended = form.Ended;
    const forms::Form* screen = form.GetToolkit().windows->Find("LoadingInfo");
    look.splash = screen && screen->Visible();
    look.pad.on = form.JoystickTimer.Enabled();
    look.pad.focus = form.JoystickFocus;
    look.pad.adds = form.AddToFavorit.IsReachable();
    return look;
}

const List* ListOf(const std::string& control) {
    static constexpr std::array<List, listCount> all{
        List::favourites,       List::simple,     List::complete, List::hits,
        List::globalFavourites, List::globalHits, List::emulators};
    for (std::size_t i = 0; i < listCount; ++i) {
        const std::string name = listNames[i].control;
        if (control == name || control == "Form1." + name) return &all[i];
    }
    return nullptr;
}

std::string NameOf(List list) {
    return listNames[static_cast<std::size_t>(list)].control;
}

}  // namespace kivu::walker
