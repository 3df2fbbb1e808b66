// The scrolling picture in a dialog, as the user sees and scrolls it.

#include "connection/bild_geometrie.h"
#include "dialogs/bitmap_ctrl.h"
#include "tests/dialog_support/dialog_driver.h"
#include "tests/dialog_support/widget_look.h"
#include "tests/support/temp_folder.h"
#include "uikit/native/access.h"

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QImage>
#include <QScrollBar>

namespace {

constexpr int kPictureDialog = 7001;
constexpr CRect kPlace = {10, 10, 130, 90};
constexpr QRgb kGrey = qRgb(128, 128, 128);

const DialogTemplate kPictureTemplate = {kPictureDialog, L"Immagine", 150, 80, frameFixed, {}};

/// Every pixel tells its place, from 1 on so that none is black.
CBitmap Coded(int width, int height)
{
    CBitmap bitmap(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            bitmap.SetPixel(x, y,
                            RGB(static_cast<std::uint8_t>(1 + x % 200),
                                static_cast<std::uint8_t>(1 + y % 200), 60));
        }
    }
    return bitmap;
}

/// The control as it shows on the screen.
class CShown
{
public:
    explicit CShown(const CBitmapCtrl& control)
        : m_area(dynamic_cast<QAbstractScrollArea&>(*CNativeAccess::Widget(control))),
          m_image(m_area.viewport()->grab().toImage())
    {
    }

    QRgb At(int x, int y) const { return m_image.pixel(x, y); }
    /// Place in the picture of the pixel at the left top corner.
    QPoint Corner() const { return {qRed(At(0, 0)) - 1, qGreen(At(0, 0)) - 1}; }
    QRect InkIn(const QRect& part) const { return InkOf(m_image.copy(part), 60); }
    QSize Size() const { return m_image.size(); }
    bool HasBars(bool horizontal, bool vertical) const
    {
        return m_area.horizontalScrollBar()->isVisible() == horizontal &&
               m_area.verticalScrollBar()->isVisible() == vertical;
    }

private:
    QAbstractScrollArea& m_area;
    QImage m_image;
};

void ExpectNotFound(const CBitmapCtrl& control)
{
    const CShown shown(control);
    EXPECT_TRUE(shown.HasBars(false, false));
    EXPECT_TRUE(!shown.InkIn({0, 0, 60, 16}).isNull()) << "text at the left top corner";
    EXPECT_TRUE(shown.InkIn({0, 20, 60, 40}).isNull());
    EXPECT_EQ(shown.At(shown.Size().width() - 1, shown.Size().height() - 1), kGrey);
}

/// Runs `script` on a control in an open dialog, with the size of its client area without bars.
void WithControl(const std::function<void(CBitmapCtrl&, QSize)>& script)
{
    CDialogDriver driver;
    CDialog dialog(kPictureTemplate);
    driver.WhenOpens(kPictureDialog, [&](CDialogUser& user) {
        CBitmapCtrl control;
        ASSERT_TRUE(control.Create(styleNone, kPlace, user.Dialog()));
        const CRect client = control.GetClientRect();
        script(control, {client.Width(), client.Height()});
        user.Dialog().EndDialog(kIdOk);
    });
    dialog.DoModal();
}

TEST(BitmapControl, BarsAppearWhereThePictureIsLarger)
{
    WithControl([](CBitmapCtrl& control, QSize client) {
        EXPECT_EQ(CShown(control).At(0, 0), kGrey) << "before the first picture";
        const int bar = control.GetScrollBarWidth();
        const int w = client.width();
        const int h = client.height();
        const struct
        {
            int width, height;
            bool horizontal, vertical;
        } cases[] = {
            {10, 10, false, false},        {w, h, false, false},
            {w + 1, h - bar, true, false}, {w + 1, h - bar + 1, true, true},
            {w - bar, h + 1, false, true}, {w - bar + 1, h + 1, true, true},
        };
        for (const auto& c : cases) {
            SCOPED_TRACE(std::to_string(c.width) + " x " + std::to_string(c.height));
            const CBitmap bitmap = Coded(c.width, c.height);
            control.SetBitmap(&bitmap);
            const CShown shown(control);
            EXPECT_TRUE(shown.HasBars(c.horizontal, c.vertical));
            EXPECT_EQ(shown.Size(),
                      QSize(w - (c.vertical ? bar : 0), h - (c.horizontal ? bar : 0)));
            EXPECT_EQ(shown.Corner(), QPoint(0, 0));
            if (c.width < shown.Size().width()) {
                EXPECT_EQ(shown.At(c.width, 0), kGrey) << "beside the picture";
            }
        }
    });
}

