#include "radiator/hk_vdi3805.h"

#include "common/katalog_pruefung.h"
#include "host/host_catalog.h"
#include "platform/rounding.h"
#include "radiator/output_conversion.h"

#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <utility>

namespace {

/// The band that follows the required output once the dialog has refreshed.
constexpr double kDialogToleranz = 0.1;

constexpr double kDefaultLeistung = 1000.0;
constexpr double kDeriveBound = -1.0;
constexpr double kMillimetresPerMetre = 1000.0;

/// Rows this far from the requirement, or farther, are never chosen.
constexpr double kFarthestDistance = 100000.0;
constexpr double kHitDistance = 0.1;

double WholeWatts(double output)
{
    return RoundTo(output, 1.0);
}

bool IsPerMetre(wchar_t bauart)
{
    return bauart == L'M' || bauart == L'm';
}
bool IsPerSection(wchar_t bauart)
{
    return bauart == L'S' || bauart == L's';
}

/// What a catalogue row gives as a radiator.
struct Outputs
{
    double sections;
    double standard;
    double design;
};

inline Outputs ComputeOutputs(const HK_DATEN_VDI3805& row, double factor)
{
    Outputs outputs{0.0, row.LeistungEN442, 0.0};
    if (IsPerMetre(row.Bauart)) {
        outputs.standard = row.LeistungEN442 * row.Laenge / kMillimetresPerMetre;
    } else if (IsPerSection(row.Bauart)) {
        outputs.sections = row.Elemente;
        outputs.standard = row.LeistungEN442 * row.Elemente;
    }
    outputs.standard = WholeWatts(outputs.standard);
    // From the rounded standard output, so that the two columns of a row agree with each other.
    outputs.design = WholeWatts(outputs.standard * factor);
    return outputs;
}

double BoundOrDerived(double bound, double derived)
{
    return bound == kDeriveBound ? derived : bound;
}

void CopyInto(CArray<double, double>& target, const OCArray<double>& source)
{
    target.RemoveAll();
    target.Append(source);
}

/// The search for the row nearest to a required output.
class CBestRow
{
public:
    explicit CBestRow(HK_DATEN_VDI3805_UEBERGABE& daten) : m_daten(daten) {}

    /// Takes the row into the hand-over if it is nearer than the best one so far; true if it was.
    bool Offer(const HK_VDI3805_TYP& row, int index)
    {
        const double distance = std::fabs(row.Daten.Leistung - m_daten.Leistung);
        if (!(distance < m_distance)) {
            return false;
        }
        m_distance = distance;
        m_index = index;
        m_daten.Daten = row.Daten;
        m_daten.TypName = row.Name;
        return true;
    }

    /// Lets the next row nearer than the farthest distance replace the chosen one.
    void GiveUpPlace() { m_distance = kFarthestDistance; }

    bool IsHit() const { return m_distance < kHitDistance; }
    int Index() const { return m_index; }

private:
    HK_DATEN_VDI3805_UEBERGABE& m_daten;
    double m_distance = kFarthestDistance;
    int m_index = -1;
};

} // namespace

struct CHKVdi3805::RowTests
{
    /// Both ends inclusive.
    struct Range
    {
        double low;
        double high;

        bool Holds(double value) const { return low <= value && value <= high; }

        /// How far a value lies outside, infinite where one of the numbers is none.
        double Beyond(double value) const
        {
            if (Holds(value)) {
                return 0.0;
            }
            const double beyond = std::fmax(low - value, value - high);
            return beyond > 0.0 ? beyond : std::numeric_limits<double>::infinity();
        }
    };

    Range height;
    Range depth;
    Range length;
    /// None where output is left open.
    std::optional<Range> output;

    bool PassesSize(const HK_VDI3805_TYP& row) const
    {
        return height.Holds(row.Daten.Hoehe) && depth.Holds(row.Daten.Tiefe) && PassesLength(row);
    }

    bool PassesLength(const HK_VDI3805_TYP& row) const
    {
        const double own = row.Daten.Laenge;
        if (length.Holds(own)) {
            return true;
        }
        // A series that ends below the range keeps its longest row, so that the user sees the
        // nearest thing to a fit. The product's last row is not followed by a shorter one and gets
        // no such chance.
        const double next = row.pNext != nullptr ? row.pNext->Daten.Laenge : own;
        return own > next && own < length.high;
    }

