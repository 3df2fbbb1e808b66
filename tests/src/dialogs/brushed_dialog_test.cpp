#include "dialogs/brushed_dialog.h"

#include "dialogs/banner.h"
#include "dialogs/resizing_dialog.h"
#include "tests/dialog_support/dialog_test.h"
#include "tests/dialog_support/widget_look.h"
#include "uikit/combo_box.h"
#include "uikit/data_exchange.h"
#include "uikit/native/access.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <cstdlib>
#include <functional>
#include <vector>

using namespace reference_host;

namespace {

enum Ids
{
    idDialog = 7401,
    idErstes = 10,
    idZweites = 11,
    idBild = 12,
};

using enum ControlKind;

const DialogTemplate kTemplate = {idDialog,
                                  L"Prova",
                                  160,
                                  120,
                                  frameResizable,
                                  {{kBannerId, canvas, L"", 0, 0, 16, 120},
                                   {idErstes, edit, L"", 24, 4, 60, 13},
                                   {idZweites, edit, L"", 24, 24, 60, 13},
                                   {idBild, canvas, L"", 24, 44, 20, 20},
                                   {kIdOk, defaultButton, L"OK", 24, 100, 50, 14},
                                   {kIdCancel, button, L"Annulla", 80, 100, 50, 14}}};

class CProbeDialog : public CResizingDialog
{
public:
    CProbeDialog() : CResizingDialog(kTemplate) {}

    using CResizingDialog::OnCtlColor;

protected:
    bool OnInitDialog() override
    {
        CResizingDialog::OnInitDialog();
        AnkerSetzen(kBannerId, ankerFest, ankerStrecken, false);
        return true;
    }
};

class BrushedDialog : public CDialogTest
{
protected:
    int Run(const std::function<void(CDialogUser&)>& script)
    {
        m_driver.WhenOpens(idDialog, script);
        CProbeDialog dialog;
        return dialog.DoModal();
    }

    static QImage Picture(QWidget& widget) { return widget.grab().toImage(); }
};

TEST_F(BrushedDialog, EnterMovesOnWhereTheUserWantsThat)
{
    CSettingOverride setting(kSettingEnterAsTab, L"1");
    const auto enterOn = [](int id) {
        return [id](CDialogUser& user) {
            user.Focus(id);
            user.Press(Qt::Key_Return);
        };
    };
    EXPECT_EQ(Run([](CDialogUser& user) {
                  user.Focus(idErstes);
                  user.Press(Qt::Key_Return);
                  QCoreApplication::processEvents();
                  EXPECT_EQ(user.Dialog().GetFocusId(), idZweites);
                  EXPECT_FALSE(user.Dialog().HasEnded());
                  OverrideHostSetting(kSettingEnterAsTab, L"0");
                  user.Press(Qt::Key_Return);
              }),
              kIdOk)
        << "the setting is read at every press";

    OverrideHostSetting(kSettingEnterAsTab, L"1");
    EXPECT_EQ(Run(enterOn(kIdOk)), kIdOk);
    EXPECT_EQ(Run(enterOn(kIdCancel)), kIdCancel);
    EXPECT_EQ(Run([](CDialogUser& user) {
                  user.Focus(idErstes);
                  user.Click(kIdOk);
              }),
              kIdOk);
}

const DialogTemplate kEveryKind = {idDialog,
                                   L"Ogni tipo",
                                   160,
                                   120,
                                   frameFixed,
                                   {{30, checkBox, L"Casella", 4, 4, 60, 10},
                                    {31, radioButton, L"Uno", 4, 18, 60, 10, styleGroup},
                                    {32, radioButton, L"Due", 70, 18, 60, 10},
                                    {33, comboList, L"", 4, 32, 60, 60},
                                    {34, comboEdit, L"", 70, 32, 60, 60},
                                    {35, edit, L"", 4, 48, 60, 12},
                                    {36, tree, L"", 4, 64, 60, 30},
                                    {kIdOk, defaultButton, L"OK", 24, 100, 50, 14}}};

/// Counts how often Enter arrives as the command of OK.
class CEveryKindDialog : public CBrushedDialog
{
public:
    CEveryKindDialog() : CBrushedDialog(kEveryKind) {}

