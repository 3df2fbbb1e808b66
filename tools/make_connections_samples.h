#pragma once

#include <string>

/// The whole short list file "Vent.txt" of a new data root (docs/connection-formats.md), the same
/// bytes at every call: the connection types that fitters know, under their Italian names.
std::string MakeSampleConnections();
