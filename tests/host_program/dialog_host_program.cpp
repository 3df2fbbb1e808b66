// A host that opens the module's dialogs through the shared library, with an application object of
// its own of one kind or another.
//   radsel_dialog_host_program windowless       one without windows
//   radsel_dialog_host_program messages         none, then one with windows
//   radsel_dialog_host_program screen W H FONT  one with windows on a screen of that size; dialogs
//                                               have the font of their `template` or of `message`s

#include "frame/conn_values.h"
#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "host/host_catalog.h"
#include "host/host_identity.h"
#include "host/host_prefs.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <set>
#include <sstream>
#include <string>

namespace {

constexpr char kMessageFace[] = "DejaVu Serif";
constexpr int kMessagePixels = 12;

int g_failures = 0;

void Expect(bool holds, const std::string& what)
{
    if (!holds) {
        std::cout << "does not hold: " << what << '\n';
        ++g_failures;
    }
}

/// What is written to standard error meanwhile.
std::string ErrorsOf(const std::function<void()>& work)
{
    std::ostringstream lines;
    std::streambuf* const before = std::cerr.rdbuf(lines.rdbuf());
    work();
    std::cerr.rdbuf(before);
    return lines.str();
}

/// A valve file whose one valve has more settings than a table holds.
class CFullTable : public CSettingsCache
{
public:
    bool IsFileInCache(const CString& path) const override { return path.ends_with(L"ha.tga"); }

    void GetCacheArray(const CString& /*path*/, CStringArray& lines) const override
    {
        lines.RemoveAll();
        lines.Add(L"100;1;Valvole;");
        lines.Add(L"110;2;Termostatiche;");
        lines.Add(L"700;1;2;15;0.86;0;0;600;;;;1;;");
        for (int row = 1; row <= VDI3805_VENTIL_KV::kMaxKv + 1; ++row) {
            const CString number = std::to_wstring(row);
            lines.Add(L"710.01;" + number + L";2.0;;;" + number + L";;;0.10;0.12;");
        }
        lines.Add(L"800;" + kNumber + L";RA-1;;;Valvola;");
    }

    void AddFileToCache(const CString& /*path*/, const CStringArray& /*lines*/,
                        bool /*untilProjectChange*/) override
    {
    }

