#pragma once

// windows.h without those of its macros that would rename routines of the launcher: each stands for
// the wide form of a call, which is called by its own name here.
// The others need the first.
// clang-format off
#include <windows.h>
#include <dbt.h>
#include <objbase.h>
#include <sddl.h>
#include <shellapi.h>
#include <tlhelp32.h>
// clang-format on

#undef CreateDirectory
#undef DeleteFile
#undef FindExecutable
#undef MessageBox
#undef MoveFile
