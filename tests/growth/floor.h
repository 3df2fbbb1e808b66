#pragma once

#include "workbench/building/building.h"

/// A building of one floor with that many furnished rooms. All of them come from one floor that is
/// made once: what makes it takes longer than most of what is counted.
workbench::CBuilding Floor(int rooms);

/// The same rooms on floors of few.
workbench::CBuilding Tower(int size);
