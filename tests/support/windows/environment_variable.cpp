#include "tests/support/environment_variable.h"

const char* const kSettingsVariable = "APPDATA";
