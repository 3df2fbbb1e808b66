#pragma once

#include "host/host_fittings.h"

#include <array>
#include <vector>

/// All that a connection point text holds: position, offset and angle triples, then the distances.
struct PunktWerte
{
    std::array<double, 3> position{}, offset{}, winkel{};
    double seit = 0, kreuz = 0, wand = 0;
    int typ = 0;

    int Get(const CString& text)
    {
        return lmGet_K_APUNKT_X(text, position.data(), offset.data(), winkel.data(), seit, kreuz,
                                typ, wand);
    }

    CString Set() const
    {
        CString text = L"before";
        lmSet_K_APUNKT_X(text, position.data(), offset.data(), winkel.data(), seit, kreuz, typ,
                         wand);
        return text;
    }

    friend bool operator==(const PunktWerte&, const PunktWerte&) = default;

    /// The doubles in the order of the text, and the third angle behind them.
    std::vector<double*> Numbers()
    {
        return {&position[0], &offset[0], &position[1], &offset[1], &position[2], &offset[2],
                &winkel[0],   &winkel[1], &seit,        &kreuz,     &wand,        &winkel[2]};
    }
};
