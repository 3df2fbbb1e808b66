#include "common/startwerte.h"

#include "host/host_prefs.h"

VDI6030START LeseStartwerte()
{
    const VDI6030START* const gespeichert = ReadDefFile_VDI6030START(false);
    return gespeichert != nullptr ? *gespeichert : VDI6030START();
}
