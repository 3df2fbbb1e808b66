#include "host/host_identity.h"

RADSEL_HOST_IDENTITY("radsel reference host")
