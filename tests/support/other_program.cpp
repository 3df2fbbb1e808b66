#include "tests/support/other_program.h"

#include "platform/environment.h"

CString PathOfOther()
{
    return ReadSystemEnvironment(L"RADSEL_OTHER_PATH").value_or(CString());
}
