#pragma once

// windows.h without those of its macros that would rename routines of the launcher: each stands for
// the wide form of a call, which is called by its own name here.
#include <windows.h>

#undef CreateDirectory
#undef DeleteFile
#undef MessageBox
#undef MoveFile
