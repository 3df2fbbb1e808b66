#pragma once

#include "frame/handover.h"
#include "host/host_catalog.h"
#include "platform/encoding.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

/// A selection over the sample catalogues, with stores of the test's own.
class CMusterAuswahlTest : public testing::Test
{
protected:
    /// A wish for 1000 W out of a product of the catalogues, at temperatures that are no whole
    /// degrees.
    CMusterAuswahlTest()
    {
        std::filesystem::create_directories(m_folder.Root() / "HEIZUNG");
        m_uebergabe.Hersteller = L"Valmorena";
        m_uebergabe.Art = L"Radiatori a piastra compatti";
        m_uebergabe.Produkt = L"Tipo 22";
        m_uebergabe.Leistung = 1000.0;
        m_uebergabe.LaengeMin = 400.0;
        m_uebergabe.LaengeMax = 3000.0;
        m_uebergabe.HoeheMin = 300.0;
        m_uebergabe.HoeheMax = 600.0;
        m_uebergabe.TiefeMax = 500.0;
        m_uebergabe.Vorlauf = 75.4;
        m_uebergabe.Ruecklauf = 65.2;
        m_uebergabe.Raumtemperatur = 20.5;
    }

    ~CMusterAuswahlTest() override
    {
        // Tests that bring rows of their own want the makers unread.
        for (auto* maker = ReadHKDaten(); maker != nullptr; maker = maker->pNext) {
            maker->pArt = nullptr;
        }
    }

    void Raum(double bedarf, double gedeckt)
    {
        m_uebergabe.Raumname = L"PT.Cucina";
        m_uebergabe.RaumBedarf = bedarf;
        m_uebergabe.RaumGedeckt = gedeckt;
    }

    CTempFolder m_folder;
    CSettingOverride m_root{reference_host::kSettingServerPath, m_folder.Path()};
    CSettingOverride m_def{reference_host::kSettingDefFolder, m_folder.Path()};
    CSettingOverride m_hk{reference_host::kSettingHKDir,
                          WideFromUtf8(RADSEL_DATA_DIR "/catalogues")};
    CSettingOverride m_template{reference_host::kSettingHKLayer, L"HEIZ_$d"};
    HK_DATEN_VDI3805_UEBERGABE m_uebergabe;
};