    int m_nOk = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CBrushedDialog::DoDataExchange(exchange);
        DDX_Control(exchange, 33, m_list);
        DDX_Control(exchange, 34, m_editableList);
    }
    bool OnInitDialog() override
    {
        CBrushedDialog::OnInitDialog();
        for (CComboBox* list : {&m_list, &m_editableList}) {
            list->AddString(L"uno");
            list->AddString(L"due");
            list->SetCurSel(0);
        }
        return true;
    }
    void OnOK() override { ++m_nOk; }

private:
    CComboBox m_list;
    CComboBox m_editableList;
};

/// On desktops whose toolkit takes Enter for a press, the journey of this key shows the same.
TEST_F(BrushedDialog, EnterIsTheDialogsInControlsOfEveryKind)
{
    for (const bool asTab : {false, true}) {
        CSettingOverride setting(kSettingEnterAsTab, asTab ? L"1" : L"0");
        CEveryKindDialog dialog;
        m_driver.WhenOpens(idDialog, [&](CDialogUser& user) {
            for (const int id : {30, 32, 33, 34, 35, 36}) {
                SCOPED_TRACE(testing::Message() << id << (asTab ? " as Tab" : ""));
                user.Focus(id);
                QCoreApplication::processEvents();
                dialog.m_nOk = 0;
                user.Press(Qt::Key_Return);
                QCoreApplication::processEvents();
                EXPECT_EQ(dialog.m_nOk, asTab ? 0 : 1);
                EXPECT_EQ(user.Dialog().GetFocusId() != id, asTab);
                EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "an opened list";
                EXPECT_FALSE(user.IsChecked(30));
                EXPECT_FALSE(user.IsChecked(32));
                EXPECT_EQ(user.Chosen(33), 0);
            }
            user.Dialog().EndDialog(kIdOk);
        });
        dialog.DoModal();
    }
}

constexpr COLORREF kDefault = RGB(0xD6, 0xE4, 0xF5);
constexpr COLORREF kBack = RGB(1, 2, 3);
constexpr COLORREF kButton = RGB(200, 10, 20);
constexpr COLORREF kList = RGB(10, 200, 20);
constexpr COLORREF kEdit = RGB(20, 10, 200);

/// A skin in the host's settings, with or without its colours.
class CSkin
{
public:
    CSkin(const CString& allowed, bool colors)
        : m_allowed(kSettingAllowSkin, allowed),
          m_back(kSettingSkinHintergrund, colors ? L"#010203" : L""),
          m_button(kSettingSkinSchaltflaeche, colors ? L"#C80A14" : L""),
          m_list(kSettingSkinListe, colors ? L"#0AC814" : L""),
          m_edit(kSettingSkinEingabe, colors ? L"#140AC8" : L"")
    {
    }

private:
    CSettingOverride m_allowed;
    CSettingOverride m_back;
    CSettingOverride m_button;
    CSettingOverride m_list;
    CSettingOverride m_edit;
};

TEST_F(BrushedDialog, EveryKindOfAreaHasItsColoursOfTheSkin)
{
    struct Case
    {
        ColorKind kind;
        ControlColors colored;
        ControlColors uncolored;
    };
    const std::vector<Case> cases = {
        {ColorKind::edit, {kEdit, kBack}, {}},
        {ColorKind::listBox, {kList, kBack}, {}},
        {ColorKind::button, {kButton, kButton}, {}},
        {ColorKind::dialog, {{}, kBack}, {{}, kDefault}},
        {ColorKind::label, {kBack, kBack}, {kDefault, kDefault}},
        {ColorKind::other, {}, {}},
    };
    const auto expect = [](CProbeDialog& dialog, ColorKind kind, const ControlColors& expected) {
        const ControlColors colors = dialog.OnCtlColor(kind);
        EXPECT_EQ(colors.textBackground, expected.textBackground) << static_cast<int>(kind);
        EXPECT_EQ(colors.brush, expected.brush) << static_cast<int>(kind);
    };
    for (const Case& c : cases) {
        {
            const CSkin skin(L"1", true);
            CProbeDialog dialog;
            expect(dialog, c.kind, c.colored);
            OverrideHostSetting(kSettingAllowSkin, L"0");
            expect(dialog, c.kind, {});
            OverrideHostSetting(kSettingAllowSkin, L"1");
            dialog.SetSkin(false);
            expect(dialog, c.kind, {});
        }
        {
            const CSkin skin(L"1", false);
            CProbeDialog dialog;
            expect(dialog, c.kind, c.uncolored);
        }
        const CSkin skin(L"0", true);
        CProbeDialog dialog;
        OverrideHostSetting(kSettingAllowSkin, L"1");
        expect(dialog, c.kind, {});
    }
}

