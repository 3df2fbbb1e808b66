#include "workbench/plan/repair.h"

#include "platform/format.h"
#include "workbench/building/user_text.h"
#include "workbench/plan/coverage.h"
#include "workbench/plan/placement.h"
#include "workbench/plan/stronger_types.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace workbench {

namespace {

/// Repairs one room.
class CRoomRepair
{
public:
    CRoomRepair(const CBuilding& building, const CFloor& floor, const CRoom& room,
                const CRadiatorStart& start, Picked picked)
        : m_building(building), m_floor(floor), m_start(start), m_picked(picked), m_room(room)
    {
    }

    void Repair()
    {
        const CRoom before = m_room;
        TakeIfBetter(Fill(before));
        if (!IsRoomOpen(m_room) || !MayTryOtherTypes()) {
            return;
        }
        for (const CRadiatorProduct& produkt : FindStrongerTypes(WishesOf(before))) {
            CRoom attempt = before;
            attempt.strProdukt = produkt.strProdukt;
            TakeIfBetter(Fill(std::move(attempt)));
            if (!IsRoomOpen(m_room)) {
                return;
            }
        }
    }

    const CRoom& GetRoom() const { return m_room; }

    /// Why the search of the room's own product found nothing; empty if it did not fail.
    CString GetFailure() const { return m_failure ? m_failure->strNote : CString(); }

private:
    bool IsRoomOpen(const CRoom& room) const { return IsOpen(CoverageOf(m_building, room)); }

    /// A product that the catalogues do not have, or a file that cannot be read, is the designer's
    /// matter.
    bool MayTryOtherTypes() const
    {
        return !m_failure || m_failure->status == RoomStatus::unfitting;
    }

    /// A covered room is better than an open one, one in which all fits better than another. Of
    /// open ones more output is better, of oversized ones less.
    bool IsBetter(const CRoom& room, const CRoom& than) const
    {
        const auto rank = [this](const CRoom& of) {
            const Coverage coverage = CoverageOf(m_building, of);
            const double output = coverage == Coverage::oversized ? -OutputOf(of)
                                  : IsOpen(coverage)              ? OutputOf(of)
                                                                  : 0.0;
            return std::tuple(!IsOpen(coverage), coverage != Coverage::tooLarge, output);
        };
        return rank(room) > rank(than);
    }

    void TakeIfBetter(CRoom room)
    {
        if (IsBetter(room, m_room)) {
            m_room = std::move(room);
        }
    }

    /// The room with its product in the sizes that it needs, or that fit, at as many places as it
    /// takes.
    CRoom Fill(CRoom room)
    {
        room = Sized(room);
        if (!IsRoomOpen(room)) {
            return room;
        }
        Enlarge(room);
        UseFreePlaces(room);
        // One after the other the first ones became as large as they can; shared out among all of
        // them the need is met more closely.
        CRoom shared = Sized(room);
        return IsBetter(room, shared) ? room : shared;
    }

    CRoom Sized(const CRoom& room)
    {
        CRoomSizing sizing(m_building, m_floor, room, m_start, m_picked);
        sizing.Size();
        Note(sizing.GetFailure());
        return sizing.GetRoom();
    }

    void Enlarge(CRoom& room)
    {
        for (std::size_t i = 0; i < room.heizkoerper.size() && IsRoomOpen(room); ++i) {
            CPlacedRadiator& radiator = room.heizkoerper[i];
            if (Stays(radiator, m_picked)) {
                continue;
            }
            const auto found = SelectBest(WishFor(room, i));
            if (found && (found->daten.Leistung > radiator.daten.Leistung ||
                          !DescribeExcess(m_building, room, radiator).empty())) {
                TakeChoice(radiator, *found, m_start);
            }
        }
    }

    void UseFreePlaces(CRoom& room)
    {
        while (IsRoomOpen(room)) {
            const auto found = FindForFreePlace(room);
            if (!found) {
                return;
            }
            room.heizkoerper.push_back(
                PlaceRadiator(m_building, room, m_floor.strName, *found, m_start).value());
        }
    }

    /// The free places without those that are like one before: a search finds the same for both.
    std::vector<std::size_t> UnlikeFreePlaces(const CRoom& room) const
    {
        std::vector<CSizeLimits> known;
        std::vector<std::size_t> places = FreePlaces(room);
        std::erase_if(places, [&](std::size_t place) {
            const CSizeLimits limits =
                LimitsOfPlace(room, room.plaetze[place], m_building.abstaende);
            const bool isKnown = std::ranges::find(known, limits) != known.end();
            if (!isKnown) {
                known.push_back(limits);
            }
            return isKnown;
        });
        return places;
    }

    /// The strongest of what fits the free places; where one is enough, the first that is.
    std::optional<CRadiatorChoice> FindForFreePlace(const CRoom& room)
    {
        std::optional<CRadiatorChoice> best;
        for (const std::size_t place : UnlikeFreePlaces(room)) {
            const CRadiatorWish wish = WishForPlace(m_building, m_floor, room, place);
            auto found = SelectBest(wish);
            if (found && (!best || found->daten.Leistung > best->daten.Leistung)) {
                best = std::move(found);
            }
            if (best && best->daten.Leistung >= WeakestOutput(wish.leistung)) {
                break;
            }
        }
        return best;
    }

