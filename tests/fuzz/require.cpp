#include "tests/fuzz/entries.h"

#include <stdexcept>

void Require(bool holds, const char* what)
{
    if (!holds) {
        throw std::logic_error(what);
    }
}
