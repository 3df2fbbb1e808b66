// The functions of the host that would show windows are in the test program itself, as they are in
// the batch run.

#include "host/host_identity.h"

RADSEL_HOST_IDENTITY("radsel reference host")
