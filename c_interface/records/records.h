#pragma once

#include "c_interface/radsel_c.h"
#include "frame/conn_values.h"
#include "frame/handover.h"
#include "frame/ventil_kv.h"

namespace c_interface {

/// The records of radsel_c.h and those of the module in each other's form. What the C record has no
/// field for stays in the module's as it is. Texts raise CCallFault as told in texts.h.

radsel_radiator ToC(const HK_DATEN_VDI3805& daten);
HK_DATEN_VDI3805 FromC(const radsel_radiator& radiator);

radsel_row ToC(const HK_VDI3805_TYP& row);
void FromC(const radsel_row& record, HK_VDI3805_TYP& row);

/// All but `size` is written.
void ToC(const HK_DATEN_VDI3805_UEBERGABE& uebergabe, radsel_request& request);
void FromC(const radsel_request& request, HK_DATEN_VDI3805_UEBERGABE& uebergabe);

void ToC(const VDI3805_VENTIL_KV& ventil, radsel_valve& valve);
void FromC(const radsel_valve& valve, VDI3805_VENTIL_KV& ventil);

void ToC(const ConnValues& anschluss, radsel_connection& connection);
void FromC(const radsel_connection& connection, ConnValues& anschluss);

/// What the init functions fill in.
radsel_row DefaultRow();
radsel_request DefaultRequest();
radsel_valve DefaultValve();
radsel_connection DefaultConnection();
radsel_connection_checks DefaultChecks();
radsel_drawn DefaultDrawn();
radsel_layer DefaultLayer();

} // namespace c_interface
