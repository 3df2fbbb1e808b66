#include "platform/encoding.h"
#include "workbench/batch.h"

#include <iostream>

int main(int argc, char* argv[])
{
    std::vector<CString> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(WideFromUtf8(argv[i]));
    }
    return static_cast<int>(RunBatch(arguments, std::cout, std::cerr));
}
