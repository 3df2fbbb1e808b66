#include "common/layer_text.h"

#include <string_view>

namespace {

constexpr std::wstring_view kFloorMark = L"$d";

} // namespace

void ReplaceFloorMark(CString& vorlage, const CString& geschoss)
{
    auto mark = vorlage.find(kFloorMark);
    while (mark != CString::npos) {
        vorlage.replace(mark, kFloorMark.size(), geschoss);
        // Behind the name, which may hold the mark itself.
        mark = vorlage.find(kFloorMark, mark + geschoss.size());
    }
}

CString LayerAusVorlage(const CString& vorlage, const CString& geschoss)
{
    CString layer = vorlage;
    ReplaceFloorMark(layer, geschoss);
    layer.erase(layer.find_last_not_of(L'_') + 1);
    return layer;
}
