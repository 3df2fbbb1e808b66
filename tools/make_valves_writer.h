#pragma once

#include "platform/text.h"

#include <string>

/// How the bytes of a valve file are made.
enum class ValveEncoding
{
    /// 8-bit text of Windows programs.
    cp1252,
    /// Behind a byte order mark.
    utf16,
    /// Small umlauts and sharp s as DOS programs write them; all else is to be ASCII.
    dos
};

/// A data set as its record states it.
struct CSampleDataSet
{
    /// Valve kind code, 1 to 11.
    int nArt = 0;
    int nDN = 0;
    /// m³/h.
    double dKvs = 0.0;
    double dDruckMax = 0.0;
    bool bEinstellbar = false;
};

/// A row of a kv table; kv and kvs in m³/h. kvs 0 leaves its field out.
struct CSampleRow
{
    double dXp = 0.0;
    CString strName;
    double dEinstellung = 0.0;
    double dKvBypass = 0.0;
    double dKv = 0.0;
    double dKvs = 0.0;
};

/// What an article's ident says.
struct CSampleIdent
{
    /// 1 for valves with a bypass.
    int nTyp = 0;
    int nAntrieb = 0;
    int nBauform = 0;
    int nDN = 0;
    int nWerkstoff = 0;
};

/// The text of a valve file, record by record (docs/valve-format.md).
class CValveWriter
{
public:
    void Kopf(const CString& hersteller);

    /// Main groups are numbered in tens, groups within theirs and data sets in the file from one.
    void Hauptgruppe(const CString& name);
    void Gruppe(const CString& name);

    void Antrieb(int nummer, const CString& text);
    void Bauform(int nummer, const CString& text);
    void Werkstoff(int nummer, const CString& text);

    void Datensatz(const CSampleDataSet& daten);
    /// A row of the latest data set.
    void Zeile(const CSampleRow& row);
    /// The additional records of the latest data set; `einbau` in millimetres.
    void Zusatz(double einbau);

    /// An article of the latest data set, with the next number of the file in its ident.
    void Artikel(const CSampleIdent& ident, const CString& bestellNr, const CString& bezeichnung);

    std::string GetBytes(ValveEncoding encoding) const;

private:
    template <class... FIELDS>
    void Record(const FIELDS&... fields);

    CString m_text;
    int m_nHauptgruppe = 0;
    int m_nGruppe = 0;
    int m_nDatensatz = 0;
    int m_nZeile = 0;
    int m_nArtikel = 0;
};
