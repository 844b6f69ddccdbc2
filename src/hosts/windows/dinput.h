#pragma once

#include "hosts/windows/win32.h"

#define DIRECTINPUT_VERSION 0x0800
#include <dinput.h>