    bool PassesOutput(const HK_DATEN_VDI3805& row, double designOutput) const
    {
        if (output) {
            return output->Holds(designOutput);
        }
        // A single section is no radiator as long as output is left open.
        return !IsPerSection(row.Bauart) || row.Elemente > 1.0;
    }
};

CHKVdi3805::CHKVdi3805(HK_DATEN_VDI3805_UEBERGABE* daten)
    : m_pDaten(daten),
      m_LeistungMin(BoundOrDerived(daten->LeistungMin, (1 - daten->Toleranz) * daten->Leistung)),
      m_LeistungMax(BoundOrDerived(daten->LeistungMax, (1 + daten->Toleranz) * daten->Leistung))
{
}

CHKVdi3805::~CHKVdi3805()
{
    PutRowsAside();
    while (m_pFrei != nullptr) {
        const std::unique_ptr<HK_VDI3805_TYP> row(m_pFrei);
        m_pFrei = row->pNext;
    }
}

void CHKVdi3805::SetLeistungFilter(int filter)
{
    m_bLeistungFilter = filter;
    if (m_pDaten->Leistung == 0.0) {
        m_pDaten->Leistung = kDefaultLeistung;
    }
}

void CHKVdi3805::SetAlleAnzeigen(int alle)
{
    m_bAlle = alle;
}

void CHKVdi3805::Filtern()
{
    const bool hasTemperatures = m_pDaten->Vorlauf > 0.0 && m_pDaten->Ruecklauf > 0.0;
    m_pDaten->Umrechnungsfaktor =
        hasTemperatures
            ? GetLeistungsFaktor(m_pDaten->Vorlauf, m_pDaten->Ruecklauf, m_pDaten->Raumtemperatur)
            : 1.0;
    const double standardLeistung = m_pDaten->Leistung / m_pDaten->Umrechnungsfaktor;

    m_Tiefen.RemoveAll();
    m_Hoehen.RemoveAll();
    UpdateLeistungsBand();
    PutRowsAside();
    FindPosition(standardLeistung);
    if (m_pProdukt == nullptr) {
        return;
    }
    CollectRows();
    CopyInto(m_Tiefen, m_pProdukt->Tiefen);
    CopyInto(m_Hoehen, m_pProdukt->Hoehen);
}

void CHKVdi3805::UpdateLeistungsBand()
{
    if (m_bErsterLauf != 0) {
        return;
    }
    m_pDaten->Toleranz = kDialogToleranz;
    m_LeistungMin = (1 - kDialogToleranz) * m_pDaten->Leistung;
    m_LeistungMax = (1 + kDialogToleranz) * m_pDaten->Leistung;
    m_pDaten->LeistungMin = m_LeistungMin;
    m_pDaten->LeistungMax = m_LeistungMax;
}

void CHKVdi3805::PutRowsAside()
{
    if (m_pErgebnis != nullptr) {
        m_pLetzte->pNext = m_pFrei;
        m_pFrei = std::exchange(m_pErgebnis, nullptr);
        m_pLetzte = nullptr;
    }
}

HK_VDI3805_TYP* CHKVdi3805::NewRow()
{
    if (m_pFrei == nullptr) {
        return new HK_VDI3805_TYP;
    }
    HK_VDI3805_TYP* const row = m_pFrei;
    m_pFrei = row->pNext;
    return row;
}

void CHKVdi3805::FindPosition(double standardLeistung)
{
    if (m_pKatalog == nullptr) {
        m_pKatalog = ReadHKDaten();
    }
    m_pHersteller = FindHersteller(m_pDaten->Hersteller);
    if (m_pHersteller != nullptr && (m_pHersteller->pArt == nullptr || m_pDaten->NeuLesen != 0)) {
        m_pDaten->NeuLesen = 0;
        // A file that cannot be read shows as a product that is not found below.
        ReadVdiFile(m_pHersteller->Name, &m_pHersteller->pArt, standardLeistung);
    }
    m_pArt = FindArt(m_pHersteller, m_pDaten->Art);
    m_pProdukt = FindProdukt(m_pArt, m_pDaten->Produkt);
}

