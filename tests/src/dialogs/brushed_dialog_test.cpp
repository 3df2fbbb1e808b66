#include "dialogs/brushed_dialog.h"

#include "dialogs/banner.h"
#include "dialogs/resizing_dialog.h"
#include "tests/dialog_support/dialog_test.h"
#include "tests/dialog_support/widget_look.h"
#include "tests/src/uikit/kit_recorder.h"
#include "uikit/combo_box.h"
#include "uikit/native/access.h"

#include <QApplication>

#include <cstdlib>
#include <functional>
#include <tuple>
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

const std::vector<ControlTemplate> kControls = {
    {kBannerId, canvas, L"", 0, 0, 16, 120},
    {idErstes, edit, L"", 24, 4, 60, 13},
    {idZweites, edit, L"", 24, 24, 60, 13},
    {idBild, canvas, L"", 24, 44, 20, 20},
    {kIdOk, defaultButton, L"OK", 24, 100, 50, 14},
    {kIdCancel, button, L"Annulla", 80, 100, 50, 14},
};
const DialogTemplate kTemplate = {idDialog, L"Prova", 160, 120, frameResizable, kControls};

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

using BrushedControls = CRecorderTestOf<CBrushedDialog>;

/// On desktops whose toolkit takes Enter for a press, the journey of this key shows the same.
TEST_F(BrushedControls, EnterIsTheDialogsInControlsOfEveryKind)
{
    const CTempFolder folder;
    const CSettingOverride local(kSettingLocalPath, folder.Path());
    m_dialog.onInit = [this] {
        for (const int id : {idSorted, idEditable}) {
            CComboBox list;
            CNativeAccess::CopyTo(list, Item(id));
            list.AddString(L"uno");
        }
    };
    for (const bool asTab : {false, true}) {
        const CSettingOverride setting(kSettingEnterAsTab, asTab ? L"1" : L"0");
        for (const int id : {int(idCheck), idRadio + 1, int(idSorted), int(idEditable), int(idText),
                             int(idTree)}) {
            SCOPED_TRACE(testing::Message() << id << (asTab ? " as Tab" : ""));
            const int result = Run([&](CDialogUser& user) {
                user.Focus(id);
                QCoreApplication::processEvents();
                user.Press(Qt::Key_Return);
                QCoreApplication::processEvents();
                EXPECT_EQ(m_dialog.GetFocusId() != id, asTab);
                EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "an opened list";
                EXPECT_FALSE(user.IsChecked(idCheck) || user.IsChecked(idRadio + 1));
                EXPECT_EQ(user.Chosen(idSorted), -1);
            });
            EXPECT_EQ(result, asTab ? 99 : kIdOk);
        }
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
    const struct
    {
        ColorKind kind;
        ControlColors colored;
        ControlColors uncolored;
    } cases[] = {
        {ColorKind::edit, {kEdit, kBack}, {}},
        {ColorKind::listBox, {kList, kBack}, {}},
        {ColorKind::button, {kButton, kButton}, {}},
        {ColorKind::dialog, {{}, kBack}, {{}, kDefault}},
        {ColorKind::label, {kBack, kBack}, {kDefault, kDefault}},
        {ColorKind::other, {}, {}},
    };
    for (const auto& c : cases) {
        // Whether skins are allowed when the dialog is made and when it asks, whether this one
        // shows them, and whether there are colours.
        const std::tuple<const wchar_t*, const wchar_t*, bool, bool, ControlColors> ways[] = {
            {L"1", L"1", true, true, c.colored}, {L"1", L"1", true, false, c.uncolored},
            {L"0", L"1", true, true, {}},        {L"1", L"0", true, true, {}},
            {L"1", L"1", false, true, {}},
        };
        for (const auto& [made, asked, isShown, hasColors, expected] : ways) {
            SCOPED_TRACE(testing::Message()
                         << int(c.kind) << made << asked << isShown << hasColors);
            const CSkin skin(made, hasColors);
            CProbeDialog dialog;
            dialog.SetSkin(isShown);
            OverrideHostSetting(kSettingAllowSkin, asked);
            const ControlColors colors = dialog.OnCtlColor(c.kind);
            EXPECT_EQ(colors.textBackground, expected.textBackground);
            EXPECT_EQ(colors.brush, expected.brush);
        }
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
