// The host aircraft model: a twin-jet that answers the module's key events
// and moves every host token the gauges read, one update cycle at a time.
//
// Most of the aircraft's state lives in the host's token table itself: each
// step reads the tokens, advances them by one cycle and writes them back, so a
// script that sets a token while the model runs gives it a new starting value.
// Deterministic: no clock, no random numbers.
#pragma once

#include <array>
#include <cstdint>

namespace kestrane::host {
class Host;
}

namespace kestrane::host::model {

constexpr double kCycle = 1.0 / 18.0;  // seconds per update cycle

struct Station {
    enum Kind { Vor, Ils, Ndb } kind;
    double freq;    // NAV: MHz; NDB: kHz
    double x, y;    // nautical miles east / north of the runway threshold
    double course;  // ILS front course, degrees
    bool dme;       // distance equipment co-located
    double gs_x;    // ILS glide-slope antenna, nm east of the threshold
    double range;   // nm
};

// Home airport: runway 27 from the threshold at (0, 0), sea level.
extern const std::array<Station, 4> kStations;
struct Marker {
    double x, y, radius;  // nm
    double code;          // token 354: 1 outer, 2 middle, 3 inner
};
extern const std::array<Marker, 3> kMarkers;

class Aircraft {
public:
    // Cold and dark, parked on the threshold of runway 27, tanks full.
    void reset(Host& h);
    // A key event from the module, applied at once.
    void event(Host& h, std::uint32_t event, std::uint32_t value);
    // One update cycle, before the gauges run.
    void step(Host& h);

    // Pure helpers, shared with the tests.
    static double n1_from_n2(double n2);
    static double fuel_flow(double n1);  // lb/h
    static double thrust(double n1);     // lbf, one engine, forward
    static double stall_speed(double weight_kg, double flaps_deg);
    static std::uint32_t nav_bcd(double mhz);  // 110.30 -> 0x1030
    static double nav_mhz(std::uint32_t bcd);  // and back
    static double com_mhz(std::uint32_t bcd);  // last nibble 2/5/7 -> .x25/.x50/.x75
    static std::uint32_t com_bcd(double mhz);  // truncated to 10 kHz

private:
    struct Engine {
        bool burning = false;
        bool cranking = false;  // a start event arrived this cycle
    };
    void step_engines(Host& h);
    void step_fuel(Host& h);
    void step_systems(Host& h);
    void step_flight(Host& h);
    void step_autopilot(Host& h, double& bank_rate, double& gamma_deg, bool& pitch_held);
    void step_radios(Host& h);
    void publish(Host& h);
    bool radio_event(Host& h, std::uint32_t event, std::uint32_t value);
    bool ap_event(Host& h, std::uint32_t event, std::uint32_t value);
    double weight_kg(const Host& h) const;
    double side_fuel_gal(const Host& h, int side) const;

    std::array<Engine, 2> eng_{};
    double x_nm_ = 0.0, y_nm_ = 0.0;         // position from the threshold
    bool hyd_item_ = false;                  // host hydraulic item (66309)
    bool exit_selected_ = false;             // 66389 picked the main exit for 65538
    double clock_offset_s_ = 10.0 * 3600.0;  // clock = offset + sim time
    double adf_khz_[2] = {350.0, 350.0};
    bool cabin_light_ = false;
    bool auto_coord_ = false;
    double ap_vs_fpm_ = 0.0, ap_alt_ft_ = 0.0, ap_hdg_deg_ = 0.0;
    double heading_rate_ = 0.0;  // deg/s, last cycle
};

}  // namespace kestrane::host::model
