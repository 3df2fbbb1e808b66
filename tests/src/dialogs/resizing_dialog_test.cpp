#include "dialogs/resizing_dialog.h"

#include "dialogs/platzierung.h"
#include "tests/dialog_support/dialog_test.h"
#include "uikit/native/access.h"

#include <QSizeGrip>
#include <QTest>

#include <cstddef>
#include <functional>
#include <tuple>
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

using enum ControlKind;

const std::vector<ControlTemplate> kControls = {
    {10, button, L"0", 4, 4, 30, 14},        {11, button, L"1", 40, 4, 31, 15},
    {12, button, L"2", 4, 30, 32, 16},       {13, button, L"3", 40, 30, 33, 17},
    {idUnten, button, L"", 131, 81, 30, 20},
};
const DialogTemplate kTemplate = {idDialog, L"Prova", 161, 101, frameResizable, kControls};

class CProbeDialog : public CResizingDialog
{
public:
    explicit CProbeDialog(std::function<void(CProbeDialog&)> anchors = {})
        : CResizingDialog(kTemplate), m_anchors(std::move(anchors))
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

class ResizingDialog : public CDialogTest
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
};

TEST_F(ResizingDialog, OnlyEdgesThatCanMoveShowTheSizingPointer)
{
    const std::tuple<bool, bool, Qt::CursorShape, Qt::CursorShape, Qt::CursorShape> cases[] = {
        {true, true, Qt::SizeHorCursor, Qt::SizeVerCursor, Qt::SizeFDiagCursor},
        {false, true, Qt::ArrowCursor, Qt::SizeVerCursor, Qt::SizeVerCursor},
        {true, false, Qt::SizeHorCursor, Qt::ArrowCursor, Qt::SizeHorCursor},
        {false, false, Qt::ArrowCursor, Qt::ArrowCursor, Qt::ArrowCursor},
    };
    for (const auto& [wide, high, left, bottom, corner] : cases) {
        SCOPED_TRACE(testing::Message() << wide << high);
        CProbeDialog dialog([w = wide, h = high](CProbeDialog& d) { d.GroesseErlauben(w, h); });
        Run(dialog, [&, atLeft = left, atBottom = bottom, atCorner = corner] {
            QWidget& window = dialog.Native();
            const auto pointerAt = [&window](int x, int y) {
                QTest::mouseMove(&window, QPoint(x, y));
                return window.cursor().shape();
            };
            const int x = window.width() - 1;
            const int y = window.height() - 1;
            EXPECT_EQ(pointerAt(0, y / 2), atLeft);
            EXPECT_EQ(pointerAt(x / 2, y), atBottom);
            EXPECT_EQ(pointerAt(x, y), atCorner);
        });
    }
}

TEST_F(ResizingDialog, ControlsFollowByTheirAnchors)
{
    constexpr int kGrowth = 40;
    // How far the two edges across the growth go, by anchor.
    const std::pair<int, int> ways[] = {
        {0, 0}, {0, kGrowth}, {kGrowth, kGrowth}, {kGrowth / 2, kGrowth / 2}};
    const int anchors[] = {ankerFest, ankerStrecken, ankerMitgehen, ankerMitte};
    CProbeDialog dialog([&](CProbeDialog& d) {
        d.AnkerSetzen(idUnten, ankerMitgehen, ankerStrecken, false);
        d.AnkerSetzen(idUnten, ankerFest, ankerFest, false);
        d.AnkerSetzen(idFehlt, ankerMitgehen, ankerStrecken, false);
        for (int i = 0; i < 4; ++i) {
            d.AnkerSetzen(10 + i, anchors[i], anchors[3 - i], false);
        }
    });
    Run(dialog, [&] {
        std::vector<CRect> before;
        for (const int id : {10, 11, 12, 13, int(idUnten)}) {
            before.push_back(dialog.Place(id));
        }
        // No half pixel may be lost on the way there.
        for (const int step : {1, 1, 1, kGrowth - 3}) {
            dialog.Grow(step, step);
        }
        for (int i = 0; i < 4; ++i) {
            const CRect& old = before[static_cast<std::size_t>(i)];
            const auto& [left, right] = ways[i];
            const auto& [top, bottom] = ways[3 - i];
            EXPECT_EQ(dialog.Place(10 + i), (CRect{old.left + left, old.top + top,
                                                   old.right + right, old.bottom + bottom}))
                << "anchor " << anchors[i];
        }
        EXPECT_EQ(dialog.Place(idUnten), before.back()) << "the later anchor counts alone";
        dialog.Grow(-kGrowth, -kGrowth);
        EXPECT_EQ(dialog.Place(13), before[3]) << "back to where it began";
    });
}

TEST_F(ResizingDialog, SizesStayWithinTheirLimits)
{
    for (const auto& [wide, high] :
         {std::pair(true, true), {false, true}, {true, false}, {false, false}}) {
        CProbeDialog dialog([w = wide, h = high](CProbeDialog& d) { d.GroesseErlauben(w, h); });
        Run(dialog, [&, w = wide, h = high] {
            const CSize least = dialog.Size();
            dialog.Grow(-20, -30);
            EXPECT_EQ(dialog.Size(), least);
            dialog.Grow(50, 40);
            EXPECT_EQ(dialog.Size(), (CSize{least.cx + (w ? 50 : 0), least.cy + (h ? 40 : 0)}));
            EXPECT_EQ(dialog.Native().findChild<QSizeGrip*>()->isVisible(), w || h);
        });
    }
}

TEST_F(ResizingDialog, TheGripStaysInItsCornerBehindTheControls)
{
    CProbeDialog dialog;
    for (int opening = 0; opening < 2; ++opening) {
        Run(dialog, [&] {
            const auto* grip = dialog.Native().findChild<QSizeGrip*>();
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
    CRect expected;
    CProbeDialog dialog([&](CProbeDialog& d) {
        expected = d.Place(13).MovedBy(700 - d.Size().cx, 600 - d.Size().cy);
        d.AnkerSetzen(13, ankerMitgehen, ankerMitgehen, false);
        PlatzierungLaden(d, L"CHIAVE", nullptr, false);
    });
    Run(dialog, [&] {
        EXPECT_EQ(dialog.GetWindowRect(), (CRect{10, 20, 710, 620}));
        EXPECT_EQ(dialog.Place(13), expected);
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
        QWidget& client = *dialog.Native().findChild<QSizeGrip*>()->parentWidget();
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
