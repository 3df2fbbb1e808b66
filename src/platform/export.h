#pragma once

/// Marks what the module exports: the thirteen functions of frame/entry_points.h and
/// frame/lumo_error.h.
#define RADSEL_API __attribute__((visibility("default")))

/// Marks what one of the host's libraries offers to others.
#define HOST_API __attribute__((visibility("default")))
