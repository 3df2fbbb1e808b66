#include "valve/dialog/vent_vdi_template.h"

#include "dialogs/brushed_dialog.h"

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
            {kBannerId, canvas, L"", 0, 0, 16, 257},

            {kNoId, label, L"Scelta del costruttore", 22, 5, 142, 9},
            {idHersteller, comboList, L"", 22, 15, 142, 14},
            {idVentilBaum, tree, L"", 22, 33, 142, 197},

            {idHerstellerRahmen, groupBox, L"Costruttore", 170, 5, 222, 51},
            {idHerstellerName, label, kLeer, 177, 16, 210, 9},
            {idNormDatumTitel, label, L"Data della norma:", 177, 28, 64, 9},
            {idNormDatum, label, kLeer, 242, 28, 60, 9},
            {idAusfuehrungTitel, label, L"Data esecuzione:", 177, 41, 64, 9},
            {idAusfuehrung, label, kLeer, 242, 41, 60, 9},
            {idZeile, edit, L"", 348, 39, 38, 13, styleReadOnly | styleRight,
             L"Riga dell'articolo nel file del costruttore"},

            {idVentilRahmen, groupBox, L"Valvola selezionata", 170, 61, 222, 169},
            {idBestellNrTitel, label, L"Numero ordine", 177, 72, 51, 9},
            {idBestellNr, label, kLeer, 231, 72, 159, 9},
            {idTgaNrTitel, label, L"NumeroTGA", 177, 83, 51, 9},
            {idTgaNr, label, kLeer, 231, 83, 159, 9},
            {idDatanormTitel, label, L"Datanorm", 177, 94, 51, 9},
            {idDatanorm, label, kLeer, 231, 94, 159, 9},
            {idVentilArt, label, kLeer, 177, 105, 210, 9},
            {idAntriebTitel, label, L"Comando:", 177, 119, 64, 9},
            {idAntrieb, edit, L"", 242, 117, 145, 13, styleReadOnly},
            {idBauformTitel, label, L"Forma costruttiva:", 177, 134, 64, 9},
            {idBauform, edit, L"", 242, 132, 145, 13, styleReadOnly},
            {idWerkstoffTitel, label, L"Materiale:", 177, 149, 64, 9},
            {idWerkstoff, edit, L"", 242, 147, 145, 13, styleReadOnly},
            {idNennweiteTitel, label, L"DN:", 177, 166, 16, 9},
            {idNennweite, edit, L"", 198, 164, 40, 13, styleReadOnly | styleRight},
            {idDruckTitel, label, L"press. max:", 262, 166, 42, 9},
            {idDruck, edit, L"", 306, 164, 48, 13, styleReadOnly | styleRight},
            {idDruckEinheit, label, L"mbar", 358, 166, 28, 9},
            {idKvsTitel, label, L"kvs:", 177, 182, 16, 9},
            {idKvs, edit, L"", 198, 180, 40, 13, styleReadOnly | styleRight},
            {idKvsEinheit, label, L"m³/h", 242, 182, 20, 9},
            {idEinstellbar, checkBox, L"regolabile", 306, 181, 80, 11},
            {idKvKopf, label, L"xp", 177, 198, 209, 9},
            {idKvListe, comboList, L"", 177, 209, 209, 14},

            {kIdOk, defaultButton, L"OK", 288, 237, 50, 14},
            {kIdCancel, button, L"Annulla", 342, 237, 50, 14},
        },
    };
    return vorlage;
}
