#include "tests/support/temp_folder.h"

#include "platform/path.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

CTempFolder::CTempFolder()
{
    std::string name = (std::filesystem::temp_directory_path() / "radsel_test_XXXXXX").string();
    if (!mkdtemp(name.data())) {
        throw std::system_error(errno, std::generic_category(), name);
    }
    m_root = name;
}

CTempFolder::~CTempFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_root, ignored);
}

CString CTempFolder::Path(const std::string& name) const
{
    return TextFromPath(name.empty() ? m_root : m_root / name);
}

void CTempFolder::WriteBytes(const std::string& name, const std::string& bytes) const
{
    const std::filesystem::path path = m_root / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << bytes;
    file.close();
    ASSERT_TRUE(file) << path;
}

std::string CTempFolder::ReadBytes(const std::string& name) const
{
    std::ifstream file(m_root / name, std::ios::binary);
    EXPECT_TRUE(file) << m_root / name;
    return {std::istreambuf_iterator<char>(file), {}};
}

bool CTempFolder::Exists(const std::string& name) const
{
    return std::filesystem::exists(m_root / name);
}
