#include "workbench/building/floor_overlap.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <numeric>
#include <queue>
#include <utility>

namespace workbench {

namespace {

double EastOf(const CFloorRect& rect)
{
    return rect.x + rect.breite;
}

/// The rectangles that reach across a line from south to north, which goes from west to east.
///
/// All of them cross the line, and none overlaps another by more than is allowed, or the search
/// would be over. So they stand on the line one above the other, and a new one can only overlap too
/// far with the nearest that begins below it or with the nearest that begins above.
class CSweepLine
{
public:
    CSweepLine(const std::vector<CFloorRect>& rects, double allowed)
        : m_rects(rects), m_allowed(allowed)
    {
    }

    /// Moves the line to where a rectangle begins and gives one on it that this one overlaps too
    /// far, or else takes it in.
    std::optional<std::size_t> Take(std::size_t index)
    {
        const CFloorRect& rect = m_rects[index];
        LeaveBehind(rect.x);
        const auto above = m_active.lower_bound(rect.y);
        if (above != m_active.end() && Overlaps(above->second, index)) {
            return above->second;
        }
        if (above != m_active.begin() && Overlaps(std::prev(above)->second, index)) {
            return std::prev(above)->second;
        }
        m_active.emplace_hint(above, rect.y, index);
        m_ends.emplace(EastOf(rect), rect.y);
        return std::nullopt;
    }

private:
    bool Overlaps(std::size_t a, std::size_t b) const
    {
        return OverlapOf(m_rects[a], m_rects[b]) > m_allowed;
    }

    /// Drops those of which no more than is allowed lies east of the line.
    void LeaveBehind(double x)
    {
        while (!m_ends.empty() && m_ends.top().first - x <= m_allowed) {
            m_active.erase(m_ends.top().second);
            m_ends.pop();
        }
    }

    using End = std::pair<double, double>;

    const std::vector<CFloorRect>& m_rects;
    double m_allowed;
    /// By the southern side, which no two have in common.
    std::map<double, std::size_t> m_active;
    /// Eastern and southern side, the one that ends first on top.
    std::priority_queue<End, std::vector<End>, std::greater<>> m_ends;
};

} // namespace

double OverlapOf(const CFloorRect& a, const CFloorRect& b)
{
    const double x = std::min(EastOf(a), EastOf(b)) - std::max(a.x, b.x);
    const double y = std::min(a.y + a.tiefe, b.y + b.tiefe) - std::max(a.y, b.y);
    return std::min(x, y);
}

std::optional<CFloorOverlap> FindOverlap(const std::vector<CFloorRect>& rects, double allowed)
{
    std::vector<std::size_t> order(rects.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    // What is no larger than the overlap allowed never lies too far over another.
    std::erase_if(order, [&](std::size_t i) { return OverlapOf(rects[i], rects[i]) <= allowed; });
    std::ranges::sort(order, {}, [&](std::size_t i) { return std::pair(rects[i].x, i); });

    CSweepLine line(rects, allowed);
    for (const std::size_t index : order) {
        if (const auto first = line.Take(index)) {
            return CFloorOverlap{*first, index};
        }
    }
    return std::nullopt;
}

} // namespace workbench
