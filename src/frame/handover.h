#pragma once

#include "platform/archive.h"
#include "platform/export.h"
#include "platform/object.h"
#include "platform/text.h"

/// The records that cross the boundary between the host and the module. Lengths are millimetres,
/// outputs watts, temperatures degrees Celsius, water contents litres. Constructors, assignment and
/// archive form live in the host library HostPrefs; the catalogue tree is built and owned by the
/// host library HostCatalog.

/// Size and output data of one row. The output and the number of sections mean different things in
/// the two kinds of row.
///
/// A catalogue row has LeistungEN442 per metre, per section or of the unit, as Bauart says, no
/// Leistung, and in Elemente the number of sections of a per-section row.
///
/// A result row has in LeistungEN442 and Leistung the outputs of the whole radiator in whole watts,
/// and in Elemente the number of sections of a per-section row, 0.0 for every other.
class HOST_API HK_DATEN_VDI3805
{
public:
    /// All numbers 0, Bauart a blank.
    HK_DATEN_VDI3805();
    HK_DATEN_VDI3805(const HK_DATEN_VDI3805&);
    HK_DATEN_VDI3805& operator=(const HK_DATEN_VDI3805&);
    ~HK_DATEN_VDI3805();

    void Serialize(CArchive& archive);

    double Hoehe;
    double Tiefe;
    double Laenge;
    /// Output at EN 442 standard conditions.
    double LeistungEN442;
    /// Output at design temperatures.
    double Leistung;
    /// Number of sections.
    double Elemente;
    /// How LeistungEN442 is stated: "M" or "m" per metre, "S" or "s" per section, else of the unit.
    wchar_t Bauart;
    /// Radiator exponent; shown, never used in a conversion.
    double Exponent;
    /// Water content of the row as the catalogue reader put it in, never scaled by the module.
    double Inhalt;
};

/// One size of one product: a link of a row chain.
class HOST_API HK_VDI3805_TYP : public CObject
{
public:
    /// Empty name, zero data, no links.
    HK_VDI3805_TYP();

    /// Copies take over Name and Daten. The links stay the target's own, those of a new row null: a
    /// copy never points into the chain that it was taken from.
    HK_VDI3805_TYP(const HK_VDI3805_TYP& other);
    HK_VDI3805_TYP& operator=(const HK_VDI3805_TYP& other);

    const CRuntimeClass& GetRuntimeClass() const override;
    ~HK_VDI3805_TYP() override;

    /// Name and Daten; links are not stored.
    void Serialize(CArchive& archive) override;

    static const CRuntimeClass& GetThisClass();

    /// Type text.
    CString Name;
    HK_DATEN_VDI3805 Daten;
    HK_VDI3805_TYP* pNext;
    /// Set in result rows only.
    HK_VDI3805_TYP* pPrev;
};

/// A product of a catalogue. Its rows run through rising lengths, series after series.
struct HK_VDI3805_PRODUKT
{
    CString Name;
    HK_VDI3805_TYP* pTyp = nullptr;
    /// Heights and depths in which the product exists, each ascending and without duplicates.
    OCArray<double> Hoehen;
    OCArray<double> Tiefen;
    HK_VDI3805_PRODUKT* pNext = nullptr;
};

/// A kind of radiator of a manufacturer.
struct HK_VDI3805_ART
{
    CString Name;
    HK_VDI3805_PRODUKT* pProdukt = nullptr;
    HK_VDI3805_ART* pNext = nullptr;
};

/// A manufacturer. The name also identifies the catalogue file.
struct HK_VDI3805_HERSTELLER
{
    CString Name;
    /// Null as long as the manufacturer's file is unread.
    HK_VDI3805_ART* pArt = nullptr;
    HK_VDI3805_HERSTELLER* pNext = nullptr;
};

/// What the host wants and what it gets: wishes go in, the chosen radiator comes back in Daten and
/// TypName. The host owns the record; the module keeps no pointer to it after a call.
class HOST_API HK_DATEN_VDI3805_UEBERGABE
{
public:
    /// Empty texts; LeistungMin and LeistungMax -1.0, Toleranz 0.1, Umrechnungsfaktor 1.0, every
    /// other number 0.
    HK_DATEN_VDI3805_UEBERGABE();
    HK_DATEN_VDI3805_UEBERGABE(const HK_DATEN_VDI3805_UEBERGABE&);
    HK_DATEN_VDI3805_UEBERGABE& operator=(const HK_DATEN_VDI3805_UEBERGABE&);
    ~HK_DATEN_VDI3805_UEBERGABE();

    /// The whole record, with the version of its form in front.
    void Serialize(CArchive& archive);

    /// Position in the catalogue: manufacturer, kind, product.
    CString Hersteller;
    CString Art;
    CString Produkt;
    /// Type text of the chosen row.
    CString TypName;
    /// First row of a filter result; written by the plain form of Read_HK_Masse only.
    HK_VDI3805_TYP Typ;
    /// Bounds of the output at design temperatures; exactly -1.0 asks for one to be derived from
    /// Leistung and Toleranz, any other value is taken as it stands. Once the selection dialog has
    /// refreshed, both follow Leistung at ten per cent.
    double LeistungMin;
    double LeistungMax;
    /// Required output at design temperatures; after OK of the selection dialog that of the chosen
    /// row. Both selections but the one by tree turn 0.0 into 1000.0.
    double Leistung;
    /// Tolerance as a fraction of Leistung; 0.1 once the selection dialog has refreshed.
    double Toleranz;
    double LaengeMin;
    double LaengeMax;
    double HoeheMin;
    double HoeheMax;
    double TiefeMin;
    double TiefeMax;
    /// Design temperatures: supply, return, room.
    double Vorlauf;
    double Ruecklauf;
    double Raumtemperatur;
    /// Factor from EN 442 output to output at design temperatures; written by each filter pass.
    double Umrechnungsfaktor;
    /// Room identification; not empty means that the selection dialog runs with room data.
    CString Raumname;
    /// Heat demand of the room, and the part of it that other radiators cover already.
    double RaumBedarf;
    double RaumGedeckt;
    /// Non-zero makes the next filter pass that finds the manufacturer read its file again. Any
    /// pass that reads the file clears it.
    int NeuLesen;
    /// Product data of the chosen row.
    HK_DATEN_VDI3805 Daten;
};
