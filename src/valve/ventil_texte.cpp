#include "valve/ventil_texte.h"

#include <algorithm>

namespace {

struct TabellenText
{
    int nummer;
    const wchar_t* text;
};

// Numbers are never given out anew: 103 stays taken, though it is no longer shown.
constexpr TabellenText kTexte[] = {
    {103, L"Valvola per Termostatica/Accessori per valvola collettore"},
    {104, L"preregolati e non preregolati (p.e. ritorno)"},
    {105, L"Attacco monotubo per valvole C.S. a piastra"},
    {106, L"valvola taratura manuale (pdc regolabile)"},
    {107, L"Regolatore di pressione differenziale"},
    {108, L"Controllore di flusso"},
    {109, L"Regolatore di portata"},
    {110, L"Regolatore di portata con differenziale pressione"},
    {111, L"Regolatore pressione differenziale CON Limitatore di portata"},
    {112, L"Regolatore pressione differenziale E Limitatore di portata"},
    {113, L"PdC localizzata(p.e. Saracinesca di chiusura)"},
    {114, L"regolabile"},
    {115, L"non regolabile"},
    {116, L"Selezionare quì per acquisire il valore %d..."},
    {117, L"Espandi >>"},
    {118, L"Riduci <<"},
    // Without its closing bracket, as designers know the head of the list.
    {119, L"xp       Regolazione           kv[m³/h]           kvs[m³/h"},
    {120, L"xp       Regolazione  kv-Bypass[m³/h]   kv-HK[m³/h]   %"},
};

} // namespace

CString VentilString(int nummer)
{
    const auto* const found = std::ranges::find(kTexte, nummer, &TabellenText::nummer);
    return found == std::end(kTexte) ? CString() : found->text;
}

CString VentilArtText(int ventilArt)
{
    // Code 1 has the text of code 2; from there on texts and codes run in step.
    constexpr int kFirst = 1;
    constexpr int kLast = 11;
    constexpr int kBeforeCode2 = 102;
    const bool known = ventilArt >= kFirst && ventilArt <= kLast;
    return known ? VentilString(kBeforeCode2 + std::max(ventilArt, 2)) : CString();
}
