// Records as a caller begins with them, of any thread.

#include "c_interface/radsel_c.h"
#include "c_interface/records/records.h"
#include "c_interface/records/sized_record.h"

using namespace c_interface;

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
