#pragma once

#include "driver/routine_table.h"
#include "driver/session.h"

namespace kivu::driver {

// The routines that "call" knows, by subsystem. A new one is one line in its table.
void AddTextRoutines(RoutineTable& table, Session& session);
void AddFileRoutines(RoutineTable& table, Session& session);
void AddLibraryRoutines(RoutineTable& table, Session& session);
void AddFavouriteRoutines(RoutineTable& table, Session& session);
void AddLaunchRoutines(RoutineTable& table, Session& session);
void AddWindowRoutines(RoutineTable& table, Session& session);
void AddJoystickRoutines(RoutineTable& table, Session& session);
void AddSettingsRoutines(RoutineTable& table, Session& session);

}  // namespace kivu::driver
