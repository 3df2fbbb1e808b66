#include "c_interface/records/records.h"

#include "c_interface/records/texts.h"

#include <algorithm>
#include <array>
#include <cstddef>
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

/// Copies a field of the module's record into that of the C record.
struct CToC
{
    template <class Number>
    void operator()(Number& field, const Number& own) const
    {
        field = own;
    }

    template <class Number, std::size_t Size>
    void operator()(Number (&field)[Size], const std::array<Number, Size>& own) const
    {
        std::copy(own.begin(), own.end(), field);
    }

    template <std::size_t Size>
    void operator()(char (&field)[Size], const CString& own) const
    {
        WriteField(field, own);
    }

    void operator()(int& letter, wchar_t own) const
    {
        letter = static_cast<int>(std::char_traits<wchar_t>::to_int_type(own));
    }
};

/// Copies a field of the C record into that of the module's record.
struct CFromC
{
    template <class Number>
    void operator()(const Number& field, Number& own) const
    {
        own = field;
    }

    template <class Number, std::size_t Size>
    void operator()(const Number (&field)[Size], std::array<Number, Size>& own) const
    {
        std::copy(std::begin(field), std::end(field), own.begin());
    }

    template <std::size_t Size>
    void operator()(const char (&field)[Size], CString& own) const
    {
        own = ReadField(field);
    }

    void operator()(int letter, wchar_t& own) const { own = static_cast<wchar_t>(letter); }
};

// Which field of a C record is which of the module's, once for both ways.

template <class Copy, class Radiator, class Daten>
void EachFieldOfRadiator(Copy copy, Radiator& radiator, Daten& daten)
{
    copy(radiator.height, daten.Hoehe);
    copy(radiator.depth, daten.Tiefe);
    copy(radiator.length, daten.Laenge);
    copy(radiator.output_en442, daten.LeistungEN442);
    copy(radiator.output, daten.Leistung);
    copy(radiator.sections, daten.Elemente);
    copy(radiator.form, daten.Bauart);
    copy(radiator.exponent, daten.Exponent);
    copy(radiator.water, daten.Inhalt);
}

template <class Copy, class Request, class Uebergabe>
void EachFieldOfRequest(Copy copy, Request& request, Uebergabe& uebergabe)
{
    copy(request.maker, uebergabe.Hersteller);
    copy(request.kind, uebergabe.Art);
    copy(request.product, uebergabe.Produkt);
    copy(request.output, uebergabe.Leistung);
    copy(request.min_output, uebergabe.LeistungMin);
    copy(request.max_output, uebergabe.LeistungMax);
    copy(request.tolerance, uebergabe.Toleranz);
    copy(request.min_length, uebergabe.LaengeMin);
    copy(request.max_length, uebergabe.LaengeMax);
    copy(request.min_height, uebergabe.HoeheMin);
    copy(request.max_height, uebergabe.HoeheMax);
    copy(request.min_depth, uebergabe.TiefeMin);
    copy(request.max_depth, uebergabe.TiefeMax);
    copy(request.supply_temperature, uebergabe.Vorlauf);
    copy(request.return_temperature, uebergabe.Ruecklauf);
    copy(request.room_temperature, uebergabe.Raumtemperatur);
    copy(request.factor, uebergabe.Umrechnungsfaktor);
    copy(request.room, uebergabe.Raumname);
    copy(request.room_demand, uebergabe.RaumBedarf);
    copy(request.room_covered, uebergabe.RaumGedeckt);
    copy(request.reread, uebergabe.NeuLesen);
    copy(request.type_name, uebergabe.TypName);
    EachFieldOfRadiator(copy, request.chosen, uebergabe.Daten);
}

template <class Copy, class Valve, class Ventil>
void EachFieldOfValve(Copy copy, Valve& valve, Ventil& ventil)
{
    static_assert(VDI3805_VENTIL_KV::kMaxKv == RADSEL_MAX_KV);
    copy(valve.maker, ventil.Hersteller);
    copy(valve.number, ventil.VentilNr);
    copy(valve.name, ventil.Bezeichnung);
    copy(valve.main_group, ventil.Hauptgruppe);
    copy(valve.group, ventil.Gruppe);
    copy(valve.note, ventil.Zusatz);
    copy(valve.nominal_diameter, ventil.DN);
    copy(valve.presettable, ventil.Einstellbar);
    copy(valve.kind, ventil.VentilArt);
    copy(valve.type, ventil.VentilTyp);
    copy(valve.row_count, ventil.AnzahlKv);
    copy(valve.kvs, ventil.Kvs);
    copy(valve.max_pressure, ventil.DruckMax);
    copy(valve.value5, ventil.Wert5);
    copy(valve.value6, ventil.Wert6);
    copy(valve.proportional_band, ventil.Xp);
    copy(valve.bypass_kv, ventil.KvBypass);
    copy(valve.radiator_kv, ventil.KvHK);
    copy(valve.radiator_share, ventil.AnteilHK);
    copy(valve.kv, ventil.Kv);
    copy(valve.row_kvs, ventil.KvsTab);
    copy(valve.presetting, ventil.Einstellung);
}

template <class Copy, class Connection, class Anschluss>
void EachFieldOfConnection(Copy copy, Connection& connection, Anschluss& anschluss)
{
    copy(connection.name, anschluss.Name);
    copy(connection.flow.position, anschluss.PosAN);
    copy(connection.flow.offset, anschluss.OffsetAN);
    copy(connection.flow.angle, anschluss.WinkelAN);
    copy(connection.flow.side_distance, anschluss.SeitAbstandAN);
    copy(connection.ret.position, anschluss.PosRI);
    copy(connection.ret.offset, anschluss.OffsetRI);
    copy(connection.ret.angle, anschluss.WinkelRI);
    copy(connection.ret.side_distance, anschluss.SeitAbstandRI);
    copy(connection.crossing_distance, anschluss.KreuzAbstand);
    copy(connection.crossing_kind, anschluss.KreuzTyp);
    copy(connection.wall_distance, anschluss.WandAbstand);
    copy(connection.flow_text, anschluss.AnschlussAN);
    copy(connection.return_text, anschluss.AnschlussRI);
    copy(connection.flow_graphic, anschluss.GrafikAN);
    copy(connection.return_graphic, anschluss.GrafikRI);
}

} // namespace

radsel_radiator ToC(const HK_DATEN_VDI3805& daten)
{
    radsel_radiator radiator = {};
    EachFieldOfRadiator(CToC(), radiator, daten);
    return radiator;
}

HK_DATEN_VDI3805 FromC(const radsel_radiator& radiator)
{
    HK_DATEN_VDI3805 daten;
    EachFieldOfRadiator(CFromC(), radiator, daten);
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
    EachFieldOfRequest(CToC(), request, uebergabe);
}

void FromC(const radsel_request& request, HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    EachFieldOfRequest(CFromC(), request, uebergabe);
}

void ToC(const VDI3805_VENTIL_KV& ventil, radsel_valve& valve)
{
    EachFieldOfValve(CToC(), valve, ventil);
}

void FromC(const radsel_valve& valve, VDI3805_VENTIL_KV& ventil)
{
    EachFieldOfValve(CFromC(), valve, ventil);
    ventil.AnzahlKv = std::clamp(ventil.AnzahlKv, 0, RADSEL_MAX_KV);
}

void ToC(const ConnValues& anschluss, radsel_connection& connection)
{
    EachFieldOfConnection(CToC(), connection, anschluss);
}

void FromC(const radsel_connection& connection, ConnValues& anschluss)
{
    EachFieldOfConnection(CFromC(), connection, anschluss);
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
