#pragma once

#include "host/drawer.h"

/// A drawing without layers, blocks and previews, for tests to fill in what they ask for.
class CEmptyDrawer : public CDrawer
{
public:
    void GetLayerNames(CStringArray&, int) override {}
    int GetLayerColor(const CString&) override { return 0; }
    void GetBlockNames(const CString&, CStringArray&, int) override {}
    bool GetBlockPreview(const CString&, const CString&, CBitmap&, int, int) override
    {
        return false;
    }
    void ClearPreview() override {}
    void BeginPreview() override {}
    void EndPreview() override {}
    void DrawConnectionPoint(const double*, const double*, double, int, bool) override {}
};
