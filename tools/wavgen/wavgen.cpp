// Makes the module's 19 sounds: switch clicks, guard snap, gong, fire bell,
// rattle, klaxons, call-sign chimes, altitude chime, the air-conditioning hum
// with its spool-up and spool-down, and spoken call-outs from espeak-ng.
// Every file has exactly the format and data length the player expects.
//
//   wavgen OUTDIR [--no-speech]
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "wave_file.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

constexpr SoundDef kSounds[] = {
    {"CLICK", {1, 22050, 16}, 3828},
    {"HI", {1, 22050, 16}, 40024},
    {"LO", {1, 22050, 16}, 38458},
    {"GONGMONO", {1, 22050, 16}, 43878},
    {"KLAXONCONT", {1, 22050, 16}, 43928},
    {"SONNERIE", {1, 22050, 16}, 49430},
    {"BRAKESSND", {1, 22050, 8}, 68608},
    {"CRECELLE", {1, 22050, 16}, 107626},
    {"KLAXONGEAR", {1, 22050, 16}, 56760},
    {"CACHEMETAL", {1, 44100, 16}, 4896},
    {"V80KTS", {1, 11025, 8}, 11136},
    {"V1KTS", {1, 11025, 8}, 12864},
    {"VRKTS", {1, 11025, 8}, 12544},
    {"AIRCOND", {2, 44100, 16}, 531504},
    {"AIRCONDENT", {2, 44100, 16}, 1132524},
    {"AIRCONDSORT", {2, 44100, 16}, 882688},
    {"GPWSGLIDESLOPE", {1, 11025, 8}, 15124},
    {"GPWSPULLUP", {1, 11025, 8}, 17273},
    {"ALTRE", {1, 11025, 8}, 2866},
};

// Deterministic noise.
struct Noise {
    std::uint32_t s;
    explicit Noise(std::uint32_t seed) : s(seed * 2654435761u + 1) {}
    double next() {
        s ^= s << 13;
        s ^= s >> 17;
        s ^= s << 5;
        return static_cast<double>(s) / 2147483648.0 - 1.0;
    }
};

struct OnePole {
    double a, y = 0;
    OnePole(double cutoff, int rate) : a(1.0 - std::exp(-2.0 * kPi * cutoff / rate)) {}
    double operator()(double x) { return y += a * (x - y); }
};

// Two-pole resonator, for metallic partials and formant-like colour.
struct Resonator {
    double b1, b2, g, y1 = 0, y2 = 0;
    Resonator(double f, double q, int rate) {
        double r = std::exp(-kPi * f / q / rate);
        b1 = 2 * r * std::cos(2 * kPi * f / rate);
        b2 = -r * r;
        g = 1 - r;
    }
    double operator()(double x) {
        double y = g * x + b1 * y1 + b2 * y2;
        y2 = y1;
        y1 = y;
        return y;
    }
};

Channels mono(std::size_t n) {
    return Channels(1, std::vector<double>(n, 0.0));
}

// A frequency that completes whole cycles over a loop of n samples.
double loop_freq(double f, std::size_t n, int rate) {
    double cycles = std::max(1.0, std::round(f * n / rate));
    return cycles * rate / n;
}

// Makes the end of a looping buffer run into its start.
void crossfade_loop(std::vector<double>& v, std::size_t fade) {
    std::size_t n = v.size();
    fade = std::min(fade, n / 2);
    std::vector<double> head(v.begin(), v.begin() + fade);
    for (std::size_t i = 0; i < fade; ++i) {
        double w = static_cast<double>(i) / fade;
        v[n - fade + i] = v[n - fade + i] * (1 - w) + head[i] * w;
    }
    // the start now follows the faded end: rotate so the seam sits mid-buffer
    std::rotate(v.begin(), v.begin() + fade, v.end());
}

void normalize(Channels& c, double peak) {
    double m = 1e-9;
    for (auto& ch : c)
        for (double x : ch)
            m = std::max(m, std::fabs(x));
    for (auto& ch : c)
        for (double& x : ch)
            x *= peak / m;
}

void fade_edges(std::vector<double>& v, std::size_t in, std::size_t out) {
    for (std::size_t i = 0; i < in && i < v.size(); ++i)
        v[i] *= static_cast<double>(i) / in;
    for (std::size_t i = 0; i < out && i < v.size(); ++i)
        v[v.size() - 1 - i] *= static_cast<double>(i) / out;
}

