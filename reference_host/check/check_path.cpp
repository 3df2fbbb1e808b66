#include "reference_host/check/check_path.h"

#include "platform/exception.h"
#include "platform/format.h"
#include "platform/path.h"
#include "platform/system_error.h"
#include "reference_host/check/check_texts.h"
#include "reference_host/check/radiator_check.h"
#include "reference_host/check/valve_check.h"
#include "reference_host/files/short_list_check.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <map>
#include <set>
#include <system_error>
#include <utility>
#include <vector>

namespace reference_host {

namespace {

namespace fs = std::filesystem;

/// The folders on the way to one, by which a link that leads back is told from a folder below.
using CFolderPath = std::vector<fs::path>;

void CannotRead(const fs::path& place, const std::error_code& error, CCheckReport& report)
{
    report.unreadable.push_back(FormatFileFault({0, ReasonOf(error), TextFromPath(place)}));
}

void CheckShortListFile(const CString& file, CCheckReport& report)
{
    try {
        const CShortListFile list = ReadShortList(file);
        ++report.nShortLists;
        if (list.fault) {
            report.findings.push_back(*list.fault);
            return;
        }
        CShortListCheck check = CheckShortList(list);
        report.nTypes += static_cast<int>(check.types.size());
        std::ranges::move(check.faults, std::back_inserter(report.findings));
        std::map<CString, int> lines;
        for (int i = 0; i < list.lines.GetSize(); ++i) {
            const CString& line = list.lines[i];
            if (line.starts_with(L'[') && !lines.emplace(line, i + 1).second) {
                report.Find(list.strFile, i + 1,
                            L"il nome è già quello della riga " + FormatInt(lines[line]));
            }
        }
        const auto utf8 = std::find_if(list.lines.begin(), list.lines.end(), IsUtf8Line);
        if (utf8 != list.lines.end()) {
            report.Find(list.strFile, static_cast<int>(utf8 - list.lines.begin()) + 1, kIsUtf8);
        }
        if (!list.strLost.empty()) {
            report.Find(list.strFile, list.lines.GetSize() + 1,
                        L"l'ultima riga non ha la fine di riga e non si legge");
        }
    } catch (const CFileException& error) {
        report.unreadable.push_back(error.GetErrorMessage());
    }
}

using Checker = void (*)(const CString& file, CCheckReport& report);

Checker CheckerOf(const fs::path& file)
{
    const CString name = ToLower(TextFromPath(file.filename()));
    return name == L"hk.tga"     ? CheckRadiatorFile
           : name == L"ha.tga"   ? CheckValveFile
           : name == L"vent.txt" ? CheckShortListFile
                                 : nullptr;
}

/// Looks through a file, whose findings come in the order of its lines.
void CheckFile(Checker check, const fs::path& file, CCheckReport& report)
{
    const auto before = static_cast<std::ptrdiff_t>(report.findings.size());
    check(TextFromPath(file), report);
    const auto comesBefore = [](const CFileFault& a, const CFileFault& b) {
        return a.nLine < b.nLine;
    };
    const auto found = report.findings.begin() + before;
    const std::multiset<CFileFault, decltype(comesBefore)> sorted(found, report.findings.end(),
                                                                  comesBefore);
    std::ranges::copy(sorted, found);
}

/// Makers are told from each other by the names of their folders.
void CheckMakerNames(const std::vector<fs::path>& makers, CCheckReport& report)
{
    std::map<CString, fs::path> seen;
    for (const fs::path& maker : makers) {
        const CString name = TextFromPath(maker.filename());
        const auto [first, isNew] = seen.try_emplace(ReadName(name), maker);
        if (!isNew) {
            report.Find(TextFromPath(maker), 0,
                        L"il produttore \"" + name + L"\" si distingue da \"" +
                            TextFromPath(first->second.filename()) +
                            L"\" solo per maiuscole o spazi");
        }
    }
}

void CheckFolder(const fs::path& folder, CFolderPath& above, CCheckReport& report);

void CheckEntries(const std::vector<fs::path>& entries, CFolderPath& above, CCheckReport& report)
{
    std::vector<fs::path> makers;
    for (const fs::path& entry : entries) {
        std::error_code error;
        if (fs::is_directory(entry, error)) {
            const auto before = std::pair(report.nCatalogues, report.nValveFiles);
            CheckFolder(entry, above, report);
            if (before != std::pair(report.nCatalogues, report.nValveFiles)) {
                makers.push_back(entry);
            }
        } else if (const Checker check = CheckerOf(entry)) {
            CheckFile(check, entry, report);
        }
    }
    CheckMakerNames(makers, report);
}

void CheckFolder(const fs::path& folder, CFolderPath& above, CCheckReport& report)
{
    std::error_code error;
    const fs::path own = fs::canonical(folder, error);
    if (std::ranges::find(above, own) != above.end()) {
        return;
    }
    std::vector<fs::path> entries;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        entries.push_back(entry->path());
    }
    if (error) {
        CannotRead(folder, error, report);
    }
    std::ranges::sort(entries);
    above.push_back(own);
    CheckEntries(entries, above, report);
    above.pop_back();
}

} // namespace

bool CheckPath(const CString& path, CCheckReport& report)
{
    const fs::path place = ResolvePath(path);
    std::error_code error;
    if (fs::is_directory(place, error)) {
        CFolderPath above;
        CheckFolder(place, above, report);
        return true;
    }
    if (!fs::exists(place, error)) {
        CannotRead(place, std::make_error_code(std::errc::no_such_file_or_directory), report);
        return true;
    }
    const Checker check = CheckerOf(place);
    if (check) {
        CheckFile(check, place, report);
    }
    return check != nullptr;
}

} // namespace reference_host
