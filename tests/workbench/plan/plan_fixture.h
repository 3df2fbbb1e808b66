#pragma once

#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "workbench/plan/plan_edit.h"

#include <gtest/gtest.h>

#include <memory>

namespace workbench {

/// A building of two floors with a room each and catalogues of its own, apart from the user's
/// settings and records.
class CPlanFixture : public testing::Test
{
protected:
    CPlanFixture()
    {
        // At 75/65/20 °C: 1000 W/m and 500 W/m.
        m_folder.WriteBytes("Prova/hk.tga", "010;2010-05;Prova S.p.A.;2026-01\n"
                                            "100;1;Radiatori a piastra\n"
                                            "110;1;Tipo 22\n"
                                            "700;1;22/600;M;600;100;1000;1.3;5\n"
                                            "710.01;1;500\n"
                                            "710.01;2;1000\n"
                                            "710.01;3;1500\n"
                                            "710.01;4;2000\n"
                                            "110;2;Tipo 11\n"
                                            "700;1;11/600;M;600;60;500;1.3;3\n"
                                            "710.01;1;500\n"
                                            "710.01;2;1000\n"
                                            "710.01;3;2000\n");
        m_folder.WriteBytes("Rotto/hk.tga", "010;2010-05;Rotto S.p.A.;2026-01\n"
                                            "100;1;Radiatori a piastra\n"
                                            "110;1;Tipo 22\n"
                                            "700;1;22/600;M;seicento;100;1000;1.3;5\n");
        m_building.system = {75.0, 65.0};
        m_building.abstaende = {100.0, 80.0};
        m_building.floors = {{L"Terra", {}, {}}, {L"Primo", {}, {}}};
        Add(0, Room(L"Sala", 1000.0));
        Add(1, Room(L"Camera", 1500.0));
    }

    /// 5 by 4 m with a window 2 m wide to the south.
    static CRoom Room(const CString& name, double bedarf)
    {
        CRoom room;
        room.strName = name;
        room.raumtemperatur = 20.0;
        room.bedarf = bedarf;
        room.strHersteller = L"Prova";
        room.strArt = L"Radiatori a piastra";
        room.strProdukt = L"Tipo 22";
        room.grundriss = {1000.0, 2000.0, 5000.0, 4000.0};
        room.plaetze = {{PlaceKind::window, 900.0, 2000.0, Wall::sued, 500.0}};
        room.grenzen = {720.0, 2000.0, 0.0, 200.0};
        return room;
    }

    static CPlacedRadiator Radiator(double leistungEN442, double laenge = 1000.0)
    {
        CPlacedRadiator radiator;
        radiator.strHersteller = L"Prova";
        radiator.strArt = L"Radiatori a piastra";
        radiator.strProdukt = L"Tipo 22";
        radiator.daten.Hoehe = 600.0;
        radiator.daten.Tiefe = 100.0;
        radiator.daten.Laenge = laenge;
        radiator.daten.LeistungEN442 = leistungEN442;
        radiator.daten.Leistung = leistungEN442;
        return radiator;
    }

    void Add(std::size_t floor, const CRoom& room)
    {
        m_building.floors[floor].rooms.push_back(std::make_shared<const CRoom>(room));
    }

    CTempFolder m_folder;
    CSettingOverride m_catalogues{reference_host::kSettingHKDir, m_folder.Path()};
    CSettingOverride m_records{reference_host::kSettingDefFolder, m_folder.Path("kept")};
    CSettingOverride m_layer{reference_host::kSettingHKLayer, L"HEIZ_$d_"};
    CSettingOverride m_color{reference_host::kSettingHKLayerColor, L"3"};
    CSettingOverride m_block{reference_host::kSettingHKBlock, L"ULTIMO"};
    CBuilding m_building;
};

inline constexpr CRoomRef kSala{0, 0};
inline constexpr CRoomRef kCamera{1, 0};

} // namespace workbench
