#pragma once

#include <SDL2/SDL.h>
#include <string>

namespace kivu::hosts {

// The calls of SDL 2 that controllers take.
struct SdlCalls {
    // Loads the library, which stays then. False: not all of them are there; `failure` says why.
    bool Load(const std::string& library, std::string& failure);

    decltype(&SDL_SetMainReady) setMainReady = nullptr;
    decltype(&SDL_SetHint) setHint = nullptr;
    decltype(&SDL_InitSubSystem) initSubSystem = nullptr;
    decltype(&SDL_QuitSubSystem) quitSubSystem = nullptr;
    decltype(&SDL_GetError) getError = nullptr;
    decltype(&SDL_PeepEvents) peepEvents = nullptr;
    decltype(&SDL_NumJoysticks) numJoysticks = nullptr;
    decltype(&SDL_JoystickNameForIndex) nameForIndex = nullptr;
    decltype(&SDL_JoystickOpen) open = nullptr;
    decltype(&SDL_JoystickClose) close = nullptr;
    decltype(&SDL_JoystickInstanceID) instanceId = nullptr;
    decltype(&SDL_JoystickGetAttached) getAttached = nullptr;
    decltype(&SDL_JoystickUpdate) update = nullptr;
    decltype(&SDL_JoystickEventState) eventState = nullptr;
    decltype(&SDL_JoystickNumAxes) numAxes = nullptr;
    decltype(&SDL_JoystickNumButtons) numButtons = nullptr;
    decltype(&SDL_JoystickNumHats) numHats = nullptr;
    decltype(&SDL_JoystickGetAxis) getAxis = nullptr;
    decltype(&SDL_JoystickGetButton) getButton = nullptr;
    decltype(&SDL_JoystickGetHat) getHat = nullptr;
    decltype(&SDL_IsGameController) isPad = nullptr;
    decltype(&SDL_GameControllerOpen) openPad = nullptr;
    decltype(&SDL_GameControllerClose) closePad = nullptr;
    decltype(&SDL_GameControllerEventState) padEventState = nullptr;
    decltype(&SDL_GameControllerGetAxis) getPadAxis = nullptr;
    decltype(&SDL_GameControllerGetButton) getPadButton = nullptr;
    decltype(&SDL_GameControllerGetBindForButton) getPadBind = nullptr;
};

}  // namespace kivu::hosts
