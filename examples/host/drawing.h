#pragma once

#include "host/drawer.h"
#include "host/drawing_records.h"

#include <map>
#include <vector>

/// A radiator of the drawing as the module sees it: its place and its attributes. Yours will point
/// into the drawing's own data.
class CDrawnRadiator
{
public:
    /// Sizes in metres. A radiator without connection has no attributes of points.
    CDrawnRadiator(double length, double depth, double height);
    ~CDrawnRadiator();
    CDrawnRadiator(const CDrawnRadiator&) = delete;
    CDrawnRadiator& operator=(const CDrawnRadiator&) = delete;

    /// The value of an attribute, empty if there is none of that name.
    CString Attribute(const CString& name) const;
    void SetAttribute(const CString& name, const CString& value);

    /// A list of this one radiator, for the module. It stays the radiator's.
    TGA_LIST* Record() { return &m_record; }

private:
    TGA_LIST m_record;
};

/// The drawing. A mark of the preview is what the module asks the host to show for the moment.
class CDrawing : public CDrawer
{
public:
    struct CMark
    {
        double point[3];
        double direction[3];
        double sideDistance;
        int color;
    };

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

    /// How many marks have been shown so far.
    int CountShown() const { return m_shown; }

private:
    std::map<CString, int> m_layers = {{L"HEIZUNG_EG", 1}, {L"HEIZUNG_OG", 3}};
    std::vector<CMark> m_marks;
    int m_shown = 0;
};
