#pragma once

#include "workbench/drawing/scene_drawer.h"

namespace workbench {

/// The drawing interface that the module's dialogs get over the plan.
class CPlanDrawer : public CSceneDrawer
{
public:
    using CSceneDrawer::CSceneDrawer;

    /// The names in the order in which lists show them, since the dialog of connections takes a
    /// name's place here for its place in the list. One of them stands for none.
    void GetBlockNames(const CString& ordner, CStringArray& namen, int art) override;
};

} // namespace workbench
