#include "host_defaults/answers.h"
#include "platform/color.h"

namespace host_defaults {

int lmGetGewerkColor(TgaGewerk gewerk)
{
    switch (gewerk) {
    case kGewerkVorlauf:
        return static_cast<int>(RGB(220, 0, 0));
    case kGewerkRuecklauf:
        return static_cast<int>(RGB(0, 0, 220));
    default:
        return static_cast<int>(RGB(64, 64, 64));
    }
}

} // namespace host_defaults

int lmGetGewerkColor(TgaGewerk gewerk)
{
    return host_defaults::lmGetGewerkColor(gewerk);
}
