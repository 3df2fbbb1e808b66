// Version and reasons: what may be asked at any time, by any thread.

#include "c_interface/radsel_c.h"
#include "c_interface/records/call_fault.h"
#include "frame/entry_points.h"

using namespace c_interface;

int radsel_c_version(void)
{
    return RADSEL_C_VERSION;
}

const char* radsel_last_error(void)
{
    return LastReason().text.c_str();
}

const char* radsel_last_error_file(void)
{
    return LastReason().file.c_str();
}

int radsel_last_error_line(void)
{
    return LastReason().line;
}

void radsel_dummy_call(void)
{
    DummyCall();
}
