#include "c_interface/records/records.h"

#include "c_interface/records/texts.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace c_interface {

namespace {

/// Wider than any radiator, room or pipe.
constexpr double kOpenEnd = 100000.0;

template <class Record>
Record Empty()
{
    Record record = {};
    record.size = sizeof record;
    return record;
}

void CopyTable(const VDI3805_VENTIL_KV::Table& from, float (&to)[RADSEL_MAX_KV])
{
    static_assert(VDI3805_VENTIL_KV::kMaxKv == RADSEL_MAX_KV);
    std::copy(from.begin(), from.end(), to);
}

void CopyTable(const float (&from)[RADSEL_MAX_KV], VDI3805_VENTIL_KV::Table& to)
{
    std::copy(std::begin(from), std::end(from), to.begin());
}

void CopyPoint(const ConnVector& position, const ConnVector& offset, const ConnVector& winkel,
               double seitAbstand, radsel_point& point)
{
    std::copy(position.begin(), position.end(), point.position);
    std::copy(offset.begin(), offset.end(), point.offset);
    std::copy(winkel.begin(), winkel.end(), point.angle);
    point.side_distance = seitAbstand;
}

void CopyPoint(const radsel_point& point, ConnVector& position, ConnVector& offset,
               ConnVector& winkel, double& seitAbstand)
{
    std::copy(std::begin(point.position), std::end(point.position), position.begin());
    std::copy(std::begin(point.offset), std::end(point.offset), offset.begin());
    std::copy(std::begin(point.angle), std::end(point.angle), winkel.begin());
    seitAbstand = point.side_distance;
}

} // namespace

radsel_radiator ToC(const HK_DATEN_VDI3805& daten)
{
    radsel_radiator radiator = {};
    radiator.height = daten.Hoehe;
    radiator.depth = daten.Tiefe;
    radiator.length = daten.Laenge;
    radiator.output_en442 = daten.LeistungEN442;
    radiator.output = daten.Leistung;
    radiator.sections = daten.Elemente;
    radiator.form = static_cast<int>(std::char_traits<wchar_t>::to_int_type(daten.Bauart));
    radiator.exponent = daten.Exponent;
    radiator.water = daten.Inhalt;
    return radiator;
}

HK_DATEN_VDI3805 FromC(const radsel_radiator& radiator)
{
    HK_DATEN_VDI3805 daten;
    daten.Hoehe = radiator.height;
    daten.Tiefe = radiator.depth;
    daten.Laenge = radiator.length;
    daten.LeistungEN442 = radiator.output_en442;
    daten.Leistung = radiator.output;
    daten.Elemente = radiator.sections;
    daten.Bauart = static_cast<wchar_t>(radiator.form);
    daten.Exponent = radiator.exponent;
    daten.Inhalt = radiator.water;
    return daten;
}

radsel_row ToC(const HK_VDI3805_TYP& row)
{
    radsel_row record = DefaultRow();
    WriteField(record.name, row.Name);
    record.data = ToC(row.Daten);
    return record;
}

void FromC(const radsel_row& record, HK_VDI3805_TYP& row)
{
    row.Name = ReadField(record.name);
    row.Daten = FromC(record.data);
}

void ToC(const HK_DATEN_VDI3805_UEBERGABE& uebergabe, radsel_request& request)
{
    WriteField(request.maker, uebergabe.Hersteller);
    WriteField(request.kind, uebergabe.Art);
    WriteField(request.product, uebergabe.Produkt);
    request.output = uebergabe.Leistung;
    request.min_output = uebergabe.LeistungMin;
    request.max_output = uebergabe.LeistungMax;
    request.tolerance = uebergabe.Toleranz;
    request.min_length = uebergabe.LaengeMin;
    request.max_length = uebergabe.LaengeMax;
    request.min_height = uebergabe.HoeheMin;
    request.max_height = uebergabe.HoeheMax;
    request.min_depth = uebergabe.TiefeMin;
    request.max_depth = uebergabe.TiefeMax;
    request.supply_temperature = uebergabe.Vorlauf;
    request.return_temperature = uebergabe.Ruecklauf;
    request.room_temperature = uebergabe.Raumtemperatur;
    request.factor = uebergabe.Umrechnungsfaktor;
    WriteField(request.room, uebergabe.Raumname);
    request.room_demand = uebergabe.RaumBedarf;
    request.room_covered = uebergabe.RaumGedeckt;
    request.reread = uebergabe.NeuLesen;
    WriteField(request.type_name, uebergabe.TypName);
    request.chosen = ToC(uebergabe.Daten);
}

void FromC(const radsel_request& request, HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    uebergabe.Hersteller = ReadField(request.maker);
    uebergabe.Art = ReadField(request.kind);
    uebergabe.Produkt = ReadField(request.product);
    uebergabe.Leistung = request.output;
    uebergabe.LeistungMin = request.min_output;
    uebergabe.LeistungMax = request.max_output;
    uebergabe.Toleranz = request.tolerance;
    uebergabe.LaengeMin = request.min_length;
    uebergabe.LaengeMax = request.max_length;
    uebergabe.HoeheMin = request.min_height;
    uebergabe.HoeheMax = request.max_height;
    uebergabe.TiefeMin = request.min_depth;
    uebergabe.TiefeMax = request.max_depth;
    uebergabe.Vorlauf = request.supply_temperature;
    uebergabe.Ruecklauf = request.return_temperature;
    uebergabe.Raumtemperatur = request.room_temperature;
    uebergabe.Umrechnungsfaktor = request.factor;
    uebergabe.Raumname = ReadField(request.room);
    uebergabe.RaumBedarf = request.room_demand;
    uebergabe.RaumGedeckt = request.room_covered;
    uebergabe.NeuLesen = request.reread;
    uebergabe.TypName = ReadField(request.type_name);
    uebergabe.Daten = FromC(request.chosen);
}

