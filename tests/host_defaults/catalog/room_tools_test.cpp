#include "host/host_catalog.h"

#include <gtest/gtest.h>

#include <utility>

TEST(RoomTools, TheFloorStandsBeforeTheFirstPoint)
{
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"1.05", L"1"},     {L"Piano terra.Cucina", L"Piano terra"},
        {L" 1 .05.b", L"1"}, {L"Cucina", L""},
        {L".Cucina", L""},   {L"  .Cucina", L""},
        {L"", L""},
    };
    for (const auto& [raum, geschoss] : cases) {
        EXPECT_EQ(CRoomTools::GetFloorName(raum), geschoss);
    }
}
