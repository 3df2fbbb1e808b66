#include "valve/ventil_bewertung.h"

#include "common/missing_fields.h"
#include "common/text_file.h"
#include "platform/format.h"
#include "platform/message.h"
#include "platform/number_scan.h"
#include "platform/rounding.h"
#include "valve/ventil_texte.h"

#include <algorithm>
#include <array>

namespace {

constexpr int kBypassTyp = 1;
constexpr int kGroessteVentilArt = 11;
constexpr wchar_t kZeilenart[] = L"710.01";
constexpr wchar_t kDatensatzart[] = L"700";
constexpr wchar_t kKeinText[] = L"...";

/// A text line begins with the record type and a number of one digit, each with its ";".
constexpr std::size_t kTextBeginn = 6;

/// Number of the optional field that holds a row's own kvs.
constexpr int kFeldKvsZeile = 9;

using Table = VDI3805_VENTIL_KV::Table;

std::size_t Platz(int index)
{
    return static_cast<std::size_t>(index);
}

/// The fields of a stored line. One that is not there raises the exception that tells the line.
class CKnotenFelder
{
public:
    explicit CKnotenFelder(const VENT_VDI3805_DATEN& knoten) : m_knoten(knoten)
    {
        SplitString(m_felder, knoten.Zeile, L';');
    }

    int Anzahl() const { return m_felder.GetSize(); }

    const CString& operator[](int feld) const
    {
        if (feld >= Anzahl()) {
            throw CInvalidArgException(
                L"riga " + FormatInt(m_knoten.ZeilenNr) + L": " +
                DescribeMissingFields(m_knoten.Satzart, Platz(Anzahl()), Platz(feld) + 1));
        }
        return m_felder[feld];
    }

private:
    const VENT_VDI3805_DATEN& m_knoten;
    CStringArray m_felder;
};

float Real(const CString& text)
{
    return static_cast<float>(_wtof(text));
}

/// Share of the flow through the radiator in whole percent. A row without any flow has share 0.
float Anteil(float kvHK, float kv)
{
    const float percent = kvHK / kv * 100.0F;
    return static_cast<float>(RoundToInt(percent));
}

std::array<Table*, 7> Tabellen(VDI3805_VENTIL_KV& ventil)
{
    return {&ventil.Xp, &ventil.KvBypass, &ventil.KvHK,       &ventil.AnteilHK,
            &ventil.Kv, &ventil.KvsTab,   &ventil.Einstellung};
}

void LeseNenndaten(const VENT_VDI3805_DATEN& daten, VDI3805_VENTIL_KV& ventil)
{
    const CKnotenFelder fields(daten);
    ventil.VentilArt = _wtoi(fields[2]);
    ventil.DN = _wtoi(fields[3]);
    ventil.Kvs = Real(fields[4]);
    ventil.Wert5 = Real(fields[5]);
    ventil.Wert6 = Real(fields[6]);
    ventil.DruckMax = Real(fields[7]);
    ventil.Einstellbar = _wtoi(fields[11]) != 0 ? 1 : 0;
    ventil.Zusatz = fields[12];
    ventil.AnzahlKv = 0;
    ventil.Reserve1 = 0.0F;
    ventil.Reserve2 = 0;
}

/// Collects the rows of a data set into the tables of a valve.
class CKvLeser
{
public:
    CKvLeser(VDI3805_VENTIL_KV& ventil, bool bypass) : m_ventil(ventil), m_bBypass(bypass) {}

    void LeseZeilen(const VENT_VDI3805_DATEN* knoten)
    {
        for (; knoten != nullptr && knoten->Satzart == kZeilenart; knoten = knoten->Next) {
            LeseZeile(CKnotenFelder(*knoten));
            if (WiederholtEinstellung()) {
                continue;
            }
            if (++m_ventil.AnzahlKv == VDI3805_VENTIL_KV::kMaxKv) {
                ShowMessage({CString(), L"MAXKV", MessageIcon::warning});
                return;
            }
        }
    }

    void Ordne()
    {
        if (m_ventil.AnzahlKv <= 1) {
            return;
        }
        ErsetzeBenannte();
        if (m_ventil.KvsTab[1] > m_ventil.KvsTab[0]) {
            for (Table* const table : Tabellen(m_ventil)) {
                std::reverse(table->begin(), table->begin() + m_ventil.AnzahlKv);
            }
        }
        Extrapoliere();
    }

private:
    /// Rows stand in file order whatever index they carry; the field only has to be there.
    void LeseZeile(const CKnotenFelder& fields)
    {
        const std::size_t i = Platz(m_ventil.AnzahlKv);
        fields[1];
        m_ventil.Xp[i] = Real(fields[2]);
        if (m_bBypass) {
            m_ventil.Einstellung[i] = Real(fields[5]);
            m_ventil.KvBypass[i] = Real(fields[7]);
            m_ventil.KvHK[i] = Real(fields[8]);
            m_ventil.Kv[i] = m_ventil.KvBypass[i] + m_ventil.KvHK[i];
            m_ventil.AnteilHK[i] = Anteil(m_ventil.KvHK[i], m_ventil.Kv[i]);
        } else {
            m_texte[i] = fields[4];
            m_ventil.Einstellung[i] = Real(fields[5]);
            m_ventil.Kv[i] = Real(fields[8]);
        }
        m_ventil.KvsTab[i] =
            fields.Anzahl() > kFeldKvsZeile ? Real(fields[kFeldKvsZeile]) : m_ventil.Kv[i];
        if (!m_bBypass && m_ventil.Einstellung[i] > m_maxEinstellung) {
            m_maxEinstellung = m_ventil.Einstellung[i];
        }
    }