TEST_F(BrushedDialog, TheSkinReachesTheControls)
{
    const CSkin skin(L"1", true);
    Run([](CDialogUser& user) {
        user.Type(idErstes, L"mm");
        user.Focus(kIdOk);
        QWidget& edit = user.Widget(idErstes);
        const QImage picture = Picture(edit);
        bool behindText = false;
        for (int x = 0; x < edit.width() / 2; ++x) {
            behindText = behindText || picture.pixelColor(x, edit.height() / 2) == ToNative(kEdit);
        }
        EXPECT_TRUE(behindText);
        EXPECT_EQ(picture.pixelColor(edit.width() - 8, edit.height() / 2), ToNative(kBack));

        QWidget& button = user.Widget(kIdCancel);
        const QColor face = Picture(button).pixelColor(8, button.height() / 2);
        EXPECT_GT(face.red(), 2 * face.green()) << "red under the light of the style";

        QWidget* window = CNativeAccess::Widget(user.Dialog());
        EXPECT_EQ(Picture(*window).pixelColor(window->width() - 40, window->height() / 2),
                  ToNative(kBack));
        user.Press(Qt::Key_Escape);
    });
}

bool IsNear(const QColor& color, int red, int green, int blue)
{
    constexpr int kStep = 6;
    return std::abs(color.red() - red) <= kStep && std::abs(color.green() - green) <= kStep &&
           std::abs(color.blue() - blue) <= kStep;
}

TEST_F(BrushedDialog, TheBannerFollowsTheHeightAndReadsUpwardFromTheBottom)
{
    for (const CString themed : {L"0", L"1"}) {
        const CSettingOverride theme(kSettingVistaBanner, themed);
        const CSettingOverride name(kSettingProductName, L"Ed");
        Run([](CDialogUser& user) {
            CDialog& dialog = user.Dialog();
            QWidget* window = CNativeAccess::Widget(dialog);
            for (const int growth : {0, 90}) {
                CRect place = dialog.GetWindowRect();
                place.bottom += growth;
                dialog.MoveWindow(place);
                window->grab();
                const QImage banner = Picture(user.Widget(kBannerId));
                const int right = banner.width() - 1;
                const int bottom = banner.height() - 1;
                EXPECT_EQ(banner.height(), dialog.GetClientRect().Height());
                EXPECT_TRUE(IsNear(banner.pixelColor(right, 0), 0x61, 0xE0, 0xFD));
                EXPECT_TRUE(IsNear(banner.pixelColor(right, bottom / 2), 0xB0, 0xEF, 0xFE));
                EXPECT_TRUE(IsNear(banner.pixelColor(right, bottom), 0xFF, 0xFF, 0xFF));
                // The text is darker than the gradient anywhere.
                const QRect ink = InkOf(banner, 0x50);
                EXPECT_GT(ink.top(), bottom - 40) << "two letters, each higher than it is wide";
                EXPECT_LE(ink.bottom(), bottom - 9);
                EXPECT_GT(ink.bottom(), bottom - 16);
            }
            user.Press(Qt::Key_Escape);
        });
    }
}

TEST_F(BrushedDialog, ASwatchIsFilledAndFramed)
{
    Run([](CDialogUser& user) {
        QWidget& swatch = user.Widget(idBild);
        FarbfeldZeichnen(user.Dialog().GetDlgItem(idBild), kButton);
        FarbfeldZeichnen(user.Dialog().GetDlgItem(999), kButton);
        const QImage picture = Picture(swatch);
        EXPECT_EQ(picture.pixelColor(1, 1), ToNative(kButton));
        EXPECT_EQ(picture.pixelColor(swatch.width() - 1, swatch.height() - 1), QColor(Qt::black));
        user.Press(Qt::Key_Escape);
    });
}

} // namespace
