#pragma once

#include "host/drawing_records.h"

#include <deque>

namespace workbench {

/// A radiator to be placed in a plan. Sizes and places in metres.
struct CPlanRadiator
{
    /// Block that shows it from above.
    CString strBlock;
    /// Its middle, and how far above the floor its lower edge is.
    double dX = 0.0;
    double dY = 0.0;
    double dUeberBoden = 0.12;
    /// Degrees from +x to its length, counter-clockwise. Blocks have their front, which looks into
    /// the room, on the left of the length.
    double dWinkel = 0.0;
    double dLaenge = 1.0;
    double dTiefe = 0.1;
    double dHoehe = 0.6;
    /// Connection point texts (host/host_fittings.h).
    CString strVorlauf;
    CString strRuecklauf;
};

/// Connection points of a radiator for which nobody has chosen any: the flow high at its left end,
/// the return low at its right one.
inline constexpr wchar_t kStandardVorlauf[] = L"-0.5; 0.0;  0;0; 0.5; -0.03; 180;0";
inline constexpr wchar_t kStandardRuecklauf[] = L" 0.5; 0.0;  0;0;-0.5;  0.03; 0;0";

/// Radiators as the list of records that a host hands to its modules, each with the attributes
/// "H_VL_PUNKT", "H_RL_PUNKT", "H_LAENGE", "H_TIEFE" and "H_HOEHE". Their placement is that of the
/// connection points: seen from the room x runs to the right, opposite to the radiator's length, y
/// to the wall and z upward. The object owns the records, and also attributes that others append,
/// which must be made by `new`.
class CRadiatorRecords
{
public:
    CRadiatorRecords() = default;
    ~CRadiatorRecords();

    CRadiatorRecords(const CRadiatorRecords&) = delete;
    CRadiatorRecords& operator=(const CRadiatorRecords&) = delete;

    void Add(const CPlanRadiator& radiator);

    /// The first record, in the order of adding; null without one.
    TGA_LIST* GetList() { return m_records.empty() ? nullptr : &m_records.front(); }

private:
    /// A deque, since the records point at each other.
    std::deque<TGA_LIST> m_records;
};

/// Value of the attribute of that name; empty if there is none.
CString AttributeOf(const TGA_LIST& record, const CString& name);

} // namespace workbench
