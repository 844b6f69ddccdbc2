#pragma once

#include <chrono>
#include <memory>

#include "core/ports.h"
#include "forms/on_demand.h"
#include "launch/loading_window.h"
#include "platform/clock.h"

namespace kivu::launch {

// Shows the loading screen, and takes it away by the keyboard.
class LoadingOpener : public core::LoadingScreen {
 public:
    // How long the key that has started the game is not taken for one that skips the screen.
    static constexpr std::chrono::milliseconds tooSoon{500};

    LoadingOpener(core::Form1& form, forms::WindowHost& windows, const platform::Clock& clock,
                  forms::OnDemand<LoadingWindow>::Make make);

    void ShowLoadingInfo(forms::Form* owner) override;
    bool IsShown() const override;
    void Unload() override;
    bool GivenUp() const override;
    bool TakesKey(const forms::Key& key) override;
    // Boxes and modal windows that come up while it stands lie above it.
    void QuestionsChanged();

 private:
    core::Form1& form;
    forms::WindowHost& windows;
    const platform::Clock& clock;
    forms::OnDemand<LoadingWindow> window;
    std::chrono::milliseconds shownAt{};
    int questionsBelow = 0;  // that it has been shown over
    int held = 0;            // the key that has taken it away, until another press
};

}  // namespace kivu::launch
