#include "core/busy_state.h"

#include "core/form1.h"

namespace kivu::core {

void EventPacer::DoEventsWhenDue() {
    using namespace std::chrono_literals;
    const auto now = clock.Steady();
    if (now - last < 30ms) return;
    events.DoEvents();
    last = clock.Steady();
}

void BusyState::HideAll(bool iVIsible) {
    form.ListsVisible = iVIsible;
    form.GlobalSearchList.SetVisible(false);
    form.LoadingBtn.SetVisible(!iVIsible);
    form.SettingsBtn.SetVisible(iVIsible);
    form.SettingsShortBtn.SetVisible(!form.SettingsBtn.Visible());
    form.AddToFavorit.SetVisible(false);
    form.AddToFavorit_Global.SetVisible(false);
    form.Label1.SetVisible(iVIsible);
    form.Label2.SetVisible(iVIsible);
    form.Label3.SetVisible(iVIsible);
    form.EmulatorLongListbox.SetVisible(false);
    form.ShowSearchBox(iVIsible);
    form.FavoritenListeGlobal.SetVisible(false);
    form.Current_ProgramNameFull.SetCaption("");
    if (!iVIsible) {
        form.FavoritenListe.SetVisible(false);
        form.WIthoutDoubles.SetVisible(false);
        form.UAE_Short.SetVisible(false);
        form.SuchErgList.SetVisible(false);
    }
    form.DeLFav.SetVisible(false);
    form.SettingsSubPicture.SetVisible(iVIsible);
    // What is done in one go is not to be seen half-way, and nothing comes in its middle: keys,
    // ticks and files that are handed over find it done.
    if (form.Busy) events.DoEvents();
}

void BusyState::MeCaption(const std::string& NewCaption) {
    form.SetCaption(NewCaption);
    form.MyCaptionLabel.SetCaption(NewCaption);
    form.LoadingBtn.SetCaption(NewCaption);
}

}  // namespace kivu::core
