#include "platform/loaded_library.h"

#include "platform/encoding.h"

#include <dlfcn.h>
#include <link.h>

#include <string>

CLoadedLibrary::CLoadedLibrary(const void* address)
{
    Dl_info info{};
    void* map = nullptr;
    if (dladdr1(address, &info, &map, RTLD_DL_LINKMAP) == 0) {
        return;
    }
    m_file = WideFromUtf8(info.dli_fname);
    m_loadedAs = WideFromUtf8(static_cast<const link_map*>(map)->l_name);
    m_base = info.dli_fbase;
}

void* CLoadedLibrary::Find(const char* symbol) const
{
    // The program itself has an empty name, by which it cannot be opened.
    const std::string file = Utf8FromWide(m_loadedAs);
    void* const library = dlopen(file.empty() ? nullptr : file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr) {
        return nullptr;
    }
    void* const found = dlsym(library, symbol);
    dlclose(library);
    Dl_info info{};
    const bool own = found != nullptr && dladdr(found, &info) != 0 && info.dli_fbase == m_base;
    return own ? found : nullptr;
}

void* CLoadedLibrary::FindAnywhere(const char* symbol)
{
    return dlsym(RTLD_DEFAULT, symbol);
}
