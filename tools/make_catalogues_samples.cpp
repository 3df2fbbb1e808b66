#include "tools/make_catalogues_samples.h"

#include "platform/format.h"
#include "tools/make_catalogues_writer.h"

#include <algorithm>
#include <cmath>

namespace {
/// Physical values are stated for this height and carried to others.
constexpr double kReferenceHoehe = 600.0;

/// Output at another size: less than in proportion, since the air that rises along the radiator is
/// already warm at its upper end.
double Scaled(double output, double size, double referenceSize, double exponent)
{
    return output * std::pow(size / referenceSize, exponent);
}

/// The radiator exponent grows a little with height, with the share of convection.
double ExponentAt(double exponent, double hoehe)
{
    return exponent + 0.00002 * (hoehe - kReferenceHoehe);
}

/// Water content at another height: `headShare` of it is in the headers, which stay the same.
double InhaltAt(double inhalt, double hoehe, double headShare)
{
    return inhalt * (headShare + (1.0 - headShare) * hoehe / kReferenceHoehe);
}

/// A type of steel panel radiator; first digit the panels, second the fins. Per metre at 600 mm.
struct CPanelType
{
    const wchar_t* lpszTyp;
    double dTiefe;
    double dLeistung;
    double dHeightExponent;
    double dExponent;
    double dInhalt;
};

constexpr CPanelType kPanelTypes[] = {
    {L"10", 47, 602, 0.84, 1.28, 3.1},   {L"11", 61, 1001, 0.81, 1.30, 3.1},
    {L"20", 66, 978, 0.83, 1.29, 6.3},   {L"21", 66, 1296, 0.80, 1.32, 6.3},
    {L"22", 102, 1698, 0.78, 1.33, 6.3}, {L"30", 155, 1432, 0.81, 1.31, 9.4},
    {L"33", 155, 2398, 0.77, 1.34, 9.4},
};

constexpr double kPanelHoehen[] = {300, 400, 500, 600, 900};
constexpr double kPanelLaengen[] = {400,  500,  600,  700,  800,  900,  1000, 1100,
                                    1200, 1400, 1600, 1800, 2000, 2300, 2600, 3000};

/// One line of panel radiators of a manufacturer.
struct CPanelLine
{
    const wchar_t* lpszArt;
    const wchar_t* lpszProdukt;
    /// Starts the type texts.
    const wchar_t* lpszKurz;
    /// Output compared with the plain profiled build.
    double dFactor;
    /// Only the types with fins.
    bool bFinsOnly;
    /// Order numbers start with it; empty for a line without articles.
    const wchar_t* lpszBestellNr;
};

void WritePanelSeries(CCatalogueWriter& writer, const CPanelLine& line, const CPanelType& type,
                      double hoehe, int nummer)
{
    const CString typ = CString(line.lpszKurz) + L" " + type.lpszTyp + L"/" + MmText(hoehe);
    writer.Serie(
        {nummer, typ, L'M', hoehe, type.dTiefe,
         Scaled(type.dLeistung * line.dFactor, hoehe, kReferenceHoehe, type.dHeightExponent),
         ExponentAt(type.dExponent, hoehe), InhaltAt(type.dInhalt, hoehe, 0.12)});
    for (const double laenge : kPanelLaengen) {
        writer.NormLaenge(laenge);
    }
    const CString bestellNr = line.lpszBestellNr;
    if (bestellNr.empty()) {
        return;
    }
    for (const double laenge : kPanelLaengen) {
        writer.Artikel(laenge,
                       bestellNr + type.lpszTyp + L"-" + MmText(hoehe) + L"-" + MmText(laenge),
                       typ + L"x" + MmText(laenge));
    }
}

void WritePanels(CCatalogueWriter& writer, const CPanelLine& line)
{
    writer.Art(line.lpszArt);
    for (const CPanelType& type : kPanelTypes) {
        const bool hasFins = type.lpszTyp[1] != L'0';
        if (line.bFinsOnly && !hasFins) {
            continue;
        }
        writer.Produkt(CString(line.lpszProdukt) + L" " + type.lpszTyp);
        int nummer = 0;
        for (const double hoehe : kPanelHoehen) {
            WritePanelSeries(writer, line, type, hoehe, ++nummer);
        }
    }
}

/// A radiator put together of sections. Per section at 600 mm.
struct CSectionModel
{
    CString strName;
    /// Starts the type texts.
    CString strKurz;
    double dTiefe;
    double dGliedLaenge;
    double dZugabe;
    double dLeistung;
    double dHeightExponent;
    double dExponent;
    double dInhalt;
    double dHeadShare;
    int nMaxSections;
    /// Order numbers start with it; empty for a model without articles.
    CString strBestellNr;
};

// A tall radiator of more sections is too heavy for its brackets.
int MaxSections(const CSectionModel& model, double hoehe)
{
    constexpr int maxTall = 30;
    return hoehe <= 1000.0 ? model.nMaxSections : std::min(model.nMaxSections, maxTall);
}

void WriteSectionModel(CCatalogueWriter& writer, const CSectionModel& model,
                       const std::vector<double>& hoehen)
{
    writer.Produkt(model.strName);
    int nummer = 0;
    for (const double hoehe : hoehen) {
        const CString typ = model.strKurz + L"/" + MmText(hoehe);
        writer.Serie({++nummer, typ, L'S', hoehe, model.dTiefe,
                      Scaled(model.dLeistung, hoehe, kReferenceHoehe, model.dHeightExponent),
                      ExponentAt(model.dExponent, hoehe),
                      InhaltAt(model.dInhalt, hoehe, model.dHeadShare)});
        const int maxSections = MaxSections(model, hoehe);
        writer.Glieder(model.dGliedLaenge, maxSections, model.dZugabe);
        if (model.strBestellNr.empty()) {
            continue;
        }
        constexpr int smallestArticle = 2;
        for (int count = smallestArticle; count <= maxSections; ++count) {
            writer.Artikel(count, model.strBestellNr + MmText(hoehe) + L"-" + FormatInt(count),
                           typ + L" " + FormatInt(count) + L" el.");
        }
    }
}

/// Tubular steel radiators of two to six columns; `produkt` stands behind the number of columns.
void WriteTubular(CCatalogueWriter& writer, const CString& art, const CString& produkt,
                  const CString& kurz)
{
    struct CColumns
    {
        int nCount;
        double dTiefe;
        double dLeistung;
        double dExponent;
        double dInhalt;
    };
    constexpr CColumns columns[] = {{2, 65, 46.0, 1.27, 0.65},
                                    {3, 101, 65.0, 1.28, 0.90},
                                    {4, 139, 83.0, 1.29, 1.17},
                                    {5, 177, 101.0, 1.30, 1.44},
                                    {6, 215, 119.0, 1.31, 1.71}};
    writer.Art(art);
    for (const CColumns& column : columns) {
        const CString count = FormatInt(column.nCount);
        WriteSectionModel(writer,
                          {count + produkt, kurz + count, column.dTiefe, 45, 30, column.dLeistung,
                           0.85, column.dExponent, column.dInhalt, 0.2, 50, L""},
                          {300, 400, 500, 600, 750, 900, 1000, 1200, 1500, 1800, 2000});
    }
}

/// A towel radiator: whole units in heights and widths.
struct CTowelModel
{
    CString strName;
    CString strKurz;
    double dTiefe;
    /// Output and content at 1180 mm height and 500 mm width.
    double dLeistung;
    double dExponent;
    double dInhalt;
};

void WriteTowelModel(CCatalogueWriter& writer, const CTowelModel& model)
{
    constexpr double hoehen[] = {770, 1180, 1500, 1800};
    constexpr double breiten[] = {450, 500, 600, 750};
    const auto leistung = [&](double hoehe, double breite) {
        return Scaled(Scaled(model.dLeistung, hoehe, 1180, 0.85), breite, 500, 0.85);
    };
    const auto inhalt = [&](double hoehe, double breite) {
        return model.dInhalt * hoehe / 1180 * breite / 500;
    };
    writer.Produkt(model.strName);
    int nummer = 0;
    for (const double hoehe : hoehen) {
        writer.Serie({++nummer, model.strKurz + L" " + MmText(hoehe), L'E', hoehe, model.dTiefe,
                      leistung(hoehe, breiten[0]), model.dExponent, inhalt(hoehe, breiten[0])});
        for (const double breite : breiten) {
            writer.NormLaenge(breite, leistung(hoehe, breite), inhalt(hoehe, breite));
        }
    }
}

/// Trench convectors of every height in every depth, all in standard lengths.
void WriteTrenchModel(CCatalogueWriter& writer, const CString& name, const CString& kurz,
                      const std::vector<double>& hoehen, const std::vector<double>& tiefen,
                      int longest, int step)
{
    writer.Produkt(name);
    int nummer = 0;
    for (const double tiefe : tiefen) {
        for (const double hoehe : hoehen) {
            const double leistung = Scaled(Scaled(300, hoehe, 110, 0.75), tiefe, 290, 0.85);
            writer.Serie({++nummer, kurz + L" " + MmText(hoehe) + L"/" + MmText(tiefe), L'M', hoehe,
                          tiefe, leistung, 1.34, 0.9 * tiefe / 290});
            for (int laenge = 800; laenge <= longest; laenge += step) {
                writer.NormLaenge(laenge);
            }
        }
    }
}

/// Low convectors: a few lengths from stock, any other cut to measure.
void WriteSkirtingConvectors(CCatalogueWriter& writer)
{
    struct CModel
    {
        const wchar_t* lpszName;
        const wchar_t* lpszKurz;
        double dTiefe;
        /// Per metre at 140 mm height.
        double dLeistung;
        double dExponent;
        double dInhalt;
    };
    constexpr CModel models[] = {{L"Sockelkonvektor einlagig", L"SK1", 60, 420, 1.28, 1.0},
                                 {L"Sockelkonvektor zweilagig", L"SK2", 110, 740, 1.30, 2.0},
                                 {L"Sockelkonvektor dreilagig", L"SK3", 160, 1040, 1.32, 3.0}};
    writer.Art(L"Sockelkonvektoren");
    for (const CModel& model : models) {
        writer.Produkt(model.lpszName);
        int nummer = 0;
        for (const double hoehe : {70.0, 140.0, 210.0, 280.0}) {
            writer.Serie({++nummer, CString(model.lpszKurz) + L"-" + MmText(hoehe), L'M', hoehe,
                          model.dTiefe, Scaled(model.dLeistung, hoehe, 140, 0.78), model.dExponent,
                          model.dInhalt * hoehe / 140});
            for (const double laenge : {1000.0, 1500.0, 2000.0, 2500.0, 3000.0}) {
                writer.NormLaenge(laenge);
            }
            writer.Zuschnitt(500, 4000, 50);
        }
    }
}

/// Convectors in casings, whole units.
void WriteCasedConvectors(CCatalogueWriter& writer)
{
    struct CModel
    {
        double dTiefe;
        /// At 450 mm height and 1000 mm length.
        double dLeistung;
        double dInhalt;
    };
    constexpr CModel models[] = {{130, 900, 1.1}, {180, 1250, 1.6}};
    writer.Art(L"Konvektortruhen");
    for (const CModel& model : models) {
        const CString kurz = L"KT " + MmText(model.dTiefe);
        writer.Produkt(L"Truhe " + MmText(model.dTiefe));
        int nummer = 0;
        for (const double hoehe : {300.0, 450.0, 600.0}) {
            const double leistung = Scaled(model.dLeistung, hoehe, 450, 0.8);
            constexpr int shortest = 600;
            writer.Serie({++nummer, kurz + L"/" + MmText(hoehe), L'E', hoehe, model.dTiefe,
                          leistung * shortest / 1000, 1.33, model.dInhalt * shortest / 1000});
            writer.NormLaenge(shortest);
            for (int laenge = shortest + 200; laenge <= 2000; laenge += 200) {
                writer.NormLaenge(laenge, leistung * laenge / 1000, model.dInhalt * laenge / 1000);
            }
        }
    }
}

CSampleCatalogue MakeValmorena()
{
    CCatalogueWriter writer(L"\r\n");
    writer.Kopf(L"Valmorena Radiatori S.p.A.");
    WritePanels(writer, {L"Radiatori a piastra compatti", L"Tipo", L"C", 1.0, false, L"VMC"});
    WritePanels(writer,
                {L"Radiatori a piastra con valvola integrata", L"Tipo V", L"V", 1.0, true, L"VMV"});
    WritePanels(writer, {L"Radiatori a piastra piani", L"Tipo P", L"P", 0.96, true, L"VMP"});
    writer.Art(L"Scaldasalviette");
    WriteTowelModel(writer, {L"Riva diritto", L"RD", 32, 560, 1.25, 5.2});
    WriteTowelModel(writer, {L"Riva più curvo", L"RC", 60, 535, 1.26, 5.0});
    return {L"Valmorena", writer.GetCp1252()};
}

CSampleCatalogue MakeThoerlinger()
{
    CCatalogueWriter writer(L"\n");
    writer.Kopf(L"Thörlinger Heizkörper GmbH");
    WritePanels(writer, {L"Flachheizkörper profiliert", L"Typ", L"TF", 0.985, false, L""});
    WritePanels(writer, {L"Flachheizkörper mit Einbauventil", L"Typ V", L"TV", 0.985, true, L""});
    WriteTubular(writer, L"Röhrenradiatoren", L"-Säuler", L"TR");
    writer.Art(L"Badheizkörper");
    WriteTowelModel(writer, {L"Badwärmer gerade", L"BG", 35, 550, 1.25, 5.4});
    WriteTowelModel(writer, {L"Badwärmer gewölbt", L"BW", 65, 530, 1.26, 5.4});
    WriteTowelModel(writer, {L"Badwärmer schlank", L"BS", 30, 480, 1.27, 4.0});
    return {L"Thörlinger", writer.GetCp1252()};
}

CSampleCatalogue MakeLindenbrueck()
{
    CCatalogueWriter writer(L"\r\n");
    writer.Kopf(L"Lindenbrück Konvektoren KG");
    writer.Art(L"Unterflurkonvektoren");
    WriteTrenchModel(writer, L"Bodenkanal", L"BK", {80, 90, 110, 140, 190},
                     {180, 230, 290, 340, 400}, 5000, 50);
    WriteTrenchModel(writer, L"Bodenkanal für Türen", L"BT", {90, 110, 140}, {140}, 3000, 100);
    WriteSkirtingConvectors(writer);
    WriteCasedConvectors(writer);
    return {L"Lindenbrück", writer.GetUtf16()};
}

CSampleCatalogue MakeAltovico()
{
    CCatalogueWriter writer(L"\n");
    writer.Kopf(L"Fonderie Altovico S.r.l.");
    writer.Art(L"Radiatori in alluminio");
    const std::vector<double> aluHoehen = {430, 580, 680, 780, 880};
    WriteSectionModel(writer,
                      {L"Alpe 80", L"A80", 80, 80, 0, 118, 0.82, 1.31, 0.36, 0.25, 20, L"FA80-"},
                      aluHoehen);
    WriteSectionModel(writer,
                      {L"Alpe 100", L"A100", 97, 80, 0, 131, 0.82, 1.32, 0.40, 0.25, 20, L"FA10-"},
                      aluHoehen);
    WriteSectionModel(writer,
                      {L"Alpe Più", L"AP", 97, 80, 0, 140, 0.82, 1.33, 0.44, 0.25, 20, L"FAP-"},
                      aluHoehen);
    writer.Art(L"Radiatori in ghisa");
    const std::vector<double> castHoehen = {460, 660, 860};
    WriteSectionModel(writer,
                      {L"Classico 2 colonne", L"G2", 65, 60, 0, 62, 0.85, 1.29, 0.80, 0.2, 25, L""},
                      castHoehen);
    WriteSectionModel(
        writer, {L"Classico 3 colonne", L"G3", 105, 60, 0, 87, 0.85, 1.30, 1.05, 0.2, 25, L""},
        castHoehen);
    WriteSectionModel(
        writer, {L"Classico 4 colonne", L"G4", 145, 60, 0, 112, 0.85, 1.31, 1.35, 0.2, 25, L""},
        castHoehen);
    WriteTubular(writer, L"Radiatori tubolari in acciaio", L" colonne", L"T");
    return {L"Altovico", writer.GetCp1252()};
}
} // namespace

std::vector<CSampleCatalogue> MakeSampleCatalogues()
{
    return {MakeAltovico(), MakeLindenbrueck(), MakeThoerlinger(), MakeValmorena()};
}
