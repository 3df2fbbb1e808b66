#include "platform/loaded_library.h"

#include "platform/windows/handle.h"

#include <psapi.h>

#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

void* FindIn(HMODULE library, const char* symbol)
{
    return std::bit_cast<void*>(GetProcAddress(library, symbol));
}

std::vector<HMODULE> LoadedLibraries()
{
    DWORD size = 0;
    K32EnumProcessModules(GetCurrentProcess(), nullptr, 0, &size);
    std::vector<HMODULE> libraries(size / sizeof(HMODULE));
    if (K32EnumProcessModules(GetCurrentProcess(), libraries.data(), size, &size) == 0) {
        libraries.clear();
    }
    return libraries;
}

} // namespace

CLoadedLibrary::CLoadedLibrary(const void* address)
{
    HMODULE library = nullptr;
    constexpr DWORD kHow =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (GetModuleHandleExW(kHow, static_cast<const wchar_t*>(address), &library) == 0) {
        return;
    }
    m_base = library;
    constexpr DWORD kLongestPath = 32768;
    std::wstring file(kLongestPath, L'\0');
    file.resize(GetModuleFileNameW(library, file.data(), kLongestPath));
    m_file = file;
}

void* CLoadedLibrary::Find(const char* symbol) const
{
    HMODULE library = nullptr;
    constexpr DWORD kHow =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    const bool isLoaded = m_base != nullptr &&
                          GetModuleHandleExW(kHow, static_cast<const wchar_t*>(m_base), &library);
    return isLoaded ? FindIn(library, symbol) : nullptr;
}

void* CLoadedLibrary::FindAnywhere(const char* symbol)
{
    for (const HMODULE library : LoadedLibraries()) {
        if (void* const found = FindIn(library, symbol)) {
            return found;
        }
    }
    return nullptr;
}

/// A library that takes a function from another one knows it by a jump of its own, over a place
/// where the system has put the address: `jmp [rip + distance]`.
const void* CLoadedLibrary::CodeOf(const void* function)
{
    static_assert(sizeof(void*) == 8, "processors of 32 bits name the place itself");
    constexpr unsigned char kJump[] = {0xFF, 0x25};
    const auto* const code = static_cast<const unsigned char*>(function);
    if (code == nullptr || std::memcmp(code, kJump, sizeof kJump) != 0) {
        return function;
    }
    std::int32_t distance = 0;
    std::memcpy(&distance, code + sizeof kJump, sizeof distance);
    const void* target = nullptr;
    std::memcpy(&target, code + sizeof kJump + sizeof distance + distance, sizeof target);
    return target;
}
