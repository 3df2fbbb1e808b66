#pragma once

#include "c_interface/radsel_c.h"
#include "host/drawer.h"

namespace c_interface {

/// The drawing of the host behind its callbacks.
class CCallbackDrawer : public CDrawer
{
public:
    /// `drawing` is copied.
    explicit CCallbackDrawer(const radsel_drawing& drawing) : m_drawing(drawing) {}

    void GetLayerNames(CStringArray& namen, int art) override;
    int GetLayerColor(const CString& layer) override;
    void GetBlockNames(const CString& ordner, CStringArray& namen, int art) override;
    bool GetBlockPreview(const CString& ordner, const CString& block, CBitmap& bild, int breite,
                         int hoehe) override;
    void ClearPreview() override;
    void BeginPreview() override;
    void EndPreview() override;
    void DrawConnectionPoint(const double punkt[3], const double richtung[3], double wert,
                             int farbe, bool ruecklauf) override;

private:
    radsel_drawing m_drawing;
};

} // namespace c_interface
