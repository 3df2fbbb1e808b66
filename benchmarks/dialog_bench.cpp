// The selection dialog on the largest product of the sample catalogues, of which it shows the 2,000
// rows that it takes at most. Windows are painted, but on no screen.
//
// dialog_keystroke: a key in the field of the shortest length, all rows taken, to the repainted
// grid. Its floor paints the grid with these rows, nothing having changed.
// dialog_opening: from the call to the painted dialog. dialog_lists: the same over a drawing with
// 5,000 layers and 5,000 blocks.

#include "frame/entry_points.h"
#include "frame/handover.h"
#include "platform/encoding.h"
#include "uikit/dialog.h"
#include "uikit/native/access.h"

#include "tests/dialog_support/dialog_run.h"
#include "tests/dialog_support/full_drawer.h"
#include "tests/dialog_support/paint_counter.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>

#include <functional>
#include <string>

using namespace reference_host;

namespace {

constexpr int kRows = 2000;
constexpr int kNames = 5000;
constexpr int kFieldLength = 18002;
constexpr int kGrid = 18001;
constexpr int kScreenHeight = 1080;
/// Longer than the dialog takes to settle after it has opened.
constexpr qint64 kSettling = 250;

/// Opens the dialog on the product and runs `work` with it, then cancels it.
class CDialogRun
{
public:
    CDialogRun() { PrepareDialogs(); }

    HK_DATEN_VDI3805_UEBERGABE uebergabe;

    void Open(const std::function<void(CDialog&)>& work, CDrawer* drawer = nullptr)
    {
        uebergabe.Hersteller = L"Lindenbrück";
        uebergabe.Art = L"Unterflurkonvektoren";
        uebergabe.Produkt = L"Bodenkanal";
        uebergabe.Leistung = 1000.0;
        uebergabe.LaengeMax = uebergabe.HoeheMax = uebergabe.TiefeMax = 100000.0;
        CString layer;
        int color = 0;
        RunDialog([&] { HeizkoerperauswahlVDI3805(drawer, &uebergabe, layer, color, true, false); },
                  work);
    }

private:
    CTempFolder m_folder;
    CSettingOverride m_catalogues{kSettingHKDir, WideFromUtf8(RADSEL_DATA_DIR "/catalogues")};
    CSettingOverride m_root{kSettingServerPath, WideFromUtf8(RADSEL_DATA_DIR "/root")};
    CSettingOverride m_workplace{kSettingLocalPath, m_folder.Path()};
    CSettingOverride m_records{kSettingDefFolder, m_folder.Path()};
};

QTableView& Grid(const CDialog& dialog)
{
    QWidget* place = CNativeAccess::Widget(dialog.GetDlgItem(kGrid));
    auto* table = qobject_cast<QTableView*>(place);
    return table != nullptr ? *table : *place->findChild<QTableView*>();
}

/// Gives the dialog the height of an ordinary screen, as one who looks through 2,000 rows does, and
/// lets it come to rest.
void Settle(CDialog& dialog)
{
    const CRect place = dialog.GetWindowRect();
    dialog.MoveWindow({0, 0, place.Width(), kScreenHeight});
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < kSettling;) {
        QApplication::processEvents();
    }
}

void CheckRows(benchmark::State& state, const QTableView& grid)
{
    if (grid.model()->rowCount() != kRows) {
        state.SkipWithError("the grid shows another number of rows");
    }
}

void KeystrokeMeasured(benchmark::State& state)
{
    CDialogRun run;
    run.Open([&](CDialog& dialog) {
        Settle(dialog);
        QTableView& grid = Grid(dialog);
        auto& field =
            dynamic_cast<QLineEdit&>(*CNativeAccess::Widget(dialog.GetDlgItem(kFieldLength)));
        CPaintCounter paints(*grid.viewport());
        int keys = 0;
        bool odd = false;
        for (auto _ : state) {
            odd = !odd;
            ++keys;
            field.selectAll();
            QKeyEvent press(QEvent::KeyPress, odd ? Qt::Key_1 : Qt::Key_2, Qt::NoModifier,
                            odd ? "1" : "2");
            QApplication::sendEvent(&field, &press);
            QApplication::sendPostedEvents();
        }
        if (paints.nPaints < keys) {
            state.SkipWithError("a key left the grid unpainted");
        }
        if (run.uebergabe.LaengeMin != (odd ? 1.0 : 2.0)) {
            state.SkipWithError("the key did not get through");
        }
        CheckRows(state, grid);
    });
}

void KeystrokeFloor(benchmark::State& state)
{
    CDialogRun().Open([&](CDialog& dialog) {
        Settle(dialog);
        QTableView& grid = Grid(dialog);
        CheckRows(state, grid);
        for (auto _ : state) {
            grid.viewport()->repaint();
        }
    });
}

void Open(benchmark::State& state, CDrawer* drawer)
{
    CDialogRun run;
    for (auto _ : state) {
        run.Open(
            [&](CDialog& dialog) {
                Grid(dialog).viewport()->repaint();
                CheckRows(state, Grid(dialog));
            },
            drawer);
    }
}

void OpeningMeasured(benchmark::State& state)
{
    Open(state, nullptr);
}

void ListsMeasured(benchmark::State& state)
{
    CFullDrawer drawer(kNames);
    Open(state, &drawer);
}

// A number of keys and paintings that is fixed, since each call opens a dialog of its own.
BENCHMARK(KeystrokeMeasured)->Name("dialog_keystroke/measured")->Iterations(60);
BENCHMARK(KeystrokeFloor)->Name("dialog_keystroke/floor")->Iterations(60);
BENCHMARK(OpeningMeasured)->Name("dialog_opening/measured")->Iterations(10);
BENCHMARK(ListsMeasured)->Name("dialog_lists/measured")->Iterations(10);

} // namespace