// ---------------------------------------------------------------- sounds

Channels click(std::size_t n, int rate) {
    Channels c = mono(n);
    Noise noise(1);
    Resonator body(2800, 12, rate), low(900, 6, rate);
    for (std::size_t i = 0; i < n; ++i) {
        double t = static_cast<double>(i) / rate;
        double burst = noise.next() * std::exp(-t / 0.0012);
        // second, softer contact as the toggle seats
        double t2 = t - 0.028;
        double bounce = t2 > 0 ? noise.next() * 0.35 * std::exp(-t2 / 0.0009) : 0;
        double x = burst + bounce;
        c[0][i] = 0.6 * x + 2.5 * body(x) + 1.5 * low(x);
    }
    normalize(c, 0.85);
    fade_edges(c[0], 2, n / 4);
    return c;
}

Channels cachemetal(std::size_t n, int rate) {
    Channels c = mono(n);
    Noise noise(2);
    const double partials[] = {2350, 3710, 5230, 7390, 9120};
    const double decays[] = {0.030, 0.022, 0.016, 0.011, 0.008};
    for (std::size_t i = 0; i < n; ++i) {
        double t = static_cast<double>(i) / rate;
        double x = noise.next() * std::exp(-t / 0.0008) * 0.8;
        for (int k = 0; k < 5; ++k)
            x += std::sin(2 * kPi * partials[k] * t + k) * std::exp(-t / decays[k]) / (1 + 0.4 * k);
        c[0][i] = x;
    }
    normalize(c, 0.8);
    fade_edges(c[0], 1, n / 5);
    return c;
}

Channels chime(std::size_t n, int rate, double f) {
    Channels c = mono(n);
    for (std::size_t i = 0; i < n; ++i) {
        double t = static_cast<double>(i) / rate;
        double env = std::min(1.0, t / 0.004) * std::exp(-t / 0.32);
        double x = std::sin(2 * kPi * f * t) + 0.28 * std::sin(2 * kPi * 2 * f * t) * std::exp(-t / 0.12) +
                   0.12 * std::sin(2 * kPi * 3.01 * f * t) * std::exp(-t / 0.06);
        c[0][i] = x * env;
    }
    normalize(c, 0.8);
    fade_edges(c[0], 0, n / 10);
    return c;
}

Channels gong(std::size_t n, int rate) {
    Channels c = mono(n);
    Noise noise(3);
    OnePole mallet(1500, rate);
    const double f0 = 392.0;
    const double ratios[] = {1.0, 2.02, 2.76, 3.98, 5.41, 6.83};
    const double amps[] = {1.0, 0.55, 0.42, 0.25, 0.16, 0.09};
    const double decays[] = {0.65, 0.42, 0.33, 0.22, 0.15, 0.1};
    for (std::size_t i = 0; i < n; ++i) {
        double t = static_cast<double>(i) / rate;
        double x = mallet(noise.next()) * std::exp(-t / 0.006) * 2;
        for (int k = 0; k < 6; ++k) {
            double beat = 1 + 0.15 * std::sin(2 * kPi * (1.7 + k) * t);
            x += amps[k] * beat * std::sin(2 * kPi * f0 * ratios[k] * t) * std::exp(-t / decays[k]);
        }
        c[0][i] = x * std::min(1.0, t / 0.002);
    }
    normalize(c, 0.85);
    fade_edges(c[0], 0, n / 8);
    return c;
}

// Harsh continuous klaxon: odd harmonics of a whole-cycle tone, gently buzzing.
Channels klaxon(std::size_t n, int rate, double f_a, double f_b) {
    Channels c = mono(n);
    double fa = loop_freq(f_a, n, rate), fb = loop_freq(f_b, n, rate);
    double buzz = loop_freq(30, n, rate);
    for (std::size_t i = 0; i < n; ++i) {
        double t = static_cast<double>(i) / rate;
        double x = 0;
        for (int h = 1; h <= 11; h += 2) {
            x += std::sin(2 * kPi * fa * h * t) / h;
            x += 0.7 * std::sin(2 * kPi * fb * h * t) / h;
        }
        x = std::tanh(2.2 * x) * (0.85 + 0.15 * std::sin(2 * kPi * buzz * t));
        c[0][i] = x;
    }
    normalize(c, 0.8);
    return c;
}

