#pragma once

#include "standard.h"

#include <gtest/gtest.h>
