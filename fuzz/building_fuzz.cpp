#include "tests/fuzz/entries.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    RunBuilding({data, size});
    return 0;
}
