#include "host/host_catalog.h"

#include "reference_host/catalog/order_number.h"
#include "reference_host/prefs/host_settings.h"
#include "tests/reference_host/catalog/catalogue_fixture.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

using namespace reference_host;

namespace {
class CHostCatalogTest : public CCatalogueTest
{
protected:
    /// A file with one standard length in each of these products of kind "K".
    static std::string Products(const std::vector<std::string>& names, double length = 500)
    {
        std::string bytes = "010;200410;Prova;20240301\n100;1;K\n";
        for (const std::string& name : names) {
            bytes += "110;1;" + name + "\n700;1;T;M;600;102;1000;1.3;6.3\n710.01;1;" +
                     std::to_string(length) + "\n";
        }
        return bytes;
    }

    /// Gives the maker "Alfa" a file with these products and reads it.
    void ReadAlfa(const std::vector<std::string>& names, double length = 500) const
    {
        WriteCatalogue("Alfa", Products(names, length));
        ASSERT_EQ(Read(L"Alfa"), static_cast<int>(names.size()));
    }

    static std::vector<CString> Makers()
    {
        std::vector<CString> names;
        for (auto* maker = ReadHKDaten(); maker; maker = maker->pNext) {
            names.push_back(maker->Name);
        }
        return names;
    }
};
} // namespace

TEST_F(CHostCatalogTest, MakersAreTheSubFoldersWithACatalogue)
{
    EXPECT_TRUE(Makers().empty());
    for (const char* file : {"beta/hk.tga", "Gamma/HK.TGA", "Alfa/Hk.Tga", "Delta/ha.tga", "hk.tga",
                             "T\xC3\xBCr/hk.tga"}) {
        m_folder.WriteBytes(file, "");
    }
    std::filesystem::create_directories(m_folder.Root() / "Epsilon" / "hk.tga");
    EXPECT_EQ(Makers(), (std::vector<CString>{L"Alfa", L"beta", L"Gamma", L"T\u00FCr"}));
    EXPECT_EQ(FindHersteller(L"beta")->pArt, nullptr);
    EXPECT_EQ(FindHersteller(L"Beta"), nullptr);

    OverrideHostSetting(kSettingHKDir, m_folder.Path("nowhere"));
    EXPECT_TRUE(Makers().empty());
    EXPECT_EQ(FindHersteller(L"beta"), nullptr);
}

TEST_F(CHostCatalogTest, NamesAreLookedUpExactlyAndNullHasNothingBelow)
{
    ReadAlfa({"P", "Q"});
    HK_VDI3805_ART* const art = FindArt(FindHersteller(L"Alfa"), L"K");
    ASSERT_NE(art, nullptr);
    EXPECT_EQ(FindProdukt(art, L"Q")->Name, L"Q");
    EXPECT_EQ(FindProdukt(art, L"q"), nullptr);
    EXPECT_EQ(FindArt(FindHersteller(L"Alfa"), L""), nullptr);
    EXPECT_EQ(FindArt(nullptr, L"K"), nullptr);
    EXPECT_EQ(FindProdukt(nullptr, L"P"), nullptr);
}

TEST_F(CHostCatalogTest, AMakerThatVanishesIsUnlistedButStaysAllocated)
{
    WriteCatalogue("Beta", Products({"P"}));
    ReadAlfa({"P"});
    ASSERT_EQ(Read(L"Beta"), 1);
    HK_VDI3805_HERSTELLER* const alfa = FindHersteller(L"Alfa");
    const HK_VDI3805_TYP* const row = Produkt(L"Beta")->pTyp;
    std::filesystem::remove_all(m_folder.Root() / "Alfa");
    EXPECT_EQ(Makers(), (std::vector<CString>{L"Beta"}));
    ASSERT_NE(Produkt(L"Beta"), nullptr);
    EXPECT_EQ(Produkt(L"Beta")->pTyp, row) << "listing again keeps what was read";
    EXPECT_EQ(alfa->Name, L"Alfa");
    EXPECT_EQ(alfa->pNext, nullptr);
    EXPECT_EQ(FindProdukt(FindArt(alfa, L"K"), L"P")->pTyp->Daten.Laenge, 500);

    // Back again it is the same node, unread.
    WriteCatalogue("Alfa", Products({"P"}, 700));
    ReadHKDaten();
    EXPECT_EQ(FindHersteller(L"Alfa"), alfa);
    EXPECT_EQ(alfa->pArt, nullptr);
}

