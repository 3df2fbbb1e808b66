#pragma once

#include "tests/dialog_support/dialog_driver.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

/// Dialogs in the hands of a user, over a working place of the test's own.
class CDialogTest : public testing::Test
{
protected:
    CTempFolder m_folder;
    CSettingOverride m_local{reference_host::kSettingLocalPath, m_folder.Path()};
    CDialogDriver m_driver;
};
