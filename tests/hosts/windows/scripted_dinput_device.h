#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <set>
#include <vector>

#include "hosts/windows/dinput.h"

namespace kivu::testing {

// A device of DirectInput that plays by a script: what is not there reads as zero.
class ScriptedDirectInputDevice : public IDirectInputDevice8W {
 public:
    // Offsets of the joystick format that stand for something.
    std::set<DWORD> objects{offsetof(DIJOYSTATE, lX), offsetof(DIJOYSTATE, lY)};
    DWORD buttonCount = 10;
    DIJOYSTATE state{};
    std::vector<DIDEVICEOBJECTDATA> events;
    HRESULT formatResult = S_OK, capabilitiesResult = S_OK, stateResult = S_OK;
    HRESULT acquireResult = S_OK, dataResult = S_OK;

    bool isJoystickFormat = false;
    DWORD level = 0;
    HWND levelWindow = reinterpret_cast<HWND>(1);
    DWORD buffer = 0;
    int acquired = 0, polled = 0, released = 0;

    ScriptedDirectInputDevice() {
        state.lX = state.lY = 32768;
        std::fill(std::begin(state.rgdwPOV), std::end(state.rgdwPOV), 0xFFFFFFFF);
    }
    virtual ~ScriptedDirectInputDevice() = default;

    void Event(DWORD offset, DWORD data) { events.push_back({offset, data, 0, 0, 0}); }

    STDMETHODIMP_(ULONG) Release() override { return static_cast<ULONG>(++released * 0); }
    STDMETHODIMP SetDataFormat(LPCDIDATAFORMAT format) override {
        isJoystickFormat = format == &c_dfDIJoystick;
        return formatResult;
    }
    STDMETHODIMP SetCooperativeLevel(HWND window, DWORD flags) override {
        levelWindow = window;
        level = flags;
        return S_OK;
    }
    STDMETHODIMP SetProperty(REFGUID property, LPCDIPROPHEADER header) override {
        if (&property == &DIPROP_BUFFERSIZE)
            buffer = reinterpret_cast<const DIPROPDWORD*>(header)->dwData;
        return S_OK;
    }
    STDMETHODIMP GetCapabilities(LPDIDEVCAPS capabilities) override {
        capabilities->dwButtons = buttonCount;
        capabilities->dwFlags = 1;
        return capabilitiesResult;
    }
    STDMETHODIMP GetObjectInfo(LPDIDEVICEOBJECTINSTANCEW, DWORD object, DWORD how) override {
        return how == DIPH_BYOFFSET && objects.contains(object) ? S_OK : DIERR_OBJECTNOTFOUND;
    }
    STDMETHODIMP Acquire() override {
        ++acquired;
        return acquireResult;
    }
    STDMETHODIMP Poll() override {
        ++polled;
        return acquireResult;
    }
    STDMETHODIMP GetDeviceState(DWORD size, LPVOID data) override {
        if (FAILED(stateResult) || size != sizeof state) {
            // Whatever is there must not be taken for the state.
            std::memset(data, 0, size);
            return FAILED(stateResult) ? stateResult : E_INVALIDARG;
        }
        std::memcpy(data, &state, sizeof state);
        return S_OK;
    }
    STDMETHODIMP GetDeviceData(DWORD size, LPDIDEVICEOBJECTDATA data, LPDWORD count,
                               DWORD) override {
        if (FAILED(dataResult) || size != sizeof(DIDEVICEOBJECTDATA)) return E_INVALIDARG;
        *count = static_cast<DWORD>(std::min<std::size_t>(*count, events.size()));
        std::copy_n(events.begin(), *count, data);
        events.erase(events.begin(), events.begin() + static_cast<std::ptrdiff_t>(*count));
        return S_OK;
    }

    // What nobody calls.
    STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOTIMPL; }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP EnumObjects(LPDIENUMDEVICEOBJECTSCALLBACKW, LPVOID, DWORD) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP GetProperty(REFGUID, LPDIPROPHEADER) override { return E_NOTIMPL; }
    STDMETHODIMP Unacquire() override { return E_NOTIMPL; }
    STDMETHODIMP SetEventNotification(HANDLE) override { return E_NOTIMPL; }
    STDMETHODIMP GetDeviceInfo(LPDIDEVICEINSTANCEW) override { return E_NOTIMPL; }
    STDMETHODIMP RunControlPanel(HWND, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Initialize(HINSTANCE, DWORD, REFGUID) override { return E_NOTIMPL; }
    STDMETHODIMP CreateEffect(REFGUID, LPCDIEFFECT, LPDIRECTINPUTEFFECT*, LPUNKNOWN) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP EnumEffects(LPDIENUMEFFECTSCALLBACKW, LPVOID, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetEffectInfo(LPDIEFFECTINFOW, REFGUID) override { return E_NOTIMPL; }
    STDMETHODIMP GetForceFeedbackState(LPDWORD) override { return E_NOTIMPL; }
    STDMETHODIMP SendForceFeedbackCommand(DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP EnumCreatedEffectObjects(LPDIENUMCREATEDEFFECTOBJECTSCALLBACK, LPVOID,
                                          DWORD) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP Escape(LPDIEFFESCAPE) override { return E_NOTIMPL; }
    STDMETHODIMP SendDeviceData(DWORD, LPCDIDEVICEOBJECTDATA, LPDWORD, DWORD) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP EnumEffectsInFile(LPCWSTR, LPDIENUMEFFECTSINFILECALLBACK, LPVOID, DWORD) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP WriteEffectToFile(LPCWSTR, DWORD, LPDIFILEEFFECT, DWORD) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP BuildActionMap(LPDIACTIONFORMATW, LPCWSTR, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP SetActionMap(LPDIACTIONFORMATW, LPCWSTR, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetImageInfo(LPDIDEVICEIMAGEINFOHEADERW) override { return E_NOTIMPL; }
};

}  // namespace kivu::testing
