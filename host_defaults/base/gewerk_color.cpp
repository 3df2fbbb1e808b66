#include "host/host_base.h"

#include "platform/color.h"

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