TEST_F(CHostCatalogTest, WhatCannotBeReadIsToldWithTheSystemsReason)
{
    WriteCatalogue("Alfa", Products({"P"}));
    std::filesystem::create_directory_symlink("Anello", m_folder.Root() / "Anello");
    EXPECT_EQ(Makers(), (std::vector<CString>{L"Alfa"}));
    EXPECT_FALSE(GetCatalogueError(L"Alfa"));
    EXPECT_FALSE(GetCatalogueError(L"Altro"));
    const std::optional<CFileFault> fault = GetCatalogueError(L"Anello");
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->strFile, m_folder.Path("Anello/hk.tga"));
    EXPECT_TRUE(fault->strMessage.starts_with(L"non si può leggere: "));

    // Mended, it is there at once; of a folder that cannot be listed nobody knows who is missing.
    std::filesystem::remove(m_folder.Root() / "Anello");
    WriteCatalogue("Anello", Products({"P"}));
    EXPECT_EQ(Makers(), (std::vector<CString>{L"Alfa", L"Anello"}));
    EXPECT_FALSE(GetCatalogueError(L"Anello"));
    std::filesystem::create_directory_symlink("giro", m_folder.Root() / "giro");
    OverrideHostSetting(kSettingHKDir, m_folder.Path("giro"));
    EXPECT_EQ(Makers(), std::vector<CString>());
    ASSERT_TRUE(GetCatalogueError(L"Alfa"));
    EXPECT_EQ(GetCatalogueError(L"Alfa")->strFile, m_folder.Path("giro"));
    ASSERT_EQ(GetListingErrors().size(), 1u);
}

TEST_F(CHostCatalogTest, AnotherFolderHasMakersOfItsOwn)
{
    ReadAlfa({"P"});
    HK_VDI3805_HERSTELLER* const before = FindHersteller(L"Alfa");

    const CTempFolder other;
    other.WriteBytes("Alfa/hk.tga", Products({"P"}, 900));
    OverrideHostSetting(kSettingHKDir, other.Path());
    ReadHKDaten();
    ASSERT_NE(FindHersteller(L"Alfa"), before);
    EXPECT_EQ(FindHersteller(L"Alfa")->pArt, nullptr);
    ASSERT_EQ(Read(L"Alfa"), 1);
    EXPECT_EQ(Produkt(L"Alfa")->pTyp->Daten.Laenge, 900);
    EXPECT_EQ(FindProdukt(FindArt(before, L"K"), L"P")->pTyp->Daten.Laenge, 500);
}

TEST_F(CHostCatalogTest, AChangedRequirementGivesOtherRowsBelowTheSameNodes)
{
    WriteCatalogue("Alfa", OneProduct("700;1;T;S;600;101;65;1.28;0.9\n710.03;45;50\n"));
    // 7 to 24 sections, and the ends of the series, 1 and 50.
    ASSERT_EQ(Read(L"Alfa", 1000), 20);
    HK_VDI3805_ART* const art = FindHersteller(L"Alfa")->pArt;
    HK_VDI3805_PRODUKT* const produkt = Produkt(L"Alfa");
    EXPECT_EQ(produkt->pTyp->pNext->Daten.Elemente, 7);
    ASSERT_EQ(Read(L"Alfa", 3250), 32);
    EXPECT_EQ(FindHersteller(L"Alfa")->pArt, art);
    EXPECT_EQ(Produkt(L"Alfa"), produkt);
    EXPECT_EQ(produkt->pTyp->pNext->Daten.Elemente, 20);
    EXPECT_EQ(produkt->Hoehen.GetSize(), 1);
}

TEST_F(CHostCatalogTest, AFileThatShrinksKeepsItsNodesAndRetiresTheRest)
{
    ReadAlfa({"P", "Q", "R"});
    HK_VDI3805_PRODUKT* const p = Produkt(L"Alfa");
    HK_VDI3805_PRODUKT* const q = Produkt(L"Alfa", L"K", L"Q");

    ReadAlfa({"R", "P"});
    EXPECT_EQ(Produkt(L"Alfa"), p);
    EXPECT_EQ(p->pNext, nullptr);
    EXPECT_EQ(Produkt(L"Alfa", L"K", L"Q"), nullptr);
    EXPECT_EQ(q->Name, L"Q");
    EXPECT_EQ(q->pTyp, nullptr);
    EXPECT_EQ(q->pNext, nullptr);

    ReadAlfa({"Q"}, 1234);
    EXPECT_EQ(Produkt(L"Alfa", L"K", L"Q"), q);
    EXPECT_EQ(q->pTyp->Daten.Laenge, 1234);
}

TEST_F(CHostCatalogTest, AFileThatVanishesOrBreaksLeavesTheMakerUnread)
{
    ReadAlfa({"P"});
    HK_VDI3805_HERSTELLER* const alfa = FindHersteller(L"Alfa");
    HK_VDI3805_PRODUKT* const produkt = Produkt(L"Alfa");

    std::filesystem::remove(m_folder.Root() / "Alfa" / "hk.tga");
    EXPECT_EQ(ReadVdiFile(L"Alfa", &alfa->pArt, 1000), -1);
    EXPECT_EQ(alfa->pArt, nullptr);
    EXPECT_EQ(GetCatalogueError(L"Alfa")->nLine, 0);
    EXPECT_EQ(produkt->pTyp->Daten.Laenge, 500);

    WriteCatalogue("Alfa", Products({"P"}, 800));
    EXPECT_EQ(ReadVdiFile(L"Alfa", &alfa->pArt, 1000), 1);
    EXPECT_FALSE(GetCatalogueError(L"Alfa"));
    EXPECT_EQ(Produkt(L"Alfa"), produkt);
    EXPECT_EQ(produkt->pTyp->Daten.Laenge, 800);
}

