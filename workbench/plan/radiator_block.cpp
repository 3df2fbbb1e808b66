#include "workbench/plan/radiator_block.h"

#include "platform/number_scan.h"

namespace workbench {

namespace {

/// Words of kinds in the languages of the sample catalogues, in lower case; those of panels have no
/// block here, as it depends on the type.
constexpr struct
{
    const wchar_t* word;
    const wchar_t* block;
} kBlocks[] = {
    {L"scaldasalviette", L"RAD_SCALDASALVIETTE_PIANTA"},
    {L"badheizkörper", L"RAD_SCALDASALVIETTE_PIANTA"},
    {L"convettor", L"RAD_CONVETTORE_PIANTA"},
    {L"konvektor", L"RAD_CONVETTORE_PIANTA"},
    {L"tubolar", L"RAD_TUBOLARE_PIANTA"},
    {L"röhrenradiator", L"RAD_TUBOLARE_PIANTA"},
    {L"alluminio", L"RAD_ELEMENTI_PIANTA"},
    {L"ghisa", L"RAD_ELEMENTI_PIANTA"},
    {L"piastr", nullptr},
    {L"flachheizkörper", nullptr},
};

/// The last whole number of a text; 0 without one.
int LastNumber(const CString& text)
{
    const auto end = text.find_last_of(L"0123456789");
    if (end == CString::npos) {
        return 0;
    }
    const auto before = text.find_last_not_of(L"0123456789", end);
    return _wtoi(text.substr(before + 1, end - before));
}

/// Types of panel radiators count the panels in front of the rows of fins.
const wchar_t* PanelBlock(const CString& produkt)
{
    constexpr int kFirstOfTwoPanels = 20;
    return LastNumber(produkt) < kFirstOfTwoPanels ? L"RAD_PIASTRA_11_PIANTA"
                                                   : L"RAD_PIASTRA_22_PIANTA";
}

} // namespace

CString BlockOf(const CString& art, const CString& produkt)
{
    const CString words = ToLower(art + L" " + produkt);
    for (const auto& entry : kBlocks) {
        if (words.find(entry.word) != CString::npos) {
            return entry.block != nullptr ? entry.block : PanelBlock(produkt);
        }
    }
    return {};
}

} // namespace workbench
