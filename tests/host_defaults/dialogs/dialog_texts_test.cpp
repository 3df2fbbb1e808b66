#include "host/host_base.h"
#include "host/host_prompts.h"
#include "host_defaults/dialogs/qt_application.h"
#include "tests/dialog_support/empty_drawer.h"
#include "tests/host_defaults/host_dialog_driver.h"
#include "tests/look/cut_texts.h"
#include "tests/look/fonts.h"

#include <gtest/gtest.h>

#include <QTreeWidget>

#include <functional>
#include <iterator>
#include <vector>

using namespace host_defaults;

namespace {

class CNamedLayers : public CEmptyDrawer
{
public:
    void GetLayerNames(CStringArray& names, int) override { names.Add(L"RISCALDAMENTO_PT"); }
};

} // namespace

TEST(HostDialogs, ShowTheirTextsWholeInEveryFont)
{
    ASSERT_TRUE(EnsureWindows());
    CNamedLayers drawer;
    CString layer = L"RISCALDAMENTO_PT";
    int color = 255;
    int alpha = 200;
    const std::function<void()> dialogs[] = {
        [&] { ShowBigLayerDlg(&drawer, layer, color); },
        [&] { GetColorDlg(color); },
        [&] { ShowTransDlg(alpha); },
    };
    std::vector<QFont> fonts(std::begin(kDesktopFonts), std::end(kDesktopFonts));
    fonts.emplace_back("DejaVu Sans", 26); // as 13 at twice the dots to the inch
    for (const QFont& font : fonts) {
        const CDesktopFont desktop(font);
        for (const auto& open : dialogs) {
            OnNextDialog([&](QWidget& dialog) {
                QApplication::processEvents();
                EXPECT_EQ(Describe(FindCutTexts(dialog)), "") << font.toString().toStdString();
                for (const QTreeWidget* const list : dialog.findChildren<QTreeWidget*>()) {
                    EXPECT_GE(list->visualItemRect(list->topLevelItem(0)).height(),
                              list->fontMetrics().height());
                }
                dialog.close();
            });
            open();
        }
    }
}
