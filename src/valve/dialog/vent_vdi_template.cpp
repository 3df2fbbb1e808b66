#include "valve/dialog/vent_vdi_template.h"

const DialogTemplate& VentVdiTemplate()
{
    using enum ControlKind;
    static const wchar_t* const kLeer = L"<...>";
    static const DialogTemplate vorlage = {
        18003,
        L"Scelta valvola secondo VDI 3805",
        398,
        257,
        frameResizable,
        {
            {563, canvas, L"", 0, 0, 16, 257},

            {kNoId, label, L"Scelta del costruttore", 22, 5, 142, 9},
            {18039, comboList, L"", 22, 15, 142, 14},
            {18019, tree, L"", 22, 33, 142, 197},

            {18053, groupBox, L"Costruttore", 170, 5, 222, 51},
            {18022, label, kLeer, 177, 16, 210, 9},
            {18051, label, L"Data della norma:", 177, 28, 64, 9},
            {18023, label, kLeer, 242, 28, 60, 9},
            {18052, label, L"Data esecuzione:", 177, 41, 64, 9},
            {18024, label, kLeer, 242, 41, 60, 9},
            {18043, edit, L"", 348, 39, 38, 13, styleReadOnly | styleRight,
             L"Riga dell'articolo nel file del costruttore"},

            {18054, groupBox, L"Valvola selezionata", 170, 61, 222, 169},
            {18055, label, L"Numero ordine", 177, 72, 51, 9},
            {18025, label, kLeer, 231, 72, 159, 9},
            {18056, label, L"NumeroTGA", 177, 83, 51, 9},
            {18026, label, kLeer, 231, 83, 159, 9},
            {18057, label, L"Datanorm", 177, 94, 51, 9},
            {18027, label, kLeer, 231, 94, 159, 9},
            {18028, label, kLeer, 177, 105, 210, 9},
            {18058, label, L"Comando:", 177, 119, 64, 9},
            {18030, edit, L"", 242, 117, 145, 13, styleReadOnly},
            {18059, label, L"Forma costruttiva:", 177, 134, 64, 9},
            {18031, edit, L"", 242, 132, 145, 13, styleReadOnly},
            {18060, label, L"Materiale:", 177, 149, 64, 9},
            {18032, edit, L"", 242, 147, 145, 13, styleReadOnly},
            {18061, label, L"DN:", 177, 166, 16, 9},
            {371, edit, L"", 198, 164, 40, 13, styleReadOnly | styleRight},
            {18064, label, L"press. max:", 262, 166, 42, 9},
            {18035, edit, L"", 306, 164, 48, 13, styleReadOnly | styleRight},
            {18065, label, L"mbar", 358, 166, 28, 9},
            {18062, label, L"kvs:", 177, 182, 16, 9},
            {18036, edit, L"", 198, 180, 40, 13, styleReadOnly | styleRight},
            {18063, label, L"m³/h", 242, 182, 20, 9},
            {18037, checkBox, L"regolabile", 306, 181, 80, 11},
            {18066, label, L"xp", 177, 198, 209, 9},
            {18029, comboList, L"", 177, 209, 209, 14},

            {1, defaultButton, L"OK", 288, 237, 50, 14},
            {2, button, L"Annulla", 342, 237, 50, 14},
        },
    };
    return vorlage;
}
