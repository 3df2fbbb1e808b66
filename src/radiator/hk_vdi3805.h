#pragma once

#include "frame/handover.h"
#include "platform/array.h"
#include "platform/text.h"

/// The working object of all radiator selection: binds one hand-over record to the host's catalogue
/// tree. Filtern() turns the criteria of the record into a list of result rows; everything else
/// reads that list. Nothing here reports an error: what is not found shows as an empty list, -1 or
/// an untouched record. Used by one thread.
class CHKVdi3805
{
public:
    /// Binds the object to a hand-over record, which must outlive it. The output bounds are taken
    /// from the record now; a bound of exactly -1.0 is derived from Leistung and Toleranz.
    explicit CHKVdi3805(HK_DATEN_VDI3805_UEBERGABE* daten);

    /// Frees the result rows. The catalogue tree is the host's.
    virtual ~CHKVdi3805();

    CHKVdi3805(const CHKVdi3805&) = delete;
    CHKVdi3805& operator=(const CHKVdi3805&) = delete;

    /// Non-zero: a row must lie within the output bounds; 0: output plays no part. Besides, a
    /// required Leistung of exactly 0.0 becomes 1000.0 in the hand-over, whichever value is given.
    void SetLeistungFilter(int filter);

    /// Non-zero: every row of the product is taken, without any test.
    void SetAlleAnzeigen(int alle);

    /// The filter pass. Writes the factor to the hand-over, reads the manufacturer's catalogue
    /// where it is unread or NeuLesen asks for it (which clears NeuLesen), and replaces the whole
    /// result: rows in catalogue order, at most 2000, each with its outputs in whole watts. Rows of
    /// an earlier pass are gone afterwards.
    void Filtern();

    /// Puts the row whose output at design temperatures is nearest to the required one into the
    /// hand-over (Daten and TypName) and returns its index in the result. Of equally near rows the
    /// first one; stops at a row less than 0.1 W off. -1 if no row is nearer than 100000 W, and
    /// then the hand-over stays untouched.
    int BesteAuswahl();

    /// The same for use without a user: never stops early, and a row below the record's LeistungMin
    /// (if that is above 0) loses its place to the next row nearer than 100000 W. `daten` is the
    /// record that this object is bound to.
    int BesteAuswahlMinLeistung(HK_DATEN_VDI3805_UEBERGABE* daten);

    /// Copies Daten and name of the result row with exactly this type text (case counts) and these
    /// measures in mm into the hand-over; of several the last one. Without such a row nothing
    /// changes.
    void SelectRow(const CString& name, double hoehe, double tiefe, double laenge);

    /// Replaces `liste` by pointers to the manufacturers (HK_VDI3805_HERSTELLER) and returns their
    /// count. The list is made once in the life of the object and needs a filter pass before it.
    int GetHerstellerListe(CPtrArray& liste);

    /// First result row, null if there is none. Owned here; holds until the next filter pass.
    const HK_VDI3805_TYP* GetErgebnis() const { return m_pErgebnis; }

    /// Heights and depths in which the current product exists, in mm, whether or not a row of that
    /// size passed the tests.
    const CArray<double, double>& GetHoehen() const { return m_Hoehen; }
    const CArray<double, double>& GetTiefen() const { return m_Tiefen; }

    /// Maker, kind and product of the last pass, each null if it was not found. Owned by the host.
    const HK_VDI3805_HERSTELLER* GetHersteller() const { return m_pHersteller; }
    const HK_VDI3805_ART* GetArt() const { return m_pArt; }
    const HK_VDI3805_PRODUKT* GetProdukt() const { return m_pProdukt; }

    /// By how many millimetres a row of the product misses the ranges of the hand-over, the
    /// tolerance of the height taken off: 0.0 if it passes the test, infinite where one of the
    /// numbers is none. `bAusgang` is true if it fails the test of the output.
    struct CVerfehlung
    {
        double hoehe;
        double tiefe;
        double laenge;
        bool bAusgang;
        /// Output at design temperatures.
        double leistung;
    };
    CVerfehlung Verfehlung(const HK_VDI3805_TYP& row) const;

    /// What a row's height may lie beyond the range, in mm.
    double GetHoehenToleranz() const { return m_Toleranz; }

    /// The hand-over record that this object is bound to.
    HK_DATEN_VDI3805_UEBERGABE& GetDaten() const { return *m_pDaten; }

    /// Set from the construction on.
    bool IsErsterLauf() const { return m_bErsterLauf != 0; }

    /// The selection dialog clears the flag at its first refresh. While it is set, the output
    /// bounds that the host gave are left alone; afterwards each pass writes Toleranz 0.1 and the
    /// bounds that follow from it into the hand-over, and the host's band is gone.
    void SetErsterLauf(bool ersterLauf) { m_bErsterLauf = ersterLauf ? 1 : 0; }

private:
    /// What a row has to pass. A pass over a whole catalogue takes it out of the records once.
    struct RowTests;

    void UpdateLeistungsBand();
    void PutRowsAside();
    HK_VDI3805_TYP* NewRow();
    void FindPosition(double standardLeistung);
    void CollectRows();
    RowTests Tests() const;

    HK_VDI3805_TYP* m_pErgebnis = nullptr;
    /// Last result row.
    HK_VDI3805_TYP* m_pLetzte = nullptr;
    /// Rows of an earlier pass, for the next one: a dialog runs a pass with each key, and making
    /// thousands of rows takes longer than filling them.
    HK_VDI3805_TYP* m_pFrei = nullptr;
    HK_DATEN_VDI3805_UEBERGABE* m_pDaten;
    CArray<double, double> m_Tiefen;
    CArray<double, double> m_Hoehen;
    int m_bErsterLauf = 1;
    HK_VDI3805_HERSTELLER* m_pHersteller = nullptr;
    HK_VDI3805_ART* m_pArt = nullptr;
    HK_VDI3805_PRODUKT* m_pProdukt = nullptr;
    HK_VDI3805_HERSTELLER* m_pKatalog = nullptr;
    int m_bLeistungFilter = 1;
    int m_bAlle = 0;
    double m_LeistungMin;
    double m_LeistungMax;
    CPtrArray m_Hersteller;
    /// Height tolerance in mm.
    double m_Toleranz = 10.0;
};
