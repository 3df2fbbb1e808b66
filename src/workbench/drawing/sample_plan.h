#pragma once

#include "host/drawing_records.h"
#include "workbench/drawing/dxf_drawing.h"

#include <QGraphicsScene>

#include <deque>
#include <vector>

/// A radiator to be placed in a plan. Sizes and places in metres.
struct CPlanRadiator
{
    /// Block that shows it from above.
    CString strBlock;
    /// Its middle, and how far above the floor its lower edge is.
    double dX = 0.0;
    double dY = 0.0;
    double dUeberBoden = 0.12;
    /// Degrees from +x to its length, counter-clockwise.
    double dWinkel = 0.0;
    double dLaenge = 1.0;
    double dTiefe = 0.1;
    double dHoehe = 0.6;
    /// Connection point texts (host/host_fittings.h).
    CString strVorlauf;
    CString strRuecklauf;
};

/// A plan seen from above whose radiators are host records as well as pictures. The scene's unit is
/// the metre, with y upwards.
class CSamplePlan
{
public:
    CSamplePlan() = default;
    ~CSamplePlan();

    CSamplePlan(const CSamplePlan&) = delete;
    CSamplePlan& operator=(const CSamplePlan&) = delete;

    /// Draws a wall between two corners, as a filled rectangle with sides along the axes.
    void AddWall(const CDxfPoint& from, const CDxfPoint& to);

    /// Draws a window in a wall that was added before it, in the same way.
    void AddWindow(const CDxfPoint& from, const CDxfPoint& to);

    /// Draws a radiator and appends its record. The block is stretched to the radiator's length and
    /// depth; without one of that name in `blocks` a plain rectangle stands for it.
    void AddRadiator(const CDxfDrawing& blocks, const CPlanRadiator& radiator);

    QGraphicsScene& GetScene() { return m_scene; }

    /// The radiators as the host's list, in the order in which they were added, each with the
    /// attributes "H_VL_PUNKT", "H_RL_PUNKT", "H_LAENGE", "H_TIEFE" and "H_HOEHE"; null without
    /// one. The plan owns the records, and also attributes that others append, which must be made
    /// by `new`.
    TGA_LIST* GetList() { return m_records.empty() ? nullptr : &m_records.front(); }

private:
    void Add(const QPainterPath& path, const QColor& pen, const QBrush& brush);

    QGraphicsScene m_scene;
    /// A deque, since the records point at each other.
    std::deque<TGA_LIST> m_records;
};

/// Fills the plan with a living room and its three radiators, each below a window, as `blocks`
/// (data/drawing/heizkoerper.dxf) draws them.
void FillSampleRoom(CSamplePlan& plan, const CDxfDrawing& blocks);
