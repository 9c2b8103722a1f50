#include "host/cockpit/protocol.h"

#include <nlohmann/json.hpp>

namespace kestrane::host::cockpit {

namespace {

using json = nlohmann::json;

bool whole(const json& j, const char* key, int lo, int hi, int& out) {
    auto it = j.find(key);
    if (it == j.end() || !it->is_number_integer())
        return false;
    const auto v = it->get<long long>();
    if (v < lo || v > hi)
        return false;
    out = static_cast<int>(v);
    return true;
}

}  // namespace

bool parse_request(std::string_view text, Request& r, std::string& error) {
    if (text.size() > 4096) {
        error = "message too long";
        return false;
    }
    const json j = json::parse(text, nullptr, false);
    if (j.is_discarded() || !j.is_object()) {
        error = "not a JSON object";
        return false;
    }
    auto t = j.find("t");
    if (t == j.end() || !t->is_string()) {
        error = "no message type";
        return false;
    }
    const std::string type = t->get<std::string>();
    static const std::pair<const char*, Request::Kind> mouse[] = {
        {"down", Request::Down}, {"up", Request::Up}, {"right", Request::Right}, {"move", Request::Move}};
    for (const auto& [name, kind] : mouse)
        if (type == name) {
            r.kind = kind;
            if (kind == Request::Up)
                return true;
            if (!whole(j, "g", 0, 100000, r.gauge) || !whole(j, "x", -10000, 10000, r.x) ||
                !whole(j, "y", -10000, 10000, r.y)) {
                error = "mouse message without gauge and position";
                return false;
            }
            return true;
        }
    if (type == "window") {
        auto ident = j.find("ident");
        auto open = j.find("open");
        if (ident == j.end() || !ident->is_string() || open == j.end() || !open->is_boolean() ||
            ident->get_ref<const std::string&>().size() > 64) {
            error = "window message without ident and open";
            return false;
        }
        r.kind = Request::Window;
        r.ident = ident->get<std::string>();
        r.open = open->get<bool>();
        return true;
    }
    if (type == "speed") {
        auto v = j.find("v");
        static const std::pair<const char*, int> speeds[] = {{"pause", 0}, {"1", 1}, {"2", 2},
                                                             {"4", 4},     {"8", 8}, {"max", kMaxSpeed}};
        if (v != j.end() && v->is_string())
            for (const auto& [name, speed] : speeds)
                if (v->get_ref<const std::string&>() == name) {
                    r.kind = Request::Speed;
                    r.speed = speed;
                    return true;
                }
        error = "unknown speed";
        return false;
    }
    if (type == "step") {
        r.kind = Request::Step;
        return true;
    }
    error = "unknown message type " + type.substr(0, 32);
    return false;
}

}  // namespace kestrane::host::cockpit
