#pragma once

#include "workbench/schedule.h"

/// The schedule as a table for a terminal, with totals for each floor and the building and a list
/// of the rooms that stay without a radiator. Lines end in a line feed.
CString FormatScheduleText(const CSchedule& schedule);
