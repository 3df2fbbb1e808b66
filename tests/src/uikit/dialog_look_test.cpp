#include "tests/src/uikit/all_dialogs.h"
#include "tools/dark_palette.h"
#include "uikit/native/contrast.h"

#include <QAbstractItemView>
#include <QFontDatabase>

#include <map>

namespace {

/// Looks at nothing but texts, in many fonts.
class DialogTexts : public CAllDialogsTest
{
protected:
    Complaints Check(CDialog& dialog) override
    {
        Complaints complaints;
        CheckTexts(dialog, PartsOf(dialog), complaints);
        for (const CutText& cut : FindCutListItems(WindowOf(dialog)->Client())) {
            complaints.push_back("cut in its list: " + cut.text.toStdString());
        }
        return complaints;
    }
};

TEST_P(DialogTexts, AreNowhereCut)
{
    ASSERT_TRUE(QFontDatabase::families().contains(ToNative(GetParam().face)));
    LookAtAll();
}

/// From narrow to wide. More dots to the inch come from the environment, for other runs.
const DialogFont kFontsOfManyWidths[] = {
    {L"DejaVu Serif Condensed", 8},
    {L"DejaVu Serif Condensed", 11},
    {L"DejaVu Sans Condensed", 9},
    {L"DejaVu Sans Condensed", 13},
    {L"DejaVu Serif", 9},
    {L"DejaVu Serif", 13},
    {L"DejaVu Sans", 8},
    {L"DejaVu Sans", 11},
    {L"DejaVu Sans Mono", 9},
    {L"DejaVu Sans Mono", 13},
};

INSTANTIATE_TEST_SUITE_P(Fonts, DialogTexts, ::testing::ValuesIn(kFontsOfManyWidths));

/// Colours that meet in a picture: the one that is there most, and the one that stands out most
/// from it.
std::pair<QColor, double> ContrastIn(const QImage& picture)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const QColor back =
        std::ranges::max_element(counts, {}, [](const auto& c) { return c.second; })->first;
    double contrast = 1.0;
    for (const auto& [color, count] : counts) {
        contrast = std::max(contrast, ContrastOf(QColor(color), back));
    }
    return {back, contrast};
}

/// Looks at the texts of what can be used as they are painted.
class DialogColors : public CAllDialogsTest
{
protected:
    Complaints Check(CDialog& dialog) override
    {
        QWidget* const window = CNativeAccess::Widget(dialog);
        const QImage picture = window->grab().toImage();
        Complaints complaints;
        const auto colorsOf = [&](const QWidget& widget) {
            return ContrastIn(picture.copy(QRect(widget.mapTo(window, QPoint()), widget.size())));
        };
        const auto check = [&](const QWidget& widget, const std::string& name) {
            // The letters of common sizes are smoothed, which takes some of their contrast.
            constexpr double kLeast = 3.0;
            if (widget.isEnabled() && !widget.size().isEmpty() &&
                colorsOf(widget).second < kLeast) {
                complaints.push_back("cannot be read: " + name);
            }
        };
        check(WindowOf(dialog)->Caption(), "title");
        for (const Part& part : PartsOf(dialog)) {
            CWnd handle;
            CNativeAccess::Attach(handle, part.widget);
            // A check box as small as its sign has its words in the controls around it.
            const int sign = 2 * part.place.height();
            const bool isSign = part.control.kind == ControlKind::checkBox;
            if (!handle.GetWindowText().empty() && !IsGroup(part) &&
                (!isSign || part.place.width() > sign)) {
                check(*part.widget, Name(part));
            }
        }
        for (const Part& part : PartsOf(dialog)) {
            constexpr int kSketch = 16022;
            const bool isSketch =
                part.control.id == kSketch && part.control.kind == ControlKind::canvas;
            if (isSketch && !IsReadable(Qt::black, colorsOf(*part.widget).first)) {
                complaints.push_back("dark below dark lines: " + Name(part));
            }
        }
        for (const auto* view : window->findChildren<QAbstractItemView*>()) {
            if (view->isVisible() && view->model()->rowCount() > 0) {
                check(*view->viewport(), view->metaObject()->className());
            }
        }
        return complaints;
    }
};

/// A dark palette as desktops have it, and one in which somebody set no more than the roles that
/// come to mind; each with and without the host's colours, which are light.
TEST_P(DialogColors, CanBeReadInDarkPalettes)
{
    QPalette byHand = QApplication::palette();
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        byHand.setColor(role, QColor(40, 40, 40));
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        byHand.setColor(role, Qt::white);
    }
    for (const QPalette& palette : {DarkPalette(), byHand}) {
        const CColors colors(palette);
        for (const wchar_t* const skin : {L"0", L"1"}) {
            const CSettingOverride allowed(reference_host::kSettingAllowSkin, skin);
            LookAtAll();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Template, DialogColors, ::testing::Values(DialogFont{L"Tahoma", 8}));

} // namespace
