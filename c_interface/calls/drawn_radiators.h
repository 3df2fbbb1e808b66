#pragma once

#include "c_interface/radsel_c.h"
#include "host/drawing_records.h"

#include <cstddef>
#include <vector>

namespace c_interface {

/// The radiators of the caller's drawing as the list that the module works on.
class CDrawnRadiators
{
public:
    /// `count` records one behind the other, each as long as the first one says.
    CDrawnRadiators(radsel_drawn* drawn, std::size_t count);
    ~CDrawnRadiators();

    CDrawnRadiators(const CDrawnRadiators&) = delete;
    CDrawnRadiators& operator=(const CDrawnRadiators&) = delete;

    /// Null if there are none.
    TGA_LIST* First() { return m_nodes.empty() ? nullptr : m_nodes.data(); }

    /// Makes the caller's records of the points as they are now, and gives them to him.
    void Prepare();
    void Give();

private:
    CDrawnRadiators() = default;

    std::vector<radsel_drawn*> m_records;
    std::vector<radsel_drawn> m_answers;
    std::vector<TGA_LIST> m_nodes;
};

} // namespace c_interface
