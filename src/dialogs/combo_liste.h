#pragma once

#include "common/auswahl_liste.h"
#include "uikit/combo_box.h"

/// A combo box as a list for code that knows no windows.
class CComboListe : public CComboBox, public CAuswahlListe
{
public:
    int Anzahl() const override { return GetCount(); }
    CString Text(int index) const override { return GetItemText(index); }
    int Hinzufuegen(const CString& text) override { return AddString(text); }
    void Fuellen(const CStringArray& texte) override { FillWith(texte); }
    bool Loeschen(int index) override { return DeleteString(index); }
    void Waehlen(int index) override { SetCurSel(index); }
    int Gewaehlt() const override { return GetCurSel(); }
};
