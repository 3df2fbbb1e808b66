// The filter pass of a product in memory.
//
// filter_none: no row is taken, refused by the last test, so that every row costs all tests.
// filter_taken: 2,000 rows are taken; a pass frees the rows of the pass before it, and so does the
// floor.

#include "radiator/hk_vdi3805.h"

#include "tests/support/memory_catalogue.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace {

void Fill(CMemoryCatalogue& catalogue, int rows)
{
    for (int i = 0; i < rows; ++i) {
        catalogue.Add(i % 3 == 0 ? L'S' : L'M', 300.0 + 100.0 * (i % 7), 102.0,
                      400.0 + 100.0 * (i % 27), 1000.0 + i % 700, 2.0 + i % 20, 6.0,
                      L"Tipo 22 con nome");
    }
}

/// Made once, since where the rows of a chain lie in memory counts as much as what is done with
/// them.
CMemoryCatalogue& LongCatalogue()
{
    struct CLongCatalogue : CMemoryCatalogue
    {
        CLongCatalogue() { Fill(*this, 100000); }
    };
    static CLongCatalogue catalogue;
    return catalogue;
}

void FilterPass(benchmark::State& state, CMemoryCatalogue& catalogue, int expected, bool takeAll)
{
    auto uebergabe = catalogue.Uebergabe(takeAll ? 1000.0 : 1.0e9);
    CHKVdi3805 katalog(&uebergabe);
    katalog.SetAlleAnzeigen(takeAll ? 1 : 0);
    for (auto _ : state) {
        katalog.Filtern();
        benchmark::DoNotOptimize(katalog.GetErgebnis());
    }
    int count = 0;
    for (const auto* row = katalog.GetErgebnis(); row != nullptr; row = row->pNext) {
        ++count;
    }
    if (count != expected) {
        state.SkipWithError("the pass took another number of rows");
    }
}

void FilterNoneMeasured(benchmark::State& state)
{
    FilterPass(state, LongCatalogue(), 0, false);
}

void FilterNoneFloor(benchmark::State& state)
{
    CMemoryCatalogue& catalogue = LongCatalogue();
    const auto wish = catalogue.Uebergabe(1.0e9);
    const double low = 0.9 * wish.Leistung;
    const double high = 1.1 * wish.Leistung;
    for (auto _ : state) {
        int taken = 0;
        for (const auto* row = catalogue.Produkt().pTyp; row != nullptr; row = row->pNext) {
            const HK_DATEN_VDI3805& d = row->Daten;
            double standard = d.LeistungEN442;
            if (d.Bauart == L'M' || d.Bauart == L'm') {
                standard = d.LeistungEN442 * d.Laenge / 1000.0;
            } else if (d.Bauart == L'S' || d.Bauart == L's') {
                standard = d.LeistungEN442 * d.Elemente;
            }
            const double whole = std::floor(standard + 0.5);
            const double design = std::floor(whole * wish.Umrechnungsfaktor + 0.5);
            const bool fits = wish.HoeheMin - 10.0 <= d.Hoehe && d.Hoehe <= wish.HoeheMax + 10.0 &&
                              wish.TiefeMin <= d.Tiefe && d.Tiefe <= wish.TiefeMax &&
                              wish.LaengeMin <= d.Laenge && d.Laenge <= wish.LaengeMax &&
                              low <= design && design <= high;
            taken += fits ? 1 : 0;
        }
        benchmark::DoNotOptimize(taken);
    }
}

void FilterTakenMeasured(benchmark::State& state)
{
    CMemoryCatalogue catalogue;
    Fill(catalogue, 2000);
    FilterPass(state, catalogue, 2000, true);
}

void FilterTakenFloor(benchmark::State& state)
{
    CMemoryCatalogue catalogue;
    Fill(catalogue, 2000);
    std::vector<std::unique_ptr<HK_VDI3805_TYP>> rows;
    rows.reserve(2000);
    for (auto _ : state) {
        rows.clear();
        for (const auto* row = catalogue.Produkt().pTyp; row != nullptr; row = row->pNext) {
            auto fresh = std::make_unique<HK_VDI3805_TYP>();
            *fresh = *row;
            rows.push_back(std::move(fresh));
        }
        benchmark::DoNotOptimize(rows.data());
    }
}

// A number of passes that is fixed, since each call makes rows of its own.
BENCHMARK(FilterNoneMeasured)->Name("filter_none/measured")->Iterations(150);
BENCHMARK(FilterNoneFloor)->Name("filter_none/floor")->Iterations(150);
BENCHMARK(FilterTakenMeasured)->Name("filter_taken/measured");
BENCHMARK(FilterTakenFloor)->Name("filter_taken/floor");

} // namespace
