// Radios tuned by their knob events, the navaids around the home airport and
// what the receivers make of them; the host autopilot's modes and targets.
#include <algorithm>
#include <cmath>

#include "host/host.h"
#include "host/model/aircraft.h"
#include "host/model/angles.h"
#include "host/model/tokens.h"

namespace kestrane::host::model {

// ILS 27 (localizer at the far end, glide slope 1000 ft in, DME), a VOR to
// the north-east, the locator at the outer marker.
const std::array<Station, 4> kStations = {{
    {Station::Ils, 110.30, -1.6, 0.0, 270.0, true, -0.16, 25.0},
    {Station::Vor, 113.90, 20.0, 8.0, 0.0, true, 0.0, 60.0},
    {Station::Ndb, 350.0, 4.5, 0.0, 0.0, false, 0.0, 30.0},
    {Station::Vor, 115.50, -20.0, -5.0, 0.0, false, 0.0, 60.0},
}};
const std::array<Marker, 3> kMarkers = {{{4.5, 0.0, 0.35, 1.0}, {0.55, 0.0, 0.2, 2.0}, {0.1, 0.0, 0.1, 3.0}}};

namespace {

std::uint32_t read_bcd(const Host& h, std::uint32_t id) {
    std::uint8_t raw[8];
    h.read_token(id, raw);
    return static_cast<std::uint32_t>(raw[0]) | static_cast<std::uint32_t>(raw[1]) << 8 |
           static_cast<std::uint32_t>(raw[2]) << 16 | static_cast<std::uint32_t>(raw[3]) << 24;
}
std::uint32_t to_bcd(long n) {
    std::uint32_t out = 0;
    for (int i = 0; i < 4; ++i, n /= 10)
        out |= static_cast<std::uint32_t>(n % 10) << (4 * i);
    return out;
}
long from_bcd(std::uint32_t b) {
    long n = 0;
    for (int i = 3; i >= 0; --i)
        n = n * 10 + static_cast<long>((b >> (4 * i)) & 0xF);
    return n;
}
const Station* nav_station(double mhz) {
    for (const Station& s : kStations)
        if (s.kind != Station::Ndb && std::fabs(s.freq - mhz) < 0.004)
            return &s;
    return nullptr;
}
const Station* ndb_station(double khz) {
    for (const Station& s : kStations)
        if (s.kind == Station::Ndb && std::fabs(s.freq - khz) < 0.5)
            return &s;
    return nullptr;
}
}  // namespace

std::uint32_t Aircraft::nav_bcd(double mhz) {
    return to_bcd(std::lround(mhz * 100.0) - 10000);
}
double Aircraft::nav_mhz(std::uint32_t bcd) {
    return (static_cast<double>(from_bcd(bcd)) + 10000.0) / 100.0;
}
double Aircraft::com_mhz(std::uint32_t bcd) {
    const long tenk = from_bcd(bcd) + 10000;  // 10 kHz units
    const long last = tenk % 10;
    const double extra = last == 2 || last == 7 ? 0.005 : 0.0;
    return static_cast<double>(tenk) / 100.0 + extra;
}
std::uint32_t Aircraft::com_bcd(double mhz) {
    return to_bcd(static_cast<long>(std::floor(mhz * 100.0 + 1e-6)) - 10000);
}

bool Aircraft::radio_event(Host& h, std::uint32_t e, std::uint32_t v) {
    using namespace tok;
    // COM: 118.000..136.975 in 25 kHz; NAV: 108.00..117.95 in 50 kHz. The MHz
    // knob wraps the band, the fraction knob wraps within the MHz.
    auto tune = [&](Id id, bool com, int mhz_step, int khz_steps) {
        const double lo = com ? 118.0 : 108.0, hi = com ? 136.0 : 117.0;
        const double step = com ? 0.025 : 0.05;
        double f = com ? com_mhz(read_bcd(h, id)) : nav_mhz(read_bcd(h, id));
        double whole = std::floor(f + 1e-6), frac = f - whole;
        whole += mhz_step;
        if (whole > hi)
            whole = lo;
        if (whole < lo)
            whole = hi;
        long k = std::lround(frac / step) + khz_steps;
        const long n = std::lround(1.0 / step);
        k = ((k % n) + n) % n;
        f = whole + static_cast<double>(k) * step;
        h.set_token_bcd(id, com ? com_bcd(f) : nav_bcd(f));
    };
    auto adf = [&](int n, double khz) {
        double f = adf_khz_[n] + khz;
        if (f > 1799.95)
            f -= 1610.0;
        if (f < 190.0)
            f += 1610.0;
        adf_khz_[n] = std::round(f * 10.0) / 10.0;
    };
    auto xpdr = [&](int digit, int d) {
        std::uint32_t code = read_bcd(h, kXpdr);
        const int shift = 4 * (3 - digit);
        const std::uint32_t nib = (((code >> shift) & 0xF) + static_cast<std::uint32_t>(8 + d)) % 8;
        code = (code & ~(0xFu << shift)) | nib << shift;
        h.set_token_bcd(kXpdr, code);
    };
    switch (e) {
        case 65636:
            tune(kCom1, true, -1, 0);
            return true;
        case 65637:
            tune(kCom1, true, 1, 0);
            return true;
        case 65638:
            tune(kCom1, true, 0, -1);
            return true;
        case 65639:
            tune(kCom1, true, 0, 1);
            return true;
        case 66436:
            tune(kCom2, true, -1, 0);
            return true;
        case 66437:
            tune(kCom2, true, 1, 0);
            return true;
        case 66438:
            tune(kCom2, true, 0, -1);
            return true;
        case 66440:
            tune(kCom2, true, 0, 1);
            return true;
        case 65640:
            tune(kNav1, false, -1, 0);
            return true;
        case 65641:
            tune(kNav1, false, 1, 0);
            return true;
        case 65642:
            tune(kNav1, false, 0, -1);
            return true;
        case 65643:
            tune(kNav1, false, 0, 1);
            return true;
        case 65644:
            tune(kNav2, false, -1, 0);
            return true;
        case 65645:
            tune(kNav2, false, 1, 0);
            return true;
        case 65646:
            tune(kNav2, false, 0, -1);
            return true;
        case 65647:
            tune(kNav2, false, 0, 1);
            return true;
        case 65648:
            adf(0, 100.0);
            return true;
        case 65649:
            adf(0, 10.0);
            return true;
        case 65650:
            adf(0, 1.0);
            return true;
        case 65666:
            adf(0, -100.0);
            return true;
        case 65667:
            adf(0, -10.0);
            return true;
        case 65668:
            adf(0, -1.0);
            return true;
        case 66462:
            adf(0, 0.1);
            return true;
        case 66461:
            adf(0, -0.1);
            return true;
        case 66544:
            adf(1, 100.0);
            return true;
        case 66545:
            adf(1, 10.0);
            return true;
        case 66546:
            adf(1, 1.0);
            return true;
        case 66548:
            adf(1, -100.0);
            return true;
        case 66549:
            adf(1, -10.0);
            return true;
        case 66550:
            adf(1, -1.0);
            return true;
        case 66554:
            adf(1, 0.1);
            return true;
        case 66555:
            adf(1, -0.1);
            return true;
        case 65651:
        case 65652:
        case 65653:
        case 65654:
            xpdr(static_cast<int>(e - 65651), 1);
            return true;
        case 66455:
        case 66456:
        case 66457:
        case 66458:
            xpdr(static_cast<int>(e - 66455), -1);
            return true;
        case 65716:
            h.set_token(kCourse, static_cast<double>(v));
            return true;
        case 66040:
            h.set_token(kBaroHpa, static_cast<double>(v) / 16.0);
            h.set_token(kBaroInHg, static_cast<double>(v) / 16.0 * 0.02953);
            return true;
        case 66463:
            h.set_token(874, 1.0);
            h.set_token(875, 0.0);
            return true;
        case 66464:
            h.set_token(875, 1.0);
            h.set_token(874, 0.0);
            return true;
        case 66465:
            h.set_token(876, h.token(876) == 1.0 ? 0.0 : 1.0);
            return true;
        case 65837:
            h.set_token(877, 1.0);
            return true;
        case 65832:
            h.set_token(877, 0.0);
            return true;
        case 65833:
            h.set_token(878, 0.0);
            return true;
        case 65841:
            h.set_token(880, 1.0);
            return true;
        case 65836:
            h.set_token(880, 0.0);
            return true;
        case 66478:
            h.set_token(881, v != 0 ? 1.0 : 0.0);
            return true;
        default:
            return false;
    }
}

bool Aircraft::ap_event(Host& h, std::uint32_t e, std::uint32_t v) {
    using namespace tok;
    auto clear_holds = [&] {
        for (Id id : {kApWing, kApNav, kApHdg, Id{107}, kApAlt, kApLoc, kApGs})
            h.set_token(id, 0.0);
    };
    switch (e) {
        case 65792:
            h.set_token(kApOn, 1.0);
            return true;
        case 65791:
        case 66094:
            h.set_token(kApOn, 0.0);
            clear_holds();
            return true;
        case 65809:
            h.set_token(kApWing, 1.0);
            return true;
        case 65817:
            h.set_token(kApWing, 0.0);
            return true;
        case 65811:
            h.set_token(kApNav, 1.0);
            return true;
        case 65813:
        case 65819:
            h.set_token(kApNav, 0.0);
            return true;
        case 65807:
            h.set_token(kApHdg, 1.0);
            return true;
        case 65815:
            h.set_token(kApHdg, 0.0);
            return true;
        case 65726:
            h.set_token(kApAlt, 1.0);
            return true;
        case 65805:
            h.set_token(kApLoc, 1.0);
            return true;
        case 65814:
            h.set_token(kApLoc, 0.0);
            h.set_token(kApGs, 0.0);
            return true;
        case 66036:
            ap_vs_fpm_ = static_cast<double>(static_cast<std::int32_t>(v));
            return true;
        case 66124:
            ap_alt_ft_ = static_cast<double>(v);
            return true;
        case 66042:
            ap_hdg_deg_ = static_cast<double>(v);
            return true;
        case 65953:
            auto_coord_ = true;
            return true;
        case 65952:
            auto_coord_ = false;
            return true;
        default:
            return false;
    }
}

// What the receivers make of the stations from where the aircraft is.
void Aircraft::step_radios(Host& h) {
    using namespace tok;
    const double hdg = h.token(kHeading);
    const double alt = h.token(kAltFt);
    const bool ground = h.token(kOnGround) == 1.0;
    auto geometry = [&](const Station& s, double& dist, double& brg_to) {
        const double dx = s.x - x_nm_, dy = s.y - y_nm_;
        dist = std::hypot(dx, dy);
        brg_to = wrap360(std::atan2(dx, dy) / kDeg);
    };
    auto slant = [&](double dist) { return std::hypot(dist, alt / 6076.0); };
    // NAV 1: CDI, TO/FROM, glide slope, code, signal, bearing, DME.
    const Station* s1 = nav_station(nav_mhz(read_bcd(h, kNav1)));
    double cdi = 0.0, gs = 0.0, tofrom = 0.0, code = 0.0, signal = 0.0, brg = 0.0, dme = -1.0, gs_valid = 0.0;
    if (s1) {
        double dist, to;
        geometry(*s1, dist, to);
        // A localizer is received in its front sector only.
        const bool sector = s1->kind != Station::Ils || std::fabs(wrap180(to - s1->course)) < 35.0;
        if (dist <= s1->range && sector) {
            signal = 1500.0;  // intercept scale 1500/30 + 30 = 80 needle units (6.3 degrees)
            brg = wrap360(to - hdg);
            if (s1->dme)
                dme = slant(dist);
            if (s1->kind == Station::Ils) {
                code = 192.0;
                cdi = std::clamp(wrap180(to - s1->course) * 50.8, -127.0, 127.0);
                const double along = x_nm_ - s1->gs_x;  // nm before the glide-slope antenna
                if (along > 0.0 && along < 12.0) {
                    gs_valid = 1.0;
                    const double angle = std::atan2(alt, along * 6076.0) / kDeg;
                    gs = std::clamp((angle - 3.0) / 0.7 * 120.0, -120.0, 120.0);
                }
            } else {
                const double course = h.token(kCourse);
                double err = wrap180(to - course);
                if (std::fabs(err) <= 90.0) {
                    tofrom = 1.0;
                } else {
                    tofrom = 2.0;
                    err = wrap180(course - (to + 180.0));
                }
                cdi = std::clamp(err * 12.7, -127.0, 127.0);
            }
        }
    }
    h.set_token(kCdi, cdi);
    h.set_token(kGsDev, gs);
    h.set_token(kGsValid, gs_valid);
    h.set_token(kToFrom, tofrom);
    h.set_token(kNav1Code, code);
    h.set_token(kNav1Signal, signal);
    h.set_token(kNav1Brg, brg);
    h.set_token(kDme1, dme);
    // NAV 2: code, bearing, DME.
    const Station* s2 = nav_station(nav_mhz(read_bcd(h, kNav2)));
    double code2 = 0.0, brg2 = 0.0, dme2 = -1.0;
    if (s2) {
        double dist, to;
        geometry(*s2, dist, to);
        if (dist <= s2->range) {
            code2 = s2->kind == Station::Ils ? 192.0 : 0.0;
            brg2 = wrap360(to - hdg);
            if (s2->dme)
                dme2 = slant(dist);
        }
    }
    h.set_token(kNav2Code, code2);
    h.set_token(kNav2Brg, brg2);
    h.set_token(kDme2, dme2);
    // ADF 1 bearing in degrees, ADF 2 in radians.
    for (int n = 0; n < 2; ++n) {
        double rel = 0.0;
        if (const Station* s = ndb_station(adf_khz_[n])) {
            double dist, to;
            geometry(*s, dist, to);
            if (dist <= s->range)
                rel = wrap360(to - hdg);
        }
        if (n == 0)
            h.set_token(kAdf1Brg, rel);
        else
            h.set_calc("(A:ADF Radial:2,radians)", rel * kDeg);
    }
    // Marker beacons: a cone over each, airborne only.
    double marker = 0.0;
    if (!ground)
        for (const Marker& m : kMarkers)
            if (std::hypot(m.x - x_nm_, m.y - y_nm_) < m.radius)
                marker = m.code;
    h.set_token(kMarker, marker);
}

}  // namespace kestrane::host::model
