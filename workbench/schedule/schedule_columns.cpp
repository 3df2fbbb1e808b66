#include "workbench/schedule/schedule_columns.h"

#include "platform/format.h"
#include "workbench/building/user_text.h"
#include "workbench/schedule/valve_text.h"

namespace workbench {

namespace {

constexpr CNumberForm kPercent{.nDecimals = 1, .nFileDecimals = 1, .bSign = true};
constexpr CNumberForm kOneDecimal{.nDecimals = 1};
/// Sums of litres carry binary fractions that nobody wants to read.
constexpr CNumberForm kLitres{.nDecimals = 1, .nFileDecimals = 3};
constexpr CNumberForm kCount{.bHideZero = true};
constexpr CNumberForm kExact{.nDecimals = kAllDecimals};
constexpr CNumberForm kKv{.nDecimals = 3, .nFileDecimals = 3};

constexpr const char* kSum = "SUM({})";

CColumnLook Text(Output output, const CString& heading, double width = 0.0)
{
    return {.output = output, .strHeading = heading, .breite = width};
}

CColumnLook Number(Output output, const CString& heading, double width)
{
    return {.output = output, .strHeading = heading, .breite = width, .bRight = true};
}

CColumnLook Csv(const CString& heading)
{
    return Text(Output::csv, heading);
}

/// A line above the table tells the units of the console; numbers are as wide as they are.
CColumnLook Console(const CString& heading, Output output = Output::console)
{
    constexpr double anyWidth = 40.0;
    return {.output = output,
            .strHeading = heading,
            .breite = anyWidth,
            .bRight = true,
            .bUnit = false};
}

CColumnLook Once(CColumnLook look)
{
    look.bOnce = true;
    return look;
}

CColumnLook WithoutUnit(CColumnLook look)
{
    look.bUnit = false;
    return look;
}

CColumnLook Marked(CColumnLook look, const wchar_t* none)
{
    look.lpszNone = none;
    return look;
}

/// Machines get a code that does not change with the user's language.
CString StatusCode(RoomStatus status)
{
    switch (status) {
    case RoomStatus::chosen:
        return L"chosen";
    case RoomStatus::covered:
        return L"covered";
    case RoomStatus::unfitting:
        return L"unfitting";
    case RoomStatus::unknownProduct:
        return L"unknownProduct";
    case RoomStatus::badCatalogue:
        return L"badCatalogue";
    case RoomStatus::missing:
        return L"missing";
    case RoomStatus::lacking:
        return L"lacking";
    case RoomStatus::tooLarge:
        return L"tooLarge";
    case RoomStatus::oversized:
        return L"oversized";
    }
    return {};
}

template <class GET>
auto OfRoom(GET get)
{
    return [get](const CScheduleLine& line) -> CCell { return std::invoke(get, line.row.room); };
}

/// Empty where the line has no radiator.
template <class GET>
auto OfRadiator(GET get)
{
    return [get](const CScheduleLine& line) -> CCell {
        const auto& radiator = line.row.outcome.radiator;
        if (!radiator || !(line.bNearest || line.row.HasRadiator())) {
            return {};
        }
        return std::invoke(get, *radiator);
    };
}

template <class FIELD>
auto OfData(FIELD field)
{
    return OfRadiator([field](const CRadiatorChoice& radiator) { return radiator.daten.*field; });
}

template <class FIELD>
auto SumOf(FIELD field)
{
    return [field](const CScheduleSum& sum) -> CCell {
        return static_cast<double>(sum.totals.*field);
    };
}

auto NameOf(CString CScheduleSum::*name)
{
    return [name](const CScheduleSum& sum) -> CCell { return sum.*name; };
}

CCell NoValue(const CScheduleLine&)
{
    return {};
}

double MissingOf(const CScheduleRow& row)
{
    return GetRequired(row.room) - row.leistungRaum;
}

double MissingPercentOf(const CScheduleRow& row)
{
    const double required = GetRequired(row.room);
    return required > 0.0 ? 100.0 * MissingOf(row) / required : 0.0;
}

/// What the line's room gets, or would get from the nearest radiator.
CCell DeviationOf(const CScheduleLine& line)
{
    const auto get = [&line](const CRadiatorChoice& radiator) {
        const double output =
            line.row.HasRadiator() ? line.row.leistungRaum : radiator.daten.Leistung;
        return GetDeviation(output, GetRequired(line.row.room));
    };
    return OfRadiator(get)(line);
}

CString NotesOf(const CScheduleRow& row)
{
    CString notes = row.outcome.strNote;
    const auto add = [&notes](const wchar_t* label, const CString& note) {
        if (!note.empty()) {
            notes = Joined(notes, label + note);
        }
    };
    add(L"mandata: ", row.ventile.vorlauf.strNote);
    add(L"ritorno: ", row.ventile.ruecklauf.strNote);
    return notes;
}

using Columns = std::vector<CScheduleColumn>;

void AddRoom(Columns& columns)
{
    const Columns room = {
        CScheduleColumn([](const CScheduleLine& line) -> CCell {
            return line.strNumber;
        }).Looks({Text(Output::paper, L"Pos.", 11.0)}),
        CScheduleColumn([](const CScheduleLine& line) -> CCell { return line.strFloor; })
            .Total(NameOf(&CScheduleSum::strFloor))
            .Looks({Csv(L"Piano"), Text(Output::paperSums, L"Piano", 67.0),
                    Text(Output::paperOpen, L"Piano", 50.0),
                    Text(Output::paperMissized, L"Piano", 50.0)}),
        CScheduleColumn(OfRoom(&CRoom::strName))
            .Total(NameOf(&CScheduleSum::strRoom))
            .Json("name", JsonPart::room)
            .Looks({Csv(L"Locale"), Once(Text(Output::console, L"Locale", 22.0)),
                    Text(Output::paper, L"Locale", 34.0), Text(Output::paperOpen, L"Locale", 60.0),
                    Text(Output::paperMissized, L"Locale", 60.0)}),
        CScheduleColumn([](const CScheduleLine& line) -> CCell {
            return GetStatusText(line.row.outcome.status);
        })
            .Total(NameOf(&CScheduleSum::strStatus))
            .Looks({Csv(L"Stato"), Text(Output::paperOpen, L"Stato", 57.0),
                    Text(Output::paperMissized, L"Stato", 45.0)}),
        CScheduleColumn([](const CScheduleLine& line) -> CCell {
            return StatusCode(line.row.outcome.status);
        }).Json("status", JsonPart::room),
        CScheduleColumn(OfRoom(&CRoom::raumtemperatur))
            .Json("temperature", JsonPart::room)
            .Unit(L"°C")
            .Looks({Csv(L"Temperatura"), Once(Number(Output::paper, L"", 8.0))}),
        CScheduleColumn(NoValue)
            .Total(SumOf(&CScheduleTotals::nRooms))
            .Json("rooms")
            .Looks({Number(Output::paperSums, L"Locali", 18.0)}),
        CScheduleColumn(NoValue)
            .Total(SumOf(&CScheduleTotals::nHeizkoerper))
            .Json("radiators")
            .Looks({Number(Output::paperSums, L"Corpi scaldanti", 26.0)}),
        CScheduleColumn(NoValue)
            .Total(SumOf(&CScheduleTotals::nOpen))
            .Json("open")
            .Looks({Number(Output::paperSums, L"Da sistemare", 24.0)}),
        CScheduleColumn(NoValue).Total(SumOf(&CScheduleTotals::nChosen)).Json("chosen"),
    };
    columns.insert(columns.end(), room.begin(), room.end());
}

void AddDemand(Columns& columns)
{
    const Columns demand = {
        CScheduleColumn(OfRoom(&CRoom::bedarf))
            .Total(SumOf(&CScheduleTotals::bedarf))
            .Formula(kSum)
            .Json("demand", JsonPart::room)
            .Unit(L"W")
            .Looks({Once(Csv(L"Fabbisogno")), Once(Console(L"Fabb.")),
                    Once(Number(Output::paper, L"Fabb.", 14.0)),
                    Number(Output::paperSums, L"Fabbisogno", 24.0)}),
        CScheduleColumn(OfRoom(&CRoom::gedeckt))
            .Json("covered", JsonPart::room)
            .Unit(L"W")
            .Looks({Once(Csv(L"Coperto"))}),
        CScheduleColumn(OfRoom(&GetRequired))
            .Total(SumOf(&CScheduleTotals::required))
            .Formula(kSum)
            .Json("required", JsonPart::room)
            .Unit(L"W")
            .Looks({Once(Csv(L"Richiesto")), Once(Console(L"Rich.")),
                    Once(Number(Output::paper, L"Rich.", 14.0)),
                    Number(Output::paperSums, L"Richiesto", 22.0),
                    Number(Output::paperOpen, L"Richiesto", 25.0)}),
        CScheduleColumn([](const CScheduleLine& line) -> CCell { return line.row.leistungRaum; })
            .Unit(L"W")
            .Looks({Number(Output::paperOpen, L"Resa", 25.0)}),
        CScheduleColumn([](const CScheduleLine& line) -> CCell { return MissingOf(line.row); })
            .Unit(L"W")
            .Form(kCount)
            .Looks({Number(Output::paperOpen, L"Mancano", 25.0)}),
        CScheduleColumn(
            [](const CScheduleLine& line) -> CCell { return MissingPercentOf(line.row); })
            .Unit(L"%")
            .Form({.nDecimals = 1, .bHideZero = true})
            .Looks({Number(Output::paperOpen, L"Mancano", 25.0)}),
        CScheduleColumn(OfRoom([](const CRoom& room) {
            return room.grenzen.hoeheMax;
        })).Json("heightMax", JsonPart::room),
        CScheduleColumn(OfRoom([](const CRoom& room) {
            return room.grenzen.laengeMax;
        })).Json("lengthMax", JsonPart::room),
    };
    columns.insert(columns.end(), demand.begin(), demand.end());
}

void AddProduct(Columns& columns)
{
    const Columns product = {
        CScheduleColumn(OfRoom(&CRoom::strHersteller))
            .Json("maker", JsonPart::product)
            .Looks({Csv(L"Produttore"), Text(Output::console, L"Produttore", 12.0)}),
        CScheduleColumn(OfRoom(&CRoom::strArt))
            .Json("kind", JsonPart::product)
            .Looks({Csv(L"Categoria"), Text(Output::console, L"Categoria", 18.0)}),
        CScheduleColumn(OfRoom(&CRoom::strProdukt))
            .Json("product", JsonPart::product)
            .Looks({Csv(L"Prodotto"), Text(Output::console, L"Prodotto", 15.0)}),
        // On paper the status of a room without radiator takes the place of its product.
        CScheduleColumn([](const CScheduleLine& line) -> CCell {
            const CScheduleRow& row = line.row;
            return row.HasRadiator() ? Joined(row.room.strHersteller, row.room.strProdukt, L", ")
                                     : GetStatusText(row.outcome.status);
        })
            .Total([](const CScheduleSum& sum) -> CCell {
                const int count = sum.totals.nHeizkoerper;
                return FormatInt(count) + (count == 1 ? L" corpo scaldante" : L" corpi scaldanti");
            })
            .Looks({Text(Output::paper, L"Produttore, prodotto", 40.0)}),
    };
    columns.insert(columns.end(), product.begin(), product.end());
}

void AddSize(Columns& columns)
{
    const auto sections = OfData(&HK_DATEN_VDI3805::Elemente);
    const Columns size = {
        CScheduleColumn(OfRadiator(&CRadiatorChoice::strTyp))
            .Json("type", JsonPart::radiator)
            .Looks({Csv(L"Tipo"), Marked(Text(Output::console, L"Tipo", 14.0), L"-"),
                    Text(Output::paper, L"Tipo", 24.0)}),
        CScheduleColumn(OfData(&HK_DATEN_VDI3805::Hoehe))
            .Json("height", JsonPart::radiator)
            .Unit(L"mm")
            .Looks({Csv(L"Altezza")}),
        CScheduleColumn(OfData(&HK_DATEN_VDI3805::Tiefe))
            .Json("depth", JsonPart::radiator)
            .Unit(L"mm")
            .Looks({Csv(L"Profondità")}),
        CScheduleColumn(OfData(&HK_DATEN_VDI3805::Laenge))
            .Json("length", JsonPart::radiator)
            .Unit(L"mm")
            .Looks({Csv(L"Lunghezza")}),
        CScheduleColumn(OfRadiator([](const CRadiatorChoice& radiator) {
            return CMeasures{radiator.daten.Hoehe, radiator.daten.Tiefe, radiator.daten.Laenge};
        }))
            .Unit(L"mm")
            .Looks({Console(L"H x P x L"), Text(Output::paper, L"H × P × L", 26.0)}),
        // The report names the sections beside the size, the other outputs further to the right.
        CScheduleColumn(sections).Form(kCount).Looks({Number(Output::paper, L"El.", 7.0)}),
    };
    columns.insert(columns.end(), size.begin(), size.end());
}

void AddOutput(Columns& columns)
{
    const Columns output = {
        CScheduleColumn(OfData(&HK_DATEN_VDI3805::LeistungEN442))
            .Total(SumOf(&CScheduleTotals::leistungEN442))
            .Formula(kSum)
            .Json("outputEN442", JsonPart::radiator)
            .Unit(L"W")
            .Looks({Csv(L"Resa EN 442"), Console(L"EN 442"),
                    WithoutUnit(Number(Output::paper, L"EN 442", 13.0)),
                    Number(Output::paperSums, L"EN 442", 22.0)}),
        CScheduleColumn(OfData(&HK_DATEN_VDI3805::Leistung))
            .Total(SumOf(&CScheduleTotals::leistung))
            .Formula(kSum)
            .Json("output", JsonPart::radiator)
            .Unit(L"W")
            .Looks({Csv(L"Resa di progetto"), Console(L"Resa"),
                    Number(Output::paper, L"Resa", 13.0),
                    Number(Output::paperSums, L"Resa", 22.0)}),
        CScheduleColumn(DeviationOf)
            .Total([](const CScheduleSum& sum) -> CCell {
                return GetDeviation(sum.totals.leistung, sum.totals.required);
            })
            .Formula("IF({required}>0,100*({output}-{required})/{required},0)")
            .Json("deviationPercent", JsonPart::firstRadiator)
            .Unit(L"%")
            .Form(kPercent)
            .Looks({Once(Csv(L"Scostamento")), Once(Console(L"Scost.%")),
                    Once(Number(Output::paper, L"Scost.", 14.0)),
                    Number(Output::paperSums, L"Scost.", 20.0)}),
        CScheduleColumn(OfData(&HK_DATEN_VDI3805::Elemente))
            .Json("sections", JsonPart::radiator)
            .Form(kCount)
            .Looks({Csv(L"Elementi"), Console(L"Elem.")}),
        CScheduleColumn(OfData(&HK_DATEN_VDI3805::Inhalt))
            .Total(SumOf(&CScheduleTotals::inhalt))
            .Formula(kSum)
            .Json("litres", JsonPart::radiator)
            .Unit(L"l")
            .Form(kLitres)
            .Looks({Csv(L"Contenuto"), Console(L"Litri"), Number(Output::paper, L"Acqua", 13.0),
                    Number(Output::paperSums, L"Acqua", 22.0)}),
    };
    columns.insert(columns.end(), output.begin(), output.end());
}

CString ValveText(const CValveOutcome& valve)
{
    switch (valve.status) {
    case ValveStatus::none:
        return L"–";
    case ValveStatus::found:
        return valve.ventil.Bezeichnung;
    case ValveStatus::notFound:
    case ValveStatus::badFile:
        break;
    }
    return MissingValveText(valve.status);
}

/// Each output that shows valves names both of them in the same way.
void AddValve(Columns& columns, const CString& name, CValveOutcome CRoomValves::*valve)
{
    const auto ofKey = [valve](CString VDI3805_VENTIL_KV::*field) {
        return [=](const CScheduleLine& line) -> CCell {
            return (line.row.ventile.*valve).ventil.*field;
        };
    };
    const auto ofFound = [valve](auto get) {
        return [=](const CScheduleLine& line) -> CCell {
            const CValveOutcome& outcome = line.row.ventile.*valve;
            return outcome.status == ValveStatus::found ? CCell(get(outcome.ventil)) : CCell();
        };
    };
    const Columns ofValve = {
        CScheduleColumn(ofKey(&VDI3805_VENTIL_KV::Hersteller)).Looks({Csv(name + L" produttore")}),
        CScheduleColumn(ofKey(&VDI3805_VENTIL_KV::VentilNr)).Looks({Csv(name + L" codice")}),
        CScheduleColumn(ofKey(&VDI3805_VENTIL_KV::Bezeichnung)).Looks({Csv(name + L" articolo")}),
        CScheduleColumn(ofFound([](const auto& ventil) {
            return double(ventil.DN);
        })).Looks({Csv(name + L" DN")}),
        CScheduleColumn(ofFound([](const auto& ventil) { return DecimalOf(ventil.Kvs); }))
            .Unit(L"m³/h")
            .Form(kKv)
            .Looks({Csv(name + L" kvs")}),
        CScheduleColumn(ofFound([](const auto& ventil) -> CString {
            return ventil.Einstellbar != 0 ? L"sì" : L"no";
        })).Looks({Csv(name + L" regolabile")}),
        CScheduleColumn([valve](const CScheduleLine& line) -> CCell {
            return line.row.HasRadiator() ? CCell(ValveText(line.row.ventile.*valve)) : CCell();
        }).Looks({Text(Output::paper, name, 18.0)}),
    };
    columns.insert(columns.end(), ofValve.begin(), ofValve.end());
}

void AddNotes(Columns& columns)
{
    columns.push_back(CScheduleColumn([](const CScheduleLine& line) -> CCell {
                          return NotesOf(line.row);
                      }).Looks({Csv(L"Nota")}));
    columns.push_back(CScheduleColumn([](const CScheduleLine& line) -> CCell {
                          return line.row.outcome.strNote;
                      }).Looks({Text(Output::paperMissized, L"Misura", 112.0)}));
    columns.push_back(CScheduleColumn([](const CScheduleLine& line) -> CCell {
                          const CString& note = line.row.outcome.strNote;
                          return note.empty() ? CCell() : CCell(note);
                      }).Json("note", JsonPart::room));
}

Columns MakeScheduleColumns()
{
    Columns columns;
    AddRoom(columns);
    AddDemand(columns);
    AddProduct(columns);
    AddSize(columns);
    AddOutput(columns);
    AddValve(columns, L"Mandata", &CRoomValves::vorlauf);
    AddValve(columns, L"Ritorno", &CRoomValves::ruecklauf);
    AddNotes(columns);
    return columns;
}

template <class ITEM, class FIELD>
auto OfItem(FIELD field)
{
    return [field](const ITEM& item) -> CCell { return static_cast<CCell>(item.*field); };
}

/// How many pieces of an item are to be ordered, as every bill tells it.
template <class COLUMN, class ITEM>
COLUMN PiecesColumn(std::vector<CColumnLook> looks)
{
    return COLUMN([](const ITEM& item) -> CCell { return double(item.nAnzahl); })
        .Total([](const CBillSum& sum) -> CCell { return double(sum.nAnzahl); })
        .Formula(kSum)
        .Json("count", JsonPart::item)
        .Looks(std::move(looks));
}

CCell SumName(const CBillSum& sum)
{
    return sum.strName;
}

std::vector<CBillColumn> MakeBillColumns()
{
    constexpr auto of = [](auto field) { return OfItem<CValveItem>(field); };
    return {
        CBillColumn(of(&CValveItem::strHersteller))
            .Total(SumName)
            .Json("maker", JsonPart::item)
            .Looks({Csv(L"Produttore"), Text(Output::console, L"Valvole", 22.0),
                    Text(Output::paper, L"Produttore", 60.0)}),
        CBillColumn(of(&CValveItem::strBestellNr))
            .Json("name", JsonPart::item)
            .Looks({Csv(L"Articolo"), Text(Output::console, L"Articolo", 30.0),
                    Text(Output::paper, L"Articolo", 50.0)}),
        CBillColumn(of(&CValveItem::strVentilNr))
            .Json("number", JsonPart::item)
            .Looks({Csv(L"Codice"), Text(Output::paper, L"Codice", 107.0)}),
        CBillColumn(of(&CValveItem::DN))
            .Json("DN", JsonPart::item)
            .Form(kExact)
            .Looks({Csv(L"DN"), Console(L"DN"), Number(Output::paper, L"DN", 20.0)}),
        PiecesColumn<CBillColumn, CValveItem>(
            {Csv(L"Pezzi"), Console(L"Pezzi"), Number(Output::paper, L"Pezzi", 30.0)}),
    };
}

std::vector<CRadiatorBillColumn> MakeRadiatorBillColumns()
{
    using Column = CRadiatorBillColumn;
    constexpr auto of = [](auto field) { return OfItem<CRadiatorItem>(field); };
    const auto measure = [](double CMeasures::*field) {
        return [field](const CRadiatorItem& item) -> CCell { return item.masse.*field; };
    };
    return {
        Column(of(&CRadiatorItem::strHersteller))
            .Total(SumName)
            .Json("maker", JsonPart::item)
            .Looks({Csv(L"Produttore"), Text(Output::paper, L"Produttore", 34.0)}),
        Column(of(&CRadiatorItem::strArt)).Json("kind", JsonPart::item).Looks({Csv(L"Categoria")}),
        Column(of(&CRadiatorItem::strProdukt))
            .Json("product", JsonPart::item)
            .Looks({Csv(L"Prodotto"), Text(Output::paper, L"Prodotto", 66.0)}),
        Column(of(&CRadiatorItem::strTyp))
            .Json("type", JsonPart::item)
            .Looks({Csv(L"Tipo"), Text(Output::paper, L"Tipo", 44.0)}),
        Column(measure(&CMeasures::hoehe))
            .Json("height", JsonPart::item)
            .Unit(L"mm")
            .Looks({Csv(L"Altezza")}),
        Column(measure(&CMeasures::tiefe))
            .Json("depth", JsonPart::item)
            .Unit(L"mm")
            .Looks({Csv(L"Profondità")}),
        Column(measure(&CMeasures::laenge))
            .Json("length", JsonPart::item)
            .Unit(L"mm")
            .Looks({Csv(L"Lunghezza")}),
        Column(of(&CRadiatorItem::masse))
            .Unit(L"mm")
            .Looks({Text(Output::paper, L"H × P × L", 38.0)}),
        Column(of(&CRadiatorItem::elemente))
            .Json("sections", JsonPart::item)
            .Form(kCount)
            .Looks({Csv(L"Elementi"), Number(Output::paper, L"Elementi", 18.0)}),
        // Made to measure, a radiator has no order number; then its size says what to order.
        Column([](const CRadiatorItem& item) -> CCell {
            return item.strBestellNr.empty() ? CCell() : CCell(item.strBestellNr);
        })
            .Json("orderNumber", JsonPart::item)
            .Looks({Csv(L"Codice d'ordine"),
                    Marked(Text(Output::paper, L"Codice d'ordine", 47.0), L"–")}),
        PiecesColumn<Column, CRadiatorItem>({Csv(L"Pezzi"), Number(Output::paper, L"Pezzi", 20.0)}),
    };
}

template <class FIELD>
CKvColumn KvColumn(FIELD field, const char* name, CNumberForm form, std::vector<CColumnLook> looks)
{
    return CKvColumn([field](const CKvLine& line) -> CCell {
               return double((line.ventil.*field)[line.nZeile]);
           })
        .Json(name, JsonPart::item)
        .Form(form)
        .Looks(std::move(looks));
}

std::vector<CKvColumn> MakeKvColumns()
{
    using Ventil = VDI3805_VENTIL_KV;
    const auto bypass = [](const CString& heading) {
        return Console(heading, Output::consoleBypass);
    };
    return {
        KvColumn(&Ventil::Einstellung, "presetting", {.nDecimals = 2},
                 {Console(L"Preregolazione"), bypass(L"Preregolazione")}),
        KvColumn(&Ventil::Xp, "xp", kOneDecimal, {Console(L"xp K"), bypass(L"xp K")}),
        KvColumn(&Ventil::Kv, "kv", kKv, {Console(L"kv m³/h")}),
        KvColumn(&Ventil::KvsTab, "kvs", kKv, {Console(L"kvs m³/h")}),
        KvColumn(&Ventil::KvBypass, "kvBypass", kKv, {bypass(L"kv bypass m³/h")}),
        KvColumn(&Ventil::KvHK, "kvRadiator", kKv, {bypass(L"kv corpo m³/h")}),
        KvColumn(&Ventil::AnteilHK, "radiatorPercent", {}, {bypass(L"quota %")}),
    };
}

} // namespace

const std::vector<CScheduleColumn>& ScheduleColumns()
{
    static const std::vector<CScheduleColumn> columns = MakeScheduleColumns();
    return columns;
}

const std::vector<CBillColumn>& BillColumns()
{
    static const std::vector<CBillColumn> columns = MakeBillColumns();
    return columns;
}

const std::vector<CRadiatorBillColumn>& RadiatorBillColumns()
{
    static const std::vector<CRadiatorBillColumn> columns = MakeRadiatorBillColumns();
    return columns;
}

const std::vector<CKvColumn>& KvColumns()
{
    static const std::vector<CKvColumn> columns = MakeKvColumns();
    return columns;
}

} // namespace workbench
