#include "tests/fuzz/corpus_replay.h"
#include "tests/fuzz/entries.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int kFewer = 500;

} // namespace

class CFuzzCorpusTest : public testing::TestWithParam<CFuzzTarget>
{
};

TEST_P(CFuzzCorpusTest, KeptInputsAndTheirMutationsDoNoHarm)
{
    ReplayCorpus(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Targets, CFuzzCorpusTest,
                         testing::Values(CFuzzTarget{"ventil_katalog", RunVentilKatalog},
                                         CFuzzTarget{"catalogue", RunCatalogue},
                                         CFuzzTarget{"archive", RunArchive},
                                         CFuzzTarget{"text_file", RunTextFile},
                                         CFuzzTarget{"punkt_text", RunPunktText},
                                         CFuzzTarget{"kurzliste", RunKurzliste},
                                         CFuzzTarget{"heizsysteme", RunHeizsysteme},
                                         CFuzzTarget{"platzierung", RunPlatzierung, kFewer},
                                         CFuzzTarget{"settings", RunSettings, kFewer},
                                         CFuzzTarget{"def_file", RunDefFile, kFewer}),
                         [](const auto& info) { return std::string(info.param.lpszName); });
