#include <dlfcn.h>

#include "host/platform/library.h"

namespace kestrane::host::platform {

void* load_library(const std::string& path, std::string& error) {
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
        const char* why = dlerror();
        error = why ? why : "unknown error";
    }
    return handle;
}

void* find_symbol(void* library, const char* name) {
    return dlsym(library, name);
}

void unload_library(void* library) {
    dlclose(library);
}

}  // namespace kestrane::host::platform
