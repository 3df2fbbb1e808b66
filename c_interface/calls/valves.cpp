// Valves and connections.

#include "c_interface/calls/drawn_radiators.h"
#include "c_interface/calls/guarded_call.h"
#include "c_interface/host/diagnosis.h"
#include "c_interface/host/drawer.h"
#include "c_interface/records/records.h"
#include "c_interface/records/sized_record.h"
#include "c_interface/records/texts.h"
#include "frame/entry_points.h"
#include "host/host_fittings.h"
#include "host/host_prefs.h"
#include "valve/ventil_katalog.h"

#include <memory>

using namespace c_interface;

namespace {

/// A valve of the caller on its way through a call. A null one stands for one that nobody wants.
class CValve
{
public:
    explicit CValve(radsel_valve* record) : m_record(record)
    {
        if (record != nullptr) {
            FromC(Load(record, DefaultValve()), data);
        }
    }

    /// What the caller gets; made of all records before any is given.
    void Prepare() { ToC(data, m_answer); }
    void Give()
    {
        if (m_record != nullptr) {
            Store(m_record, m_answer);
        }
    }

    VDI3805_VENTIL_KV data;

private:
    radsel_valve* m_record;
    radsel_valve m_answer = DefaultValve();
};

bool IsValveKey(const VDI3805_VENTIL_KV& ventil)
{
    return ventil.VentilNr.size() >= kShortestVentilNr && !ventil.Hersteller.empty();
}

VDI3805_VENTIL_KV OnlyKey(const VDI3805_VENTIL_KV& ventil)
{
    VDI3805_VENTIL_KV key;
    key.Hersteller = ventil.Hersteller;
    key.VentilNr = ventil.VentilNr;
    return key;
}

/// True if a record that held nothing but its key holds a valve now. An article may lack its order
/// number, and yet it is one.
bool IsFound(const VDI3805_VENTIL_KV& ventil)
{
    return !ventil.Bezeichnung.empty() || !ventil.Gruppe.empty() || ventil.AnzahlKv > 0;
}

/// To be called before valves are fetched. The module keeps the last one by its key alone; a folder
/// that was set meanwhile may have another valve of that key, or have it at last.
void BeginFetching()
{
    static CString lastFolder;
    ForgetDiagnosis();
    const CString folder = GetVEDir(false);
    if (folder == lastFolder) {
        return;
    }
    // No folder has this maker, so that the key takes the kept one's place and nothing else
    // happens.
    VDI3805_VENTIL_KV nobody;
    VDI3805_VENTIL_KV none;
    nobody.Hersteller = L"..";
    nobody.VentilNr.assign(kShortestVentilNr, L'0');
    VDI3805GetVentilDaten(nobody, none);
    lastFolder = folder;
    ForgetDiagnosis();
}

/// The module leaves a record alone whose valve it does not find. So it gets records with nothing
/// but the keys.
int Fetch(CValve& first, CValve& second)
{
    BeginFetching();
    VDI3805_VENTIL_KV one = OnlyKey(first.data);
    VDI3805_VENTIL_KV other = OnlyKey(second.data);
    VDI3805GetVentilDaten(one, other);
    if (IsFound(one)) {
        first.data = one;
    }
    if (IsFound(other)) {
        second.data = other;
    }
    first.Prepare();
    second.Prepare();
    first.Give();
    second.Give();
    const bool isMissing = IsValveKey(other) && !IsFound(other);
    if (IsFound(one) && !isMissing) {
        return RADSEL_OK;
    }
    KeepReason({LastDiagnosis("The valve was not found."), {}, 0});
    return RADSEL_NOTHING;
}

void SetKey(VDI3805_VENTIL_KV& ventil, const char* maker, const char* number)
{
    ventil.Hersteller = ReadText(maker);
    ventil.VentilNr = ReadText(number);
}

} // namespace

int radsel_fetch_valves(radsel_valve* first, radsel_valve* second)
{
    return Guarded([&] {
        Require(first, "first");
        CValve one(first);
        CValve other(second);
        return Fetch(one, other);
    });
}

int radsel_fetch_valves_by_key(const char* firstMaker, const char* firstNumber,
                               const char* secondMaker, const char* secondNumber,
                               radsel_valve* first, radsel_valve* second)
{
    return Guarded([&] {
        Require(first, "first");
        CValve one(first);
        CValve other(second);
        SetKey(one.data, firstMaker, firstNumber);
        SetKey(other.data, secondMaker, secondNumber);
        return Fetch(one, other);
    });
}

