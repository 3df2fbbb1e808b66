#include "reference_host/catalog/reader/catalogue_file.h"

#include "platform/format.h"
#include "reference_host/catalog/reader/catalogue_text.h"

#include <cmath>
#include <limits>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace reference_host {

namespace {
constexpr int kMaxSizes = 200000;
constexpr int kMaxSections = 1000;
constexpr int kMaxNumber = std::numeric_limits<int>::max();

struct CLimits
{
    double dMin;
    double dMax;
};

constexpr CLimits kCrossSection = {1.0, 10000.0};
constexpr CLimits kLaenge = {1.0, 100000.0};
constexpr CLimits kZugabe = {0.0, 1000.0};
constexpr CLimits kLeistung = {0.1, 1000000.0};
constexpr CLimits kExponent = {0.5, 3.0};
constexpr CLimits kInhalt = {0.0, 10000.0};

double Read(const CRecordLine& line, int field, const wchar_t* name, CLimits limits)
{
    return line.ReadNumber(field, name, limits.dMin, limits.dMax);
}

double ReadOptional(const CRecordLine& line, int field, const wchar_t* name, CLimits limits,
                    double fallback)
{
    return line.ReadOptionalNumber(field, name, limits.dMin, limits.dMax, fallback);
}

/// Puts the model together from one record after the other. A record belongs to the last one of the
/// level above it.
class CCatalogueParser
{
public:
    /// Takes the next record. Throws CFileFault.
    void Take(const CRecordLine& line);

    /// The model, once all records have been taken. Throws CFileFault.
    CCatalogue Finish();

private:
    void TakeKopf(const CRecordLine& line);
    void TakeArt(const CRecordLine& line);
    void TakeProdukt(const CRecordLine& line);
    void TakeSerie(const CRecordLine& line);
    void TakeNormLaenge(const CRecordLine& line);
    void TakeZuschnitt(const CRecordLine& line);
    void TakeGlieder(const CRecordLine& line);
    void TakeArtikel(const CRecordLine& line);

    void CheckArtComplete() const;
    void CheckProduktComplete() const;
    void CheckSerieComplete() const;
    CCatalogueProduct& CurrentProdukt(const CRecordLine& line);
    CCatalogueSeries& CurrentSerie(const CRecordLine& line);
    void CountSizes(const CRecordLine& line, int count);

    using Taker = void (CCatalogueParser::*)(const CRecordLine&);
    static Taker FindTaker(std::wstring_view type);

    CCatalogue m_katalog;
    bool m_bKopf = false;
    int m_nSizes = 0;

