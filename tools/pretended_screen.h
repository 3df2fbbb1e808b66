#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

/// A screen of that size for the toolkit's platform without one, which has a small one of its own
/// otherwise, so that large windows scroll. To be made before the application object and to live
/// until that is there. Does nothing where the caller has chosen another platform.
class CPretendedScreen
{
public:
    CPretendedScreen(int width, int height)
        : m_path(std::filesystem::temp_directory_path() /
                 ("radsel-screen-" + std::to_string(getpid()) + ".json"))
    {
        const char* const chosen = std::getenv("QT_QPA_PLATFORM");
        if (chosen != nullptr && chosen != std::string("offscreen")) {
            return;
        }
        std::ofstream(m_path)
            << R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": true, "screens":)"
            << R"([{"name": "1", "x": 0, "y": 0, "width": )" << width << R"(, "height": )" << height
            << R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
        setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + m_path.string()).c_str(), 1);
    }
    ~CPretendedScreen()
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    CPretendedScreen(const CPretendedScreen&) = delete;
    CPretendedScreen& operator=(const CPretendedScreen&) = delete;

private:
    std::filesystem::path m_path;
};

/// A side that no window reaches.
inline constexpr int kAmple = 16000;
