#pragma once

#include "host/host_catalog.h"
#include "reference_host/catalog/catalogue_errors.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

/// A folder of catalogues of the test's own, set as the host's.
class CCatalogueTest : public testing::Test
{
protected:
    /// Puts a file in the place of the maker's former one. A new file each time: one written in
    /// place could have the size and the time of the former.
    void WriteCatalogue(const std::string& maker, const std::string& bytes) const
    {
        m_folder.WriteBytes(maker + "/new", bytes);
        const std::filesystem::path folder = m_folder.Root() / maker;
        std::filesystem::rename(folder / "new", folder / "hk.tga");
    }

    /// Reads a maker's file into the tree.
    static int Read(const CString& maker, double requiredOutput = 1000.0)
    {
        ReadHKDaten();
        HK_VDI3805_HERSTELLER* const hersteller = FindHersteller(maker);
        if (!hersteller) {
            ADD_FAILURE() << "no such maker";
            return -1;
        }
        return ReadVdiFile(maker, &hersteller->pArt, requiredOutput);
    }

    /// A file of one product "P" of kind "K", with these records of series.
    static std::string OneProduct(const std::string& series)
    {
        return "010;200410;Prova S.p.A.;20240301\n100;1;K\n110;1;P\n" + series;
    }

    static HK_VDI3805_PRODUKT* Produkt(const CString& maker, const CString& art = L"K",
                                       const CString& produkt = L"P")
    {
        return FindProdukt(FindArt(FindHersteller(maker), art), produkt);
    }

    static std::vector<const HK_VDI3805_TYP*> Rows(const HK_VDI3805_PRODUKT& produkt)
    {
        std::vector<const HK_VDI3805_TYP*> rows;
        for (const HK_VDI3805_TYP* row = produkt.pTyp; row; row = row->pNext) {
            rows.push_back(row);
        }
        return rows;
    }

    /// The lengths of the rows that a product of these series has for a requirement.
    std::vector<double> Lengths(const std::string& series, double requiredOutput) const
    {
        WriteCatalogue("Prova", OneProduct(series));
        EXPECT_GT(Read(L"Prova", requiredOutput), 0);
        std::vector<double> lengths;
        if (const HK_VDI3805_PRODUKT* produkt = Produkt(L"Prova")) {
            for (const HK_VDI3805_TYP* row : Rows(*produkt)) {
                lengths.push_back(row->Daten.Laenge);
            }
        }
        return lengths;
    }

    const CTempFolder m_folder;
    const CSettingOverride m_setting{L"HKDir", m_folder.Path()};
};
