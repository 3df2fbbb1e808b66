#pragma once

/// Tells the user that the environment names no data root, unless `gemeldet` says that this has
/// been told; sets it. Each place that needs a root tells it once per process.
void MeldeFehlendeWurzel(bool& gemeldet);