int radsel_choose_valve(const char* maker, const char* number, radsel_valve* valve)
{
    return Guarded([&] {
        Require(valve, "valve");
        CValve choice(valve);
        if (!ShowVentVDI3805Dlg(ReadText(number), ReadText(maker), choice.data)) {
            return RADSEL_CANCELLED;
        }
        choice.Prepare();
        choice.Give();
        return RADSEL_OK;
    });
}

int radsel_edit_connection(radsel_connection* connection, radsel_valve* flowValve,
                           radsel_valve* returnValve, radsel_connection_checks* checks,
                           radsel_drawn* drawn, size_t drawnCount, const radsel_drawing* drawing)
{
    return Guarded([&] {
        Require(flowValve, "flow_valve");
        Require(returnValve, "return_valve");
        radsel_connection record = Load(connection, DefaultConnection());
        ConnValues anschluss;
        FromC(record, anschluss);
        CValve flow(flowValve);
        CValve ret(returnValve);
        radsel_connection_checks marks =
            checks == nullptr ? DefaultChecks() : Load(checks, DefaultChecks());
        CDrawnRadiators radiators(drawn, drawnCount);
        std::unique_ptr<CCallbackDrawer> drawer;
        if (drawing != nullptr) {
            drawer = std::make_unique<CCallbackDrawer>(Load(drawing, radsel_drawing{}));
        }

        BeginFetching();
        bool selectable = marks.selectable != 0;
        bool valves = marks.valves != 0;
        bool type = marks.type != 0;
        bool fanCoil = marks.fan_coil != 0;
        const bool isOk = ShowVentDlg(anschluss, flow.data, ret.data, selectable, valves, type,
                                      fanCoil, radiators.First(), drawer.get());

        flow.Prepare();
        ret.Prepare();
        ToC(anschluss, record);
        radiators.Prepare();
        flow.Give();
        ret.Give();
        radiators.Give();
        if (!isOk) {
            return RADSEL_CANCELLED;
        }
        Store(connection, record);
        marks.selectable = selectable ? 1 : 0;
        marks.valves = valves ? 1 : 0;
        marks.type = type ? 1 : 0;
        marks.fan_coil = fanCoil ? 1 : 0;
        if (checks != nullptr) {
            Store(checks, marks);
        }
        return RADSEL_OK;
    });
}

int radsel_point_to_text(const radsel_point* point, double crossingDistance, int crossingKind,
                         double wallDistance, char* text)
{
    return Guarded([&] {
        Require(point, "point");
        Require(text, "text");
        CString built;
        lmSet_K_APUNKT_X(built, point->position, point->offset, point->angle, point->side_distance,
                         crossingDistance, crossingKind, wallDistance);
        WriteField(text, RADSEL_POINT_TEXT, built);
        return RADSEL_OK;
    });
}

int radsel_point_from_text(const char* text, radsel_point* point, double* crossingDistance,
                           int* crossingKind, double* wallDistance)
{
    return Guarded([&] {
        Require(point, "point");
        radsel_point read = {};
        double crossing = 0.0;
        int kind = 0;
        double wall = 0.0;
        const int count = lmGet_K_APUNKT_X(ReadText(text), read.position, read.offset, read.angle,
                                           read.side_distance, crossing, kind, wall);
        if (count == 0) {
            return 0;
        }
        *point = read;
        if (crossingDistance != nullptr) {
            *crossingDistance = crossing;
        }
        if (crossingKind != nullptr) {
            *crossingKind = kind;
        }
        if (wallDistance != nullptr) {
            *wallDistance = wall;
        }
        return count;
    });
}

int radsel_copy_error_numbers(radsel_error_numbers* target, const radsel_error_numbers* source)
{
    return Guarded([&] {
        Require(target, "target");
        const radsel_error_numbers numbers = Load(source, radsel_error_numbers{});
        CLumoError from;
        from.m_nKlasse = numbers.category;
        from.m_nCode = numbers.code;
        from.m_nZeile = numbers.line;
        CLumoError to;
        to = from;
        radsel_error_numbers copy = {};
        copy.category = to.m_nKlasse;
        copy.code = to.m_nCode;
        copy.line = to.m_nZeile;
        Store(target, copy);
        return RADSEL_OK;
    });
}
