// Valve files and the fetching of valves.
//
// valve_file: a generated file of 50 MB that nobody has read yet becomes nodes, each of which is
// looked at; what the host's cache of lines holds is given up between the runs, untimed.
// valve_fetch: a radiator with one kind of valve in supply and return, fetched a second time.

#include "benchmarks/valve_file.h"
#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "platform/file.h"
#include "tests/support/setting_override.h"
#include "valve/ventil_abruf.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <vector>

using namespace reference_host;

namespace {

constexpr std::size_t kFileSize = 50'000'000;

CValveFile& TheFile()
{
    static CValveFile file(kFileSize);
    return file;
}

void FileMeasured(benchmark::State& state)
{
    const CSettingOverride directory(kSettingVEDir, TheFile().Directory());
    for (auto _ : state) {
        state.PauseTiming();
        const CString maker = TheFile().NextMaker();
        auto* const katalog = new CVentVdiKatalog;
        state.ResumeTiming();
        if (!katalog->LadeHersteller(maker)) {
            state.SkipWithError("the file does not load");
        }
        LookAt(*katalog, NodesSeen::all);
        state.PauseTiming();
        ForgetLines(katalog->DateiPfad);
        delete katalog;
        state.ResumeTiming();
    }
}

void FileFloor(benchmark::State& state)
{
    const CString path = VentilDateiPfad(TheFile().Directory(), TheFile().NextMaker());
    for (auto _ : state) {
        CFile file(path, CFile::modeRead);
        std::vector<std::uint8_t> bytes(static_cast<std::size_t>(file.GetLength()));
        file.Read(bytes.data(), bytes.size());
        std::vector<CString> lines;
        auto start = bytes.begin();
        while (start != bytes.end()) {
            const auto end = std::find(start, bytes.end(), std::uint8_t{'\n'});
            AppendCp1252(lines.emplace_back(), std::span(start, end));
            start = end == bytes.end() ? end : end + 1;
        }
        benchmark::DoNotOptimize(lines.data());
        state.PauseTiming();
        lines = {};
        state.ResumeTiming();
    }
}

VDI3805_VENTIL_KV Key()
{
    VDI3805_VENTIL_KV ventil;
    ventil.Hersteller = L"Prova";
    ventil.VentilNr = L"020101010101010101010100000101000101";
    return ventil;
}

/// A small file with the valve of Key().
class CSmallCatalogue
{
public:
    CSmallCatalogue()
    {
        m_folder.WriteBytes("Prova/ha.tga",
                            "100;1;Valvole;\n110;1;Termostatiche;\n"
                            "700;1;2;15;0.86;0;0;600;;;;1;;\n"
                            "710.01;1;2.0;;;1;;;0.14;0.16;\n"
                            "710.01;2;2.0;;;2;;;0.24;0.27;\n"
                            "800;020101010101010101010100000101000101;RA;;;Valvola;\n");
    }

private:
    CTempFolder m_folder;
    CSettingOverride m_directory{kSettingVEDir, m_folder.Path()};
};

void FetchMeasured(benchmark::State& state)
{
    const CSmallCatalogue catalogue;
    auto supply = Key();
    auto back = Key();
    HoleVentilDaten(supply, back);
    for (auto _ : state) {
        benchmark::DoNotOptimize(HoleVentilDaten(supply, back));
    }
}

void FetchFloor(benchmark::State& state)
{
    // The records as they are fetched, with their texts and tables.
    const CSmallCatalogue catalogue;
    auto supply = Key();
    auto back = Key();
    HoleVentilDaten(supply, back);
    const auto fetchedSupply = supply;
    const auto fetchedBack = back;
    for (auto _ : state) {
        supply = fetchedSupply;
        back = fetchedBack;
        benchmark::DoNotOptimize(&supply);
        benchmark::DoNotOptimize(&back);
    }
}

BENCHMARK(FileMeasured)->Name("valve_file/measured")->Iterations(1);
BENCHMARK(FileFloor)->Name("valve_file/floor")->Iterations(1);
BENCHMARK(FetchMeasured)->Name("valve_fetch/measured");
BENCHMARK(FetchFloor)->Name("valve_fetch/floor");

} // namespace
