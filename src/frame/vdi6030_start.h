#pragma once

#include "frame/conn_values.h"
#include "frame/ventil_kv.h"
#include "platform/archive.h"
#include "platform/export.h"
#include "platform/text.h"

#include <cstdint>

/// What the next radiator starts with: where the catalogue stood last, the distances at which a
/// radiator is placed, the heating system, connection and valves. Constructor, assignment and
/// archive form live in HostPrefs.
class HOST_API VDI6030START
{
public:
    /// Empty texts, all numbers 0, empty connection and valves.
    VDI6030START();
    VDI6030START(const VDI6030START&);
    VDI6030START& operator=(const VDI6030START&);
    ~VDI6030START();

    /// The whole record, with the version of its form in front. A loading that fails leaves it as
    /// it was.
    void Serialize(CArchive& archive);

    /// Position of the last selection in the catalogue: manufacturer, kind, product.
    CString Hersteller;
    CString Art;
    CString Produkt;
    /// Distances from the wall and from the floor in metres.
    double AbstandWand;
    double AbstandBoden;
    /// Heating system: its name, supply and return temperature in whole degrees Celsius.
    CString SystemName;
    std::int32_t SystemVorlauf;
    std::int32_t SystemRuecklauf;
    ConnValues Anschluss;
    /// The two valves, in the order in which the valve dialog takes them.
    VDI3805_VENTIL_KV VentilVorlauf;
    VDI3805_VENTIL_KV VentilRuecklauf;
};
