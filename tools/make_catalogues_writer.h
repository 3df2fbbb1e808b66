#pragma once

#include "platform/text.h"

#include <string>
#include <utility>

/// A series as its record states it.
struct CSampleSeries
{
    int nNummer = 0;
    CString strTyp;
    /// M per metre, S per section, E of the unit.
    wchar_t cBauart = L' ';
    double dHoehe = 0.0;
    double dTiefe = 0.0;
    double dLeistung = 0.0;
    double dExponent = 0.0;
    double dInhalt = 0.0;
};

/// The text of a catalogue file, record by record (docs/catalogue-format.md).
class CCatalogueWriter
{
public:
    /// `lineEnd` closes each record.
    explicit CCatalogueWriter(CString lineEnd) : m_lineEnd(std::move(lineEnd)) {}

    void Kopf(const CString& hersteller);

    /// Kinds are numbered in tens, products within their kind from one.
    void Art(const CString& name);
    void Produkt(const CString& name);

    void Serie(const CSampleSeries& serie);

    /// Standard lengths are counted from one within their series.
    void NormLaenge(double laenge);
    void NormLaenge(double laenge, double leistung, double inhalt);
    void Zuschnitt(double from, double to, double step);
    void Glieder(double gliedLaenge, int max, double zugabe);

    /// An article of the latest series.
    void Artikel(double size, const CString& bestellNr, const CString& typ);

    /// The file's bytes in code page 1252, or in UTF-16 behind its byte order mark.
    std::string GetCp1252() const;
    std::string GetUtf16() const;

private:
    template <class... FIELDS>
    void Record(const FIELDS&... fields);

    CString m_lineEnd;
    CString m_text;
    int m_nArt = 0;
    int m_nProdukt = 0;
    int m_nSerie = 0;
    int m_nLaenge = 0;
};

/// A measure in whole millimetres.
CString MmText(double mm);
