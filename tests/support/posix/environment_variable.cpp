#include "tests/support/environment_variable.h"

const char* const kSettingsVariable = "XDG_CONFIG_HOME";
