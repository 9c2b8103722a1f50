#include "frame/resources.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#endif

namespace kestrane {

#if defined(_WIN32)

bool find_raw_resource(std::uintptr_t instance, const char* name, Blob& out) {
    HMODULE module = reinterpret_cast<HMODULE>(instance);
    HRSRC found = FindResourceA(module, name, MAKEINTRESOURCEA(10));
    if (found == nullptr)
        return false;
    HGLOBAL loaded = LoadResource(module, found);
    if (loaded == nullptr)
        return false;
    const void* locked = LockResource(loaded);
    if (locked == nullptr)
        return false;
    out.data = static_cast<const u8*>(locked);
    out.size = SizeofResource(module, found);
    return true;
}

bool map_file(const char* name, MappedFile& out) {
    HANDLE file = CreateFileA(name, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD size = GetFileSize(file, nullptr);
    HANDLE mapping = CreateFileMappingA(file, nullptr, PAGE_READONLY, 0, 0, nullptr);
    if (mapping == nullptr) {
        CloseHandle(file);
        return false;
    }
    void* view = MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, 0);
    CloseHandle(mapping);
    CloseHandle(file);
    if (view == nullptr || size == INVALID_FILE_SIZE) {
        if (view != nullptr)
            UnmapViewOfFile(view);
        return false;
    }
    out.view.data = static_cast<const u8*>(view);
    out.view.size = size;
    return true;
}

void unmap_file(MappedFile& file) {
    if (file.view.data != nullptr)
        UnmapViewOfFile(file.view.data);
    file.view = Blob{};
}

#else

// The table of embedded waves, generated at build time.
struct EmbeddedResource {
    const char* name;
    const u8* begin;
    const u8* end;
};
extern const EmbeddedResource kEmbeddedResources[];
extern const std::size_t kEmbeddedResourceCount;

bool find_raw_resource(std::uintptr_t, const char* name, Blob& out) {
    for (std::size_t i = 0; i < kEmbeddedResourceCount; ++i) {
        if (std::strcmp(kEmbeddedResources[i].name, name) == 0) {
            out.data = kEmbeddedResources[i].begin;
            out.size = static_cast<std::size_t>(kEmbeddedResources[i].end - kEmbeddedResources[i].begin);
            return true;
        }
    }
    return false;
}

bool map_file(const char* name, MappedFile& out) {
    int fd = open(name, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    struct stat st;
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_size <= 0) {
        close(fd);
        return false;
    }
    void* view = mmap(nullptr, static_cast<std::size_t>(st.st_size), PROT_READ, MAP_PRIVATE, fd, 0);
    close(fd);
    if (view == MAP_FAILED)
        return false;
    out.view.data = static_cast<const u8*>(view);
    out.view.size = static_cast<std::size_t>(st.st_size);
    return true;
}

void unmap_file(MappedFile& file) {
    if (file.view.data != nullptr)
        munmap(const_cast<u8*>(file.view.data), file.view.size);
    file.view = Blob{};
}

#endif

}  // namespace kestrane
