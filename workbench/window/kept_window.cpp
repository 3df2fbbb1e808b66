#include "workbench/window/kept_window.h"

#include "platform/path.h"
#include "reference_host/prefs/host_settings.h"
#include "workbench/toolkit/qt_text.h"

#include <QMainWindow>

#include <filesystem>
#include <system_error>

namespace workbench {

namespace {

constexpr wchar_t kPlace[] = L"WorkbenchPlace";
constexpr wchar_t kDocks[] = L"WorkbenchDocks";
constexpr wchar_t kFolder[] = L"WorkbenchFolder";

QByteArray Stored(const wchar_t* key)
{
    return QByteArray::fromBase64(ToQt(reference_host::GetHostSetting(key, {})).toLatin1());
}

void Store(const wchar_t* key, const QByteArray& bytes)
{
    reference_host::StoreHostSetting(key, FromQt(QString::fromLatin1(bytes.toBase64())));
}

} // namespace

void RestoreWindow(QMainWindow& window)
{
    if (window.restoreGeometry(Stored(kPlace))) {
        window.restoreState(Stored(kDocks));
    }
}

void KeepWindow(const QMainWindow& window)
{
    Store(kPlace, window.saveGeometry());
    Store(kDocks, window.saveState());
}

CString LastFolder()
{
    const CString folder = reference_host::GetHostSetting(kFolder, {});
    std::error_code error;
    return std::filesystem::is_directory(ResolvePath(folder), error) ? folder : CString();
}

void KeepFolderOf(const CString& path)
{
    reference_host::StoreHostSetting(kFolder, TextFromPath(ResolvePath(path).parent_path()));
}

} // namespace workbench
