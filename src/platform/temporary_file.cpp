#include "platform/temporary_file.h"

#include "platform/temporary_places.h"

#include <string>

namespace fs = std::filesystem;

namespace {

/// More writers than one file ever has at a time.
constexpr int kPlaces = 8;

/// Targets whose names begin alike for as long share their places, which does no harm.
constexpr std::size_t kNameLength = 200;

fs::path PlaceOf(const fs::path& target, int number)
{
    fs::path place = ".";
    place += target.filename().native().substr(0, kNameLength);
    place += ".radsel-tmp";
    if (number > 1) {
        place += std::to_string(number);
    }
    return target.parent_path() / place;
}

} // namespace

int OpenTemporary(const fs::path& target, fs::path& temporary)
{
    int descriptor = -1;
    for (int number = 1; number <= kPlaces; ++number) {
        const fs::path place = PlaceOf(target, number);
        if (descriptor >= 0) {
            RemoveLeftover(place);
        } else if ((descriptor = TakePlace(place)) >= 0) {
            temporary = place;
        }
    }
    return descriptor >= 0 ? descriptor : MakeUnusedPlace(target.parent_path(), temporary);
}
