// The dialog that picks a product from the catalogue tree, opened as hosts open it.

#include "common/platzierung_datei.h"
#include "frame/entry_points.h"
#include "frame/handover.h"
#include "host/host_catalog.h"
#include "platform/encoding.h"
#include "uikit/native/access.h"

#include "tests/dialog_support/dialog_test.h"

#include <QTreeWidget>

#include <vector>

using namespace reference_host;

namespace {

constexpr int kTreeDialog = 18002;
constexpr int kBaum = 18000;

using Lines = std::vector<CString>;
using Path = std::vector<CString>;

const char kAlfa[] = "010;2004;Alfa;2024\n"
                     "100;1;Piastre\n"
                     "110;1;Tipo 22\n700;1;P;M;600;100;1000;1.3;5\n710.02;400;3000;10\n"
                     "110;2;Tipo 2\n700;1;P;M;600;60;900;1.3;3\n710.01;1;1000\n"
                     "100;2;Bagno\n"
                     "110;1;Comune\n700;1;B;E;1200;40;600;1.3;5\n710.01;1;500\n";
const char kBeta[] = "010;2004;Beta;2024\n"
                     "100;1;Colonne\n"
                     "110;1;Comune\n700;1;C;S;600;100;70;1.3;1\n710.03;45;20;0\n"
                     "100;2;Convettori\n"
                     "110;1;Comune\n700;1;K;E;200;80;300;1.3;1\n710.01;1;800\n";

const Lines kAlfaRead = {L"Alfa", L" Piastre", L"  Tipo 22", L"  Tipo 2", L" Bagno", L"  Comune"};
const Lines kBetaUnread = {L"Beta", L" Dummy"};

Lines operator+(Lines first, const Lines& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

QTreeWidget& Tree(const CDialogUser& user)
{
    return dynamic_cast<QTreeWidget&>(user.Widget(kBaum));
}

class TreeDialog : public CDialogTest
{
protected:
    TreeDialog()
    {
        m_makers.WriteBytes("Alfa/hk.tga", kAlfa);
        m_makers.WriteBytes("Beta/hk.tga", kBeta);
    }

    int Run(const CDialogDriver::Script& script)
    {
        m_driver.WhenOpens(kTreeDialog, script);
        return HeizkoerperauswahlVDI3805Tree(&m_daten);
    }

    void Want(const CString& hersteller, const CString& art, const CString& produkt)
    {
        m_daten.Hersteller = hersteller;
        m_daten.Art = art;
        m_daten.Produkt = produkt;
    }

    Path Chosen() const { return {m_daten.Hersteller, m_daten.Art, m_daten.Produkt}; }

    CTempFolder m_makers;
    CSettingOverride m_catalogues{kSettingHKDir, m_makers.Path()};
    HK_DATEN_VDI3805_UEBERGABE m_daten;
};

TEST_F(TreeDialog, AManufacturersFileIsReadWhenItsItemIsFirstOpened)
{
    const int result = Run([&](CDialogUser& user) {
        EXPECT_EQ(user.TreeLines(kBaum), (Lines{L"Alfa", L" Dummy"}) + kBetaUnread);
        EXPECT_TRUE(user.ChosenInTree(kBaum).empty());
        user.ChooseInTree(kBaum, {L"Alfa"});
        EXPECT_EQ(FindHersteller(L"Alfa")->pArt, nullptr) << "selecting must not read";
        EXPECT_EQ(Chosen(), (Path{L"", L"", L""})) << "it is no product";
        user.ChooseInTree(kBaum, {L"Alfa", L"Bagno", L"Comune"});
        EXPECT_EQ(user.TreeLines(kBaum), kAlfaRead + kBetaUnread);
        EXPECT_EQ(FindHersteller(L"Beta")->pArt, nullptr);
        EXPECT_EQ(Chosen(), (Path{L"Alfa", L"Bagno", L"Comune"}));
        user.Click(kIdOk);
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(m_daten.Leistung, 0.0) << "no usual output takes the place of none";

    Want(L"", L"", L"");
    Run([&](CDialogUser& user) {
        EXPECT_EQ(user.TreeLines(kBaum), kAlfaRead + kBetaUnread) << "what is read stays read";
        user.Click(kIdCancel);
    });
}

TEST_F(TreeDialog, RowsCutToMeasureAreReadAroundTheOutputAtStandardConditions)
{
    m_daten.Leistung = 1000.0;
    m_daten.Vorlauf = 55.0;
    m_daten.Ruecklauf = 45.0;
    m_daten.Raumtemperatur = 20.0;
    Run([](CDialogUser& user) {
        user.ChooseInTree(kBaum, {L"Alfa", L"Piastre"});
        user.Click(kIdCancel);
    });
    // 1000 W at 55/45/20 are some 2000 W at 1000 W per metre: rows from 40 % of that on, behind
    // the shortest.
    const HK_VDI3805_TYP* row = FindHersteller(L"Alfa")->pArt->pProdukt->pTyp;
    EXPECT_EQ(row->Daten.Laenge, 400.0);
    EXPECT_NEAR(row->pNext->Daten.Laenge, 400.0 / m_daten.Umrechnungsfaktor, 10.0);
}

TEST_F(TreeDialog, ACancelledDialogLeavesTheLastSelectedProduct)
{
    Want(L"Beta", L"Convettori", L"Comune");
    const int result = Run([&](CDialogUser& user) {
        EXPECT_EQ(user.ChosenInTree(kBaum), (Path{L"Beta", L"Convettori", L"Comune"}));
        user.ChooseInTree(kBaum, {L"Beta", L"Colonne", L"Comune"});
        user.ChooseInTree(kBaum, {L"Beta", L"Convettori"});
        user.Click(kIdCancel);
    });
    EXPECT_EQ(result, -1);
    EXPECT_EQ(Chosen(), (Path{L"Beta", L"Colonne", L"Comune"}));
}

TEST_F(TreeDialog, OpensOnWhatThreeSearchesFind)
{
    const struct
    {
        Path wanted;
        Path selected;
    } cases[] = {
        // Only exact names have their file read.
        {{L"Nessuno", L"Manca", L"Manca"}, {}},
        {{L"alf", L"piast", L"tipo"}, {}},
        {{L"Alfa", L"Piastre", L"Tipo 2"}, {L"Alfa", L"Piastre", L"Tipo 22"}},
        {{L"Alfa", L"PIASTRE", L"TIPO 22"}, {L"Alfa", L"Piastre", L"Tipo 22"}},
        {{L"Beta", L"Convettori", L"Comune"}, {L"Beta", L"Convettori", L"Comune"}},
        // Without a kind the last search begins at the top.
        {{L"Beta", L"", L"Comune"}, {L"Alfa", L"Bagno", L"Comune"}},
        {{L"Beta", L"Convettori", L""}, {}},
        // Behind the last product the search goes on at the top.
        {{L"Beta", L"Convettori", L"Tipo"}, {L"Alfa", L"Piastre", L"Tipo 22"}},
        {{L"", L"", L"eta"}, {L"Beta"}},
    };
    for (const auto& c : cases) {
        Want(c.wanted[0], c.wanted[1], c.wanted[2]);
        Run([&](CDialogUser& user) {
            EXPECT_EQ(user.ChosenInTree(kBaum), c.selected)
                << Utf8FromWide(c.wanted[0] + L"/" + c.wanted[1] + L"/" + c.wanted[2]);
            user.Click(kIdCancel);
        });
    }
}

TEST_F(TreeDialog, ASearchThatFindsAPlaceholderReadsItsManufacturerAndSelectsNothing)
{
    Want(L"", L"", L"umm");
    Run([&](CDialogUser& user) {
        EXPECT_EQ(user.TreeLines(kBaum), kAlfaRead + kBetaUnread);
        EXPECT_TRUE(user.ChosenInTree(kBaum).empty());
        user.Click(kIdCancel);
    });
    EXPECT_EQ(Chosen(), (Path{L"", L"", L"umm"}));
}

TEST_F(TreeDialog, AManufacturerWhoseFileCannotBeReadBecomesALeafWithoutAWord)
{
    m_makers.WriteBytes("Guasto/hk.tga", "110;1;senza genere\n");
    Run([&](CDialogUser& user) {
        user.ChooseInTree(kBaum, {L"Guasto"});
        EXPECT_EQ(m_daten.Produkt, L"");
        for (int opening = 0; opening < 2; ++opening) {
            user.Press(Qt::Key_Right);
            EXPECT_EQ(user.TreeLines(kBaum),
                      (Lines{L"Alfa", L" Dummy"}) + kBetaUnread + Lines{L"Guasto"});
        }
        user.ChooseInTree(kBaum, {L"Alfa"});
        user.ChooseInTree(kBaum, {L"Guasto"});
        user.Click(kIdCancel);
    });
    EXPECT_EQ(Chosen(), (Path{L"", L"", L"Guasto"}));
    EXPECT_TRUE(m_driver.Messages().empty());
}

TEST_F(TreeDialog, ManufacturersAndKindsHaveOnePictureAndProductsAnother)
{
    Want(L"Alfa", L"Piastre", L"Tipo 22");
    Run([](CDialogUser& user) {
        const auto picture = [](const QTreeWidgetItem* item) {
            return item->icon(0).pixmap(16, 16).toImage();
        };
        const QTreeWidgetItem* maker = Tree(user).topLevelItem(0);
        EXPECT_FALSE(picture(maker).isNull());
        EXPECT_EQ(picture(maker), picture(maker->child(0)));
        EXPECT_FALSE(picture(maker->child(0)->child(0)).isNull());
        EXPECT_NE(picture(maker), picture(maker->child(0)->child(0)));
        EXPECT_TRUE(Tree(user).topLevelItem(1)->child(0)->icon(0).isNull());
        user.Click(kIdCancel);
    });
}

TEST_F(TreeDialog, OpensWhereOkLeftIt)
{
    const CString key = L"RADSEL_HK_AUSWAHL_TREE";
    CRect place;
    m_folder.WriteBytes("winpos.txt", "");
    Run([&](CDialogUser& user) {
        place = user.Dialog().GetWindowRect();
        user.Click(kIdOk);
    });
    CRect kept;
    int alpha = 0;
    ASSERT_TRUE(LesePlatzierung(key, kept, &alpha));
    EXPECT_EQ(kept, place);
    EXPECT_EQ(alpha, 255);

    const CRect grown{40, 30, 40 + place.Width() + 100, 30 + place.Height() + 60};
    SchreibePlatzierung(key, grown, 120);
    Run([&](CDialogUser& user) {
        EXPECT_EQ(user.Dialog().GetWindowRect(), grown);
        EXPECT_EQ(user.Dialog().GetAlpha(), 255) << "this dialog is never translucent";
        user.Dialog().MoveWindow(place);
        user.Click(kIdCancel);
    });
    ASSERT_TRUE(LesePlatzierung(key, kept, &alpha));
    EXPECT_EQ(kept, grown) << "Cancel keeps nothing";

    Run([](CDialogUser& user) { user.Click(kIdOk); });
    ASSERT_TRUE(LesePlatzierung(key, kept, &alpha));
    EXPECT_EQ(alpha, 255) << "OK does not keep the opacity that it found";
}

} // namespace
