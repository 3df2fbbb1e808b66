// Version, reasons and defaults: what may be asked at any time, by any thread.

#include "c_interface/radsel_c.h"
#include "c_interface/records/call_fault.h"
#include "c_interface/records/records.h"
#include "c_interface/records/sized_record.h"
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

void radsel_row_init(radsel_row* row, size_t size)
{
    Init(row, size, DefaultRow());
}

void radsel_request_init(radsel_request* request, size_t size)
{
    Init(request, size, DefaultRequest());
}

void radsel_valve_init(radsel_valve* valve, size_t size)
{
    Init(valve, size, DefaultValve());
}

void radsel_connection_init(radsel_connection* connection, size_t size)
{
    Init(connection, size, DefaultConnection());
}

void radsel_connection_checks_init(radsel_connection_checks* checks, size_t size)
{
    Init(checks, size, DefaultChecks());
}

void radsel_drawn_init(radsel_drawn* drawn, size_t size)
{
    Init(drawn, size, DefaultDrawn());
}

void radsel_layer_init(radsel_layer* layer, size_t size)
{
    Init(layer, size, DefaultLayer());
}

void radsel_error_numbers_init(radsel_error_numbers* numbers, size_t size)
{
    Init(numbers, size, {});
}

void radsel_host_init(radsel_host* host, size_t size)
{
    Init(host, size, {});
}

void radsel_drawing_init(radsel_drawing* drawing, size_t size)
{
    Init(drawing, size, {});
}

void radsel_dummy_call(void)
{
    DummyCall();
}
