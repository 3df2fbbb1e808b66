#include "frame/lumo_error.h"

CLumoError& CLumoError::operator=(const CLumoError& other) = default;
