#pragma once

#include "common/auswahl_liste.h"

#include <vector>

/// A list without a window. Adding and deleting keep the selection as a combo box does: deleting
/// the selected entry leaves none selected.
class CTestListe : public CAuswahlListe
{
public:
    CTestListe() = default;
    explicit CTestListe(std::vector<CString> entries) : texte(std::move(entries)) {}

    int Anzahl() const override { return static_cast<int>(texte.size()); }

    CString Text(int index) const override
    {
        return Has(index) ? texte[static_cast<std::size_t>(index)] : CString();
    }

    int Hinzufuegen(const CString& text) override
    {
        texte.push_back(text);
        return Anzahl() - 1;
    }

    bool Loeschen(int index) override
    {
        if (!Has(index)) {
            return false;
        }
        texte.erase(texte.begin() + index);
        gewaehlt = index == gewaehlt ? -1 : gewaehlt - (index < gewaehlt ? 1 : 0);
        return true;
    }

    void Waehlen(int index) override { gewaehlt = Has(index) ? index : -1; }
    int Gewaehlt() const override { return gewaehlt; }

    std::vector<CString> texte;
    int gewaehlt = -1;

private:
    bool Has(int index) const { return index >= 0 && index < Anzahl(); }
};
