#include "tests/fuzz/entries.h"
#include "workbench/building/building_json.h"
#include "workbench/building/json_fields.h"

#include <optional>
#include <string>

using namespace workbench;

namespace {

CBuilding Parse(const std::string& bytes)
{
    return ReadBuilding(ParseJson(bytes, L"casa.json"));
}

std::optional<CBuilding> ParseDoubtful(const std::string& bytes)
{
    try {
        return Parse(bytes);
    } catch (const CContentException& error) {
        Require(error.GetErrorMessage().starts_with(L"casa.json: "), "a fault names the file");
        return std::nullopt;
    }
}

} // namespace

void RunBuilding(std::span<const std::uint8_t> bytes)
{
    const auto building = ParseDoubtful(std::string(bytes.begin(), bytes.end()));
    if (!building) {
        return;
    }
    const std::string written = FormatBuilding(*building);
    const CBuilding again = Parse(written);
    Require(FormatBuilding(again) == written, "a building reads back as it was written");
    Require(IsSameBuilding(*building, again), "and counts as the same");
}
