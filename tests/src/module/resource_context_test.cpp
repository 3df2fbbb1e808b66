#include "module/resource_context.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(ResourceContext, PutsBackWhatWasCurrentOnEveryWayOut)
{
    EXPECT_EQ(CResourceContext::Current(), ResourceOwner::host);
    try {
        const CResourceContext outer;
        {
            const CResourceContext inner;
        }
        EXPECT_EQ(CResourceContext::Current(), ResourceOwner::module);
        throw std::runtime_error("on the way out");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(CResourceContext::Current(), ResourceOwner::host);
    }
}

} // namespace
