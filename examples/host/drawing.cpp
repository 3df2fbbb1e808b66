#include "drawing.h"

#include <charconv>

namespace {

/// With a point, whatever the locale is: the toolkit sets that of the environment.
CString NumberText(double value)
{
    char text[32];
    return CString(text, std::to_chars(text, text + sizeof text, value).ptr);
}

} // namespace

CDrawnRadiator::CDrawnRadiator(double length, double depth, double height)
{
    SetAttribute(L"H_LAENGE", NumberText(length));
    SetAttribute(L"H_TIEFE", NumberText(depth));
    SetAttribute(L"H_HOEHE", NumberText(height));
}

CDrawnRadiator::~CDrawnRadiator()
{
    // The module appends attributes that are missing, made with `new` as these are.
    while (m_record.Attribute != nullptr) {
        ALIST* const first = m_record.Attribute;
        m_record.Attribute = first->pNext;
        delete first;
    }
}

CString CDrawnRadiator::Attribute(const CString& name) const
{
    for (const ALIST* link = m_record.Attribute; link != nullptr; link = link->pNext) {
        if (link->Name == name) {
            return link->Wert;
        }
    }
    return {};
}

void CDrawnRadiator::SetAttribute(const CString& name, const CString& value)
{
    ALIST** place = &m_record.Attribute;
    while (*place != nullptr && (*place)->Name != name) {
        place = &(*place)->pNext;
    }
    if (*place == nullptr) {
        *place = new ALIST{name, {}, nullptr};
    }
    (*place)->Wert = value;
}

void CDrawing::GetLayerNames(CStringArray& namen, int /*art*/)
{
    for (const auto& [name, color] : m_layers) {
        namen.Add(name);
    }
}

int CDrawing::GetLayerColor(const CString& layer)
{
    const auto found = m_layers.find(layer);
    return found == m_layers.end() ? 7 : found->second;
}

void CDrawing::GetBlockNames(const CString& /*ordner*/, CStringArray& /*namen*/, int /*art*/)
{
    // This program draws radiators without blocks. With some, lmGetDWGDefPath() tells where they
    // are, and the module hands that on as `ordner`.
}

bool CDrawing::GetBlockPreview(const CString& /*ordner*/, const CString& /*block*/,
                               CBitmap& /*bild*/, int /*breite*/, int /*hoehe*/)
{
    return false;
}

void CDrawing::ClearPreview()
{
    m_marks.clear();
}

void CDrawing::BeginPreview() {}

void CDrawing::EndPreview()
{
    // Here the view is painted again, with the marks above the drawing.
    m_shown += static_cast<int>(m_marks.size());
}

void CDrawing::DrawConnectionPoint(const double punkt[3], const double richtung[3], double wert,
                                   int farbe, bool /*ruecklauf*/)
{
    m_marks.push_back(
        {{punkt[0], punkt[1], punkt[2]}, {richtung[0], richtung[1], richtung[2]}, wert, farbe});
}
