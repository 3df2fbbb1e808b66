#include "dialogs/resizing_dialog.h"

#include "dialog_support/dialog_driver.h"
#include "dialogs/platzierung.h"
#include "support/setting_override.h"
#include "support/temp_folder.h"
#include "uikit/native/access.h"
#include "uikit/native/size_grip.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace {

enum Ids
{
    idDialog = 7501,
    idUnten = 15,
    idFehlt = 99,
};

constexpr COLORREF kUnder = RGB(255, 0, 0);

const DialogTemplate& Template()
{
    using enum ControlKind;
    static const DialogTemplate dialog = {idDialog,
                                          L"Prova",
                                          161,
                                          101,
                                          frameResizable,
                                          {{10, button, L"0", 4, 4, 30, 14},
                                           {11, button, L"1", 40, 4, 31, 15},
                                           {12, button, L"2", 4, 30, 32, 16},
                                           {13, button, L"3", 40, 30, 33, 17},
                                           {idUnten, button, L"", 131, 81, 30, 20}}};
    return dialog;
}

class CProbeDialog : public CResizingDialog
{
public:
    explicit CProbeDialog(std::function<void(CProbeDialog&)> anchors = {})
        : CResizingDialog(Template()), m_anchors(std::move(anchors))
    {
    }

    using CResizingDialog::AnkerSetzen;
    using CResizingDialog::GroesseErlauben;

    CSize Size() const { return {GetWindowRect().Width(), GetWindowRect().Height()}; }

    void Grow(int dx, int dy)
    {
        CRect place = GetWindowRect();
        place.right += dx;
        place.bottom += dy;
        MoveWindow(place);
    }

    CRect Place(int id) const { return GetDlgItem(id).GetPlace(); }

    QWidget& Native() const { return *CNativeAccess::Widget(*this); }

protected:
    bool OnInitDialog() override
    {
        CResizingDialog::OnInitDialog();
        if (m_anchors) {
            m_anchors(*this);
        }
        return true;
    }

    void OnEraseBackground(CDC& dc) override
    {
        dc.FillRect(GetClientRect(), kUnder);
        CResizingDialog::OnEraseBackground(dc);
    }

private:
    std::function<void(CProbeDialog&)> m_anchors;
};

class ResizingDialog : public testing::Test
{
protected:
    void Run(CProbeDialog& dialog, const std::function<void()>& work)
    {
        m_driver.WhenOpens(idDialog, [&](CDialogUser& user) {
            work();
            user.Dialog().EndDialog(kIdOk);
        });
        dialog.DoModal();
    }

    CTempFolder m_folder;
    CSettingOverride m_local{kSettingLocalPath, m_folder.Path()};
    CDialogDriver m_driver;
};

/// Where an edge pair comes to lie when a length grows from one value to another.
std::pair<int, int> Followed(int anker, std::pair<int, int> edges, int before, int after)
{
    const int growth = after - before;
    const int shift = after / 2 - before / 2;
    switch (anker) {
    case ankerStrecken:
        return {edges.first, edges.second + growth};
    case ankerMitgehen:
        return {edges.first + growth, edges.second + growth};
    case ankerMitte:
        return {edges.first + shift, edges.second + shift};
    default:
        return edges;
    }
}

TEST_F(ResizingDialog, ControlsFollowByTheirAnchors)
{
    constexpr int kAnchors = 4;
    CProbeDialog dialog([](CProbeDialog& d) {
        d.AnkerSetzen(idUnten, ankerMitgehen, ankerStrecken, false);
        d.AnkerSetzen(idUnten, ankerFest, ankerFest, false);
        d.AnkerSetzen(idFehlt, ankerMitgehen, ankerStrecken, false);
        for (int i = 0; i < kAnchors; ++i) {
            d.AnkerSetzen(10 + i, i, kAnchors - 1 - i, false);
        }
    });
    Run(dialog, [&] {
        const CRect client = dialog.GetClientRect();
        const CRect fixed = dialog.Place(idUnten);
        std::vector<CRect> before;
        for (int i = 0; i < kAnchors; ++i) {
            before.push_back(dialog.Place(10 + i));
        }
        for (const CSize growth : {CSize{41, 33}, {30, 1}, {-70, -30}, {-1, -4}}) {
            dialog.Grow(growth.cx, growth.cy);
            const CRect now = dialog.GetClientRect();
            EXPECT_EQ(dialog.Place(idUnten), fixed) << "the later anchor counts alone";
            for (int i = 0; i < kAnchors; ++i) {
                const CRect& old = before[static_cast<std::size_t>(i)];
                const auto x = Followed(i, {old.left, old.right}, client.Width(), now.Width());
                const auto y = Followed(kAnchors - 1 - i, {old.top, old.bottom}, client.Height(),
                                        now.Height());
                EXPECT_EQ(dialog.Place(10 + i), (CRect{x.first, y.first, x.second, y.second}))
                    << "anchor " << i << " at " << now.Width() << " x " << now.Height();
            }
        }
        EXPECT_EQ(dialog.GetClientRect(), client) << "back to where it began";
    });
}

