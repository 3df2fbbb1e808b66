#include "platform/encoding.h"
#include "reference_host/check/check_run.h"

#include <iostream>
#include <vector>

int main(int argc, char* argv[])
{
    std::vector<CString> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(WideFromUtf8(argv[i]));
    }
    return static_cast<int>(reference_host::RunCheck(arguments, std::cout, std::cerr));
}
