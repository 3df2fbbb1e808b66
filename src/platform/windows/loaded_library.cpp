#include "platform/loaded_library.h"

#include "platform/windows/handle.h"

#include <psapi.h>

#include <bit>
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
    m_file.resize(kLongestPath);
    m_file.resize(GetModuleFileNameW(library, m_file.data(), kLongestPath));
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