    /// Of consecutive rows with one presetting the first one stays: the next row takes the place of
    /// this one.
    bool WiederholtEinstellung() const
    {
        const std::size_t i = Platz(m_ventil.AnzahlKv);
        return i > 0 && m_ventil.Einstellung[i] == m_ventil.Einstellung[i - 1];
    }

    /// A named row without a presetting of its own gets one above all others. Only the first half
    /// of the rows is looked at; hosts know the tables that come out of this, so the limit stays.
    void ErsetzeBenannte()
    {
        for (std::size_t i = 0; i < Platz(m_ventil.AnzahlKv / 2); ++i) {
            if (m_ventil.Einstellung[i] <= 0.0F && !m_texte[i].empty()) {
                m_ventil.Einstellung[i] = static_cast<float>(m_maxEinstellung + 1.0);
            }
        }
    }

    /// A first row without a presetting continues the falling line of the two rows behind it.
    void Extrapoliere()
    {
        Table& einstellung = m_ventil.Einstellung;
        if (m_ventil.AnzahlKv >= 3 && einstellung[0] == 0.0F && einstellung[2] < einstellung[1]) {
            einstellung[0] = einstellung[1] - einstellung[2] + einstellung[1];
        }
    }

    VDI3805_VENTIL_KV& m_ventil;
    bool m_bBypass;
    double m_maxEinstellung = 0.0;
    std::array<CString, VDI3805_VENTIL_KV::kMaxKv> m_texte;
};

CString SucheText(const VENT_VDI3805_TEXT* liste, short nummer)
{
    if (nummer <= 0) {
        return kKeinText;
    }
    for (const auto* text = liste; text != nullptr; text = text->Next) {
        if (text->Nummer == nummer) {
            return text->Zeile.substr(std::min(kTextBeginn, text->Zeile.size()));
        }
    }
    return kKeinText;
}

CString KvZeile(const VDI3805_VENTIL_KV& ventil, std::size_t i)
{
    return FormatFixed(ventil.Xp[i], 1, 4) + L"   " + FormatFixed(ventil.Einstellung[i], 1, 4) +
           L":    " + FormatFixed(ventil.Kv[i], 3, 4) + L"     " +
           FormatFixed(ventil.KvsTab[i], 3, 4) + L" ";
}

CString KvBypassZeile(const VDI3805_VENTIL_KV& ventil, std::size_t i)
{
    return FormatFixed(ventil.Xp[i], 1, 4) + L"   " + FormatFixed(ventil.Einstellung[i], 1, 4) +
           L":   " + FormatFixed(ventil.KvBypass[i], 3, 4) + L"    " +
           FormatFixed(ventil.KvHK[i], 3, 4) + L" " + FormatFixed(ventil.AnteilHK[i], 0, 3) + L"%";
}

} // namespace

bool HatBypass(const VENT_VDI3805_ARTIKEL& artikel)
{
    return artikel.Ident[identVentilTyp] == kBypassTyp;
}

void BewerteVentil(const VENT_VDI3805_ARTIKEL& artikel, const VENT_VDI3805_DATEN& daten,
                   VDI3805_VENTIL_KV& ventil)
{
    LeseNenndaten(daten, ventil);
    if (daten.Next == nullptr) {
        return;
    }
    for (Table* const table : Tabellen(ventil)) {
        table->fill(0.0F);
    }
    ventil.VentilTyp = artikel.Ident[identVentilTyp];
    if (ventil.VentilArt > kGroessteVentilArt) {
        return;
    }
    CKvLeser leser(ventil, HatBypass(artikel));
    leser.LeseZeilen(daten.Next);
    leser.Ordne();
}

VENT_VDI3805_DATEN* SucheDatensatz(const VENT_VDI3805_GRUPPE& gruppe,
                                   const VENT_VDI3805_ARTIKEL& artikel)
{
    const int nummer = artikel.Ident[identDatensatz];
    VENT_VDI3805_DATEN* daten = gruppe.Daten;
    while (daten != nullptr && (daten->Satzart != kDatensatzart || daten->Nummer != nummer)) {
        daten = daten->Next;
    }
    return daten;
}

CString KvKopfzeile(bool bypass)
{
    return VentilString(bypass ? 120 : 119);
}

CStringArray KvZeilen(const VDI3805_VENTIL_KV& ventil, bool bypass)
{
    CStringArray zeilen;
    for (std::size_t i = 0; i < Platz(ventil.AnzahlKv); ++i) {
        zeilen.AddMoved(bypass ? KvBypassZeile(ventil, i) : KvZeile(ventil, i));
    }
    return zeilen;
}

std::vector<int> KvSpaltenEnden(bool bypass)
{
    return bypass ? std::vector{4, 11, 20, 29, 34} : std::vector{4, 11, 21, 31};
}

VentilTexte SucheTexte(const VENT_VDI3805_GRUPPE& gruppe, const VENT_VDI3805_ARTIKEL& artikel)
{
    return {SucheText(gruppe.Antriebe, artikel.Ident[identAntrieb]),
            SucheText(gruppe.Bauformen, artikel.Ident[identBauform]),
            SucheText(gruppe.Werkstoffe, artikel.Ident[identWerkstoff])};
}
