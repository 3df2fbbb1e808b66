#pragma once

#include "workbench/building/building.h"
#include "workbench/drawing/block_library.h"
#include "workbench/report/report_sheet.h"

#include <QPainterPath>

namespace workbench {

/// A floor's plan to be painted to scale: walls, windows and radiators, the rooms in the colour of
/// their coverage with what they need and what of it is covered, and the number of each radiator.
class CPlanPicture
{
public:
    /// `radiators` has the radiators' blocks, `valves`, which may be null, those of the valves. The
    /// building must outlive the picture.
    CPlanPicture(const CBuilding& building, std::size_t floor, const CDxfDrawing& radiators,
                 const CBlockLibrary* valves);

    /// The scale, as what one stands for, in which the plan fits an area in millimetres: the
    /// largest of those in use.
    int GetScale(const QSizeF& area) const;

    /// Paints the plan into the middle of an area in millimetres, and a bar of its scale, the
    /// colours' meaning and an arrow to the north at the area's foot.
    void Paint(CReportSheet& sheet, const QRectF& area, int scale) const;

private:
    const CBuilding& m_building;
    const CFloor& m_floor;
    std::size_t m_nFloor;
    CDxfDrawing m_drawing;
    /// In metres.
    QPainterPath m_walls;
};

/// Number of a radiator in plan and schedule: that of its floor and its own in it, both from 0.
QString RadiatorNumber(std::size_t floor, std::size_t radiator);

} // namespace workbench
