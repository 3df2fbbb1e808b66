// Asks for one radiator, through a plug-in that is opened at run time if one is named.

#ifdef PLUGIN
#include <dlfcn.h>

#include <cstdio>
#else
extern "C" int AskForRadiator();
#endif

int main()
{
#ifdef PLUGIN
    void* const plugin = dlopen(PLUGIN, RTLD_NOW | RTLD_LOCAL);
    if (plugin == nullptr) {
        std::puts(dlerror());
        return 2;
    }
    const auto ask = reinterpret_cast<int (*)()>(dlsym(plugin, "AskForRadiator"));
    return ask() < 0;
#else
    return AskForRadiator() < 0;
#endif
}