TEST(BitmapControl, EveryMoveOfABarGoesToItsPlace)
{
    WithControl([](CBitmapCtrl& control, QSize) {
        const CBitmap bitmap = Coded(190, 150);
        control.SetBitmap(&bitmap);
        auto& area = dynamic_cast<QAbstractScrollArea&>(*CNativeAccess::Widget(control));
        QScrollBar& across = *area.horizontalScrollBar();
        QScrollBar& down = *area.verticalScrollBar();
        EXPECT_EQ(across.maximum(), 190 - area.viewport()->width());
        EXPECT_EQ(down.maximum(), 150 - area.viewport()->height());

        const auto expectAt = [&](int x, int y) {
            EXPECT_EQ(CShown(control).Corner(), QPoint(x, y));
            EXPECT_EQ(QPoint(across.value(), down.value()), QPoint(x, y));
        };
        across.triggerAction(QScrollBar::SliderPageStepAdd);
        down.triggerAction(QScrollBar::SliderSingleStepAdd);
        expectAt(20, 1);
        across.triggerAction(QScrollBar::SliderToMaximum);
        down.triggerAction(QScrollBar::SliderToMaximum);
        expectAt(21, 2);
        across.triggerAction(QScrollBar::SliderToMinimum);
        down.triggerAction(QScrollBar::SliderPageStepSub);
        expectAt(20, 0);
        across.triggerAction(QScrollBar::SliderSingleStepSub);
        down.setSliderPosition(33);
        expectAt(19, 33);
        down.setSliderPosition(down.maximum());
        down.triggerAction(QScrollBar::SliderPageStepAdd);
        expectAt(19, down.maximum());

        down.setValue(12);
        expectAt(19, 12);
        down.triggerAction(QScrollBar::SliderSingleStepAdd);
        expectAt(19, 13);
        EXPECT_EQ(QSize(across.pageStep(), down.pageStep()), area.viewport()->size());

        control.SetBitmap(&bitmap);
        expectAt(0, 0);
    });
}

TEST(BitmapControl, NoEventOfAnAxisWithoutABarMovesThePicture)
{
    WithControl([](CBitmapCtrl& control, QSize client) {
        // The wheel with Ctrl or Shift acts on bars that do not show.
        for (const QSize size : {QSize(10, 10), QSize(10, client.height() + 50),
                                 QSize(client.width() + 50, 10), client}) {
            const CBitmap bitmap = Coded(size.width(), size.height());
            control.SetBitmap(&bitmap);
            auto& area = dynamic_cast<QAbstractScrollArea&>(*CNativeAccess::Widget(control));
            for (QScrollBar* bar : {area.horizontalScrollBar(), area.verticalScrollBar()}) {
                if (!bar->isVisible()) {
                    bar->triggerAction(QScrollBar::SliderPageStepAdd);
                    bar->triggerAction(QScrollBar::SliderMove);
                }
            }
            EXPECT_EQ(CShown(control).Corner(), QPoint(0, 0))
                << size.width() << 'x' << size.height();
        }
    });
}

TEST(BitmapControl, ThereIsNoneOfASizeThatNoMemoryHolds)
{
    CDialogDriver driver;
    CDialog dialog(kPictureTemplate);
    driver.WhenOpens(kPictureDialog, [&](CDialogUser& user) {
        CBitmapCtrl control;
        EXPECT_FALSE(control.Create(styleNone, {0, 0, 400000, 400000}, user.Dialog()));
        const CBitmap bitmap = Coded(190, 150);
        control.SetBitmap(&bitmap);
        auto& area = dynamic_cast<QAbstractScrollArea&>(*CNativeAccess::Widget(control));
        area.horizontalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
        user.Dialog().EndDialog(kIdOk);
    });
    dialog.DoModal();
}

TEST(BitmapControl, WithoutAPictureTheTextStandsAlone)
{
    WithControl([](CBitmapCtrl& control, QSize) {
        const CBitmap bitmap = Coded(300, 300);
        control.SetBitmap(&bitmap);
        control.SetBitmap(nullptr);
        ExpectNotFound(control);
    });
}

TEST(BitmapControl, LoadsFilesByTheirContents)
{
    CTempFolder folder;
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(qRgb(200, 40, 40));
    for (const char* kind : {"bmp", "png", "jpg"}) {
        ASSERT_TRUE(
            image.save(QString::fromStdString((folder.Root() / "bild.dat").string()), kind));
        WithControl([&](CBitmapCtrl& control, QSize) {
            control.LoadFile(folder.Path("bild.dat"));
            const CShown shown(control);
            EXPECT_NEAR(qRed(shown.At(39, 19)), 200, 8) << kind;
            EXPECT_EQ(shown.At(40, 19), kGrey) << kind;

            control.LoadFile(folder.Path("manca.bmp"));
            ExpectNotFound(control);
            folder.WriteBytes("rotto.png", "\x89PNG\r\n\x1a\nrotto");
            control.LoadFile(folder.Path("rotto.png"));
            ExpectNotFound(control);
        });
    }
}

TEST(BitmapControl, WindowAndObjectMayEndInEitherOrder)
{
    const CBitmap bitmap = Coded(300, 300);
    CBitmapCtrl survivor;
    survivor.SetBitmap(&bitmap);
    EXPECT_FALSE(survivor.Create(styleNone, kPlace, CWnd()));

    CDialogDriver driver;
    CDialog dialog(kPictureTemplate);
    driver.WhenOpens(kPictureDialog, [&](CDialogUser& user) {
        ASSERT_TRUE(survivor.Create(styleHidden, kPlace, user.Dialog()));
        EXPECT_FALSE(survivor.Create(styleNone, kPlace, user.Dialog()));
        EXPECT_FALSE(survivor.IsWindowVisible());
        QScrollBar* bar = nullptr;
        {
            CBitmapCtrl gone;
            gone.Create(styleNone, kPlace, user.Dialog());
            gone.SetBitmap(&bitmap);
            bar = dynamic_cast<QAbstractScrollArea&>(*CNativeAccess::Widget(gone))
                      .horizontalScrollBar();
        }
        bar->triggerAction(QScrollBar::SliderPageStepAdd);
        user.Dialog().EndDialog(kIdOk);
    });
    dialog.DoModal();
    survivor.SetBitmap(&bitmap);
    EXPECT_FALSE(survivor.IsWindow());
}

} // namespace
