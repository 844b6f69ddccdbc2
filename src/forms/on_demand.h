#pragma once

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

#include "forms/window_host.h"

namespace kivu::forms {

// A window that is made when it is first spoken to and forgotten when it is unloaded, so that each
// opening starts fresh and one that is not open costs nothing.
//
// A Window is a Form, or owns one and gives it by GetForm().
template <typename Window>
class OnDemand {
 public:
    using Make = std::function<std::unique_ptr<Window>()>;
    OnDemand(WindowHost& host, Make make) : host(host), make(std::move(make)) {}
    OnDemand(const OnDemand&) = delete;
    OnDemand& operator=(const OnDemand&) = delete;

    // Makes and loads the window where there is none. One that its own load handler has unloaded
    // lasts as long as any other that is unloaded.
    Window& Get() {
        if (window) return *window;
        window = make();
        Window& made = *window;
        Form& form = FormOf(made);
        form.onForget = [this, &form] {
            host.FreeLater(form, std::shared_ptr<Window>(std::move(window)));
        };
        const HeldForm held(form);
        form.Load();
        return made;
    }
    // Null: there is none at the moment.
    Window* Loaded() const { return window.get(); }

 private:
    static Form& FormOf(Window& made) {
        if constexpr (std::is_base_of_v<Form, Window>) {
            return made;
        } else {
            return made.GetForm();
        }
    }

    WindowHost& host;
    Make make;
    std::unique_ptr<Window> window;
};

}  // namespace kivu::forms
