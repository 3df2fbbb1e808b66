#pragma once

#include "platform/export.h"

/// What a library of a host may say about itself, so that the module can tell a host that was put
/// together wrongly: libraries of two hosts mixed, or made for another interface. No library has to
/// say it; five that are silent are taken as they are.

/// The number of the interface that the headers of this folder declare. The module takes hosts of
/// its own number only: another one asks other functions of its host, or has them or its records in
/// another form.
inline constexpr int kHostInterfaceVersion = 1;

/// C++ text and classes stay out of it, so that any two builds can read each other's.
struct CHostIdentity
{
    int interfaceVersion;
    /// The host's name in UTF-8, the same in all of its libraries.
    const char* host;
};

/// The function by which a library is asked for its identity, and its name.
using HostIdentityFunction = const CHostIdentity* (*)();
inline constexpr char kHostIdentityFunction[] = "RadselHostIdentity";

/// Stands once in each library of a host (or once in the program that is all of them), outside of
/// every namespace: RADSEL_HOST_IDENTITY("my CAD"). A program that replaces single functions of
/// another host names that host.
#define RADSEL_HOST_IDENTITY(name)                                                                 \
    extern "C" HOST_API const CHostIdentity* RadselHostIdentity()                                  \
    {                                                                                              \
        static const CHostIdentity identity = {kHostInterfaceVersion, name};                       \
        return &identity;                                                                          \
    }