    std::set<CString> m_artNamen;
    std::set<CString> m_produktNamen;
    std::unordered_map<int, std::size_t> m_serieByNummer;
};

CCatalogueParser::Taker CCatalogueParser::FindTaker(std::wstring_view type)
{
    struct Entry
    {
        std::wstring_view type;
        Taker taker;
    };
    static constexpr Entry entries[] = {
        {L"010", &CCatalogueParser::TakeKopf},
        {L"100", &CCatalogueParser::TakeArt},
        {L"110", &CCatalogueParser::TakeProdukt},
        {L"700", &CCatalogueParser::TakeSerie},
        {L"710.01", &CCatalogueParser::TakeNormLaenge},
        {L"710.02", &CCatalogueParser::TakeZuschnitt},
        {L"710.03", &CCatalogueParser::TakeGlieder},
        {L"800", &CCatalogueParser::TakeArtikel},
    };
    for (const Entry& entry : entries) {
        if (entry.type == type) {
            return entry.taker;
        }
    }
    return nullptr;
}

void CCatalogueParser::Take(const CRecordLine& line)
{
    const Taker taker = FindTaker(line.GetType());
    if (!taker) {
        return;
    }
    if (!m_bKopf && taker != &CCatalogueParser::TakeKopf) {
        line.Refuse(L"Manca la testata: il primo record deve essere 010.");
    }
    (this->*taker)(line);
}

CCatalogue CCatalogueParser::Finish()
{
    if (!m_bKopf) {
        throw CFileFault{0, L"Il file non contiene la testata 010: non è un catalogo."};
    }
    if (m_katalog.arten.empty()) {
        throw CFileFault{0, L"Il catalogo non contiene alcuna categoria (record 100)."};
    }
    CheckArtComplete();
    return std::move(m_katalog);
}

void CCatalogueParser::TakeKopf(const CRecordLine& line)
{
    line.ReadText(1, L"data della norma");
    line.ReadText(2, L"nome del produttore");
    line.ReadText(3, L"data di emissione");
    m_bKopf = true;
}

void CCatalogueParser::TakeArt(const CRecordLine& line)
{
    CheckArtComplete();
    line.ReadInt(1, L"numero", 0, kMaxNumber);
    const CString name = line.ReadText(2, L"nome");
    if (!m_artNamen.insert(name).second) {
        line.Refuse(L"La categoria \"" + name + L"\" compare due volte.");
    }
    m_katalog.arten.push_back({name, {}, line.GetLineNumber()});
    m_produktNamen.clear();
}

void CCatalogueParser::TakeProdukt(const CRecordLine& line)
{
    if (m_katalog.arten.empty()) {
        line.Refuse(L"Il prodotto non appartiene ad alcuna categoria: manca il record 100.");
    }
    CheckProduktComplete();
    line.ReadInt(1, L"numero", 0, kMaxNumber);
    const CString name = line.ReadText(2, L"nome");
    if (!m_produktNamen.insert(name).second) {
        line.Refuse(L"Il prodotto \"" + name + L"\" compare due volte nella stessa categoria.");
    }
    m_katalog.arten.back().produkte.push_back({name, {}, line.GetLineNumber()});
    m_serieByNummer.clear();
}

void CCatalogueParser::TakeSerie(const CRecordLine& line)
{
    CCatalogueProduct& produkt = CurrentProdukt(line);
    CheckSerieComplete();
    const int nummer = line.ReadInt(1, L"numero", 0, kMaxNumber);
    if (!m_serieByNummer.emplace(nummer, produkt.serien.size()).second) {
        line.Refuse(L"La serie " + FormatInt(nummer) +
                    L" compare due volte nello stesso prodotto.");
    }
    CCatalogueSeries serie;
    serie.strTyp = line.ReadText(2, L"testo del tipo");
    const CString bauart = line.ReadText(3, L"forma costruttiva");
    if (bauart.size() != 1) {
        line.Refuse(L"La forma costruttiva \"" + bauart +
                    L"\" non è un carattere solo: M al metro, S a elementi, altrimenti unità.");
    }
    serie.cBauart = bauart.front();
    serie.dHoehe = Read(line, 4, L"altezza", kCrossSection);
    serie.dTiefe = Read(line, 5, L"profondità", kCrossSection);
    serie.dLeistung = Read(line, 6, L"potenza", kLeistung);
    serie.dExponent = Read(line, 7, L"esponente", kExponent);
    serie.dInhalt = Read(line, 8, L"contenuto d'acqua", kInhalt);
    serie.nLine = line.GetLineNumber();
    produkt.serien.push_back(std::move(serie));
}

void CCatalogueParser::TakeNormLaenge(const CRecordLine& line)
{
    CCatalogueSeries& serie = CurrentSerie(line);
    if (serie.IsPerSection()) {
        line.Refuse(L"Una serie a elementi non ha lunghezze standard: le lunghezze seguono dal "
                    L"record 710.03.");
    }
    CStandardLength size{Read(line, 2, L"lunghezza", kLaenge), serie.dLeistung, serie.dInhalt,
                         line.GetLineNumber()};
    if (!serie.normLaengen.empty() && size.dLaenge <= serie.normLaengen.back().dLaenge) {
        line.Refuse(L"Le lunghezze standard di una serie devono crescere.");
    }
    if (!serie.IsPerMetre()) {
        size.dLeistung = ReadOptional(line, 3, L"potenza", kLeistung, serie.dLeistung);
        size.dInhalt = ReadOptional(line, 4, L"contenuto d'acqua", kInhalt, serie.dInhalt);
    }
    CountSizes(line, 1);
    serie.normLaengen.push_back(size);
}

void CCatalogueParser::TakeZuschnitt(const CRecordLine& line)
{
    CCatalogueSeries& serie = CurrentSerie(line);
    if (!serie.IsPerMetre()) {
        line.Refuse(L"Solo una serie al metro (M) si taglia a misura.");
    }
    if (serie.zuschnitt) {
        line.Refuse(L"La serie ha già un record 710.02.");
    }
    const double from = Read(line, 1, L"lunghezza minima", kLaenge);
    const double to = Read(line, 2, L"lunghezza massima", kLaenge);
    const double step = Read(line, 3, L"passo", kLaenge);
    if (to < from) {
        line.Refuse(L"La lunghezza massima è inferiore alla minima.");
    }
    // A step of 1.1 kept in binary must not lose the last length.
    constexpr double binarySlack = 1e-6;
    const int count = static_cast<int>(std::floor((to - from) / step + binarySlack)) + 1;
    CountSizes(line, count);
    serie.zuschnitt = CCutToLength{from, step, count, line.GetLineNumber()};
}

void CCatalogueParser::TakeGlieder(const CRecordLine& line)
{
    CCatalogueSeries& serie = CurrentSerie(line);
    if (!serie.IsPerSection()) {
        line.Refuse(L"Solo una serie a elementi (S) ha un record 710.03.");
    }
    if (serie.glieder) {
        line.Refuse(L"La serie ha già un record 710.03.");
    }
    CSections glieder;
    glieder.dGliedLaenge = Read(line, 1, L"lunghezza dell'elemento", kLaenge);
    glieder.nMax = line.ReadInt(2, L"numero massimo di elementi", 1, kMaxSections);
    glieder.dZugabe = ReadOptional(line, 3, L"aggiunta di estremità", kZugabe, 0.0);
    glieder.nLine = line.GetLineNumber();
    CountSizes(line, glieder.nMax);
    serie.glieder = glieder;
}

void CCatalogueParser::TakeArtikel(const CRecordLine& line)
{
    CCatalogueProduct& produkt = CurrentProdukt(line);
    const int nummer = line.ReadInt(1, L"numero della serie", 0, kMaxNumber);
    const auto found = m_serieByNummer.find(nummer);
    if (found == m_serieByNummer.end()) {
        line.Refuse(L"L'articolo rimanda alla serie " + FormatInt(nummer) +
                    L", che prima di questa riga il prodotto non contiene.");
    }
    const double size = Read(line, 2, L"lunghezza o numero di elementi", kLaenge);
    CCatalogueSeries& serie = produkt.serien[found->second];
    serie.artikel.push_back({size, line.GetLineNumber()});
    serie.bestellNummern.emplace(size, line.ReadText(3, L"numero d'ordine"));
    if (!line.IsEmpty(4)) {
        serie.typTexte.emplace(size, line.GetText(4));
    }
}

void CCatalogueParser::CheckArtComplete() const
{
    if (m_katalog.arten.empty()) {
        return;
    }
    const CCatalogueKind& art = m_katalog.arten.back();
    if (art.produkte.empty()) {
        throw CFileFault{art.nLine, L"La categoria \"" + art.strName +
                                        L"\" non contiene prodotti (record 110)."};
    }
    CheckProduktComplete();
}

void CCatalogueParser::CheckProduktComplete() const
{
    if (m_katalog.arten.back().produkte.empty()) {
        return;
    }
    const CCatalogueProduct& produkt = m_katalog.arten.back().produkte.back();
    if (produkt.serien.empty()) {
        throw CFileFault{produkt.nLine, L"Il prodotto \"" + produkt.strName +
                                            L"\" non contiene serie (record 700)."};
    }
    CheckSerieComplete();
}

void CCatalogueParser::CheckSerieComplete() const
{
    const CCatalogueProduct& produkt = m_katalog.arten.back().produkte.back();
    if (produkt.serien.empty()) {
        return;
    }
    const CCatalogueSeries& serie = produkt.serien.back();
    if (serie.normLaengen.empty() && !serie.zuschnitt && !serie.glieder) {
        throw CFileFault{serie.nLine, L"La serie \"" + serie.strTyp +
                                          L"\" non ha misure (record 710.01, 710.02 o "
                                          L"710.03)."};
    }
}

CCatalogueProduct& CCatalogueParser::CurrentProdukt(const CRecordLine& line)
{
    if (m_katalog.arten.empty() || m_katalog.arten.back().produkte.empty()) {
        line.Refuse(L"Il record " + line.GetText(0) +
                    L" non appartiene ad alcun prodotto: manca il record 110.");
    }
    return m_katalog.arten.back().produkte.back();
}

CCatalogueSeries& CCatalogueParser::CurrentSerie(const CRecordLine& line)
{
    CCatalogueProduct& produkt = CurrentProdukt(line);
    if (produkt.serien.empty()) {
        line.Refuse(L"Il record " + line.GetText(0) +
                    L" non appartiene ad alcuna serie: manca il record 700.");
    }
    return produkt.serien.back();
}

void CCatalogueParser::CountSizes(const CRecordLine& line, int count)
{
    if (count > kMaxSizes - m_nSizes) {
        line.Refuse(L"Il catalogo supera " + FormatInt(kMaxSizes) + L" misure.");
    }
    m_nSizes += count;
}

CCatalogue ParseText(std::wstring_view text)
{
    CCatalogueParser parser;
    for (int nLine = 1; !text.empty(); ++nLine) {
        parser.Take(CRecordLine(TakeLine(text), nLine));
    }
    return parser.Finish();
}
} // namespace

std::variant<CCatalogue, CFileFault> ParseCatalogue(std::span<const std::uint8_t> bytes)
{
    const std::optional<CString> text = DecodeCatalogue(bytes);
    if (!text) {
        return CFileFault{0, L"La codifica del file non è ammessa: si attende Windows 1252 o "
                             L"UTF-16 little endian."};
    }
    try {
        return ParseText(*text);
    } catch (const CFileFault& fault) {
        return fault;
    }
}

} // namespace reference_host
