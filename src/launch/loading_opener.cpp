#include "launch/loading_opener.h"

#include <algorithm>
#include <utility>

#include "core/form1.h"

namespace kivu::launch {

namespace keys = forms::keys;

LoadingOpener::LoadingOpener(core::Form1& form, forms::WindowHost& windows,
                             const platform::Clock& clock,
                             forms::OnDemand<LoadingWindow>::Make make)
    : form(form), windows(windows), clock(clock), window(windows, [this, make = std::move(make)] {
          auto made = make();
          made->takesKey = [this](const forms::Key& key) { return TakesKey(key); };
          return made;
      }) {
}

void LoadingOpener::ShowLoadingInfo(forms::Form* owner) {
    // Behind a modal window it could not be clicked: it comes anew over the one in front.
    if (IsShown() && windows.IsBlocked(window.Get().GetForm())) Unload();
    if (!IsShown()) {
        shownAt = clock.Steady();
        questionsBelow = windows.Questions();
    }
    LoadingForm& screen = window.Get().GetForm();
    const forms::HeldForm held(screen);
    windows.Show(screen, owner);
}

bool LoadingOpener::IsShown() const {
    LoadingWindow* const made = window.Loaded();
    return made && made->GetForm().Visible();
}

void LoadingOpener::Unload() {
    if (LoadingWindow* made = window.Loaded()) made->GetForm().Unload();
}

bool LoadingOpener::GivenUp() const {
    return form.StartCanBeGivenUp && form.StartGivenUp;
}

bool LoadingOpener::TakesKey(const forms::Key& key) {
    if (key.repeat && key.code == held) return true;
    held = 0;
    if (key.shift != 0) return false;
    if (key.code == keys::escape && form.StartCanBeGivenUp) {
        form.StartGivenUp = true;
        held = key.code;
        Unload();
        return true;
    }
    const bool skips =
        key.code == keys::escape || key.code == keys::enter || key.code == keys::space;
    if (!skips || !IsShown()) return false;
    if (key.repeat || clock.Steady() - shownAt < tooSoon) return true;
    held = key.code;
    Unload();
    return true;
}

void LoadingOpener::QuestionsChanged() {
    LoadingWindow* const made = window.Loaded();
    if (!made) return;
    // Of those below it some may have gone.
    questionsBelow = std::min(questionsBelow, windows.Questions());
    const bool free = windows.Questions() == questionsBelow;
    made->GetForm().SetTopmost(free);
    made->GetForm().SetAboveAll(free);
}

}  // namespace kivu::launch
