// The module's sounds: the generated waves, the wave parser, and the player
// as the sound device sees it (loading, fill, volumes, faults, release,
// the fallback to files of the current folder).
#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "frame/wave.h"
#include "host/host.h"

namespace {

using namespace kestrane;
using namespace kestrane::host;

struct Expected {
    const char* name;
    int channels, rate, bits;
    u32 data_bytes;
    i32 volume;
};

const Expected kTable[] = {
    {"CLICK", 1, 22050, 16, 3828, -2000},
    {"HI", 1, 22050, 16, 40024, -2600},
    {"LO", 1, 22050, 16, 38458, -2600},
    {"GONGMONO", 1, 22050, 16, 43878, -1500},
    {"KLAXONCONT", 1, 22050, 16, 43928, -800},
    {"SONNERIE", 1, 22050, 16, 49430, -1500},
    {"BRAKESSND", 1, 22050, 8, 68608, -1500},
    {"CRECELLE", 1, 22050, 16, 107626, -1500},
    {"KLAXONGEAR", 1, 22050, 16, 56760, -1500},
    {"CACHEMETAL", 1, 44100, 16, 4896, -1000},
    {"V80KTS", 1, 11025, 8, 11136, -1000},
    {"V1KTS", 1, 11025, 8, 12864, -1000},
    {"VRKTS", 1, 11025, 8, 12544, -1000},
    {"AIRCOND", 2, 44100, 16, 531504, -1000},
    {"AIRCONDENT", 2, 44100, 16, 1132524, -1000},
    {"AIRCONDSORT", 2, 44100, 16, 882688, -1000},
    {"GPWSGLIDESLOPE", 1, 11025, 8, 15124, -1000},
    {"GPWSPULLUP", 1, 11025, 8, 17273, -1000},
    {"ALTRE", 1, 11025, 8, 2866, -1000},
};

std::vector<u8> read_file(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return std::vector<u8>((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

std::vector<u8> wave_file(const char* name) {
    return read_file(std::filesystem::path(KESTRANE_WAV_DIR) / (std::string(name) + ".wav"));
}

// Chunk ids of a RIFF file, in order.
std::vector<std::string> chunk_ids(const std::vector<u8>& f) {
    std::vector<std::string> ids;
    std::size_t pos = 12;
    while (pos + 8 <= f.size()) {
        u32 n;
        std::memcpy(&n, &f[pos + 4], 4);
        ids.emplace_back(reinterpret_cast<const char*>(&f[pos]), 4);
        pos += 8 + n + (n & 1);
    }
    return ids;
}

u16 le16(const u8* p) {
    return static_cast<u16>(p[0] | p[1] << 8);
}
u32 le32(const u8* p) {
    return static_cast<u32>(p[0] | p[1] << 8 | p[2] << 16 | p[3] << 24);
}

TEST(GeneratedWaves, MatchTheSoundTable) {
    for (const Expected& e : kTable) {
        SCOPED_TRACE(e.name);
        std::vector<u8> f = wave_file(e.name);
        ASSERT_GE(f.size(), 44u);
        EXPECT_EQ(le32(&f[4]), f.size() - 8) << "RIFF length";
        WaveView w;
        ASSERT_TRUE(parse_wave(f.data(), f.size(), w));
        EXPECT_EQ(w.format_size, 16u);
        EXPECT_EQ(le16(w.format), 1) << "PCM";
        EXPECT_EQ(le16(w.format + 2), e.channels);
        EXPECT_EQ(le32(w.format + 4), static_cast<u32>(e.rate));
        const int block = e.channels * e.bits / 8;
        EXPECT_EQ(le32(w.format + 8), static_cast<u32>(e.rate * block));
        EXPECT_EQ(le16(w.format + 12), block);
        EXPECT_EQ(le16(w.format + 14), e.bits);
        EXPECT_EQ(w.data_size, e.data_bytes);
        // not silence
        int loud = 0;
        const u8 zero = e.bits == 8 ? 128 : 0;
        for (u32 i = 0; i < w.data_size; ++i)
            loud += w.data[i] != zero;
        EXPECT_GT(loud, static_cast<int>(w.data_size / 10));
    }
}

TEST(GeneratedWaves, ExtraChunksAndTheOddDataChunk) {
    EXPECT_EQ(chunk_ids(wave_file("CACHEMETAL")), (std::vector<std::string>{"fmt ", "LIST", "data"}));
    EXPECT_EQ(chunk_ids(wave_file("KLAXONGEAR")), (std::vector<std::string>{"fmt ", "smpl", "data"}));
    EXPECT_EQ(chunk_ids(wave_file("CLICK")), (std::vector<std::string>{"fmt ", "data"}));
    // GPWSPULLUP: odd data chunk, last, followed by its pad byte
    std::vector<u8> f = wave_file("GPWSPULLUP");
    EXPECT_EQ(chunk_ids(f).back(), "data");
    EXPECT_EQ(f.size(), 12u + 8 + 16 + 8 + 17273 + 1);
}

// ---------------------------------------------------------------- parser

struct Riff {
    std::vector<u8> b{'R', 'I', 'F', 'F', 0, 0, 0, 0, 'W', 'A', 'V', 'E'};
    Riff& chunk(const char* id, std::vector<u8> body, bool pad = true) {
        b.insert(b.end(), id, id + 4);
        u32 n = static_cast<u32>(body.size());
        for (int i = 0; i < 4; ++i)
            b.push_back(static_cast<u8>(n >> (8 * i)));
        b.insert(b.end(), body.begin(), body.end());
        if (pad && (n & 1))
            b.push_back(0);
        return *this;
    }
    std::vector<u8> done(long adjust = 0) {
        u32 n = static_cast<u32>(static_cast<long>(b.size()) - 8 + adjust);
        for (int i = 0; i < 4; ++i)
            b[4 + i] = static_cast<u8>(n >> (8 * i));
        return b;
    }
};

std::vector<u8> fmt16() {
    return {1, 0, 1, 0, 0x22, 0x56, 0, 0, 0x44, 0xAC, 0, 0, 2, 0, 16, 0};
}

TEST(WaveParser, FindsFormatAndDataInEitherOrder) {
    WaveView w;
    auto a = Riff().chunk("fmt ", fmt16()).chunk("data", {1, 2, 3, 4}).done();
    ASSERT_TRUE(parse_wave(a.data(), a.size(), w));
    EXPECT_EQ(w.format, a.data() + 20);
    EXPECT_EQ(w.data_size, 4u);
    EXPECT_EQ(w.data[3], 4);
    auto b = Riff().chunk("data", {9, 9}).chunk("fmt ", fmt16()).done();
    ASSERT_TRUE(parse_wave(b.data(), b.size(), w));
    EXPECT_EQ(w.data_size, 2u);
    EXPECT_EQ(w.format_size, 16u);
}

TEST(WaveParser, SkipsOtherChunksWithTheirPadByte) {
    WaveView w;
    auto a = Riff()
                 .chunk("LIST", {1, 2, 3})
                 .chunk("fmt ", fmt16())
                 .chunk("smpl", {7})
                 .chunk("data", {5, 6, 7})
                 .done();
    ASSERT_TRUE(parse_wave(a.data(), a.size(), w));
    EXPECT_EQ(w.data_size, 3u);
    EXPECT_EQ(w.data[0], 5);
    // without the pad byte the walk lands one byte early and finds nothing
    auto b = Riff().chunk("LIST", {1, 2, 3}, false).chunk("fmt ", fmt16()).chunk("data", {5}).done();
    EXPECT_FALSE(parse_wave(b.data(), b.size(), w));
}

TEST(WaveParser, ShortFormatFailsEvenAfterData) {
    WaveView w;
    auto a = Riff()
                 .chunk("data", {1, 2})
                 .chunk("fmt ", {1, 0, 1, 0, 0x22, 0x56, 0, 0, 0x44, 0xAC, 0, 0, 2})
                 .done();
    EXPECT_FALSE(parse_wave(a.data(), a.size(), w));
    EXPECT_EQ(w.data, nullptr);
    EXPECT_EQ(w.format, nullptr);
    // 14 bytes is enough
    auto b = Riff()
                 .chunk("fmt ", {1, 0, 1, 0, 0x22, 0x56, 0, 0, 0x44, 0xAC, 0, 0, 2, 0})
                 .chunk("data", {1})
                 .done();
    EXPECT_TRUE(parse_wave(b.data(), b.size(), w));
    // a second, short "fmt " after the first is never looked at
    auto c = Riff().chunk("fmt ", fmt16()).chunk("fmt ", {1}).chunk("data", {1, 2}).done();
    EXPECT_TRUE(parse_wave(c.data(), c.size(), w));
}

TEST(WaveParser, RejectsWhatIsNotAWave) {
    WaveView w;
    auto good = Riff().chunk("fmt ", fmt16()).chunk("data", {1, 2}).done();
    auto bad = good;
    bad[11] = 'X';  // not WAVE
    EXPECT_FALSE(parse_wave(bad.data(), bad.size(), w));
    EXPECT_FALSE(parse_wave(good.data(), 11, w));
    auto no_data = Riff().chunk("fmt ", fmt16()).done();
    EXPECT_FALSE(parse_wave(no_data.data(), no_data.size(), w));
}

TEST(WaveParser, StaysInsideWhatItHolds) {
    WaveView w;
    // a data chunk claiming more than the file holds
    auto a = Riff().chunk("fmt ", fmt16()).chunk("data", {1, 2, 3, 4}).done();
    a[a.size() - 8] = 200;
    EXPECT_FALSE(parse_wave(a.data(), a.size(), w));
    // a RIFF length beyond the buffer: the walk stops at the buffer's end
    auto b = Riff().chunk("fmt ", fmt16()).chunk("data", {1, 2}).done(1000);
    EXPECT_TRUE(parse_wave(b.data(), b.size(), w));
    auto c = Riff().chunk("fmt ", fmt16()).done(1000);
    EXPECT_FALSE(parse_wave(c.data(), c.size(), w));
    // a RIFF length that ends before "data": not found
    auto d = Riff().chunk("fmt ", fmt16()).chunk("data", {1, 2}).done(-10);
    EXPECT_FALSE(parse_wave(d.data(), d.size(), w));
    // a huge chunk length does not wrap the walk around
    auto e = Riff().chunk("JUNK", {1, 2}).chunk("fmt ", fmt16()).chunk("data", {1}).done();
    for (int i = 0; i < 4; ++i)
        e[16 + i] = 0xFF;
    EXPECT_FALSE(parse_wave(e.data(), e.size(), w));
}

// ---------------------------------------------------------------- player

class Player : public ::testing::Test {
protected:
    Host host;
    GaugeHeader* toggle = nullptr;
    void SetUp() override {
        ASSERT_TRUE(host.ok()) << host.error();
        toggle = host.gauge("kestrane toggle_pan_tadg");
    }
    SoundDevice& dev() { return host.sound_device(); }
};

TEST_F(Player, InstallLoadsEverySoundInTableOrderWithItsVolume) {
    EXPECT_FALSE(dev().created());
    dev().faults.split_lock_at = 1000;  // the fill copies both parts of a two-part lock
    host.install(toggle);
    EXPECT_TRUE(dev().created());
    EXPECT_EQ(dev().cooperative_level(), 1u);
    ASSERT_EQ(dev().buffers().size(), 19u);
    for (std::size_t i = 0; i < 19; ++i) {
        const Expected& e = kTable[i];
        SCOPED_TRACE(e.name);
        const SoundBuffer& b = *dev().buffers()[i];
        EXPECT_EQ(b.name, e.name);
        EXPECT_EQ(b.desc.dwFlags, 0x100E2u);
        EXPECT_EQ(b.desc.dwSize, sizeof(DSBUFFERDESC));
        EXPECT_EQ(b.desc.dwBufferBytes, e.data_bytes);
        EXPECT_EQ(b.format.nChannels, e.channels);
        EXPECT_EQ(b.volume, e.volume);
        // the buffer holds exactly the wave's samples
        std::vector<u8> f = wave_file(e.name);
        WaveView w;
        ASSERT_TRUE(parse_wave(f.data(), f.size(), w));
        EXPECT_EQ(std::memcmp(b.data.data(), w.data, w.data_size), 0);
    }
    // volumes were applied once each, in table order, after all the loads
    std::vector<std::string> order;
    for (const SoundEvent& ev : dev().log())
        if (ev.op == SoundOp::Volume)
            order.push_back(ev.buffer->name);
    ASSERT_EQ(order.size(), 19u);
    for (std::size_t i = 0; i < 19; ++i)
        EXPECT_EQ(order[i], kTable[i].name);
}

// DirectSound refuses a description whose size is not its own record's (a
// 32-bit size in a 64-bit module): the device does too.
TEST_F(Player, DeviceRefusesADescriptionOfAnotherSize) {
    WAVEFORMATEX f{WAVE_FORMAT_PCM, 1, 22050, 44100, 2, 16, 0};
    DSBUFFERDESC d{};
    d.dwBufferBytes = 64;
    d.lpwfxFormat = &f;
    IDirectSoundBuffer* out = nullptr;
    for (DWORD size : {0u, 20u, 36u, 44u}) {
        if (size == sizeof d)
            continue;
        d.dwSize = size;
        EXPECT_LT(dev().create_buffer(&d, &out), 0) << size;
        EXPECT_EQ(out, nullptr);
    }
    d.dwSize = sizeof d;
    EXPECT_EQ(dev().create_buffer(&d, &out), DS_OK);
    EXPECT_NE(out, nullptr);
}

TEST_F(Player, FailedLockOrBufferLosesOnlyThatSound) {
    dev().faults.fail_lock_at = 3;    // GONGMONO
    dev().faults.fail_create_at = 5;  // SONNERIE
    host.install(toggle);
    EXPECT_EQ(host.sound("GONGMONO"), nullptr);
    EXPECT_EQ(host.sound("SONNERIE"), nullptr);
    EXPECT_NE(host.sound("KLAXONCONT"), nullptr);
    // the buffer whose fill failed was released at once
    int released = 0;
    for (const auto& b : dev().buffers())
        released += b->released;
    EXPECT_EQ(released, 1);
    // the lost sounds take no volume
    for (const SoundEvent& ev : dev().log())
        EXPECT_TRUE(ev.op != SoundOp::Volume || !ev.buffer->released);
}

TEST_F(Player, NoDeviceMeansSilenceAndNoCrash) {
    dev().faults.fail_device = true;
    host.install(toggle);
    host.install(host.gauge("kestrane callsigns_jm47"));
    host.install(host.gauge("kestrane radios_sound_jm47"));
    EXPECT_TRUE(dev().buffers().empty());
    EXPECT_TRUE(host.click(host.gauge("kestrane callsigns_jm47"), 115, 60));
    EXPECT_TRUE(host.click(host.gauge("kestrane radios_sound_jm47"), 85, 50));
    EXPECT_EQ(*host.field_value("snd_volume_step"), -1);  // the counter still moves
    host.run(5);
    host.remove(toggle);
    EXPECT_TRUE(dev().log().empty());
}

TEST_F(Player, RemovalReleasesInReverseOrderThenTheDevice) {
    host.install(toggle);
    host.begin_step();
    host.remove(toggle);
    std::vector<std::string> order;
    for (const SoundEvent& ev : dev().log()) {
        ASSERT_EQ(ev.op, SoundOp::Release);
        order.push_back(ev.buffer->name);
    }
    ASSERT_EQ(order.size(), 19u);
    for (std::size_t i = 0; i < 19; ++i)
        EXPECT_EQ(order[i], kTable[18 - i].name);
    EXPECT_TRUE(dev().released());
    for (int i = 0; i < 19; ++i)
        EXPECT_EQ(host.sound(kTable[i].name), nullptr);
    // installing again starts afresh
    host.install(toggle);
    EXPECT_EQ(dev().buffers().size(), 38u);
    EXPECT_NE(host.sound("CLICK"), nullptr);
}

TEST_F(Player, LoopingEveryCycleIsOneContinuousLoop) {
    host.install(toggle);
    host.install(host.gauge("kestrane warn_stall_jm47"));
    host.set_field("elec_gen_bus", 1);
    host.set_token(67, 1);
    host.run(1);
    SoundBuffer* klaxon = host.sound("KLAXONCONT");
    ASSERT_NE(klaxon, nullptr);
    const double frames = klaxon->data.size() / 2.0;
    const double step = 22050.0 / 18.0;
    double before = klaxon->position;
    host.run(30);  // longer than the buffer: it wraps, never restarts
    EXPECT_TRUE(klaxon->playing);
    EXPECT_TRUE(klaxon->looping);
    EXPECT_NEAR(klaxon->position, std::fmod(before + 30 * step, frames), 1e-6);
    host.set_token(67, 0);
    host.run(1);
    EXPECT_FALSE(klaxon->playing);
    double stopped_at = klaxon->position;
    EXPECT_GT(stopped_at, 0);  // stop does not rewind
    host.set_token(67, 1);
    host.run(1);
    EXPECT_TRUE(klaxon->playing);
    EXPECT_NEAR(klaxon->position, std::fmod(stopped_at + step, frames), 1e-6);
}

TEST(Recording, MixesWhatPlays) {
    auto path =
        std::filesystem::temp_directory_path() / ("kestrane-rec-" + std::to_string(::getpid()) + ".wav");
    {
        Host host;
        ASSERT_TRUE(host.ok());
        ASSERT_TRUE(host.record_audio(path.string()));
        host.install(host.gauge("kestrane toggle_pan_tadg"));
        host.install(host.gauge("kestrane callsigns_jm47"));
        host.run(2);
        host.click(host.gauge("kestrane callsigns_jm47"), 115, 60);  // CLICK and HI
        host.run(10);
        host.reload();  // a new module; the recording goes on until the host ends
        host.run(3);
    }
    std::vector<u8> f = read_file(path);
    std::filesystem::remove(path);
    WaveView w;
    ASSERT_TRUE(parse_wave(f.data(), f.size(), w));
    EXPECT_EQ(le16(w.format + 2), 2);
    EXPECT_EQ(le32(w.format + 4), 44100u);
    EXPECT_EQ(w.data_size, 15u * 2450 * 4);
    auto sample = [&](std::size_t frame) { return static_cast<i16>(le16(w.data + frame * 4)); };
    int loud = 0;
    for (std::size_t i = 0; i < 2 * 2450; ++i)
        loud += sample(i) != 0;
    EXPECT_EQ(loud, 0) << "silence before the click";
    for (std::size_t i = 2 * 2450; i < 12 * 2450; ++i)
        loud += sample(i) != 0;
    EXPECT_GT(loud, 2450);
    for (std::size_t i = 12 * 2450; i < 15 * 2450; ++i)
        EXPECT_EQ(sample(i), 0);
}

// Headless, the device skips each cycle's frames at once; mixing for a
// recording walks them. Sounds must start, wrap and end on the same cycles.
TEST(Recording, HeadlessPlaysToTheSameFrame) {
    auto path =
        std::filesystem::temp_directory_path() / ("kestrane-same-" + std::to_string(::getpid()) + ".wav");
    // one host at a time: hosts of one process share the loaded module
    auto play = [&](bool record) {
        std::vector<std::pair<bool, double>> seen;
        Host h;
        EXPECT_TRUE(h.ok());
        if (record) {
            EXPECT_TRUE(h.record_audio(path.string()));
        }
        h.install(h.gauge("kestrane toggle_pan_tadg"));
        h.install(h.gauge("kestrane callsigns_jm47"));
        h.install(h.gauge("kestrane warn_stall_jm47"));
        h.set_field("elec_gen_bus", 1);
        h.run(2);
        h.click(h.gauge("kestrane callsigns_jm47"), 115, 60);  // HI, once
        h.set_token(67, 1);                                    // the stall klaxon, looping
        for (int cycle = 0; cycle < 60; ++cycle) {
            h.run(1);
            for (const char* name : {"HI", "KLAXONCONT"}) {
                SoundBuffer* b = h.sound(name);
                seen.emplace_back(b != nullptr && b->playing, b != nullptr ? b->position : -1.0);
            }
        }
        return seen;
    };
    const auto headless = play(false);
    const auto mixed = play(true);
    std::filesystem::remove(path);
    ASSERT_EQ(headless.size(), mixed.size());
    for (std::size_t i = 0; i < headless.size(); ++i) {
        EXPECT_EQ(headless[i].first, mixed[i].first) << "cycle " << i / 2 << " sound " << i % 2;
        EXPECT_DOUBLE_EQ(headless[i].second, mixed[i].second) << "cycle " << i / 2 << " sound " << i % 2;
    }
    EXPECT_TRUE(headless[0].first) << "HI plays";
    EXPECT_FALSE(headless[headless.size() - 2].first) << "HI has ended";
    EXPECT_TRUE(headless.back().first) << "the klaxon loops on";
}

// ---------------------------------------------------------------- file fallback

class Fallback : public ::testing::Test {
protected:
    std::filesystem::path old_cwd = std::filesystem::current_path();
    std::filesystem::path dir =
        std::filesystem::temp_directory_path() / ("kestrane-fallback-" + std::to_string(::getpid()));
    void SetUp() override {
        std::filesystem::create_directories(dir);
        std::filesystem::current_path(dir);
    }
    void TearDown() override {
        std::filesystem::current_path(old_cwd);
        std::filesystem::remove_all(dir);
    }
    static void put(const char* name, const std::vector<u8>& bytes) {
        std::ofstream(name, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
};

TEST_F(Fallback, MissingOrCorruptResourcesLoadFromFilesOfTheCurrentFolder) {
    put("CLICK", wave_file("CLICK"));  // no resource: from the file
    put("LO", wave_file("LO"));        // corrupt resource: from the file
    std::vector<u8> hi = wave_file("HI");
    hi[16] = 10;  // "fmt " of 10 bytes
    put("HI", hi);
    put("GONGMONO", {});                            // empty file
    put("KLAXONCONT", {'R', 'I', 'F', 'F', 1, 2});  // truncated
    std::vector<u8> sonnerie = wave_file("SONNERIE");
    sonnerie.resize(sonnerie.size() / 2);  // data chunk cut short
    put("SONNERIE", sonnerie);
    Host host(KESTRANE_NOSOUNDS_MODULE);
    ASSERT_TRUE(host.ok()) << host.error();
    host.install(host.gauge("kestrane toggle_pan_tadg"));
    ASSERT_NE(host.sound("CLICK"), nullptr);
    EXPECT_EQ(host.sound("CLICK")->data.size(), 3828u);
    EXPECT_EQ(host.sound("CLICK")->volume, -2000);
    ASSERT_NE(host.sound("LO"), nullptr);
    EXPECT_EQ(host.sound("LO")->data.size(), 38458u);
    for (const char* silent : {"HI", "GONGMONO", "KLAXONCONT", "SONNERIE", "ALTRE", "AIRCOND"})
        EXPECT_EQ(host.sound(silent), nullptr) << silent;
    EXPECT_EQ(host.sound_device().buffers().size(), 2u);
    // the silent ones do nothing when used
    host.install(host.gauge("kestrane callsigns_jm47"));
    EXPECT_TRUE(host.click(host.gauge("kestrane callsigns_jm47"), 115, 60));
    host.run(3);
    host.remove(host.gauge("kestrane toggle_pan_tadg"));
}

}  // namespace
