#include "common/datenwurzel.h"

#include "platform/message.h"

#include <utility>

void MeldeFehlendeWurzel(bool& gemeldet)
{
    if (!std::exchange(gemeldet, true)) {
        // Installers look for the name of the variable, and the caption is what they see in the
        // list of windows.
        ShowMessage({L"Missing Environmental-Variable: TGA_DATA_SINGLE", L"Install-Error",
                     MessageIcon::stop});
    }
}