// Fire bell: a clapper striking about 18 times a second, wrapping round the loop.
Channels bell(std::size_t n, int rate) {
    Channels c = mono(n);
    const int strikes = 18;
    const double interval = static_cast<double>(n) / strikes;
    const double partials[] = {1150, 2630, 3870, 5210};
    for (std::size_t i = 0; i < n; ++i) {
        double x = 0;
        for (int k = -4; k < strikes; ++k) {
            // strikes before the start are the last ones of the previous turn
            double pos = static_cast<double>(i) - k * interval;
            if (pos < 0)
                continue;
            double t = pos / rate;
            for (int p = 0; p < 4; ++p)
                x += std::sin(2 * kPi * partials[p] * t + p) * std::exp(-t / (0.09 / (1 + p))) / (1 + p);
        }
        c[0][i] = x;
    }
    normalize(c, 0.75);
    return c;
}

Channels rattle(std::size_t n, int rate) {
    Channels c = mono(n);
    Noise noise(4);
    const int clacks = 29;
    const double interval = static_cast<double>(n) / clacks;
    Resonator r1(1650, 8, rate), r2(2900, 10, rate), r3(700, 5, rate);
    std::vector<double> excite(n, 0.0);
    for (int k = 0; k < clacks; ++k) {
        std::size_t at = static_cast<std::size_t>(k * interval);
        for (std::size_t j = 0; j < 90 && at + j < n; ++j)
            excite[at + j] = noise.next() * std::exp(-static_cast<double>(j) / 18);
    }
    for (int pass = 0; pass < 2; ++pass)  // second pass carries the ringing across the seam
        for (std::size_t i = 0; i < n; ++i) {
            double x = excite[i];
            c[0][i] = 0.4 * x + 3 * r1(x) + 2 * r2(x) + 1.2 * r3(x);
        }
    normalize(c, 0.8);
    return c;
}

Channels brakes(std::size_t n, int rate) {
    Channels c = mono(n + rate / 5);
    Noise noise(5);
    OnePole rumble(160, rate), rumble2(160, rate);
    double phase = 0;
    for (std::size_t i = 0; i < c[0].size(); ++i) {
        double t = static_cast<double>(i) / rate;
        double f = 1820 + 60 * std::sin(2 * kPi * 5.3 * t) + 25 * std::sin(2 * kPi * 0.7 * t);
        phase += 2 * kPi * f / rate;
        double squeal = std::sin(phase) * (0.35 + 0.25 * std::sin(2 * kPi * 0.9 * t));
        double grind = rumble2(rumble(noise.next())) * 9;
        c[0][i] = squeal + grind;
    }
    crossfade_loop(c[0], rate / 5);
    c[0].resize(n);
    normalize(c, 0.7);
    return c;
}

// Air-conditioning hum: fan tone, blade pass and airflow noise, two channels.
// `level` (0..1 over the buffer) sets speed and loudness for the spool sounds.
Channels aircond(std::size_t n, int rate, const std::function<double(double)>& level, bool loop) {
    std::size_t total = loop ? n + rate / 2 : n;
    Channels c(2, std::vector<double>(total, 0.0));
    for (int ch = 0; ch < 2; ++ch) {
        Noise noise(10 + ch);
        OnePole lp1(700, rate), lp2(700, rate), air(2500, rate);
        double phase = 0, blade = 0;
        for (std::size_t i = 0; i < total; ++i) {
            double u = static_cast<double>(i) / total;
            double s = std::clamp(level(u), 0.0, 1.0);
            double f = 30 + 90 * s;
            phase += 2 * kPi * f / rate;
            blade += 2 * kPi * f * 7 / rate;
            double hum = std::sin(phase) * 0.5 + 0.2 * std::sin(2 * phase + ch);
            double whine = 0.05 * std::sin(blade) * s;
            double flow = lp2(lp1(noise.next())) * 6 + air(noise.next()) * 0.25;
            c[ch][i] = (hum * 0.6 + whine + flow * (0.3 + 0.7 * s)) * s;
        }
        if (loop) {
            crossfade_loop(c[ch], rate / 2);
            c[ch].resize(n);
        }
    }
    return c;
}

// ---------------------------------------------------------------- speech