    /// What is wished, or the largest that there is.
    std::optional<CRadiatorChoice> SelectBest(const CRadiatorWish& wish)
    {
        CRoomOutcome outcome = SelectRadiator(wish);
        Note(outcome);
        return outcome.status == RoomStatus::unfitting ? SelectLargest(wish)
               : outcome.status == RoomStatus::chosen  ? std::move(outcome.radiator)
                                                       : std::nullopt;
    }

    /// For a radiator of the room, of the room's product.
    CRadiatorWish WishFor(const CRoom& room, std::size_t radiator) const
    {
        CRadiatorWish wish = WishForRadiator(m_building, m_floor, room, radiator);
        wish.produkt = ProductOf(room);
        return wish;
    }

    /// For all places where the repair may put a radiator.
    std::vector<CRadiatorWish> WishesOf(const CRoom& room) const
    {
        std::vector<CRadiatorWish> wishes;
        for (std::size_t i = 0; i < room.heizkoerper.size(); ++i) {
            if (!Stays(room.heizkoerper[i], m_picked)) {
                wishes.push_back(WishFor(room, i));
            }
        }
        for (const std::size_t place : FreePlaces(room)) {
            wishes.push_back(WishForPlace(m_building, m_floor, room, place));
        }
        return wishes;
    }

    void Note(const std::optional<CRoomOutcome>& outcome)
    {
        if (!m_failure && outcome && outcome->status != RoomStatus::chosen &&
            outcome->status != RoomStatus::covered) {
            m_failure = outcome;
        }
    }

    const CBuilding& m_building;
    const CFloor& m_floor;
    const CRadiatorStart& m_start;
    Picked m_picked;
    CRoom m_room;
    /// The first search that found nothing.
    std::optional<CRoomOutcome> m_failure;
};

CString NameOf(const CPlacedRadiator& radiator)
{
    return DescribeRow(radiator.strTyp, radiator.daten);
}

/// What is in the room now and was not before; empty if it is as it was.
CString DescribeChanges(const CRoom& before, const CRoom& after)
{
    CString text;
    if (ProductOf(before) != ProductOf(after)) {
        text = L"tipo più forte " + after.strProdukt + L" invece di " + before.strProdukt;
    }
    for (std::size_t i = 0; i < after.heizkoerper.size(); ++i) {
        const CPlacedRadiator& radiator = after.heizkoerper[i];
        if (i >= before.heizkoerper.size()) {
            text = Joined(text, L"aggiunto al posto " +
                                    FormatInt(static_cast<long long>(radiator.nPlatz) + 1) + L" " +
                                    NameOf(radiator));
        } else if (!IsSameRow(before.heizkoerper[i], ChoiceOf(radiator))) {
            text = Joined(text, NameOf(radiator) + L" invece di " + before.heizkoerper[i].strTyp +
                                    L", " + FormatWatts(before.heizkoerper[i].daten.Leistung));
        }
    }
    return text;
}

CString DescribeState(const CBuilding& building, const CRoom& room)
{
    return Joined(GetCoverageText(CoverageOf(building, room)), DescribeCoverage(building, room),
                  L": ");
}

/// Why nothing could be done for a room; `failure` is that of its search.
CString DescribeFailure(const CBuilding& building, const CRoom& room, const CString& failure)
{
    const bool isPicked = std::ranges::any_of(room.heizkoerper, &CPlacedRadiator::bVonHand);
    const CString reason = failure.empty() && isPicked ? L"scelto a mano" : failure;
    return L"non cambia, " + Joined(DescribeState(building, room), reason);
}

bool NeedsRepair(const CBuilding& building, const CRoomRef& ref)
{
    if (!Exists(building, ref)) {
        return false;
    }
    const Coverage coverage = CoverageOf(building, RoomOf(building, ref));
    return IsOpen(coverage) || coverage == Coverage::oversized;
}

} // namespace

CRepairResult RepairRooms(const CBuilding& building, const std::vector<CRoomRef>& rooms,
                          const SizingProgress& progress, Picked picked)
{
    std::vector<CRoomRef> ordered = InOrder(rooms);
    std::erase_if(ordered, [&](const CRoomRef& ref) { return !NeedsRepair(building, ref); });
    const CRadiatorStart start = ReadRadiatorStart();
    CRepairResult result{building, {}, false};
    for (std::size_t done = 0; done < ordered.size(); ++done) {
        const CRoomRef& ref = ordered[done];
        const CRoom& before = RoomOf(building, ref);
        CRoomRepair repair(building, building.floors[ref.nFloor], before, start, picked);
        repair.Repair();
        const CRoom& after = repair.GetRoom();
        const CString changes = DescribeChanges(before, after);
        if (changes.empty()) {
            result.rooms.push_back({ref, DescribeFailure(building, before, repair.GetFailure())});
        } else {
            result.rooms.push_back({ref, changes + L"; ora " + DescribeState(building, after)});
            ReplaceRoom(result.building, ref, after);
        }
        if (progress && !progress(done + 1, ordered.size())) {
            return {building, {}, true};
        }
    }
    return result;
}

} // namespace workbench
