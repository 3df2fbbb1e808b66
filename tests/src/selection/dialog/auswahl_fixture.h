#pragma once

#include "frame/entry_points.h"
#include "frame/handover.h"
#include "host/host_catalog.h"
#include "platform/encoding.h"
#include "tests/dialog_support/dialog_driver.h"
#include "tests/dialog_support/empty_drawer.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "uikit/native/access.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

inline constexpr int kAuswahlDialog = 18000;
inline constexpr int kBaum = 18000;
inline constexpr int kGitter = 18001;

using Zeile = std::vector<CString>;
using Texte = std::vector<CString>;

inline bool Verbietet(const CDialogUser& user, std::initializer_list<int> ids)
{
    return std::ranges::none_of(ids, [&](int id) { return user.IsEnabled(id); });
}

inline QTreeWidget& Baum(const CDialogUser& user)
{
    return dynamic_cast<QTreeWidget&>(user.Widget(kBaum));
}

inline QTableView& Gitter(const CDialogUser& user)
{
    return *user.Widget(kGitter).findChild<QTableView*>();
}

/// The cell texts of the result grid.
inline std::vector<Zeile> GitterZeilen(const CDialogUser& user)
{
    const QAbstractItemModel& model = *Gitter(user).model();
    std::vector<Zeile> zeilen(static_cast<std::size_t>(model.rowCount()));
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QString text = model.index(row, column).data().toString();
            zeilen[static_cast<std::size_t>(row)].push_back(text.toStdWString());
        }
    }
    return zeilen;
}

inline QPoint MitteDerZeile(const CDialogUser& user, int row)
{
    QTableView& view = Gitter(user);
    const QModelIndex index = view.model()->index(row, 0);
    view.scrollTo(index);
    return view.visualRect(index).center();
}

inline void KlickeZeile(const CDialogUser& user, int row)
{
    QTest::mouseClick(Gitter(user).viewport(), Qt::LeftButton, {}, MitteDerZeile(user, row));
}

inline void KlickeKopf(const CDialogUser& user, int column)
{
    const QHeaderView* kopf = Gitter(user).horizontalHeader();
    const int x = kopf->sectionViewportPosition(column) + kopf->sectionSize(column) / 2;
    QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, {x, 10});
}

/// A drawing with three layers and some blocks, one of which has a preview.
class CAuswahlDrawer : public CEmptyDrawer
{
public:
    void GetLayerNames(CStringArray& namen, int art) override
    {
        EXPECT_EQ(art, 2);
        for (const wchar_t* name : {L"MURI", L"HEIZ_PT_2", L"0"}) {
            namen.Add(name);
        }
    }
    int GetLayerColor(const CString& layer) override { return layer == L"MURI" ? 8 : 3; }
    void GetBlockNames(const CString& ordner, CStringArray& namen, int art) override
    {
        EXPECT_EQ(ordner + std::to_wstring(art), L"blocchi0");
        for (const CString& name : bloecke) {
            namen.Add(name);
        }
    }
    bool GetBlockPreview(const CString& ordner, const CString& block, CBitmap& bild, int,
                         int) override
    {
        EXPECT_EQ(ordner, L"blocchi");
        EXPECT_FALSE(block.empty());
        if (block == L"ABCD") {
            bild = CBitmap(4, 4);
            bild.Fill(RGB(1, 2, 3));
        }
        return block == L"ABCD";
    }
    Texte bloecke{L"ZETA", L"ABCD"};
};

/// The selection dialog over the sample catalogues, with stores of the test's own.
class CAuswahlDialogTest : public testing::Test
{
protected:
    /// A wish for 1000 W out of a product of the catalogues, at temperatures that are no whole
    /// degrees.
    CAuswahlDialogTest()
    {
        setenv("XDG_CONFIG_HOME", m_folder.Root().c_str(), 1);
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
        m_uebergabe.NeuLesen = 1;
    }

    ~CAuswahlDialogTest() override
    {
        unsetenv("XDG_CONFIG_HOME");
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

    /// Opens the dialog through the export and returns its result.
    int Oeffne(const CDialogDriver::Script& script, bool warnen = false)
    {
        m_driver.WhenOpens(kAuswahlDialog, [script](CDialogUser& user) {
            // Without a screen nothing gives a second dialog the focus that the first one had.
            QApplication::setActiveWindow(CNativeAccess::Widget(user.Dialog()));
            script(user);
        });
        return HeizkoerperauswahlVDI3805(m_pDrawer, &m_uebergabe, m_layer, m_farbe, true, warnen);
    }

    void ExpectResult(int expected, const CDialogDriver::Script& script, bool warnen = false)
    {
        EXPECT_EQ(Oeffne(script, warnen), expected);
    }

    /// Opens the dialog and leaves it with Annulla after the script.
    void Zeige(const CDialogDriver::Script& script)
    {
        Oeffne([&](CDialogUser& user) {
            script(user);
            user.Click(kIdCancel);
        });
    }

    CTempFolder m_folder;
    CSettingOverride m_root{reference_host::kSettingServerPath, m_folder.Path()};
    CSettingOverride m_def{reference_host::kSettingDefFolder, m_folder.Path()};
    CSettingOverride m_hk{reference_host::kSettingHKDir,
                          WideFromUtf8(RADSEL_DATA_DIR "/catalogues")};
    CSettingOverride m_template{reference_host::kSettingHKLayer, L"HEIZ_$d"};
    CSettingOverride m_local{reference_host::kSettingLocalPath, m_folder.Path()};
    CSettingOverride m_blocks{reference_host::kSettingHKBlockFolder, L"blocchi"};
    HK_DATEN_VDI3805_UEBERGABE m_uebergabe;
    CAuswahlDrawer m_drawer;
    CDrawer* m_pDrawer = &m_drawer;
    CString m_layer = L"HEIZ_$d__";
    int m_farbe = 5;
    CDialogDriver m_driver;
};