// Reads a 16-bit PCM wave written by espeak-ng.
bool read_wave16(const std::string& path, std::vector<double>& out, int& rate) {
    std::ifstream in(path, std::ios::binary);
    std::vector<std::uint8_t> b((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (b.size() < 44 || std::memcmp(b.data(), "RIFF", 4) != 0)
        return false;
    std::size_t pos = 12;
    int channels = 1, bits = 16;
    rate = 22050;
    while (pos + 8 <= b.size()) {
        std::uint32_t n;
        std::memcpy(&n, &b[pos + 4], 4);
        if (std::memcmp(&b[pos], "fmt ", 4) == 0 && pos + 8 + 16 <= b.size()) {
            std::uint16_t ch, bt;
            std::uint32_t r;
            std::memcpy(&ch, &b[pos + 10], 2);
            std::memcpy(&r, &b[pos + 12], 4);
            std::memcpy(&bt, &b[pos + 22], 2);
            channels = ch;
            rate = static_cast<int>(r);
            bits = bt;
        } else if (std::memcmp(&b[pos], "data", 4) == 0) {
            if (bits != 16 || channels != 1)
                return false;
            std::size_t len = std::min<std::size_t>(n, b.size() - pos - 8);
            // espeak-ng streams to a file and may leave the length unset
            if (n == 0 || n == 0xFFFFFFFFu)
                len = b.size() - pos - 8;
            out.resize(len / 2);
            for (std::size_t i = 0; i < out.size(); ++i) {
                std::int16_t s;
                std::memcpy(&s, &b[pos + 8 + 2 * i], 2);
                out[i] = s / 32768.0;
            }
            return true;
        }
        pos += 8 + n + (n & 1);
    }
    return false;
}

std::vector<double> resample(const std::vector<double>& in, int from, int to) {
    if (from == to)
        return in;
    // low-pass at the new Nyquist, then linear interpolation
    std::vector<double> filtered(in.size());
    OnePole a(to * 0.42, from), b(to * 0.42, from);
    for (std::size_t i = 0; i < in.size(); ++i)
        filtered[i] = b(a(in[i]));
    std::size_t n = static_cast<std::size_t>(static_cast<double>(in.size()) * to / from);
    std::vector<double> out(n);
    for (std::size_t i = 0; i < n; ++i) {
        double p = static_cast<double>(i) * from / to;
        std::size_t k = static_cast<std::size_t>(p);
        double f = p - k;
        double x0 = filtered[std::min(k, in.size() - 1)], x1 = filtered[std::min(k + 1, in.size() - 1)];
        out[i] = x0 + (x1 - x0) * f;
    }
    return out;
}

void trim_silence(std::vector<double>& v) {
    auto loud = [](double x) { return std::fabs(x) > 0.01; };
    auto first = std::find_if(v.begin(), v.end(), loud);
    auto last = std::find_if(v.rbegin(), v.rend(), loud).base();
    if (first >= last) {
        v.clear();
        return;
    }
    v = std::vector<double>(first, last);
}

bool have_espeak() {
    return std::system("espeak-ng --version >/dev/null 2>&1") == 0;
}

// Speaks `text` into exactly n samples at `rate`, faster until it fits.
bool speak(const char* text, std::size_t n, int rate, std::vector<double>& out) {
    char tmpl[] = "/tmp/kestrane-wavgen-XXXXXX";
    int fd = mkstemp(tmpl);
    if (fd < 0)
        return false;
    close(fd);
    std::string path = tmpl;
    const std::size_t lead = static_cast<std::size_t>(0.04 * rate);
    bool ok = false;
    for (int speed = 165; speed <= 450 && !ok; speed += 15) {
        std::string cmd = "espeak-ng -v en-us+m3 -p 38 -s " + std::to_string(speed) + " -w '" + path +
                          "' \"" + text + "\" >/dev/null 2>&1";
        if (std::system(cmd.c_str()) != 0)
            break;
        std::vector<double> voice;
        int from = 0;
        if (!read_wave16(path, voice, from))
            break;
        voice = resample(voice, from, rate);
        trim_silence(voice);
        if (voice.empty() || voice.size() + 2 * lead > n)
            continue;
        out.assign(n, 0.0);
        std::copy(voice.begin(), voice.end(), out.begin() + lead);
        ok = true;
    }
    std::remove(path.c_str());
    return ok;
}

// Without a speech synthesizer: one soft vowel-like tone per syllable.
std::vector<double> hum_syllables(int syllables, std::size_t n, int rate) {
    std::vector<double> v(n, 0.0);
    Noise noise(7);
    Resonator f1(600, 6, rate), f2(1200, 8, rate);
    double phase = 0;
    std::size_t per = n / (syllables + 1);
    for (std::size_t i = 0; i < n; ++i) {
        std::size_t s = i / per;
        double u = static_cast<double>(i % per) / per;
        double env = (s >= 1 && s <= static_cast<std::size_t>(syllables)) ? std::sin(kPi * u) : 0;
        phase += 2 * kPi * (120 - 20 * u) / rate;
        double pulse = std::pow(0.5 + 0.5 * std::sin(phase), 8) + 0.02 * noise.next();
        v[i] = (f1(pulse) + 0.6 * f2(pulse)) * env;
    }
    return v;
}

Channels voice(const char* text, int syllables, std::size_t n, int rate, bool use_speech) {
    Channels c = mono(n);
    if (!(use_speech && speak(text, n, rate, c[0]))) {
        if (use_speech)
            std::fprintf(stderr, "wavgen: espeak-ng failed for \"%s\"; using tones\n", text);
        c[0] = hum_syllables(syllables, n, rate);
    }
    // cockpit loudspeaker: band-limited, a little compressed
    OnePole hp(300, rate), lp(3000, rate);
    for (double& x : c[0]) {
        double h = x - hp(x);
        x = std::tanh(2.0 * lp(h));
    }
    normalize(c, 0.9);
    return c;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: wavgen OUTDIR [--no-speech]\n");
        return 2;
    }
    std::string dir = argv[1];
    bool use_speech = !(argc > 2 && std::strcmp(argv[2], "--no-speech") == 0);
    if (use_speech && !have_espeak()) {
        std::fprintf(stderr, "wavgen: espeak-ng not found; call-outs will be tones\n");
        use_speech = false;
    }
    int failures = 0;
    for (const SoundDef& s : kSounds) {
        const Format& f = s.format;
        const std::size_t frames = s.data_bytes / (f.channels * f.bits / 8) + 1;
        const int r = f.rate;
        const std::string name = s.name;
        Channels c;
        std::vector<Chunk> before, after;
        if (name == "CLICK")
            c = click(frames, r);
        else if (name == "HI")
            c = chime(frames, r, 1318.5);
        else if (name == "LO")
            c = chime(frames, r, 659.3);
        else if (name == "GONGMONO")
            c = gong(frames, r);
        else if (name == "KLAXONCONT")
            c = klaxon(frames - 1, r, 440, 554);
        else if (name == "SONNERIE")
            c = bell(frames - 1, r);
        else if (name == "BRAKESSND")
            c = brakes(frames - 1, r);
        else if (name == "CRECELLE") {
            c = rattle(frames - 1, r);
            before.push_back(list_info("kestrane overspeed rattle"));
        } else if (name == "KLAXONGEAR") {
            c = klaxon(frames - 1, r, 290, 350);
            before.push_back(smpl_loop(f, static_cast<std::uint32_t>(frames - 1)));
        } else if (name == "CACHEMETAL") {
            c = cachemetal(frames, r);
            before.push_back(list_info("kestrane guard"));
        } else if (name == "V80KTS")
            c = voice("eighty knots", 3, frames, r, use_speech);
        else if (name == "V1KTS")
            c = voice("vee one", 2, frames, r, use_speech);
        else if (name == "VRKTS")
            c = voice("rotate", 2, frames, r, use_speech);
        else if (name == "GPWSGLIDESLOPE")
            c = voice("glide slope", 2, frames, r, use_speech);
        else if (name == "GPWSPULLUP")
            c = voice("whoop whoop, pull up", 4, frames, r, use_speech);
        else if (name == "ALTRE") {
            c = chime(frames, r, 880);
            fade_edges(c[0], 0, frames / 3);
        } else if (name == "AIRCOND") {
            c = aircond(
                frames - 1, r, [](double) { return 1.0; }, true);
            normalize(c, 0.5);
        } else if (name == "AIRCONDENT") {
            c = aircond(
                frames, r, [](double u) { return std::pow(u, 0.7); }, false);
            normalize(c, 0.5);
        } else if (name == "AIRCONDSORT") {
            c = aircond(
                frames, r, [](double u) { return std::pow(1 - u, 1.6); }, false);
            normalize(c, 0.5);
        }
        std::string path = dir + "/" + name + ".wav";
        if (!write_wave(path, s, c, before, after)) {
            std::fprintf(stderr, "wavgen: cannot write %s\n", path.c_str());
            ++failures;
        }
    }
    return failures ? 1 : 0;
}
