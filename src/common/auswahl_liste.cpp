#include "common/auswahl_liste.h"

#include "platform/format.h"
#include "platform/number_scan.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace {

template <class Hit>
int SucheErsten(const CAuswahlListe& liste, Hit hit)
{
    for (int i = 0; i < liste.Anzahl(); ++i) {
        if (hit(liste.Text(i))) {
            return i;
        }
    }
    return -1;
}

int Nachkommastellen(const CString& zahl)
{
    auto mark = zahl.rfind(L'.');
    if (mark == CString::npos) {
        mark = zahl.rfind(L',');
    }
    return mark == CString::npos ? 0 : static_cast<int>(zahl.size() - mark - 1);
}

} // namespace

void CAuswahlListe::Fuellen(const CStringArray& texte)
{
    for (const CString& text : texte) {
        Hinzufuegen(text);
    }
    Waehlen(-1);
}

void ListeLeeren(CAuswahlListe& liste)
{
    // From the end, so that no entry moves up.
    for (int i = liste.Anzahl() - 1; i >= 0; --i) {
        liste.Loeschen(i);
    }
}

int SucheGleichen(const CAuswahlListe& liste, const CString& text)
{
    return SucheErsten(liste, [&](const CString& entry) { return entry == text; });
}

int SucheAnfang(const CAuswahlListe& liste, const CString& text)
{
    return SucheErsten(liste, [&](const CString& entry) {
        return EqualNoCase(entry.substr(0, text.size()), text);
    });
}

bool SortComboNumeric(CAuswahlListe& liste, bool aufsteigend)
{
    const int stellen = Nachkommastellen(liste.Text(0));
    std::vector<double> werte;
    for (int i = 0; i < liste.Anzahl(); ++i) {
        werte.push_back(_wtof(liste.Text(i)));
    }
    ListeLeeren(liste);
    if (aufsteigend) {
        std::ranges::sort(werte);
    } else {
        std::ranges::sort(werte, std::greater());
    }
    for (const double wert : werte) {
        liste.Hinzufuegen(FormatFixed(wert, stellen));
    }
    return true;
}
