#include "tests/src/uikit/kit_recorder.h"

#include "uikit/column_label.h"

#include "tests/dialog_support/paint_counter.h"
#include "tests/dialog_support/widget_look.h"

#include <QLineEdit>
#include <QTest>

#include <cstdlib>

namespace {

using KitDrawing = CRecorderTest;

bool IsNear(const QColor& a, COLORREF b)
{
    return std::abs(a.red() - GetRValue(b)) + std::abs(a.green() - GetGValue(b)) +
               std::abs(a.blue() - GetBValue(b)) <
           40;
}

TEST_F(KitDrawing, DrawingsStayUntilTheCanvasIsInvalidated)
{
    Run([&](CDialogUser& user) {
        QWidget& canvas = user.Widget(idCanvas);
        const auto image = [&] { return canvas.grab().toImage(); };
        const QColor paper = image().pixelColor(0, 0);
        const CSize size = CClientDC(Item(idCanvas)).GetSize();
        EXPECT_EQ(size, (CSize{canvas.width(), canvas.height()}));
        {
            CMemoryDC memory({20, 21});
            memory.FillGradient({0, 0, 20, 21}, RGB(200, 0, 0), RGB(0, 0, 200));
            CClientDC dc(Item(idCanvas));
            dc.ExcludeClipRect({0, 0, 5, 5});
            dc.BitBlt({2, 2}, memory);
            dc.SetPen(RGB(0, 128, 0), 1);
            dc.Rectangle({30, 5, 40, 15});
            dc.TextOut({50, 40}, L"IIIII", {L"Tahoma", 11}, RGB(0, 0, 0), 900);
        }
        for (int painting = 0; painting < 2; ++painting) {
            const QImage drawn = image();
            EXPECT_EQ(drawn.pixelColor(3, 3), paper) << "excluded";
            EXPECT_TRUE(IsNear(drawn.pixelColor(10, 2), RGB(200, 0, 0)));
            EXPECT_TRUE(IsNear(drawn.pixelColor(10, 12), RGB(100, 0, 100)));
            EXPECT_TRUE(IsNear(drawn.pixelColor(10, 22), RGB(0, 0, 200)));
            EXPECT_EQ(drawn.pixelColor(39, 14), QColor(0, 128, 0));
            EXPECT_EQ(drawn.pixelColor(40, 15), paper);
            EXPECT_EQ(drawn.pixelColor(35, 10), paper);
            const QRect ink =
                InkOf(drawn.copy(45, 0, 40, 45), paper.lightness() - 90).translated(45, 0);
            EXPECT_GE(ink.left(), 50) << "text that rises stands right of its point";
            EXPECT_LE(ink.bottom(), 40);
            EXPECT_GT(ink.height(), ink.width());
        }
        Item(idCanvas).Invalidate();
        EXPECT_EQ(image().pixelColor(10, 12), paper);
        EXPECT_EQ(CClientDC(CWnd()).GetSize(), CSize{}) << "no canvas";
    });
}

TEST_F(KitDrawing, OnlyACanvasThatPalesShowsThatItIsDisabled)
{
    Run([&](CDialogUser& user) {
        for (const auto& [id, pales] : {std::pair(idCanvas, false), {idPale, true}}) {
            CClientDC(Item(id)).FillRect({0, 0, 9, 9}, RGB(200, 0, 0));
            Item(id).EnableWindow(false);
            const QColor shown = user.Widget(id).grab().toImage().pixelColor(3, 3);
            EXPECT_EQ(shown != QColor(200, 0, 0), pales) << id;
        }
    });
}

TEST_F(KitDrawing, OfALongTextThatNobodyTypesTheStartShows)
{
    Run([&](CDialogUser& user) {
        for (const auto& [id, cursor] : {std::pair(idReadOnly, 0), {idText, 60}}) {
            Item(id).SetWindowText(CString(60, L'm'));
            EXPECT_EQ(dynamic_cast<QLineEdit&>(user.Widget(id)).cursorPosition(), cursor) << id;
        }
    });
}

TEST_F(KitDrawing, LabelsShortenOrStandOverColumns)
{
    Run([&](CDialogUser& user) {
        QWidget& label = user.Widget(idLabel);
        Item(idLabel).SetWindowText(L"Una");
        EXPECT_NE(TipAt(label, {2, 2}), "Una");
        Item(idLabel).SetWindowText(L"Una didascalia lunga");
        EXPECT_EQ(TipAt(label, {2, 2}), "Una didascalia lunga");

        Item(idLabel).SetWindowText(L"I I");
        const CFont rows = {L"Courier", 11, 400, false, true};
        CColumnLabel(Item(idLabel)).AlignTo(Item(idSorted), rows, {8, 12});
        const QImage columns = label.grab().toImage();
        const int column = QFontMetrics(ToNative(rows)).horizontalAdvance(QString(4, '0'));
        const QRect ink = InkOf(columns, columns.pixelColor(0, 0).lightness() - 90);
        EXPECT_NEAR(ink.width(), column, 3) << "the words end a column apart";
        QToolTip::hideText();
    });
}

TEST_F(KitDrawing, ControlsThatAreHeldBackPaintOnceAtTheEnd)
{
    Run([&](CDialogUser& user) {
        QCoreApplication::processEvents();
        CPaintCounter paintings(user.Widget(idText));
        Item(idText).SetRedraw(false);
        Item(idText).SetWindowText(L"neu");
        QCoreApplication::processEvents();
        EXPECT_EQ(paintings.nPaints, 0);
        Item(idText).SetRedraw(true);
        EXPECT_TRUE(QTest::qWaitFor([&] { return paintings.nPaints > 0; }));
    });
}

} // namespace
