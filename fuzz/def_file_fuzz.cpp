#include "tests/fuzz/entries.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    RunDefFile({data, size});
    return 0;
}
