#include "tests/fuzz/corpus_replay.h"
#include "tests/fuzz/entries.h"

#include <gtest/gtest.h>

TEST(DxfCorpus, KeptInputsAndTheirMutationsDoNoHarm)
{
    ReplayCorpus({"dxf_blocks", RunDxfBlocks});
}
