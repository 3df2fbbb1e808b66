#pragma once

#include "frame/conn_values.h"
#include "frame/handover.h"

#include <vector>

/// All fields of a record by their type.
struct Fields
{
    std::vector<CString*> texts;
    std::vector<double*> numbers;
    std::vector<int*> counts;
    std::vector<wchar_t*> letters;

    void Add(HK_DATEN_VDI3805& d)
    {
        numbers.insert(numbers.end(), {&d.Hoehe, &d.Tiefe, &d.Laenge, &d.LeistungEN442, &d.Leistung,
                                       &d.Elemente, &d.Exponent, &d.Inhalt});
        letters.push_back(&d.Bauart);
    }
};

inline Fields FieldsOf(HK_DATEN_VDI3805& daten)
{
    Fields fields;
    fields.Add(daten);
    return fields;
}

inline Fields FieldsOf(HK_VDI3805_TYP& row)
{
    Fields fields{{&row.Name}, {}, {}, {}};
    fields.Add(row.Daten);
    return fields;
}

inline Fields FieldsOf(HK_DATEN_VDI3805_UEBERGABE& u)
{
    Fields fields{{&u.Hersteller, &u.Art, &u.Produkt, &u.TypName, &u.Raumname, &u.Typ.Name},
                  {&u.LeistungMin, &u.LeistungMax, &u.Leistung, &u.Toleranz, &u.LaengeMin,
                   &u.LaengeMax, &u.HoeheMin, &u.HoeheMax, &u.TiefeMin, &u.TiefeMax, &u.Vorlauf,
                   &u.Ruecklauf, &u.Raumtemperatur, &u.Umrechnungsfaktor, &u.RaumBedarf,
                   &u.RaumGedeckt},
                  {&u.NeuLesen},
                  {}};
    fields.Add(u.Typ.Daten);
    fields.Add(u.Daten);
    return fields;
}

inline Fields FieldsOf(ConnValues& c)
{
    Fields fields{{&c.Name, &c.AnschlussAN, &c.AnschlussRI, &c.GrafikAN, &c.GrafikRI},
                  {&c.SeitAbstandAN, &c.SeitAbstandRI, &c.KreuzAbstand, &c.WandAbstand},
                  {&c.KreuzTyp},
                  {}};
    for (ConnVector* vector :
         {&c.PosAN, &c.OffsetAN, &c.WinkelAN, &c.PosRI, &c.OffsetRI, &c.WinkelRI}) {
        for (double& number : *vector) {
            fields.numbers.push_back(&number);
        }
    }
    return fields;
}

/// A record with another value in each field.
template <class RECORD>
RECORD Filled()
{
    RECORD record;
    const Fields fields = FieldsOf(record);
    wchar_t letter = L'\u00E0';
    for (CString* text : fields.texts) {
        *text = CString(2, letter++) + L"\U0001F525";
    }
    double value = -0.1;
    for (double* number : fields.numbers) {
        *number = value++;
    }
    for (int* count : fields.counts) {
        *count = -5;
    }
    letter = static_cast<wchar_t>(0x1F525);
    for (wchar_t* field : fields.letters) {
        *field = letter++;
    }
    return record;
}
