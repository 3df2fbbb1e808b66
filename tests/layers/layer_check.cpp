#include "tests/layers/layer_check.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace {

namespace fs = std::filesystem;

struct CRoom
{
    std::string strToolkit;
    /// The rooms it uses, and all that these use.
    std::set<std::string> reach;
};

const std::regex kOwnInclude("\\s*#\\s*include\\s*\"([^\"]+)\".*");
/// A name of the toolkit ahead of any comment or text: "Q", a capital, a small letter.
const std::regex kToolkitName("([^/\"]*[^/\"A-Za-z0-9_])?Q[A-Z][a-z].*");

class CLayerCheck
{
public:
    CLayerCheck(const fs::path& root, const std::string& table) : m_root(root)
    {
        std::istringstream lines(table);
        for (std::string line; std::getline(lines, line);) {
            std::istringstream words(line);
            std::string folder;
            words >> folder;
            CRoom& room = m_rooms[folder];
            words >> room.strToolkit;
            for (std::string used; words >> used;) {
                room.reach.insert(used);
            }
        }
        for (bool grown = true; grown;) {
            grown = false;
            for (auto& [folder, room] : m_rooms) {
                const std::set<std::string> known = room.reach;
                for (const std::string& used : known) {
                    const std::set<std::string>& further = m_rooms.at(used).reach;
                    room.reach.insert(further.begin(), further.end());
                }
                grown = grown || room.reach.size() > known.size();
            }
        }
    }

    std::vector<std::string> Run()
    {
        std::set<std::string> houses;
        for (const auto& [folder, room] : m_rooms) {
            houses.insert(folder.substr(0, folder.find('/')));
            if (room.reach.contains(folder)) {
                m_faults.push_back("table: " + folder + " uses itself by way of what it uses");
            }
        }
        for (const std::string& house : houses) {
            for (const auto& entry : fs::recursive_directory_iterator(m_root / house)) {
                const std::string kind = entry.path().extension();
                if (kind == ".h" || kind == ".cpp") {
                    CheckFile(fs::relative(entry.path(), m_root));
                }
            }
        }
        std::ranges::sort(m_faults);
        return m_faults;
    }

private:
    /// The folder of a file's room; empty if it lies in none.
    std::string RoomOf(const fs::path& file) const
    {
        fs::path folder = file.parent_path();
        while (!folder.empty() && !m_rooms.contains(folder.generic_string())) {
            folder = folder.parent_path();
        }
        return folder.generic_string();
    }

    /// Files of the module are named from its own folder, all others from the root.
    std::string RoomOfIncluded(const std::string& included) const
    {
        for (const fs::path& candidate : {fs::path("src") / included, fs::path(included)}) {
            if (fs::is_regular_file(m_root / candidate)) {
                return RoomOf(candidate);
            }
        }
        return {};
    }

    void CheckFile(const fs::path& file)
    {
        const std::string folder = RoomOf(file);
        if (folder.empty()) {
            m_faults.push_back(file.generic_string() + ": its folder is no room");
            return;
        }
        const CRoom& room = m_rooms.at(folder);
        // A room that is free of the toolkit has none of its headers to include.
        const bool hidesToolkit = room.strToolkit == "toolkit=inside" && file.extension() == ".h" &&
                                  file.parent_path() == folder;
        std::ifstream stream(m_root / file);
        int number = 0;
        for (std::string line; std::getline(stream, line);) {
            const std::string place = file.generic_string() + ':' + std::to_string(++number) + ": ";
            if (std::smatch named; std::regex_match(line, named, kOwnInclude)) {
                const std::string target = RoomOfIncluded(named[1]);
                if (target.empty()) {
                    m_faults.push_back(place + named[1].str() + " is in no room");
                } else if (target != folder && !room.reach.contains(target)) {
                    m_faults.push_back(place + folder + " may not include " + target);
                }
            }
            if (hidesToolkit && std::regex_match(line, kToolkitName)) {
                m_faults.push_back(place + "a header of " + folder + " shows the toolkit");
            }
        }
    }

    fs::path m_root;
    std::map<std::string, CRoom> m_rooms;
    std::vector<std::string> m_faults;
};

} // namespace

std::vector<std::string> FindLayerFaults(const fs::path& root, const std::string& table)
{
    return CLayerCheck(root, table).Run();
}