    static inline const CString kNumber = L"020001010000000000000000000001000100";
};

CFullTable cache;

/// Fetches a valve of that maker, whom no fetch has asked for before.
void FetchFullTable(const CString& maker)
{
    VDI3805_VENTIL_KV first;
    VDI3805_VENTIL_KV second;
    VDI3805GetVentil(maker, CFullTable::kNumber, L"", L"", first, second);
    Expect(first.AnzahlKv == VDI3805_VENTIL_KV::kMaxKv, "the table is filled to its end");
}

/// Shows the selection dialog on the first product that there is; its answer.
int SelectRadiator()
{
    HK_DATEN_VDI3805_UEBERGABE uebergabe;
    HK_VDI3805_HERSTELLER* const maker = ReadHKDaten();
    if (maker != nullptr && ReadVdiFile(maker->Name, &maker->pArt, uebergabe.Leistung) > 0) {
        uebergabe.Hersteller = maker->Name;
        uebergabe.Art = maker->pArt->Name;
        uebergabe.Produkt = maker->pArt->pProdukt->Name;
    }
    CString layer = L"HEIZUNG";
    int color = 7;
    const int answer = HeizkoerperauswahlVDI3805(nullptr, &uebergabe, layer, color, true, false);
    Expect(layer == L"HEIZUNG" && color == 7, "a cancelled dialog gives layer and colour back");
    return answer;
}

struct CDialogCall
{
    const char* name;
    std::function<bool()> isCancelled;
};

std::vector<CDialogCall> DialogCalls()
{
    return {
        {"HeizkoerperauswahlVDI3805", [] { return SelectRadiator() == -2; }},
        {"HeizkoerperauswahlVDI3805Tree",
         [] {
             HK_DATEN_VDI3805_UEBERGABE uebergabe;
             return HeizkoerperauswahlVDI3805Tree(&uebergabe) == -1;
         }},
        {"ShowVentDlg",
         [] {
             ConnValues connection;
             VDI3805_VENTIL_KV flow;
             VDI3805_VENTIL_KV back;
             bool flags[4] = {};
             return !ShowVentDlg(connection, flow, back, flags[0], flags[1], flags[2], flags[3],
                                 nullptr, nullptr);
         }},
        {"ShowVentVDI3805Dlg",
         [] {
             VDI3805_VENTIL_KV valve;
             return !ShowVentVDI3805Dlg(L"", L"", valve);
         }},
    };
}

/// Every dialog counts as cancelled, and a line says why.
void AskWithoutWindows(const std::string& kind, const CString& maker)
{
    for (const CDialogCall& call : DialogCalls()) {
        const std::string lines =
            ErrorsOf([&] { Expect(call.isCancelled(), kind + ": cancelled, " + call.name); });
        Expect(
            lines.ends_with("il programma non può mostrare finestre, questa vale come annullata\n"),
            kind + ": a line, " + call.name);
    }
    Expect(ErrorsOf([&] { FetchFullTable(maker); }) == "MAXKV\n",
           kind + ": messages go to standard error");
}

void RunWindowless(int& argc, char** argv)
{
    {
        const QCoreApplication application(argc, argv);
        AskWithoutWindows("QCoreApplication", L"Uno");
    }
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QGuiApplication application(argc, argv);
    AskWithoutWindows("QGuiApplication", L"Due");
}

/// Calls `look` with the first window that waits for an answer, then closes it.
void WhenModal(const std::function<void(QWidget&)>& look)
{
    QTimer::singleShot(0, qApp, [look] {
        QWidget* const window = QApplication::activeModalWidget();
        if (window == nullptr || !window->isVisible()) {
            WhenModal(look);
            return;
        }
        look(*window);
        window->close();
    });
}

/// Follows Tab around the window; false if a control that it comes to is not in sight.
bool AllCanBeReached(QWidget& window)
{
    std::set<const QWidget*> visited;
    for (QWidget* focus = window.focusWidget(); focus != nullptr && visited.insert(focus).second;
         focus = window.focusWidget()) {
        if (focus->visibleRegion().isEmpty()) {
            return false;
        }
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QApplication::sendEvent(focus, &tab);
    }
    return visited.size() > 1;
}

/// Where a message goes is decided when it comes, whatever was there when the library was loaded.
void RunMessages(int& argc, char** argv)
{
    Expect(ErrorsOf([] { FetchFullTable(L"Uno"); }) == "MAXKV\n",
           "without an application object it is a line");
    Expect(QCoreApplication::instance() == nullptr, "and none is made for it");

    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QApplication application(argc, argv);
    int boxes = 0;
    WhenModal([&](QWidget& window) {
        const auto* box = qobject_cast<QMessageBox*>(&window);
        Expect(box != nullptr && box->text() == "MAXKV", "the window is the message");
        ++boxes;
    });
    const std::string lines = ErrorsOf([] { FetchFullTable(L"Due"); });
    Expect(boxes == 1 && lines.empty(), "with windows it is a box before any dialog");
}

void MakeScreen(const QTemporaryDir& folder, const char* width, const char* height)
{
    const std::string path = folder.filePath("screen.json").toStdString();
    std::ofstream(path) << R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false,
        "screens": [{"name": "1", "x": 0, "y": 0, "width": )"
                        << width << R"(, "height": )" << height
                        << R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
    setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + path).c_str(), 1);
}

void RunOnScreen(int& argc, char** argv)
{
    const QTemporaryDir folder;
    MakeScreen(folder, argv[2], argv[3]);
    const bool inMessageFont = argv[4] == std::string("message");
    const QApplication application(argc, argv);
    const QSize screen = QGuiApplication::primaryScreen()->size();
    Expect(screen == QSize(std::atoi(argv[2]), std::atoi(argv[3])), "the screen is that large");
    QFont messages(kMessageFace);
    messages.setPixelSize(kMessagePixels);
    QApplication::setFont(messages, "QMessageBox");

    for (const CDialogCall& call : DialogCalls()) {
        int opened = 0;
        WhenModal([&](QWidget& window) {
            ++opened;
            const QFont& font = window.font();
            Expect(font.family() == (inMessageFont ? kMessageFace : "Tahoma"),
                   std::string("face, ") + call.name);
            // 12 pixels at 96 to the inch.
            Expect(std::fabs(font.pointSizeF() - (inMessageFont ? 9 : 8)) < 0.01,
                   std::string("size, ") + call.name);
            Expect(QRect(QPoint(), screen).contains(window.geometry()),
                   std::string("fits the screen, ") + call.name);
            Expect(AllCanBeReached(window), std::string("shows what Tab comes to, ") + call.name);
        });
        Expect(call.isCancelled() && opened == 1, std::string("opens, ") + call.name);
    }
}

} // namespace

// All but the cache is the reference host's.
RADSEL_HOST_IDENTITY("radsel reference host")

CSettingsCache* lmGetCacheObject()
{
    return &cache;
}

int main(int argc, char** argv)
{
    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "windowless") {
        RunWindowless(argc, argv);
    } else if (mode == "messages") {
        RunMessages(argc, argv);
    } else if (mode == "screen" && argc == 5) {
        RunOnScreen(argc, argv);
    } else {
        return EXIT_FAILURE;
    }
    return g_failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