CHKVdi3805::RowTests CHKVdi3805::Tests() const
{
    RowTests tests{{m_pDaten->HoeheMin - m_Toleranz, m_pDaten->HoeheMax + m_Toleranz},
                   {m_pDaten->TiefeMin, m_pDaten->TiefeMax},
                   {m_pDaten->LaengeMin, m_pDaten->LaengeMax},
                   std::nullopt};
    if (m_bLeistungFilter != 0) {
        tests.output = {m_LeistungMin, m_LeistungMax};
    }
    return tests;
}

void CHKVdi3805::CollectRows()
{
    const RowTests tests = Tests();
    const double factor = m_pDaten->Umrechnungsfaktor;
    int count = 0;
    for (const HK_VDI3805_TYP* row = m_pProdukt->pTyp; row != nullptr; row = row->pNext) {
        if (m_bAlle == 0 && !tests.PassesSize(*row)) {
            continue;
        }
        const Outputs outputs = ComputeOutputs(row->Daten, factor);
        if (m_bAlle == 0 && !tests.PassesOutput(row->Daten, outputs.design)) {
            continue;
        }
        if (++count > kMaxKatalogZeilen) {
            return;
        }
        HK_VDI3805_TYP* const result = NewRow();
        *result = *row;
        result->pNext = nullptr;
        result->pPrev = m_pLetzte;
        (m_pLetzte != nullptr ? m_pLetzte->pNext : m_pErgebnis) = result;
        m_pLetzte = result;
        result->Daten.Leistung = outputs.design;
        result->Daten.LeistungEN442 = outputs.standard;
        result->Daten.Elemente = outputs.sections;
    }
}

CHKVdi3805::CVerfehlung CHKVdi3805::Verfehlung(const HK_VDI3805_TYP& row) const
{
    const RowTests tests = Tests();
    const HK_DATEN_VDI3805& size = row.Daten;
    const double leistung = ComputeOutputs(size, m_pDaten->Umrechnungsfaktor).design;
    return {tests.height.Beyond(size.Hoehe), tests.depth.Beyond(size.Tiefe),
            tests.PassesLength(row) ? 0.0 : tests.length.Beyond(size.Laenge),
            !tests.PassesOutput(size, leistung), leistung};
}

int CHKVdi3805::BesteAuswahl()
{
    CBestRow best(*m_pDaten);
    int index = 0;
    for (const HK_VDI3805_TYP* row = m_pErgebnis; row != nullptr; row = row->pNext, ++index) {
        if (best.Offer(*row, index) && best.IsHit()) {
            break;
        }
    }
    return best.Index();
}

int CHKVdi3805::BesteAuswahlMinLeistung(HK_DATEN_VDI3805_UEBERGABE* daten)
{
    CBestRow best(*daten);
    int index = 0;
    for (const HK_VDI3805_TYP* row = m_pErgebnis; row != nullptr; row = row->pNext, ++index) {
        const bool chosen = best.Offer(*row, index);
        if (chosen && row->Daten.Leistung < daten->LeistungMin && daten->LeistungMin > 0.0) {
            best.GiveUpPlace();
        }
    }
    return best.Index();
}

void CHKVdi3805::SelectRow(const CString& name, double hoehe, double tiefe, double laenge)
{
    for (const HK_VDI3805_TYP* row = m_pErgebnis; row != nullptr; row = row->pNext) {
        const HK_DATEN_VDI3805& size = row->Daten;
        if (row->Name == name && size.Hoehe == hoehe && size.Tiefe == tiefe &&
            size.Laenge == laenge) {
            m_pDaten->Daten = size;
            m_pDaten->TypName = name;
        }
    }
}

int CHKVdi3805::GetHerstellerListe(CPtrArray& liste)
{
    if (m_Hersteller.IsEmpty()) {
        for (HK_VDI3805_HERSTELLER* maker = m_pKatalog; maker != nullptr; maker = maker->pNext) {
            m_Hersteller.Add(maker);
        }
    }
    liste = m_Hersteller;
    return liste.GetSize();
}
