#include "benchmarks/valve_file.h"

#include "host/host_prefs.h"
#include "tests/support/setting_override.h"
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace reference_host;

namespace {

/// One group, its kinds of records in about the proportions of the sample catalogues: six data sets
/// of nine rows and two additional records, and three articles for each.
std::string MakeGroup(int number)
{
    char line[200];
    const auto format = [&line](const char* pattern, auto... values) {
        std::snprintf(line, sizeof line, pattern, values...);
        return std::string(line);
    };
    std::string text = format("110;%d;Valvole termostatiche a squadra serie %d;\n", number, number);
    text += "160;1;Testa termostatica;\n200;1;A squadra;\n400;1;Ottone nichelato;\n";
    for (int set = 1; set <= 6; ++set) {
        text += format("700;%d;2;15;0.86;0;0;600;;;;1;;\n", set);
        for (int row = 1; row <= 9; ++row) {
            text += format("710.01;%d;2.0;;;%d;;;0.%03d;0.%03d;\n", row, row, 40 + 90 * row,
                           50 + 100 * row);
        }
        text += "720.01;1;2;3;4;5;6;7;8;\n720.02;1;2;3;4;\n";
    }
    for (int article = 0; article < 18; ++article) {
        text += format("800;020101%02d01010101010101%06d0101%04d01;RA-S15-%d;;;Serie %d con "
                       "preregolazione, Squadra, DN 15, Ottone nichelato;\n",
                       article, number % 1000000, article % 6 + 1, article, number);
    }
    return text;
}

std::string MakeFile(std::size_t bytes)
{
    std::string text = "010;2004-03;Prova;2026-01-01;\n100;1;Valvole per radiatori;\n";
    text.reserve(bytes + 8192);
    for (int number = 1; text.size() < bytes; ++number) {
        text += MakeGroup(number);
    }
    return text;
}

void Load(CVentVdiKatalog& katalog, const CValveFile& file, const CString& maker)
{
    const CSettingOverride directory(kSettingVEDir, file.Directory());
    if (!katalog.LadeHersteller(maker)) {
        std::fputs("the generated valve file does not load\n", stderr);
        std::exit(EXIT_FAILURE);
    }
}

template <class Node>
void LookAtList(const Node* node)
{
    for (; node != nullptr; node = node->Next) {
        benchmark::DoNotOptimize(node);
    }
}

void LookAtRest(const VENT_VDI3805_GRUPPE& gruppe)
{
    LookAtList(gruppe.Daten.Erster());
    LookAtList(gruppe.Zusaetze.Erster());
    for (const auto* const texts : {&gruppe.Antriebe, &gruppe.Bauformen, &gruppe.Werkstoffe}) {
        LookAtList(texts->Erster());
    }
}

} // namespace

void LookAt(const CVentVdiKatalog& katalog, NodesSeen seen)
{
    for (const auto* haupt = katalog.ErsteHauptgruppe; haupt != nullptr; haupt = haupt->Next) {
        for (const auto* gruppe = haupt->Gruppen; gruppe != nullptr; gruppe = gruppe->Next) {
            if (seen != NodesSeen::groups) {
                LookAtList(gruppe->Artikel.Erster());
            }
            if (seen == NodesSeen::all) {
                LookAtRest(*gruppe);
            }
        }
    }
}

void ForgetLines(const CString& path)
{
    lmGetCacheObject()->AddFileToCache(path, {}, false);
}

CValveFile::CValveFile(std::size_t bytes)
{
    const std::string text = MakeFile(bytes);
    m_bytes = text.size();
    m_folder.WriteBytes("ha.tga", text);
}

CString CValveFile::NextMaker()
{
    const std::string name = "m" + std::to_string(++m_makers);
    std::filesystem::create_directory(m_folder.Root() / name);
    std::filesystem::create_hard_link(m_folder.Root() / "ha.tga",
                                      m_folder.Root() / name / "ha.tga");
    return CString(name.begin(), name.end());
}

double MeasurePeakMemory(CValveFile& file, NodesSeen seen)
{
    int channel[2];
    if (pipe(channel) != 0) {
        return 0.0;
    }
    const CString maker = file.NextMaker();
    const pid_t child = fork();
    if (child == 0) {
        rusage before = {};
        rusage after = {};
        getrusage(RUSAGE_SELF, &before);
        CVentVdiKatalog katalog;
        Load(katalog, file, maker);
        LookAt(katalog, seen);
        getrusage(RUSAGE_SELF, &after);
        const double bytes = 1024.0 * static_cast<double>(after.ru_maxrss - before.ru_maxrss);
        const bool written = write(channel[1], &bytes, sizeof bytes) == sizeof bytes;
        _exit(written ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    double bytes = 0.0;
    if (read(channel[0], &bytes, sizeof bytes) != sizeof bytes) {
        bytes = 0.0;
    }
    close(channel[0]);
    close(channel[1]);
    waitpid(child, nullptr, 0);
    return bytes / static_cast<double>(file.Bytes());
}

double MeasureLoad(CValveFile& file)
{
    const CString maker = file.NextMaker();
    CVentVdiKatalog katalog;
    const std::clock_t start = std::clock();
    Load(katalog, file, maker);
    LookAt(katalog, NodesSeen::all);
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    ForgetLines(katalog.DateiPfad);
    return seconds;
}
