#pragma once

#include "uikit/font.h"
#include "uikit/wnd.h"

#include <vector>

/// A label whose words stand over the columns of a list of fixed-pitch rows.
class CColumnLabel : public CWnd
{
public:
    CColumnLabel() = default;
    explicit CColumnLabel(const CWnd& label) : CWnd(label) {}

    /// Lines the words of the label up with columns: word i ends where column i does. `ends` counts
    /// characters of `rowFont`, the font of the rows of `list`, above which the label stands.
    void AlignTo(const CWnd& list, const CFont& rowFont, const std::vector<int>& ends);
};
