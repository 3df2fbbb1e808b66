#pragma once

/// Marks what one of the host's libraries offers to others.
#define HOST_API __attribute__((visibility("default")))
