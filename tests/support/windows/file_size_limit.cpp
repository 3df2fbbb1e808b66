#include "tests/support/file_size_limit.h"

#include <gtest/gtest.h>

CFileSizeLimit::CFileSizeLimit(std::uint64_t bytes) : m_before(bytes)
{
    ADD_FAILURE() << "no limit of " << m_before << " bytes here";
}

CFileSizeLimit::~CFileSizeLimit()
{
    m_handler = nullptr;
}
