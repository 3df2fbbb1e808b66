#pragma once

#include <string>

/// All that the program below sees of the module: types that both know.
struct CFoundRadiator
{
    std::wstring type;
    double output;
};

__attribute__((visibility("default"))) CFoundRadiator FindRadiator(const std::wstring& product,
                                                                   double output);
__attribute__((visibility("default"))) std::string DescribeUnknownIndex();