TEST_F(ResizingDialog, SizesStayWithinTheirLimits)
{
    struct Case
    {
        bool x;
        bool y;
        CSize grown;
    };
    for (const Case& c : {Case{true, true, {50, 40}},
                          {false, true, {0, 40}},
                          {true, false, {50, 0}},
                          {false, false, {0, 0}}}) {
        CProbeDialog dialog([&](CProbeDialog& d) { d.GroesseErlauben(c.x, c.y); });
        Run(dialog, [&] {
            const CSize least = dialog.Size();
            dialog.Grow(-20, -30);
            EXPECT_EQ(dialog.Size(), least);
            dialog.Grow(50, 40);
            EXPECT_EQ(dialog.Size(), (CSize{least.cx + c.grown.cx, least.cy + c.grown.cy}));
            EXPECT_EQ(dialog.Native().findChild<CSizeGrip*>()->isVisible(), c.x || c.y);
        });
    }
}

TEST_F(ResizingDialog, TheGripStaysInItsCornerBehindTheControls)
{
    CProbeDialog dialog;
    for (int opening = 0; opening < 2; ++opening) {
        Run(dialog, [&] {
            const auto* grip = dialog.Native().findChild<CSizeGrip*>();
            const QWidget& client = *grip->parentWidget();
            EXPECT_NE(client.childAt(client.rect().bottomRight()), grip);
            dialog.Grow(30, 20);
            EXPECT_EQ(client.childAt(client.rect().bottomRight()), grip);
            EXPECT_EQ(grip->geometry().bottomRight(), client.rect().bottomRight());

            const auto& entries = dialog.GetSystemMenu().GetEntries();
            ASSERT_EQ(entries.size(), 2U);
            EXPECT_EQ(entries[0].id, 0U);
            EXPECT_EQ(entries[1].id, 16U);
            EXPECT_EQ(entries[1].text, L"Transparency...");
        });
    }
}

TEST_F(ResizingDialog, AKeptPlaceMovesTheControlsLikeTheUser)
{
    m_folder.WriteBytes("winpos.txt", "CHIAVE|10|710|20|620|255|\n");
    CRect before;
    CRect client;
    CProbeDialog dialog([&](CProbeDialog& d) {
        before = d.Place(13);
        client = d.GetClientRect();
        d.AnkerSetzen(13, ankerStrecken, ankerMitgehen, false);
        PlatzierungLaden(d, L"CHIAVE", nullptr, false);
    });
    Run(dialog, [&] {
        EXPECT_EQ(dialog.GetWindowRect(), (CRect{10, 20, 710, 620}));
        const int dx = dialog.GetClientRect().Width() - client.Width();
        const int dy = dialog.GetClientRect().Height() - client.Height();
        EXPECT_EQ(dialog.Place(13),
                  (CRect{before.left, before.top + dy, before.right + dx, before.bottom + dy}));
    });
}

TEST_F(ResizingDialog, PlacesWithoutBackgroundAreNotErased)
{
    CProbeDialog dialog([](CProbeDialog& d) {
        d.AnkerSetzen(10, ankerMitgehen, ankerFest, true);
        d.AnkerSetzen(11, ankerMitgehen, ankerFest, false);
        d.AnkerSetzen(17733, ankerMitgehen, ankerMitgehen, true);
    });
    Run(dialog, [&] {
        dialog.Grow(40, 40);
        QWidget& client = *dialog.Native().findChild<CSizeGrip*>()->parentWidget();
        for (const int id : {10, 11, 12}) {
            dialog.GetDlgItem(id).ShowWindow(false);
        }
        const QImage picture = client.grab().toImage();
        const auto isUnder = [&](int x, int y) {
            return picture.pixelColor(x, y) == ToNative(kUnder);
        };
        const CRect excluded = dialog.Place(10);
        EXPECT_TRUE(isUnder(excluded.left, excluded.top));
        EXPECT_TRUE(isUnder(excluded.right - 1, excluded.bottom - 1));
        EXPECT_FALSE(isUnder(excluded.left - 1, excluded.top));
        EXPECT_FALSE(isUnder(excluded.left, excluded.bottom));
        for (const int id : {11, 12, 17733}) {
            EXPECT_FALSE(isUnder(dialog.Place(id).left, dialog.Place(id).top)) << id;
        }
    });
}

} // namespace
