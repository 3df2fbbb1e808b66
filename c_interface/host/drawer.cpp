#include "c_interface/host/drawer.h"

#include "c_interface/host/answers.h"
#include "c_interface/host/host_table.h"
#include "platform/encoding.h"

#include <utility>

namespace c_interface {

namespace {

void Append(radsel_names& names, CStringArray& target)
{
    for (CString& name : names.texts) {
        target.AddMoved(std::move(name));
    }
}

void Run(const char* name, int (*callback)(void*), void* user)
{
    if (callback != nullptr) {
        Succeeded(name, callback(user));
    }
}

} // namespace

void CCallbackDrawer::GetLayerNames(CStringArray& namen, int /*art*/)
{
    radsel_names names;
    if (m_drawing.list_layers != nullptr &&
        Succeeded("list_layers", m_drawing.list_layers(m_drawing.user, &names))) {
        Append(names, namen);
    }
}

int CCallbackDrawer::GetLayerColor(const CString& layer)
{
    int color = 0;
    if (m_drawing.get_layer_color != nullptr) {
        const std::string name = Utf8FromWide(layer);
        Succeeded("get_layer_color",
                  m_drawing.get_layer_color(m_drawing.user, name.c_str(), &color));
    }
    return color;
}

void CCallbackDrawer::GetBlockNames(const CString& ordner, CStringArray& namen, int /*art*/)
{
    radsel_names names;
    const std::string folder = Utf8FromWide(ordner);
    if (m_drawing.list_blocks != nullptr &&
        Succeeded("list_blocks", m_drawing.list_blocks(m_drawing.user, folder.c_str(), &names))) {
        Append(names, namen);
    }
}

bool CCallbackDrawer::GetBlockPreview(const CString& ordner, const CString& block, CBitmap& bild,
                                      int breite, int hoehe)
{
    if (m_drawing.get_block_preview == nullptr) {
        return false;
    }
    const std::string folder = Utf8FromWide(ordner);
    const std::string name = Utf8FromWide(block);
    radsel_picture picture;
    if (!Succeeded("get_block_preview",
                   m_drawing.get_block_preview(m_drawing.user, folder.c_str(), name.c_str(), breite,
                                               hoehe, &picture)) ||
        picture.bitmap.IsEmpty()) {
        return false;
    }
    bild = std::move(picture.bitmap);
    return true;
}

void CCallbackDrawer::ClearPreview()
{
    Run("clear_preview", m_drawing.clear_preview, m_drawing.user);
}

void CCallbackDrawer::BeginPreview()
{
    Run("begin_preview", m_drawing.begin_preview, m_drawing.user);
}

void CCallbackDrawer::EndPreview()
{
    Run("end_preview", m_drawing.end_preview, m_drawing.user);
}

void CCallbackDrawer::DrawConnectionPoint(const double punkt[3], const double richtung[3],
                                          double wert, int farbe, bool ruecklauf)
{
    if (m_drawing.draw_point != nullptr) {
        Succeeded("draw_point", m_drawing.draw_point(m_drawing.user, punkt, richtung, wert, farbe,
                                                     ruecklauf ? 1 : 0));
    }
}

} // namespace c_interface
