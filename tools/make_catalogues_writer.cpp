#include "tools/make_catalogues_writer.h"

#include "platform/encoding.h"
#include "platform/format.h"

namespace {
CString WattText(double watts)
{
    return FormatFixed(watts, 1);
}

CString LitreText(double litres)
{
    return FormatFixed(litres, 2);
}
} // namespace

CString MmText(double mm)
{
    return FormatFixed(mm, 0);
}

template <class... FIELDS>
void CCatalogueWriter::Record(const FIELDS&... fields)
{
    CString line;
    ((line += line.empty() ? CString(fields) : L";" + CString(fields)), ...);
    m_text += line + m_lineEnd;
}

void CCatalogueWriter::Kopf(const CString& hersteller)
{
    Record(L"010", L"200410", hersteller, L"20240301");
}

void CCatalogueWriter::Art(const CString& name)
{
    m_nArt += 10;
    m_nProdukt = 0;
    Record(L"100", FormatInt(m_nArt), name);
}

void CCatalogueWriter::Produkt(const CString& name)
{
    Record(L"110", FormatInt(++m_nProdukt), name);
}

void CCatalogueWriter::Serie(const CSampleSeries& serie)
{
    m_nSerie = serie.nNummer;
    m_nLaenge = 0;
    Record(L"700", FormatInt(serie.nNummer), serie.strTyp, CString(1, serie.cBauart),
           MmText(serie.dHoehe), MmText(serie.dTiefe), WattText(serie.dLeistung),
           FormatFixed(serie.dExponent, 3), LitreText(serie.dInhalt));
}

void CCatalogueWriter::NormLaenge(double laenge)
{
    Record(L"710.01", FormatInt(++m_nLaenge), MmText(laenge));
}

void CCatalogueWriter::NormLaenge(double laenge, double leistung, double inhalt)
{
    Record(L"710.01", FormatInt(++m_nLaenge), MmText(laenge), WattText(leistung),
           LitreText(inhalt));
}

void CCatalogueWriter::Zuschnitt(double from, double to, double step)
{
    Record(L"710.02", MmText(from), MmText(to), MmText(step));
}

void CCatalogueWriter::Glieder(double gliedLaenge, int max, double zugabe)
{
    Record(L"710.03", MmText(gliedLaenge), FormatInt(max), MmText(zugabe));
}

void CCatalogueWriter::Artikel(double size, const CString& bestellNr, const CString& typ)
{
    Record(L"800", FormatInt(m_nSerie), MmText(size), bestellNr, typ);
}

std::string CCatalogueWriter::GetCp1252() const
{
    return Cp1252FromWide(m_text);
}

std::string CCatalogueWriter::GetUtf16() const
{
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : Utf16FromWide(m_text)) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    return bytes;
}
