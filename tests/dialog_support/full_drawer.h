#pragma once

#include "tests/dialog_support/empty_drawer.h"

/// A drawing with so many layers, up to 10,007, and as many blocks in every folder; in no order.
class CFullDrawer : public CEmptyDrawer
{
public:
    explicit CFullDrawer(int size) : m_nSize(size) {}

    void GetLayerNames(CStringArray& names, int /*kind*/) override { AddNames(names, L"LAYER-"); }
    void GetBlockNames(const CString& /*folder*/, CStringArray& names, int /*kind*/) override
    {
        AddNames(names, L"BLOCCO-");
    }

private:
    void AddNames(CStringArray& names, const CString& beginning) const
    {
        for (int i = 0; i < m_nSize; ++i) {
            names.Add(beginning + std::to_wstring(7919 * i % 10007));
        }
    }

    int m_nSize;
};
