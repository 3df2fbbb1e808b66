#pragma once

#include "workbench/building/radiator_records.h"
#include "workbench/dxf/dxf_drawing.h"

#include <QGraphicsScene>

namespace workbench {

/// A plan seen from above whose radiators are host records as well as pictures. The scene's unit is
/// the metre, with y upwards.
class CSamplePlan
{
public:
    /// Draws a wall between two corners, as a filled rectangle with sides along the axes.
    void AddWall(const CDxfPoint& from, const CDxfPoint& to);

    /// Draws a window in a wall that was added before it, in the same way.
    void AddWindow(const CDxfPoint& from, const CDxfPoint& to);

    /// Draws a radiator and appends its record. The block is stretched to the radiator's length and
    /// depth; without one of that name in `blocks` a plain rectangle stands for it.
    void AddRadiator(const CDxfDrawing& blocks, const CPlanRadiator& radiator);

    QGraphicsScene& GetScene() { return m_scene; }

    /// The radiators as the host's list (CRadiatorRecords), which the plan owns; null without one.
    TGA_LIST* GetList() { return m_records.GetList(); }

private:
    void Add(const QPainterPath& path, const QColor& pen, const QBrush& brush);

    QGraphicsScene m_scene;
    CRadiatorRecords m_records;
};

/// Fills the plan with a living room and its three radiators, each below a window, as `blocks`
/// (data/drawing/heizkoerper.dxf) draws them.
void FillSampleRoom(CSamplePlan& plan, const CDxfDrawing& blocks);

} // namespace workbench
