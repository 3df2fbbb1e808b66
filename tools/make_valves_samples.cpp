#include "tools/make_valves_samples.h"

#include "platform/format.h"
#include "tools/make_valves_writer.h"

#include <array>
#include <iterator>
#include <span>

namespace {
/// A body form and what it leaves of the flow through an angle valve.
struct CForm
{
    const wchar_t* lpszText;
    /// Stands in order numbers.
    const wchar_t* lpszKurz;
    double dFactor;
    /// Length between its connections at DN 15.
    double dEinbau;
};

struct CFinish
{
    const wchar_t* lpszText;
    /// Without the metal, as names of articles have it.
    const wchar_t* lpszName;
    const wchar_t* lpszKurz;
};

/// What all series of a manufacturer are made in, in his language. Texts are numbered from one in
/// this order.
struct CRange
{
    std::array<CForm, 4> formen;
    std::array<CFinish, 3> ausfuehrungen;
    /// Thermostatic head and hand wheel or key.
    std::array<const wchar_t*, 2> antriebe;
};

constexpr int kThermostat = 1;
constexpr int kHand = 2;

/// Flow at another nominal diameter, compared with DN 15.
double SizeFactor(int dn)
{
    switch (dn) {
    case 10:
        return 0.8;
    case 20:
        return 1.35;
    case 25:
        return 1.8;
    default:
        return 1.0;
    }
}

/// How a manufacturer writes the presettings of a series.
enum class TableForm
{
    /// One row: no presetting.
    fixed,
    /// 1 to the last, in rising order.
    rising,
    /// The same with a second, narrower proportional band behind each row.
    twoBands,
    /// The open position by the name "N", then falling numbers.
    named,
    /// The open position without number or name, then falling numbers.
    openFirst
};

/// The share of its largest flow that a presetting leaves: small steps at first.
double ShareAt(int position, int count)
{
    const double opening = static_cast<double>(position) / count;
    return 0.05 + 0.95 * opening * (0.35 + 0.65 * opening);
}

struct CSeries
{
    const wchar_t* lpszName;
    const wchar_t* lpszKurz;
    int nArt;
    int nAntrieb;
    TableForm form;
    /// Presettings, and the step of their numbers.
    int nPositions;
    double dStep;
    /// Largest kv at a proportional band of 2 K, angle form, DN 15.
    double dKv;
    double dDruckMax;
    std::span<const int> dns;
    /// The first so many forms of the range.
    std::size_t nForms;
};

/// The same position without its thermostatic head.
double KvsOf(double kv, double share)
{
    return kv * (1.1 + 0.5 * share);
}

void WriteRows(CValveWriter& writer, const CSeries& series, double kvOpen)
{
    constexpr double kWideBand = 2.0;
    constexpr double kNarrowBand = 1.0;
    const bool falling = series.form == TableForm::named || series.form == TableForm::openFirst;
    for (int i = 1; i <= series.nPositions; ++i) {
        const int position = falling ? series.nPositions + 1 - i : i;
        const double share = ShareAt(position, series.nPositions);
        CSampleRow row;
        row.dXp = kWideBand;
        row.dKv = kvOpen * share;
        row.dKvs = KvsOf(row.dKv, share);
        const bool hasNumber = series.form != TableForm::fixed && !(falling && i == 1);
        row.dEinstellung = hasNumber ? position * series.dStep : 0.0;
        row.strName = series.form == TableForm::named && i == 1 ? L"N" : L"";
        writer.Zeile(row);
        if (series.form == TableForm::twoBands) {
            row.dXp = kNarrowBand;
            row.dKv *= 0.6;
            writer.Zeile(row);
        }
    }
}

/// A one-pipe valve: the more open its bypass, the less of the flow is left for the radiator.
struct CBypassSeries
{
    const wchar_t* lpszName;
    const wchar_t* lpszKurz;
    /// Share through the radiator at the first presetting; each further one takes `dStep` off.
    double dShare;
    double dStep;
    int nPositions;
    /// Whole kv of the angle form, DN 15.
    double dKv;
};

void WriteBypassRows(CValveWriter& writer, const CBypassSeries& series, double kvOpen)
{
    for (int i = 0; i < series.nPositions; ++i) {
        const double share = series.dShare - i * series.dStep;
        const double kv = kvOpen * (1.0 - 0.02 * i);
        CSampleRow row;
        row.dXp = 2.0;
        row.dEinstellung = series.nPositions - i;
        row.dKvBypass = kv * (1.0 - share);
        row.dKv = kv * share;
        writer.Zeile(row);
    }
}

void WriteTexts(CValveWriter& writer, const CRange& range)
{
    int nummer = 0;
    for (const wchar_t* const antrieb : range.antriebe) {
        writer.Antrieb(++nummer, antrieb);
    }
    nummer = 0;
    for (const CForm& form : range.formen) {
        writer.Bauform(++nummer, form.lpszText);
    }
    nummer = 0;
    for (const CFinish& ausfuehrung : range.ausfuehrungen) {
        writer.Werkstoff(++nummer, ausfuehrung.lpszText);
    }
}

/// The articles of the latest data set: one a finish. What tells the articles of a series apart
/// comes first in their names, as a narrow tree shows but the beginnings.
void WriteArticles(CValveWriter& writer, const CRange& range, std::size_t form, const CString& name,
                   const CString& kurz, CSampleIdent ident)
{
    const CForm& bauform = range.formen[form];
    const CString dn = FormatInt(ident.nDN);
    ident.nBauform = static_cast<int>(form) + 1;
    ident.nWerkstoff = 0;
    for (const CFinish& ausfuehrung : range.ausfuehrungen) {
        ++ident.nWerkstoff;
        writer.Artikel(ident, kurz + L"-" + bauform.lpszKurz + dn + L"-" + ausfuehrung.lpszKurz,
                       L"DN " + dn + L" " + ausfuehrung.lpszName + L", " + bauform.lpszText +
                           L", " + name);
    }
}

void WriteSeries(CValveWriter& writer, const CRange& range, const CSeries& series)
{
    constexpr int kPlainValve = 2;
    writer.Gruppe(series.lpszName);
    WriteTexts(writer, range);
    for (std::size_t form = 0; form < series.nForms; ++form) {
        for (const int dn : series.dns) {
            const double kv = series.dKv * SizeFactor(dn) * range.formen[form].dFactor;
            writer.Datensatz({series.nArt, dn, KvsOf(kv, 1.0), series.dDruckMax,
                              series.form != TableForm::fixed});
            WriteRows(writer, series, kv);
            writer.Zusatz(range.formen[form].dEinbau * SizeFactor(dn));
            WriteArticles(writer, range, form, series.lpszName, series.lpszKurz,
                          {kPlainValve, series.nAntrieb, 0, dn, 0});
        }
    }
}

void WriteBypassSeries(CValveWriter& writer, const CRange& range, const CBypassSeries& series)
{
    constexpr int kBypassValve = 1;
    constexpr int kOnePipe = 3;
    constexpr int kDN = 15;
    constexpr std::size_t kForms = 2;
    writer.Gruppe(series.lpszName);
    WriteTexts(writer, range);
    for (std::size_t form = 0; form < kForms; ++form) {
        const double kv = series.dKv * range.formen[form].dFactor;
        writer.Datensatz({kOnePipe, kDN, kv, 200, series.nPositions > 1});
        WriteBypassRows(writer, series, kv);
        WriteArticles(writer, range, form, series.lpszName, series.lpszKurz,
                      {kBypassValve, kThermostat, 0, kDN, 0});
    }
}

constexpr int kSmall[] = {10, 15, 20};
constexpr int kAll[] = {10, 15, 20, 25};
constexpr int kLarge[] = {25};

// Kinds of valve, as their codes are shown.
constexpr int kRadiatorValve = 2;
constexpr int kHandValve = 4;
constexpr int kLockshield = 11;

CSampleValves MakeFontespada()
{
    constexpr CRange range = {{{{L"Squadra", L"S", 1.0, 52},
                                {L"Diritta", L"D", 0.9, 83},
                                {L"Assiale", L"A", 0.85, 60},
                                {L"Corta a squadra", L"C", 0.95, 48}}},
                              {{{L"Ottone nichelato", L"nichelato", L"N"},
                                {L"Ottone cromato", L"cromato", L"C"},
                                {L"Ottone verniciato bianco", L"bianco", L"B"}}},
                              {L"Testa termostatica M30x1,5", L"Volantino"}};
    CValveWriter writer;
    writer.Kopf(L"Fontespada Valvole S.p.A.");
    writer.Hauptgruppe(L"Valvole termostatizzabili");
    WriteSeries(writer, range,
                {L"Serie FT con preregolazione", L"FT", kRadiatorValve, kThermostat,
                 TableForm::named, 7, 1, 0.55, 600, kSmall, 4});
    WriteSeries(writer, range,
                {L"Serie FS senza preregolazione", L"FS", 1, kThermostat, TableForm::fixed, 1, 0,
                 0.8, 300, kAll, 3});
    writer.Hauptgruppe(L"Detentori");
    WriteSeries(writer, range,
                {L"Serie FD con taratura a giri", L"FD", kLockshield, kHand, TableForm::rising, 14,
                 0.25, 1.0, 1000, kAll, 2});
    writer.Hauptgruppe(L"Valvole monotubo");
    WriteBypassSeries(writer, range, {L"Serie FM con bypass regolabile", L"FM", 0.5, 0.05, 5, 1.7});
    WriteBypassSeries(writer, range, {L"Serie FX con bypass fisso", L"FX", 0.35, 0, 1, 1.9});
    return {L"Fontespada", writer.GetBytes(ValveEncoding::cp1252)};
}

CSampleValves MakeMoehrental()
{
    constexpr CRange range = {{{{L"Eckform", L"E", 1.0, 53},
                                {L"Durchgang, größere Baulänge", L"D", 0.9, 85},
                                {L"Axialform", L"A", 0.85, 59},
                                {L"Winkeleck für Räume mit Fußleisten", L"W", 0.8, 55}}},
                              {{{L"Messing vernickelt", L"vernickelt", L"N"},
                                {L"Messing verchromt", L"verchromt", L"C"},
                                {L"Rotguß, weiß", L"weiß", L"W"}}},
                              {L"Thermostatkopf", L"Handrad oder Schlüssel"}};
    CValveWriter writer;
    writer.Kopf(L"Möhrental Armaturen GmbH");
    writer.Hauptgruppe(L"Thermostatventile");
    WriteSeries(writer, range,
                {L"Baureihe KT, voreinstellbar", L"KT", kRadiatorValve, kThermostat,
                 TableForm::twoBands, 8, 1, 0.6, 600, kSmall, 4});
    WriteSeries(writer, range,
                {L"Baureihe KF für kleine Ströme", L"KF", kRadiatorValve, kThermostat,
                 TableForm::rising, 6, 1, 0.28, 600, kSmall, 4});
    writer.Hauptgruppe(L"Rücklaufverschraubungen");
    WriteSeries(
        writer, range,
        {L"Baureihe KR", L"KR", kLockshield, kHand, TableForm::rising, 8, 0.5, 1.0, 1000, kAll, 2});
    writer.Hauptgruppe(L"Regulierventile");
    // A table of its own: more rows than one valve is given.
    constexpr double kvFine = 0.9;
    writer.Gruppe(L"Baureihe KG, Feinregulierung");
    WriteTexts(writer, range);
    const CSeries fine = {L"Baureihe KG, Feinregulierung",
                          L"KG",
                          kHandValve,
                          kHand,
                          TableForm::rising,
                          60,
                          0.1,
                          kvFine,
                          1500,
                          kLarge,
                          1};
    const double kv = kvFine * SizeFactor(kLarge[0]);
    writer.Datensatz({fine.nArt, kLarge[0], KvsOf(kv, 1.0), fine.dDruckMax, true});
    WriteRows(writer, fine, kv);
    writer.Artikel({2, kHand, 1, kLarge[0], 1}, L"KG-E25-N",
                   L"DN 25 vernickelt, Eckform, Baureihe KG");
    writer.Hauptgruppe(L"Einrohrventile");
    WriteBypassSeries(writer, range, {L"Baureihe KE, Bypass stellbar", L"KE", 0.5, 0.1, 3, 1.6});
    return {L"Möhrental", writer.GetBytes(ValveEncoding::dos)};
}

CSampleValves MakeOstervliet()
{
    constexpr CRange range = {{{{L"Haaks", L"H", 1.0, 52},
                                {L"Recht", L"R", 0.9, 82},
                                {L"Axiaal", L"A", 0.85, 58},
                                {L"Dubbel haaks", L"D", 0.8, 54}}},
                              {{{L"Messing vernikkeld", L"vernikkeld", L"N"},
                                {L"Messing verchroomd", L"verchroomd", L"C"},
                                {L"Messing zwart", L"zwart", L"Z"}}},
                              {L"Thermostaatknop", L"Inbussleutel"}};
    CValveWriter writer;
    writer.Kopf(L"Ostervliet Appendages B.V.");
    writer.Hauptgruppe(L"Thermostaatventielen");
    WriteSeries(writer, range,
                {L"Reeks OA, voorinstelling 1 tot 6", L"OA", kRadiatorValve, kThermostat,
                 TableForm::openFirst, 6, 1, 0.5, 600, kSmall, 4});
    WriteSeries(writer, range,
                {L"Reeks OF, fijnregeling", L"OF", kRadiatorValve, kThermostat, TableForm::rising,
                 9, 1, 0.24, 600, kSmall, 4});
    WriteSeries(writer, range,
                {L"Reeks OZ, zonder voorinstelling", L"OZ", 1, kThermostat, TableForm::fixed, 1, 0,
                 0.75, 300, kSmall, 4});
    writer.Hauptgruppe(L"Voetventielen");
    WriteSeries(writer, range,
                {L"Reeks OV, één maat voor elk toestel", L"OV", kLockshield, kHand,
                 TableForm::rising, 10, 0.5, 1.0, 1000, kAll, 2});
    return {L"Ostervliet", writer.GetBytes(ValveEncoding::utf16)};
}
} // namespace

std::vector<CSampleValves> MakeSampleValves()
{
    return {MakeFontespada(), MakeMoehrental(), MakeOstervliet()};
}
