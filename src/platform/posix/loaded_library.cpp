#include "platform/loaded_library.h"

#include <dlfcn.h>
#include <link.h>

CLoadedLibrary::CLoadedLibrary(const void* address)
{
    Dl_info info{};
    if (dladdr(address, &info) == 0) {
        return;
    }
    m_file = info.dli_fname;
    m_base = info.dli_fbase;
}

void* CLoadedLibrary::Find(const char* symbol) const
{
    Dl_info info{};
    void* map = nullptr;
    if (m_base == nullptr || dladdr1(m_base, &info, &map, RTLD_DL_LINKMAP) == 0) {
        return nullptr;
    }
    // The program itself has an empty name, by which it cannot be opened.
    const char* const file = static_cast<const link_map*>(map)->l_name;
    void* const library = dlopen(*file == '\0' ? nullptr : file, RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr) {
        return nullptr;
    }
    void* const found = dlsym(library, symbol);
    dlclose(library);
    const bool own = found != nullptr && dladdr(found, &info) != 0 && info.dli_fbase == m_base;
    return own ? found : nullptr;
}

void* CLoadedLibrary::FindAnywhere(const char* symbol)
{
    return dlsym(RTLD_DEFAULT, symbol);
}

/// The linker has one address of a function for all libraries.
const void* CLoadedLibrary::CodeOf(const void* function)
{
    return function;
}
