#include "platform/encoding.h"
#include "workbench/arguments.h"
#include "workbench/batch.h"
#include "workbench/connection_list.h"
#include "workbench/connection_run.h"
#include "workbench/radiator_run.h"
#include "workbench/tree_run.h"

#include <algorithm>
#include <iostream>
#include <iterator>

int main(int argc, char* argv[])
{
    std::vector<CString> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(WideFromUtf8(argv[i]));
    }
    if (std::ranges::find(arguments, L"--connection-dialog") != arguments.end()) {
        return static_cast<int>(RunConnectionDialog(arguments, std::cout, std::cerr));
    }
    if (std::ranges::find(arguments, kTreeDialogOption) != arguments.end()) {
        return static_cast<int>(RunTreeDialog(arguments, std::cout, std::cerr));
    }
    if (std::ranges::find(arguments, kRadiatorDialogOption) != arguments.end()) {
        return static_cast<int>(RunRadiatorDialog(arguments, std::cout, std::cerr));
    }
    const auto listing = std::ranges::find(arguments, L"--list-connections");
    if (listing == arguments.end()) {
        return static_cast<int>(RunBatch(arguments, std::cout, std::cerr));
    }
    const auto file = std::next(listing);
    return static_cast<int>(
        ListConnections(file == arguments.end() ? CString() : *file, std::cout, std::cerr));
}
