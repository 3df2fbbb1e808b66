#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct CRoom
{
    std::string strToolkit;
    std::vector<std::string> uses;
    /// All that it may include, by way of the rooms it uses as well.
    std::set<std::string> reach;
};

/// What an include names, with its opening mark in front; empty for every other line.
std::string IncludedBy(const std::string& line)
{
    static const std::regex include("^\\s*#\\s*include\\s*([\"<][^\">]+)");
    std::smatch found;
    const bool includes =
        line.find("include") != std::string::npos && std::regex_search(line, found, include);
    return includes ? found[1].str() : std::string();
}

/// True for a name of the toolkit ahead of any comment or text: "Q", a capital, a small letter.
bool NamesToolkit(const std::string& line)
{
    static const std::regex name("^[^/\"]*\\bQ[A-Z][a-z]");
    return line.find('Q') != std::string::npos && std::regex_search(line, name);
}

/// True for a header or a macro that one kind of system has and another one has not.
bool NamesSystem(const std::string& line)
{
    static const std::regex header("^<(sys/|arpa/|net|unistd|fcntl|dlfcn|link|poll|pwd|grp|spawn|"
                                   "dirent|termios|windows|io\\.h|psapi|shellapi|shlobj|winsock)");
    return std::regex_search(IncludedBy(line), header) ||
           line.find("_WIN32") != std::string::npos || line.find("__linux__") != std::string::npos;
}

/// Holds the includes of a source tree against the table of its rooms, as the build writes it. A
/// line of the table is the folder of a room, how it stands to the toolkit, and the rooms it uses:
///
///     src/dialogs toolkit=none src/uikit src/common
///
/// A room may include itself, what it uses, and all that those may include. A file belongs to the
/// room of the nearest folder above it. What is free of the toolkit runs on every system, so that
/// there only platform, and mostly its parts, may name one. A fault names file and line and the
/// rule that is broken.
class CLayerCheck
{
public:
    CLayerCheck(const fs::path& root, const std::string& table) : m_root(root)
    {
        std::istringstream lines(table);
        for (std::string line; std::getline(lines, line);) {
            std::istringstream words(line);
            std::string folder;
            CRoom room;
            words >> folder >> room.strToolkit;
            for (std::string used; words >> used;) {
                room.uses.push_back(used);
            }
            m_rooms[folder] = std::move(room);
        }
    }

    std::vector<std::string> Run()
    {
        for (auto& [folder, room] : m_rooms) {
            Follow(folder, room.reach);
            if (room.reach.contains(folder)) {
                m_faults.push_back("table: " + folder + " uses itself by way of what it uses");
            }
        }
        std::set<std::string> houses;
        for (const auto& [folder, room] : m_rooms) {
            houses.insert(folder.substr(0, folder.find('/')));
        }
        for (const std::string& house : houses) {
            for (const auto& entry : fs::recursive_directory_iterator(m_root / house)) {
                const std::string kind = entry.path().extension().string();
                if (kind == ".h" || kind == ".cpp") {
                    CheckFile(fs::relative(entry.path(), m_root));
                }
            }
        }
        std::ranges::sort(m_faults);
        return m_faults;
    }

private:
    void Follow(const std::string& folder, std::set<std::string>& reach) const
    {
        const auto room = m_rooms.find(folder);
        if (room == m_rooms.end()) {
            return;
        }
        for (const std::string& used : room->second.uses) {
            if (reach.insert(used).second) {
                Follow(used, reach);
            }
        }
    }

    std::optional<std::string> RoomOf(const fs::path& file) const
    {
        for (fs::path folder = file.parent_path(); !folder.empty(); folder = folder.parent_path()) {
            if (m_rooms.contains(folder.generic_string())) {
                return folder.generic_string();
            }
        }
        return std::nullopt;
    }

    /// Files of the module are named from its own folder, all others from the root.
    std::optional<fs::path> Resolve(const std::string& included) const
    {
        for (const fs::path& candidate : {fs::path("src") / included, fs::path(included)}) {
            if (fs::is_regular_file(m_root / candidate)) {
                return candidate;
            }
        }
        return std::nullopt;
    }

    void CheckFile(const fs::path& file)
    {
        const auto folder = RoomOf(file);
        if (!folder) {
            m_faults.push_back(file.generic_string() + ": its folder is no room");
            return;
        }
        const CRoom& room = m_rooms.at(*folder);
        const bool open = room.strToolkit == "toolkit=open" ||
                          (room.strToolkit == "toolkit=inside" &&
                           (file.extension() == ".cpp" || file.parent_path() != *folder));
        std::ifstream stream(m_root / file);
        int number = 0;
        for (std::string line; std::getline(stream, line);) {
            ++number;
            const std::string place = file.generic_string() + ':' + std::to_string(number) + ": ";
            CheckInclude(place, line, *folder, room);
            CheckToolkit(place, line, *folder, room, open);
            if (room.strToolkit == "toolkit=none" && *folder != "src/platform" &&
                *folder != "c_interface" && NamesSystem(line)) {
                m_faults.push_back(place + "only src/platform knows one system from another");
            }
        }
    }

    void CheckInclude(const std::string& place, const std::string& line, const std::string& folder,
                      const CRoom& room)
    {
        const std::string named = IncludedBy(line);
        if (!named.starts_with('"')) {
            return;
        }
        const std::string included = named.substr(1);
        const auto target = Resolve(included);
        const auto targetRoom = target ? RoomOf(*target) : std::nullopt;
        if (!targetRoom) {
            m_faults.push_back(place + included + " is in no room");
        } else if (*targetRoom != folder && !room.reach.contains(*targetRoom)) {
            m_faults.push_back(place + folder + " may not include " + *targetRoom);
        }
    }

    void CheckToolkit(const std::string& place, const std::string& line, const std::string& folder,
                      const CRoom& room, bool open)
    {
        const std::string named = IncludedBy(line);
        if (open) {
            return;
        }
        if (named.size() > 2 && named[1] == 'Q' && std::isalpha(named[2]) != 0) {
            m_faults.push_back(place + folder + " is free of the toolkit");
        } else if (room.strToolkit == "toolkit=inside" && NamesToolkit(line)) {
            m_faults.push_back(place + "a header of " + folder + " shows the toolkit");
        }
    }

    fs::path m_root;
    std::map<std::string, CRoom> m_rooms;
    std::vector<std::string> m_faults;
};

TEST(Layers, EveryIncludeOfTheThreeHousesKeepsToTheTable)
{
    std::ifstream file(RADSEL_LAYERS);
    std::ostringstream table;
    table << file.rdbuf();
    ASSERT_NE(table.str().find("src/platform"), std::string::npos);
    EXPECT_EQ(CLayerCheck(RADSEL_SOURCE_DIR, table.str()).Run(), std::vector<std::string>());
}

} // namespace
