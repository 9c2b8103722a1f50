#include <windows.h>

#include <algorithm>

#include "host/platform/library.h"

namespace kestrane::host::platform {

namespace {
std::string last_error_text() {
    const DWORD code = GetLastError();
    char text[256] = {};
    const DWORD n = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                                   0, text, sizeof text, nullptr);
    std::string out(text, n);
    while (!out.empty() && (out.back() == '\n' || out.back() == '\r' || out.back() == ' '))
        out.pop_back();
    char hex[32];
    wsprintfA(hex, "error %lu", static_cast<unsigned long>(code));
    return out.empty() ? hex : out + " (" + hex + ")";
}
}  // namespace

void* load_library(const std::string& path, std::string& error) {
    // The loader wants backslashes; a path without one would be searched for.
    std::string native = path;
    std::replace(native.begin(), native.end(), '/', '\\');
    if (native.find('\\') == std::string::npos)
        native = ".\\" + native;
    // No "cannot find the module" dialog box: an error comes back instead.
    const UINT old_mode = SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    HMODULE module = LoadLibraryA(native.c_str());
    if (module == nullptr)
        error = last_error_text();
    SetErrorMode(old_mode);
    return reinterpret_cast<void*>(module);
}

void* find_symbol(void* library, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void unload_library(void* library) {
    FreeLibrary(static_cast<HMODULE>(library));
}

}  // namespace kestrane::host::platform
