#include "hosts/linux/sdl_calls.h"

#include <dlfcn.h>

namespace kivu::hosts {

namespace {

class Finder {
 public:
    explicit Finder(const std::string& name)
        : library(::dlopen(name.c_str(), RTLD_LAZY | RTLD_LOCAL)) {}

    template <typename Call>
    void Find(Call& call, const char* name) {
        if (library != nullptr) call = reinterpret_cast<Call>(::dlsym(library, name));
        if (library != nullptr && call != nullptr) return;
        const char* error = ::dlerror();
        if (failure.empty()) failure = error != nullptr ? error : name;
    }

    std::string failure;

 private:
    void* library;
};

}  // namespace

bool SdlCalls::Load(const std::string& library, std::string& failure) {
    Finder finder(library);
    finder.Find(setMainReady, "SDL_SetMainReady");
    finder.Find(setHint, "SDL_SetHint");
    finder.Find(initSubSystem, "SDL_InitSubSystem");
    finder.Find(quitSubSystem, "SDL_QuitSubSystem");
    finder.Find(getError, "SDL_GetError");
    finder.Find(peepEvents, "SDL_PeepEvents");
    finder.Find(numJoysticks, "SDL_NumJoysticks");
    finder.Find(nameForIndex, "SDL_JoystickNameForIndex");
    finder.Find(open, "SDL_JoystickOpen");
    finder.Find(close, "SDL_JoystickClose");
    finder.Find(instanceId, "SDL_JoystickInstanceID");
    finder.Find(getAttached, "SDL_JoystickGetAttached");
    finder.Find(update, "SDL_JoystickUpdate");
    finder.Find(eventState, "SDL_JoystickEventState");
    finder.Find(numAxes, "SDL_JoystickNumAxes");
    finder.Find(numButtons, "SDL_JoystickNumButtons");
    finder.Find(numHats, "SDL_JoystickNumHats");
    finder.Find(getAxis, "SDL_JoystickGetAxis");
    finder.Find(getButton, "SDL_JoystickGetButton");
    finder.Find(getHat, "SDL_JoystickGetHat");
    finder.Find(isPad, "SDL_IsGameController");
    finder.Find(openPad, "SDL_GameControllerOpen");
    finder.Find(closePad, "SDL_GameControllerClose");
    finder.Find(padEventState, "SDL_GameControllerEventState");
    finder.Find(getPadAxis, "SDL_GameControllerGetAxis");
    finder.Find(getPadButton, "SDL_GameControllerGetButton");
    finder.Find(getPadBind, "SDL_GameControllerGetBindForButton");
    failure = finder.failure;
    return failure.empty();
}

}  // namespace kivu::hosts
