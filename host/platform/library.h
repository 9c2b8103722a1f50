// The few things the host does differently on Linux and on Windows: loading,
// finding symbols in and unloading the module library. The handle returned
// is what the module is given on install (a dlopen handle on Linux, the
// DLL's own HMODULE on Windows, where the module finds its sound resources
// through it).
//
// The sound device is reached by the module the way the system's DirectSound
// would be: on Linux the host program exports DirectSoundCreate8 itself; on
// Windows host/sound_device.cpp is built as a dsound.dll beside the host,
// which both the host and the module import (see host/CMakeLists.txt).
#pragma once

#include <string>

namespace kestrane::host::platform {

// Loads the library at `path`; null with `error` set on failure.
void* load_library(const std::string& path, std::string& error);
// The address of an exported symbol, or null.
void* find_symbol(void* library, const char* name);
// Unloads a library load_library returned.
void unload_library(void* library);

}  // namespace kestrane::host::platform
