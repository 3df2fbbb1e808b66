#pragma once

#include "platform/encoding.h"
#include "reference_host/prefs/host_settings.h"
#include "tests/support/temp_folder.h"
#include "tests/workbench/building/json_at.h"
#include "workbench/batch/command_line.h"

#include <gtest/gtest.h>

#include <sstream>

namespace workbench {

inline const CString kData = WideFromUtf8(RADSEL_DATA_DIR);
inline const CString kSampleBuilding = kData + L"/buildings/villa-dei-tigli.json";

/// Runs of one of the workbench's programs over the sample building.
class CBatchFixture : public testing::Test
{
protected:
    explicit CBatchFixture(const CProgram& program) : m_program(program) {}

    ~CBatchFixture() override
    {
        reference_host::ClearHostSettingOverride(reference_host::kSettingHKDir);
        reference_host::ClearHostSettingOverride(reference_host::kSettingVEDir);
    }

    /// Runs over the sample data; `more` arguments win over these.
    ExitCode Run(const std::vector<CString>& more)
    {
        std::vector<CString> arguments = {
            L"--building",         kSampleBuilding,    L"--catalogues", kData + L"/catalogues",
            L"--valve-catalogues", kData + L"/valves", L"--output",     m_folder.Path("out")};
        arguments.insert(arguments.end(), more.begin(), more.end());
        m_out.str({});
        m_err.str({});
        return RunCommandLine(m_program, arguments, false, m_out, m_err);
    }

    CJsonAt ReadJson() const { return CJsonAt(m_folder.ReadBytes("out/corpi-scaldanti.json")); }

    const CProgram& m_program;
    CTempFolder m_folder;
    std::ostringstream m_out;
    std::ostringstream m_err;
};

} // namespace workbench
