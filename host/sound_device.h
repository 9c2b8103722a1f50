// The host's sound device: DirectSound-shaped calls that the module finds in
// this process (DirectSoundCreate8), as it would find DirectSound on
// Windows. Every buffer, lock, play, stop, volume and release is seen and
// logged; buffers play in simulated time, one update cycle after another, and
// can be mixed into a recording.
#pragma once

#define KESTRANE_DSOUND_PROVIDER
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "frame/dsound.h"

namespace kestrane::host {

enum class SoundOp { Play, Stop, Volume, Release };

struct SoundBuffer;

struct SoundEvent {
    SoundBuffer* buffer;
    SoundOp op;
    std::uint32_t flags;  // play flags
    std::int32_t value;   // volume
};

// What the module holds: the interface, and beside it the buffer it stands for.
struct ComBuffer {
    IDirectSoundBuffer base;
    SoundBuffer* owner;
};

struct SoundBuffer {
    ComBuffer com;
    WAVEFORMATEX format{};
    DSBUFFERDESC desc{};
    std::vector<std::uint8_t> data;
    bool playing = false;
    bool looping = false;
    bool released = false;
    double position = 0;  // frames
    std::int32_t volume = 0;
    int plays = 0;
    std::string name;  // the module's name for it, once known
};

// Faults a test can ask the device for.
struct SoundFaults {
    bool fail_device = false;
    int fail_create_at = -1;          // the n-th CreateSoundBuffer fails (0-based)
    int fail_lock_at = -1;            // the n-th Lock fails
    std::uint32_t split_lock_at = 0;  // Lock returns two regions split here (0: one region)
};

class SoundDevice {
public:
    static SoundDevice& instance();

    // Forgets every buffer (a fresh load of the module).
    void reset();
    SoundFaults faults;

    bool created() const { return created_; }
    bool released() const { return device_released_; }
    std::uint32_t cooperative_level() const { return level_; }
    int creations() const { return creations_; }

    const std::vector<SoundEvent>& log() const { return log_; }
    void clear_log() { log_.clear(); }
    const std::vector<std::unique_ptr<SoundBuffer>>& buffers() const { return buffers_; }
    // The buffer behind a module handle, or null.
    SoundBuffer* buffer(const void* handle) const;

    // One update cycle of time (1/18 s): playing buffers advance, one-shot
    // sounds that reach their end stop. Mixed into `mix` (44100 Hz stereo,
    // 16-bit) when a recording is wanted.
    void advance(std::vector<std::int16_t>* mix);

    // Service-table shaped entry points (used by the vtables).
    HRESULT create(IDirectSound8** out);
    HRESULT create_buffer(const DSBUFFERDESC* desc, IDirectSoundBuffer** out);
    HRESULT set_cooperative_level(std::uint32_t level);
    DWORD release_device();
    HRESULT lock(SoundBuffer* b, DWORD offset, DWORD bytes, LPVOID* p1, LPDWORD n1, LPVOID* p2, LPDWORD n2);
    HRESULT play(SoundBuffer* b, DWORD flags);
    HRESULT stop(SoundBuffer* b);
    HRESULT set_volume(SoundBuffer* b, LONG volume);
    DWORD release(SoundBuffer* b);

private:
    SoundDevice() { log_.reserve(4096); }
    std::vector<std::unique_ptr<SoundBuffer>> buffers_;
    std::vector<SoundEvent> log_;
    bool created_ = false;
    bool device_released_ = false;
    std::uint32_t level_ = 0;
    int creations_ = 0;
    int locks_ = 0;
};

// What the module plays, mixed with its volumes, streamed into a 44100 Hz
// stereo 16-bit WAV file.
class Recorder {
public:
    explicit Recorder(const std::string& path);
    ~Recorder();
    bool ok() const { return file_ != nullptr; }
    std::vector<std::int16_t>& cycle_buffer() { return cycle_; }
    void flush_cycle();  // appends the cycle buffer and clears it

private:
    std::FILE* file_ = nullptr;
    std::uint32_t bytes_ = 0;
    std::vector<std::int16_t> cycle_;
};

}  // namespace kestrane::host
