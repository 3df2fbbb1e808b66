#include "workbench/building/placed_radiator_json.h"

#include "workbench/building/json_fields.h"
#include "workbench/building/json_writer.h"
#include "workbench/building/valve_keys_json.h"

#include <limits>

namespace workbench {

namespace {

constexpr auto kLine = CJsonWriter::Layout::line;

/// The longest radiator that catalogues may have, in mm.
constexpr double kLargestSize = 100000.0;

constexpr wchar_t kByHand[] = L"hand";

constexpr int kLargestInt = std::numeric_limits<int>::max();

// One list of fields serves both directions, so that they cannot drift apart.

struct CTextField
{
    const char* name;
    CString CPlacedRadiator::*field;
};

constexpr CTextField kProductTexts[] = {
    {"maker", &CPlacedRadiator::strHersteller},
    {"kind", &CPlacedRadiator::strArt},
    {"product", &CPlacedRadiator::strProdukt},
    {"type", &CPlacedRadiator::strTyp},
};

struct CRowField
{
    const char* name;
    double HK_DATEN_VDI3805::*field;
    double min;
    double max;
};

constexpr double kAnyNumber = std::numeric_limits<double>::max();

constexpr CRowField kRowFields[] = {
    {"height", &HK_DATEN_VDI3805::Hoehe, 0.0, kLargestSize},
    {"depth", &HK_DATEN_VDI3805::Tiefe, 0.0, kLargestSize},
    {"length", &HK_DATEN_VDI3805::Laenge, 0.0, kLargestSize},
    {"outputEN442", &HK_DATEN_VDI3805::LeistungEN442, -kAnyNumber, kAnyNumber},
    {"output", &HK_DATEN_VDI3805::Leistung, -kAnyNumber, kAnyNumber},
    {"sections", &HK_DATEN_VDI3805::Elemente, -kAnyNumber, kAnyNumber},
    {"exponent", &HK_DATEN_VDI3805::Exponent, -kAnyNumber, kAnyNumber},
    {"litres", &HK_DATEN_VDI3805::Inhalt, -kAnyNumber, kAnyNumber},
};

/// The fields of one of the two connection points.
struct CPointFields
{
    const char* name;
    CString ConnValues::*text;
    CString ConnValues::*graphic;
    double ConnValues::*side;
    ConnVector ConnValues::*position;
    ConnVector ConnValues::*offset;
    ConnVector ConnValues::*angles;
};

constexpr CPointFields kPoints[] = {
    {"supply", &ConnValues::AnschlussAN, &ConnValues::GrafikAN, &ConnValues::SeitAbstandAN,
     &ConnValues::PosAN, &ConnValues::OffsetAN, &ConnValues::WinkelAN},
    {"return", &ConnValues::AnschlussRI, &ConnValues::GrafikRI, &ConnValues::SeitAbstandRI,
     &ConnValues::PosRI, &ConnValues::OffsetRI, &ConnValues::WinkelRI},
};

HK_DATEN_VDI3805 ReadRow(CJsonFields fields)
{
    HK_DATEN_VDI3805 daten;
    for (const CRowField& field : kRowFields) {
        daten.*field.field = fields.Number(field.name, field.min, field.max);
    }
    const CString rating = fields.ForeignText("rating");
    fields.RefuseUnknown();
    if (rating.size() != 1) {
        fields.Fail(L"rating", L"atteso un solo carattere");
    }
    daten.Bauart = rating.front();
    return daten;
}

void WriteRow(CJsonWriter& writer, const HK_DATEN_VDI3805& daten)
{
    writer.BeginObject("row", kLine);
    for (const CRowField& field : kRowFields) {
        writer.Number(field.name, daten.*field.field);
    }
    writer.Text("rating", CString(1, daten.Bauart));
    writer.End();
}

bool ReadByHand(CJsonFields& fields)
{
    const CString chosen = fields.ForeignTextOr("chosen");
    if (!chosen.empty() && chosen != kByHand) {
        fields.Fail(L"chosen", L"atteso \"hand\"");
    }
    return !chosen.empty();
}

void ReadDistances(CJsonFields fields, CPlacedRadiator& radiator)
{
    radiator.abstandWand = fields.Number("wall");
    radiator.abstandBoden = fields.Number("floor");
    fields.RefuseUnknown();
}

void ReadLayer(CJsonFields fields, CPlacedRadiator& radiator)
{
    radiator.strLayer = fields.ForeignText("name");
    radiator.nFarbe = fields.Integer("colour", -kLargestInt, kLargestInt);
    fields.RefuseUnknown();
}

void ReadPoint(CJsonFields fields, const CPointFields& point, ConnValues& values)
{
    values.*point.text = fields.ForeignText("point");
    values.*point.graphic = fields.ForeignText("graphic");
    values.*point.side = fields.Number("side");
    values.*point.position = fields.Vector("position");
    values.*point.offset = fields.Vector("offset");
    values.*point.angles = fields.Vector("angles");
    fields.RefuseUnknown();
}

void WriteVector(CJsonWriter& writer, const char* name, const ConnVector& vector)
{
    writer.BeginList(name, kLine);
    for (const double value : vector) {
        writer.Number(nullptr, value);
    }
    writer.End();
}

void WritePoint(CJsonWriter& writer, const CPointFields& point, const ConnValues& values)
{
    writer.BeginObject(point.name);
    writer.Text("point", values.*point.text);
    writer.Text("graphic", values.*point.graphic);
    writer.Number("side", values.*point.side);
    WriteVector(writer, "position", values.*point.position);
    WriteVector(writer, "offset", values.*point.offset);
    WriteVector(writer, "angles", values.*point.angles);
    writer.End();
}

void ReadCrossing(CJsonFields fields, ConnValues& values)
{
    values.KreuzAbstand = fields.Number("distance");
    values.KreuzTyp = fields.Integer("kind", -kLargestInt, kLargestInt);
    fields.RefuseUnknown();
}

ConnValues ReadConnection(CJsonFields fields)
{
    ConnValues values;
    values.Name = fields.ForeignText("name");
    for (const CPointFields& point : kPoints) {
        ReadPoint(fields.Object(point.name), point, values);
    }
    ReadCrossing(fields.Object("crossing"), values);
    values.WandAbstand = fields.Number("wall");
    fields.RefuseUnknown();
    return values;
}

void WriteConnection(CJsonWriter& writer, const ConnValues& values)
{
    writer.BeginObject("connection");
    writer.Text("name", values.Name);
    for (const CPointFields& point : kPoints) {
        WritePoint(writer, point, values);
    }
    writer.BeginObject("crossing", kLine);
    writer.Number("distance", values.KreuzAbstand);
    writer.Number("kind", values.KreuzTyp);
    writer.End();
    writer.Number("wall", values.WandAbstand);
    writer.End();
}

bool IsSamePoint(const CPointFields& point, const ConnValues& a, const ConnValues& b)
{
    return a.*point.text == b.*point.text && a.*point.graphic == b.*point.graphic &&
           a.*point.side == b.*point.side && a.*point.position == b.*point.position &&
           a.*point.offset == b.*point.offset && a.*point.angles == b.*point.angles;
}

/// True if the values are those of a radiator that nobody has touched.
bool IsUnconnected(const ConnValues& values)
{
    const ConnValues none;
    return values.Name == none.Name && IsSamePoint(kPoints[0], values, none) &&
           IsSamePoint(kPoints[1], values, none) && values.KreuzAbstand == none.KreuzAbstand &&
           values.KreuzTyp == none.KreuzTyp && values.WandAbstand == none.WandAbstand;
}

} // namespace

CPlacedRadiator ReadPlacedRadiator(CJsonFields fields, std::size_t places)
{
    CPlacedRadiator radiator;
    radiator.nPlatz =
        static_cast<std::size_t>(fields.Integer("place", 0, static_cast<int>(places) - 1));
    for (const CTextField& text : kProductTexts) {
        radiator.*text.field = fields.ForeignText(text.name);
    }
    radiator.bVonHand = ReadByHand(fields);
    radiator.daten = ReadRow(fields.Object("row"));
    ReadDistances(fields.Object("distance"), radiator);
    ReadLayer(fields.Object("layer"), radiator);
    radiator.strBlock = fields.ForeignTextOr("block");
    if (fields.Has("connection")) {
        radiator.anschluss = ReadConnection(fields.Object("connection"));
    }
    radiator.ventile = ReadChosenValveKeys(fields);
    fields.RefuseUnknown();
    return radiator;
}

void WritePlacedRadiator(CJsonWriter& writer, const CPlacedRadiator& radiator)
{
    writer.BeginObject(nullptr);
    writer.Number("place", static_cast<double>(radiator.nPlatz));
    for (const CTextField& text : kProductTexts) {
        writer.Text(text.name, radiator.*text.field);
    }
    if (radiator.bVonHand) {
        writer.Text("chosen", kByHand);
    }
    WriteRow(writer, radiator.daten);
    writer.BeginObject("distance", kLine);
    writer.Number("wall", radiator.abstandWand);
    writer.Number("floor", radiator.abstandBoden);
    writer.End();
    writer.BeginObject("layer", kLine);
    writer.Text("name", radiator.strLayer);
    writer.Number("colour", radiator.nFarbe);
    writer.End();
    if (!radiator.strBlock.empty()) {
        writer.Text("block", radiator.strBlock);
    }
    if (!IsUnconnected(radiator.anschluss)) {
        WriteConnection(writer, radiator.anschluss);
    }
    WriteValveKeys(writer, radiator.ventile, {});
    writer.End();
}

} // namespace workbench
