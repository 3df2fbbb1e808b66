#pragma once

#include "tests.h"
#include "toolkit.h"
