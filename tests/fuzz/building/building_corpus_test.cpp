#include "tests/fuzz/corpus_replay.h"
#include "tests/fuzz/entries.h"

#include <gtest/gtest.h>

TEST(BuildingCorpus, KeptInputsAndTheirMutationsDoNoHarm)
{
    ReplayCorpus({"building", RunBuilding});
}
