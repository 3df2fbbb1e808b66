#include "tools/make_valves_writer.h"

#include "platform/encoding.h"
#include "platform/format.h"

namespace {
CString KvText(double kv)
{
    return FormatFixed(kv, 3);
}

/// A number of an ident, with zeros in front.
CString Digits(int number, std::size_t count)
{
    const CString digits = FormatInt(number);
    return CString(count - digits.size(), L'0') + digits;
}

std::string Utf16Bytes(const CString& text)
{
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : Utf16FromWide(text)) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    return bytes;
}

char DosByte(wchar_t c)
{
    switch (c) {
    case L'ü':
        return '\x81';
    case L'ä':
        return '\x84';
    case L'ö':
        return '\x94';
    case L'ß':
        return '\xE1';
    default:
        return static_cast<char>(c);
    }
}

std::string DosBytes(const CString& text)
{
    std::string bytes;
    for (const wchar_t c : text) {
        bytes.push_back(DosByte(c));
    }
    return bytes;
}
} // namespace

template <class... FIELDS>
void CValveWriter::Record(const FIELDS&... fields)
{
    ((m_text += CString(fields) + L";"), ...);
    m_text += L"\r\n";
}

void CValveWriter::Kopf(const CString& hersteller)
{
    Record(L"010", L"200410", hersteller, L"20240301", L"");
}

void CValveWriter::Hauptgruppe(const CString& name)
{
    m_nHauptgruppe += 10;
    m_nGruppe = 0;
    Record(L"100", FormatInt(m_nHauptgruppe), name);
}

void CValveWriter::Gruppe(const CString& name)
{
    Record(L"110", FormatInt(++m_nGruppe), name);
}

void CValveWriter::Antrieb(int nummer, const CString& text)
{
    Record(L"160", FormatInt(nummer), text);
}

void CValveWriter::Bauform(int nummer, const CString& text)
{
    Record(L"200", FormatInt(nummer), text);
}

void CValveWriter::Werkstoff(int nummer, const CString& text)
{
    Record(L"400", FormatInt(nummer), text);
}

void CValveWriter::Datensatz(const CSampleDataSet& daten)
{
    m_nZeile = 0;
    Record(L"700", FormatInt(++m_nDatensatz), FormatInt(daten.nArt), FormatInt(daten.nDN),
           KvText(daten.dKvs), L"10", L"120", FormatFixed(daten.dDruckMax, 0), L"", L"", L"",
           daten.bEinstellbar ? L"1" : L"0", L"");
}

void CValveWriter::Zeile(const CSampleRow& row)
{
    const bool hasBypass = row.dKvBypass > 0.0;
    m_text += L"710.01;" + FormatInt(++m_nZeile) + L";" + FormatFixed(row.dXp, 1) + L";;" +
              row.strName + L";" + FormatFixed(row.dEinstellung, 2) + L";;" +
              (hasBypass ? KvText(row.dKvBypass) : L"") + L";" + KvText(row.dKv) + L";" +
              (row.dKvs > 0.0 ? KvText(row.dKvs) + L";" : L"") + L"\r\n";
}

void CValveWriter::Zusatz(double einbau)
{
    Record(L"720.01", L"1", L"", L"", L"", L"", L"", L"", FormatFixed(einbau, 0));
    Record(L"720.02", L"1", FormatFixed(einbau, 0));
}

void CValveWriter::Artikel(const CSampleIdent& ident, const CString& bestellNr,
                           const CString& bezeichnung)
{
    const CString unused = L"0000";
    const CString tgaNr = Digits(ident.nTyp, 2) + L"00" + Digits(ident.nAntrieb, 2) +
                          Digits(ident.nBauform, 2) + Digits(ident.nDN, 2) + unused + unused +
                          Digits(ident.nWerkstoff, 2) + unused + Digits(++m_nArtikel, 6) +
                          Digits(m_nDatensatz, 4) + L"00";
    Record(L"800", tgaNr, bestellNr, L"", L"", bezeichnung);
}

std::string CValveWriter::GetBytes(ValveEncoding encoding) const
{
    switch (encoding) {
    case ValveEncoding::utf16:
        return Utf16Bytes(m_text);
    case ValveEncoding::dos:
        return DosBytes(m_text);
    default:
        return Cp1252FromWide(m_text);
    }
}
