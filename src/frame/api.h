#pragma once

/// Marks what the module exports: the thirteen functions of entry_points.h and lumo_error.h.
#define RADSEL_API __attribute__((visibility("default")))
