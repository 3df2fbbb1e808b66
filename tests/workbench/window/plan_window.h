#pragma once

#include "workbench/drawing/plan_view.h"
#include "workbench/window/floor_scene.h"

#include <QApplication>
#include <QTest>

namespace workbench {

/// Four rooms in a row, 4 by 3 metres each, and an upper floor with one: Sud needs more than its
/// radiator gives, Est has two that are enough, Nord has none, Atrio needs nothing. Radiators, red
/// ones, stand at the southern wall below their windows.
class CSamplePlanRooms
{
public:
    CSamplePlanRooms()
    {
        building.floors.resize(2);
        Add(0, L"Sud", 1000.0, {500.0});
        Add(0, L"Est", 1000.0, {500.0, 500.0});
        Add(0, L"Nord", 1000.0, {});
        Add(0, L"Atrio", 0.0, {});
        Add(1, L"Soffitta", 700.0, {700.0});
    }

    void Add(std::size_t floor, const CString& name, double demand,
             const std::vector<double>& outputs)
    {
        CRoom room;
        room.strName = name;
        room.raumtemperatur = 20.0;
        room.bedarf = demand;
        room.grundriss = {4100.0 * static_cast<double>(building.floors[floor].rooms.size()), 0.0,
                          4000.0, 3000.0};
        room.plaetze = {{PlaceKind::window, 900.0, 1200.0, Wall::sued, 400.0},
                        {PlaceKind::window, 900.0, 1200.0, Wall::sued, 2400.0}};
        room.grenzen = {900.0, 1200.0, 0.0, 200.0};
        for (const double output : outputs) {
            CPlacedRadiator radiator;
            radiator.strTyp = L"22/600";
            radiator.daten.Laenge = 1000.0;
            radiator.daten.Hoehe = 600.0;
            radiator.daten.Tiefe = 100.0;
            radiator.daten.Leistung = output;
            radiator.nPlatz = room.heizkoerper.size();
            radiator.abstandWand = 0.05;
            radiator.nFarbe = 1;
            room.heizkoerper.push_back(radiator);
        }
        building.floors[floor].rooms.push_back(std::make_shared<const CRoom>(std::move(room)));
    }

    /// The room with another demand.
    void Demand(const CRoomRef& ref, double demand)
    {
        CRoom room = RoomOf(building, ref);
        room.bedarf = demand;
        ReplaceRoom(building, ref, room);
    }

    CBuilding building;
};

constexpr CRoomRef kSud{0, 0};
constexpr CRoomRef kEst{0, 1};
constexpr CRoomRef kNord{0, 2};
constexpr CRoomRef kAtrio{0, 3};
constexpr CRadiatorRef kSudRadiator{kSud, 0};
constexpr CRadiatorRef kEstRadiator{kEst, 0};
constexpr CRadiatorRef kEstSecond{kEst, 1};

/// Middles of rooms and radiators of the lower floor, and a place on no room, in metres.
const QPointF kInSud(2.0, 1.5);
const QPointF kInEst(6.1, 1.5);
const QPointF kOnSudRadiator(1.0, 0.1);
const QPointF kOnEstRadiator(5.1, 0.1);
const QPointF kOutside(2.0, 4.5);

/// The lower floor in a window of 900 by 400 pixels.
class CPlanWindowTest
{
public:
    CPlanWindowTest() : view(&scene)
    {
        scene.ShowFloor(rooms.building, 0);
        view.resize(900, 400);
        view.show();
        view.FitToContent();
        QApplication::processEvents();
    }

    QPoint Pixel(const QPointF& place) const { return view.mapFromScene(place); }

    void Click(const QPointF& place, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, Pixel(place));
    }

    void Drag(const QPointF& from, const QPointF& to, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers = {})
    {
        const QPoint start = Pixel(from);
        const QPoint end = Pixel(to);
        QTest::mousePress(view.viewport(), button, modifiers, start);
        for (const QPoint& place : {(start + end) / 2, end}) {
            QMouseEvent move(QEvent::MouseMove, place, view.viewport()->mapToGlobal(place),
                             Qt::NoButton, button, modifiers);
            QApplication::sendEvent(view.viewport(), &move);
        }
        QTest::mouseRelease(view.viewport(), button, modifiers, end);
    }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&view, key, modifiers);
    }

    QImage Picture() { return view.grab().toImage(); }

    CSamplePlanRooms rooms;
    CFloorScene scene;
    CPlanView view;
};

} // namespace workbench