TEST_F(CHostCatalogTest, NamesThatLeaveTheFolderAreNoMakers)
{
    m_folder.WriteBytes("inside/Alfa/hk.tga", "");
    m_folder.WriteBytes("hk.tga", Products({"P"}));
    m_folder.WriteBytes("Outside/hk.tga", Products({"P"}));
    OverrideHostSetting(kSettingHKDir, m_folder.Path("inside"));
    for (const CString name : {L"", L".", L"..", L"..\\Outside", L"../Outside", L"nobody"}) {
        HK_VDI3805_ART* art = nullptr;
        EXPECT_EQ(ReadVdiFile(name, &art, 1000), -1) << testing::PrintToString(name);
        EXPECT_TRUE(GetCatalogueError(name));
    }
    EXPECT_EQ(ReadVdiFile(L"Alfa", nullptr, 1000), -1);
}

TEST_F(CHostCatalogTest, AListThatAHostHasBentIsMendedByTheNextListing)
{
    for (const char* name : {"Alfa", "Beta", "Gamma"}) {
        WriteCatalogue(name, Products({"P"}));
    }
    const std::vector<CString> names = {L"Alfa", L"Beta", L"Gamma"};
    ASSERT_EQ(Makers(), names);
    HK_VDI3805_HERSTELLER* const alfa = FindHersteller(L"Alfa");
    HK_VDI3805_HERSTELLER* const gamma = FindHersteller(L"Gamma");
    HK_VDI3805_HERSTELLER foreign;

    alfa->pNext = &foreign;
    EXPECT_EQ(Makers(), names);
    alfa->pNext = gamma;
    EXPECT_EQ(Makers(), names);
    gamma->pNext = &foreign;
    EXPECT_EQ(Makers(), names);
    alfa->Name = L"Altro";
    EXPECT_EQ(Makers(), names);
    EXPECT_EQ(FindHersteller(L"Gamma"), gamma);
    EXPECT_EQ(foreign.pNext, nullptr);
}

TEST_F(CHostCatalogTest, NodesThatAHostHungBelowAMakerAreLeftToTheHost)
{
    WriteCatalogue("Alfa", Products({"P"}));
    ReadHKDaten();
    HK_VDI3805_ART art;
    HK_VDI3805_PRODUKT produkt;
    HK_VDI3805_TYP row;
    art.Name = L"mine";
    art.pProdukt = &produkt;
    produkt.pTyp = &row;
    FindHersteller(L"Alfa")->pArt = &art;
    ReadHKDaten();
    EXPECT_EQ(FindArt(FindHersteller(L"Alfa"), L"mine"), &art);

    ASSERT_EQ(Read(L"Alfa"), 1);
    EXPECT_EQ(FindArt(FindHersteller(L"Alfa"), L"mine"), nullptr);
    EXPECT_EQ(produkt.pTyp, &row);

    Produkt(L"Alfa")->pTyp = &row;
    Produkt(L"Alfa")->pNext = &produkt;
    ASSERT_EQ(Read(L"Alfa"), 1);
    EXPECT_EQ(Produkt(L"Alfa")->pNext, nullptr);
    EXPECT_EQ(row.pNext, nullptr);
}

TEST_F(CHostCatalogTest, ASizeIsOrderedUnderTheNumberOfItsOwnArticle)
{
    WriteCatalogue("Alfa", OneProduct("700;1;T;M;600;102;1000;1.3;6.3\n710.01;1;500\n"
                                      "710.01;2;1000\n800;1;500;N-500;\n800;1;500;N-due\n"
                                      "700;2;T;M;900;102;1000;1.3;6.3\n710.01;1;500\n"
                                      "800;2;500;N-900;T alto\n"
                                      "700;3;G;S;600;80;100;1.3;1\n710.03;50;9\n800;3;4;N-G4\n"));
    ReadHKDaten();
    const auto number = [](const wchar_t* typ, double hoehe, double tiefe, double laenge,
                           double elemente = 0.0, const wchar_t* produkt = L"P") {
        HK_DATEN_VDI3805 daten;
        daten.Hoehe = hoehe;
        daten.Tiefe = tiefe;
        daten.Laenge = laenge;
        daten.Elemente = elemente;
        return FindOrderNumber(L"Alfa", L"K", produkt, typ, daten);
    };
    EXPECT_EQ(number(L"T", 600, 102, 500), L"N-500") << "the first of two";
    EXPECT_EQ(number(L"T alto", 900, 102, 500), L"N-900");
    EXPECT_EQ(number(L"G", 600, 80, 200, 4), L"N-G4");
    EXPECT_EQ(number(L"T", 600, 102, 1000), L"") << "a size without article";
    EXPECT_EQ(number(L"T", 900, 102, 500), L"") << "another size's type text";
    EXPECT_EQ(number(L"T", 600, 100, 500), L"") << "a depth that the catalogue does not have";
    EXPECT_EQ(number(L"T", 600, 102, 500, 0, L"Q"), L"");
    WriteCatalogue("Alfa", "rotto");
    EXPECT_EQ(number(L"T", 600, 102, 500), L"");
}
