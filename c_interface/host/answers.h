#pragma once

#include "c_interface/radsel_c.h"
#include "platform/bitmap.h"
#include "platform/text.h"
#include "reference_host/catalog/library/built_catalogue.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// What callbacks put their answers into.

struct radsel_names
{
    std::vector<CString> texts;
};

struct radsel_bytes
{
    std::vector<std::uint8_t> bytes;
};

struct radsel_picture
{
    CBitmap bitmap;
};

struct radsel_catalogue
{
    std::vector<reference_host::CBuiltKind> kinds;
    /// Places of the kind, and of its product, that take in what comes next.
    std::size_t kind = 0;
    std::size_t product = 0;
};
