#pragma once

#include "tests/support/temp_folder.h"
#include "workbench/building/building_json.h"
#include "workbench/building/json_fields.h"

#include <gtest/gtest.h>

#include <string>

namespace workbench {

/// Reads buildings from texts of the test's own.
class CBuildingFixture : public testing::Test
{
protected:
    CBuilding Read(const std::string& bytes) const
    {
        m_folder.WriteBytes("casa.json", bytes);
        return ReadBuilding(m_folder.Path("casa.json"));
    }

    /// What the reader complains about, without the path in front; empty if it does not.
    std::string ErrorOf(const std::string& bytes) const
    {
        try {
            Read(bytes);
            return {};
        } catch (const CContentException& error) {
            const CString front = m_folder.Path("casa.json") + L": ";
            EXPECT_TRUE(error.GetErrorMessage().starts_with(front)) << error.what();
            return std::string(error.what()).substr(front.size());
        }
    }

    /// The text with the first `from` in it replaced.
    static std::string Replaced(std::string text, const std::string& from, const std::string& to)
    {
        const std::size_t at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        return text.replace(at, from.size(), to);
    }

    CTempFolder m_folder;
};

} // namespace workbench
