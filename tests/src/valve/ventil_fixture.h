#pragma once

#include "platform/encoding.h"
#include "platform/format.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "tests/support/ventil_baum.h"

#include <gtest/gtest.h>

#include <string>

/// Bytes of a file with these records, which stand in one text with "|" between them.
inline std::string Saetze(const std::string& records)
{
    std::string bytes;
    for (const char c : records.empty() ? records : records + '|') {
        bytes += c == '|' ? std::string("\r\n") : std::string(1, c);
    }
    return bytes;
}

/// An ident text of 36 digits with the groups that matter; each text number has two digits.
inline std::string TgaNr(const std::string& typ, const std::string& datensatz,
                         const std::string& antrieb = "00", const std::string& bauform = "00",
                         const std::string& werkstoff = "00")
{
    return typ + "00" + antrieb + bauform + "0000000000" + werkstoff + "0000000000" + datensatz +
           "00";
}

/// A valve data folder of the test's own.
class CVentilTest : public testing::Test
{
protected:
    /// Writes a maker's file.
    void Schreibe(const std::string& hersteller, const std::string& bytes)
    {
        m_folder.WriteBytes(hersteller + "/ha.tga", bytes);
    }

    /// Writes the file of a maker that was never read before, and returns his name.
    CString NeuerHersteller(const std::string& bytes)
    {
        CString name = L"Prova" + FormatInt(++m_nMakers);
        Schreibe(Utf8FromWide(name), bytes);
        return name;
    }

    CTempFolder m_folder;
    CSettingOverride m_setting{reference_host::kSettingVEDir, m_folder.Path()};

private:
    int m_nMakers = 0;
};