void ToC(const VDI3805_VENTIL_KV& ventil, radsel_valve& valve)
{
    WriteField(valve.maker, ventil.Hersteller);
    WriteField(valve.number, ventil.VentilNr);
    WriteField(valve.name, ventil.Bezeichnung);
    WriteField(valve.main_group, ventil.Hauptgruppe);
    WriteField(valve.group, ventil.Gruppe);
    WriteField(valve.note, ventil.Zusatz);
    valve.nominal_diameter = ventil.DN;
    valve.presettable = ventil.Einstellbar;
    valve.kind = ventil.VentilArt;
    valve.type = ventil.VentilTyp;
    valve.row_count = ventil.AnzahlKv;
    valve.kvs = ventil.Kvs;
    valve.max_pressure = ventil.DruckMax;
    valve.value5 = ventil.Wert5;
    valve.value6 = ventil.Wert6;
    CopyTable(ventil.Xp, valve.proportional_band);
    CopyTable(ventil.KvBypass, valve.bypass_kv);
    CopyTable(ventil.KvHK, valve.radiator_kv);
    CopyTable(ventil.AnteilHK, valve.radiator_share);
    CopyTable(ventil.Kv, valve.kv);
    CopyTable(ventil.KvsTab, valve.row_kvs);
    CopyTable(ventil.Einstellung, valve.presetting);
}

void FromC(const radsel_valve& valve, VDI3805_VENTIL_KV& ventil)
{
    ventil.Hersteller = ReadField(valve.maker);
    ventil.VentilNr = ReadField(valve.number);
    ventil.Bezeichnung = ReadField(valve.name);
    ventil.Hauptgruppe = ReadField(valve.main_group);
    ventil.Gruppe = ReadField(valve.group);
    ventil.Zusatz = ReadField(valve.note);
    ventil.DN = valve.nominal_diameter;
    ventil.Einstellbar = valve.presettable;
    ventil.VentilArt = valve.kind;
    ventil.VentilTyp = valve.type;
    ventil.AnzahlKv = std::clamp(valve.row_count, 0, RADSEL_MAX_KV);
    ventil.Kvs = valve.kvs;
    ventil.DruckMax = valve.max_pressure;
    ventil.Wert5 = valve.value5;
    ventil.Wert6 = valve.value6;
    CopyTable(valve.proportional_band, ventil.Xp);
    CopyTable(valve.bypass_kv, ventil.KvBypass);
    CopyTable(valve.radiator_kv, ventil.KvHK);
    CopyTable(valve.radiator_share, ventil.AnteilHK);
    CopyTable(valve.kv, ventil.Kv);
    CopyTable(valve.row_kvs, ventil.KvsTab);
    CopyTable(valve.presetting, ventil.Einstellung);
}

void ToC(const ConnValues& anschluss, radsel_connection& connection)
{
    WriteField(connection.name, anschluss.Name);
    CopyPoint(anschluss.PosAN, anschluss.OffsetAN, anschluss.WinkelAN, anschluss.SeitAbstandAN,
              connection.flow);
    CopyPoint(anschluss.PosRI, anschluss.OffsetRI, anschluss.WinkelRI, anschluss.SeitAbstandRI,
              connection.ret);
    connection.crossing_distance = anschluss.KreuzAbstand;
    connection.crossing_kind = anschluss.KreuzTyp;
    connection.wall_distance = anschluss.WandAbstand;
    WriteField(connection.flow_text, anschluss.AnschlussAN);
    WriteField(connection.return_text, anschluss.AnschlussRI);
    WriteField(connection.flow_graphic, anschluss.GrafikAN);
    WriteField(connection.return_graphic, anschluss.GrafikRI);
}

void FromC(const radsel_connection& connection, ConnValues& anschluss)
{
    anschluss.Name = ReadField(connection.name);
    CopyPoint(connection.flow, anschluss.PosAN, anschluss.OffsetAN, anschluss.WinkelAN,
              anschluss.SeitAbstandAN);
    CopyPoint(connection.ret, anschluss.PosRI, anschluss.OffsetRI, anschluss.WinkelRI,
              anschluss.SeitAbstandRI);
    anschluss.KreuzAbstand = connection.crossing_distance;
    anschluss.KreuzTyp = connection.crossing_kind;
    anschluss.WandAbstand = connection.wall_distance;
    anschluss.AnschlussAN = ReadField(connection.flow_text);
    anschluss.AnschlussRI = ReadField(connection.return_text);
    anschluss.GrafikAN = ReadField(connection.flow_graphic);
    anschluss.GrafikRI = ReadField(connection.return_graphic);
}

radsel_row DefaultRow()
{
    return Empty<radsel_row>();
}

radsel_request DefaultRequest()
{
    radsel_request request = Empty<radsel_request>();
    ToC(HK_DATEN_VDI3805_UEBERGABE(), request);
    request.max_length = request.max_height = request.max_depth = kOpenEnd;
    request.reread = 1;
    return request;
}

radsel_valve DefaultValve()
{
    return Empty<radsel_valve>();
}

radsel_connection DefaultConnection()
{
    return Empty<radsel_connection>();
}

radsel_connection_checks DefaultChecks()
{
    return Empty<radsel_connection_checks>();
}

radsel_drawn DefaultDrawn()
{
    radsel_drawn drawn = Empty<radsel_drawn>();
    for (int axis = 0; axis < 3; ++axis) {
        drawn.axes[axis][axis] = 1.0;
    }
    return drawn;
}

radsel_layer DefaultLayer()
{
    return Empty<radsel_layer>();
}

} // namespace c_interface
