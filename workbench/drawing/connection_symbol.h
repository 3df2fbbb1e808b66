#pragma once

#include <QColor>
#include <QGraphicsItem>

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace workbench {

/// One connection point of a drawing whose unit is the metre, seen from above.
struct CConnectionMark
{
    QPointF punkt;
    /// Direction in which the pipe leaves the point: its share in the plane, and the one upwards.
    QPointF richtung;
    double dAufwaerts = 0.0;
    /// Length of the pipe to its end in metres.
    double dLaenge = 0.0;
    QColor farbe;
    bool bRuecklauf = false;
};

/// True if the pipe runs up or down, so that from above nothing of its length shows.
bool IsUpright(const CConnectionMark& mark);

/// Draws the point as the water runs. In a pipe that lies in the plane it is an arrow along it: the
/// head of a flow point touches the point, that of a return point the pipe's far end. An upright
/// pipe is a ring, with a dot in it where the water comes up and a cross where it goes down. The
/// caller owns the item.
QGraphicsItem* MakeConnectionSymbol(const CConnectionMark& mark);

/// Width of a symbol across its direction, in metres.
double WidthOfSymbol(const CConnectionMark& mark);

/// Symbols that stand in a plan already. Looking among them takes no longer the more there are, as
/// long as they do not stand in one place.
class CStandingMarks
{
public:
    void Add(const CConnectionMark& mark);
    void Clear() { m_cells.clear(); }

    /// Where the mark's symbol stands so that it does not cover one of these: in its place, or a
    /// few widths beside.
    QPointF PlaceBeside(CConnectionMark mark) const;

private:
    using Cell = std::pair<std::int64_t, std::int64_t>;

    static Cell CellOf(const QPointF& place);
    bool IsCovered(const CConnectionMark& mark) const;

    std::map<Cell, std::vector<CConnectionMark>> m_cells;
};

} // namespace workbench
