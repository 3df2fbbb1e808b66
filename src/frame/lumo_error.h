#pragma once

#include "platform/export.h"

#include <cstdint>

/// Three numbers of the host's libraries. The module offers their assignment and uses it nowhere.
class CLumoError
{
public:
    CLumoError() = default;
    CLumoError(const CLumoError&) = default;
    ~CLumoError() = default;

    RADSEL_API CLumoError& operator=(const CLumoError& other);

    std::int32_t m_nKlasse = 0;
    std::int32_t m_nCode = 0;
    std::int32_t m_nZeile = 0;
};
