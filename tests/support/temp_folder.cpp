#include "tests/support/temp_folder.h"

#include "platform/path.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

namespace {

std::u8string FromUtf8(const std::string& name)
{
    return {name.begin(), name.end()};
}

} // namespace

CTempFolder::CTempFolder()
{
    std::random_device random;
    do {
        m_root =
            std::filesystem::temp_directory_path() / ("radsel_test_" + std::to_string(random()));
    } while (!std::filesystem::create_directory(m_root));
}

CTempFolder::~CTempFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_root, ignored);
}

CString CTempFolder::Path(const std::string& name) const
{
    return TextFromPath(name.empty() ? m_root : m_root / FromUtf8(name));
}

void CTempFolder::WriteBytes(const std::string& name, const std::string& bytes) const
{
    const std::filesystem::path path = m_root / FromUtf8(name);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << bytes;
    file.close();
    ASSERT_TRUE(file) << path;
}

std::string CTempFolder::ReadBytes(const std::string& name) const
{
    std::ifstream file(m_root / FromUtf8(name), std::ios::binary);
    EXPECT_TRUE(file) << m_root / FromUtf8(name);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool CTempFolder::Exists(const std::string& name) const
{
    return std::filesystem::exists(m_root / FromUtf8(name));
}
