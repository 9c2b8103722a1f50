#include "roles.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <sstream>

namespace kestrane::bitmaps {

std::vector<std::string> split(const std::string& s, char sep) {
    std::vector<std::string> out;
    std::stringstream in(s);
    std::string part;
    while (std::getline(in, part, sep))
        out.push_back(part);
    return out;
}

namespace {

struct Rgb {
    double r, g, b;
};

constexpr Rgb kPanel{0.30, 0.33, 0.36};
constexpr Rgb kPanelNight{0.12, 0.10, 0.08};
constexpr Rgb kEngrave{0.93, 0.93, 0.90};
constexpr Rgb kEngraveNight{1.0, 0.72, 0.35};
constexpr Rgb kFace{0.06, 0.06, 0.07};

bool has(const std::string& text, const char* word) {
    std::string lower = text;
    for (char& c : lower)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return lower.find(word) != std::string::npos;
}

void set(cairo_t* cr, Rgb c, double k = 1.0) {
    cairo_set_source_rgb(cr, c.r * k, c.g * k, c.b * k);
}

Rgb lamp_colour(const std::string& name) {
    if (name == "red")
        return {0.95, 0.12, 0.10};
    if (name == "amber")
        return {1.0, 0.66, 0.05};
    if (name == "green")
        return {0.15, 0.90, 0.25};
    if (name == "blue")
        return {0.25, 0.55, 1.0};
    return {0.96, 0.96, 0.92};
}

// Text centred on (x, y), shrunk to fit `maxw`.
void text(cairo_t* cr, const std::string& s, double x, double y, double size, double maxw,
          bool bold = false) {
    cairo_select_font_face(cr, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL,
                           bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr, size);
    cairo_text_extents_t e;
    cairo_text_extents(cr, s.c_str(), &e);
    if (e.width > maxw && maxw > 4) {
        size *= maxw / e.width;
        cairo_set_font_size(cr, size);
        cairo_text_extents(cr, s.c_str(), &e);
    }
    cairo_move_to(cr, x - e.width / 2 - e.x_bearing, y - e.height / 2 - e.y_bearing);
    cairo_show_text(cr, s.c_str());
}

// Caption words on up to three lines inside a box.
void caption(cairo_t* cr, const std::string& s, double x, double y, double w, double h) {
    std::vector<std::string> words = split(s, ' ');
    std::vector<std::string> lines;
    std::size_t per = words.size() <= 2 ? 1 : (words.size() + 2) / 3;
    cairo_select_font_face(cr, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
    cairo_set_font_size(cr, std::min(11.0, h * 0.6));
    cairo_text_extents_t whole;
    cairo_text_extents(cr, s.c_str(), &whole);
    if (h < 24 || w > 3 * h || whole.width <= w - 2)
        per = words.size();
    for (std::size_t i = 0; i < words.size(); i += per) {
        std::string line;
        for (std::size_t k = i; k < i + per && k < words.size(); ++k)
            line += (line.empty() ? "" : " ") + words[k];
        lines.push_back(line);
    }
    if (lines.empty())
        return;
    double size = std::min(11.0, h / (static_cast<double>(lines.size()) * 1.3));
    for (std::size_t i = 0; i < lines.size(); ++i) {
        double ly = y + h / 2 + (static_cast<double>(i) - (lines.size() - 1) / 2.0) * size * 1.2;
        text(cr, lines[i], x + w / 2, ly, size, w - 2, true);
    }
}

void bevel(cairo_t* cr, double x, double y, double w, double h, Rgb base) {
    set(cr, base);
    cairo_rectangle(cr, x, y, w, h);
    cairo_fill(cr);
    cairo_set_line_width(cr, 1);
    set(cr, base, 1.5);
    cairo_move_to(cr, x + 0.5, y + h - 0.5);
    cairo_line_to(cr, x + 0.5, y + 0.5);
    cairo_line_to(cr, x + w - 0.5, y + 0.5);
    cairo_stroke(cr);
    set(cr, base, 0.5);
    cairo_move_to(cr, x + w - 0.5, y + 0.5);
    cairo_line_to(cr, x + w - 0.5, y + h - 0.5);
    cairo_line_to(cr, x + 0.5, y + h - 0.5);
    cairo_stroke(cr);
}

void draw_panel(cairo_t* cr, const Bitmap& b, bool night) {
    bevel(cr, 0, 0, b.w, b.h, night ? kPanelNight : kPanel);
    Rgb ink = night ? kEngraveNight : kEngrave;
    // control outlines: the mouse boxes
    cairo_set_line_width(cr, 1);
    for (const std::string& box : split(b.params, ' ')) {
        std::vector<std::string> v = split(box, ',');
        if (v.size() != 4 && v.size() != 5)
            continue;
        const double x = std::atoi(v[0].c_str()), y = std::atoi(v[1].c_str());
        const double w = std::atoi(v[2].c_str()), h = std::atoi(v[3].c_str());
        set(cr, ink, 0.55);
        cairo_rectangle(cr, x + 1.5, y + 1.5, w - 3, h - 3);
        cairo_stroke(cr);
        if (v.size() == 5) {  // what the box opens, written in it ('_' for spaces)
            std::string words = v[4];
            std::replace(words.begin(), words.end(), '_', ' ');
            set(cr, ink, 0.8);
            text(cr, words, x + w / 2.0, y + h / 2.0, std::min(11.0, h * 0.4), w - 4, true);
        }
    }
    set(cr, ink);
    std::string label = b.caption;
    if (label.rfind("kestrane ", 0) == 0)
        label = label.substr(9);
    text(cr, label, b.w / 2.0, std::min(9.0, b.h / 2.0), std::min(10.0, b.h * 0.6), b.w - 4, true);
    // screws in the corners of larger panels
    if (b.w > 60 && b.h > 40) {
        for (int k = 0; k < 4; ++k) {
            double sx = (k & 1) ? b.w - 5 : 5, sy = (k & 2) ? b.h - 5 : 5;
            set(cr, night ? kPanelNight : kPanel, 0.6);
            cairo_arc(cr, sx, sy, 2.2, 0, 2 * M_PI);
            cairo_fill(cr);
        }
    }
}

// A dial: black face around each needle pivot, graduations at the points of
// the needle's value table with their values.
void draw_dial(cairo_t* cr, const Bitmap& b) {
    bevel(cr, 0, 0, b.w, b.h, kPanel);
    struct Mark {
        double x, y;
        std::string v;
    };
    struct Scale {
        double cx, cy, r;
        std::vector<Mark> marks;
    };
    std::vector<Scale> scales;
    for (const std::string& text_scale : split(b.params, ';')) {
        std::size_t colon = text_scale.find(':');
        if (colon == std::string::npos)
            continue;
        std::vector<std::string> c = split(text_scale.substr(0, colon), ',');
        Scale sc{std::atof(c[0].c_str()), std::atof(c[1].c_str()), 0, {}};
        for (const std::string& p : split(text_scale.substr(colon + 1), ' ')) {
            std::vector<std::string> v = split(p, ',');
            if (v.size() != 3)
                continue;
            Mark m{std::atof(v[0].c_str()), std::atof(v[1].c_str()), v[2]};
            sc.r = std::max(sc.r, std::hypot(m.x - sc.cx, m.y - sc.cy));
            sc.marks.push_back(m);
        }
        if (sc.r < 6)
            sc.r = std::min(b.w, b.h) * 0.4;
        scales.push_back(sc);
    }
    // every face first, so that no face hides another scale's graduations
    for (const Scale& sc : scales) {
        set(cr, {0.55, 0.56, 0.58});
        cairo_arc(cr, sc.cx, sc.cy, sc.r + 6, 0, 2 * M_PI);
        cairo_fill(cr);
    }
    for (const Scale& sc : scales) {
        set(cr, kFace);
        cairo_arc(cr, sc.cx, sc.cy, sc.r + 4, 0, 2 * M_PI);
        cairo_fill(cr);
    }
    for (const Scale& sc : scales) {
        set(cr, kEngrave);
        cairo_set_line_width(cr, 1.6);
        for (const Mark& m : sc.marks) {
            double d = std::hypot(m.x - sc.cx, m.y - sc.cy);
            if (d < 1) {
                cairo_arc(cr, m.x, m.y, 2, 0, 2 * M_PI);
                cairo_fill(cr);
                continue;
            }
            double ux = (m.x - sc.cx) / d, uy = (m.y - sc.cy) / d;
            cairo_move_to(cr, m.x + ux * 2, m.y + uy * 2);
            cairo_line_to(cr, m.x - ux * 5, m.y - uy * 5);
            cairo_stroke(cr);
            text(cr, m.v, m.x - ux * 13, m.y - uy * 13, std::max(6.0, std::min(10.0, sc.r / 5)), 28);
        }
    }
}

void draw_needle(cairo_t* cr, const Bitmap& b) {
    std::vector<std::string> p = split(b.params, ',');
    double rx = p.size() == 2 ? std::atof(p[0].c_str()) : 0,
           ry = p.size() == 2 ? std::atof(p[1].c_str()) : b.h / 2.0;
    double half = std::max(1.2, std::min(2.5, b.h / 4.0));
    set(cr, {0.97, 0.97, 0.97});
    cairo_move_to(cr, std::max(0.0, rx - 6), ry - half * 0.6);
    cairo_line_to(cr, b.w - 6, ry - half * 0.5);
    cairo_line_to(cr, b.w - 1, ry);
    cairo_line_to(cr, b.w - 6, ry + half * 0.5);
    cairo_line_to(cr, std::max(0.0, rx - 6), ry + half * 0.6);
    cairo_close_path(cr);
    cairo_fill(cr);
    set(cr, {0.7, 0.7, 0.72});
    cairo_arc(cr, rx, ry, std::clamp(std::min(rx, ry) - 0.5, 2.0, 4.5), 0, 2 * M_PI);
    cairo_fill(cr);
}

// Figures 0..9 then 0 again, evenly along the strip the moving image scrolls.
void draw_drum(cairo_t* cr, const Bitmap& b, bool vertical) {
    set(cr, kFace, 1.3);
    cairo_rectangle(cr, 0, 0, b.w, b.h);
    cairo_fill(cr);
    set(cr, kEngrave);
    // a vertical strip of one digit per unit of its range, 20 pixels apart,
    // when its size says so; ten digits over the strip otherwise
    const std::vector<std::string> p = split(b.params, ',');
    const int low = p.size() == 4 ? std::atoi(p[2].c_str()) : 0;
    const int span = p.size() == 4 ? std::atoi(p[3].c_str()) - low : 0;
    const bool by_unit = vertical && span > 0 && b.h == span * 20 + 20;
    const int count = by_unit ? span : 10;
    for (int i = 0; i <= count; ++i) {
        const int digit = by_unit ? ((low + i) % 10 + 10) % 10 : i % 10;
        std::string d(1, static_cast<char>('0' + digit));
        if (vertical) {
            double step = (b.h - 20) / static_cast<double>(count);
            text(cr, d, b.w / 2.0, 10 + i * step, std::min(14.0, b.w * 0.9), b.w - 1, true);
        } else {
            double step = (b.w - 16) / 10.0;
            text(cr, d, 8 + i * step, b.h / 2.0, std::min(14.0, b.h * 0.7), 12, true);
        }
    }
}

void draw_sphere(cairo_t* cr, const Bitmap& b) {
    set(cr, {0.20, 0.50, 0.85});
    cairo_rectangle(cr, 0, 0, b.w, b.h / 2.0);
    cairo_fill(cr);
    set(cr, {0.50, 0.32, 0.15});
    cairo_rectangle(cr, 0, b.h / 2.0, b.w, b.h / 2.0);
    cairo_fill(cr);
    set(cr, kEngrave);
    cairo_set_line_width(cr, 1.5);
    cairo_move_to(cr, 0, b.h / 2.0);
    cairo_line_to(cr, b.w, b.h / 2.0);
    cairo_stroke(cr);
    cairo_set_line_width(cr, 1);
    for (int k = -4; k <= 4; ++k) {
        if (k == 0)
            continue;
        double y = b.h / 2.0 - k * b.h / 20.0, half = (k % 2 ? 0.08 : 0.16) * b.w;
        cairo_move_to(cr, b.w / 2.0 - half, y);
        cairo_line_to(cr, b.w / 2.0 + half, y);
        cairo_stroke(cr);
        if (k % 2 == 0)
            text(cr, std::to_string(std::abs(k) * 5), b.w / 2.0 + half + 8, y, 7, 14);
    }
}

// A bank scale: marks at 0, 10, 20, 30 and 60 degrees each side of the top of
// a ring, the rest transparent, turning over the sphere.
void draw_bank_scale(cairo_t* cr, const Bitmap& b) {
    const double cx = b.w / 2.0, cy = b.h / 2.0, r = std::min(b.w, b.h) / 2.0 - 4;
    set(cr, {0.95, 0.95, 0.95});
    cairo_set_line_width(cr, 2);
    cairo_arc(cr, cx, cy, r, -M_PI / 2 - M_PI / 3, -M_PI / 2 + M_PI / 3);
    cairo_stroke(cr);
    for (int deg : {-60, -30, -20, -10, 10, 20, 30, 60}) {
        const double a = deg * M_PI / 180 - M_PI / 2, len = std::abs(deg) % 30 == 0 ? 0.12 * r : 0.07 * r;
        cairo_move_to(cr, cx + std::cos(a) * r, cy + std::sin(a) * r);
        cairo_line_to(cr, cx + std::cos(a) * (r - len), cy + std::sin(a) * (r - len));
        cairo_stroke(cr);
    }
    // the zero mark: a triangle pointing at the centre
    cairo_move_to(cr, cx, cy - r + 0.1 * r);
    cairo_line_to(cr, cx - 0.05 * r, cy - r);
    cairo_line_to(cr, cx + 0.05 * r, cy - r);
    cairo_close_path(cr);
    cairo_fill(cr);
}

void draw_card(cairo_t* cr, const Bitmap& b) {
    double cx = b.w / 2.0, cy = b.h / 2.0, r = std::min(b.w, b.h) / 2.0 - 1;
    set(cr, kFace, 1.5);
    cairo_arc(cr, cx, cy, r, 0, 2 * M_PI);
    cairo_fill(cr);
    set(cr, kEngrave);
    cairo_set_line_width(cr, 1);
    static const char* const cardinal[] = {"N", "3", "6", "E", "12", "15", "S", "21", "24", "W", "30", "33"};
    for (int deg = 0; deg < 360; deg += 5) {
        double a = deg * M_PI / 180 - M_PI / 2, len = deg % 10 ? 3 : 6;
        cairo_move_to(cr, cx + std::cos(a) * r, cy + std::sin(a) * r);
        cairo_line_to(cr, cx + std::cos(a) * (r - len), cy + std::sin(a) * (r - len));
        cairo_stroke(cr);
        if (deg % 30 == 0)
            text(cr, cardinal[deg / 30], cx + std::cos(a) * (r - 14), cy + std::sin(a) * (r - 14),
                 std::max(6.0, r / 7), r / 2, true);
    }
}

void draw_lamp(cairo_t* cr, const Bitmap& b) {
    Rgb c = lamp_colour(b.colour);
    bool lit = !(has(b.caption, "off") || has(b.caption, "unlit") || has(b.caption, "dark"));
    set(cr, {0.1, 0.1, 0.1});
    cairo_rectangle(cr, 0, 0, b.w, b.h);
    cairo_fill(cr);
    set(cr, c, lit ? 1.0 : 0.28);
    cairo_rectangle(cr, 1.5, 1.5, b.w - 3, b.h - 3);
    cairo_fill(cr);
    set(cr, lit ? Rgb{0.08, 0.05, 0.02} : Rgb{c.r * 0.6, c.g * 0.6, c.b * 0.6});
    caption(cr, b.caption, 2, 2, b.w - 4, b.h - 4);
}

// An instrument's warning flag: red with white stripes across it.
void draw_flag(cairo_t* cr, const Bitmap& b) {
    set(cr, {0.82, 0.10, 0.08});
    cairo_rectangle(cr, 0, 0, b.w, b.h);
    cairo_fill(cr);
    cairo_save(cr);
    cairo_rectangle(cr, 0, 0, b.w, b.h);
    cairo_clip(cr);
    set(cr, {0.96, 0.96, 0.96});
    const double pitch = std::max(4.0, std::min(b.w, b.h) / 2.0);
    cairo_set_line_width(cr, pitch / 2.5);
    for (double x = -b.h; x < b.w + b.h; x += pitch) {
        cairo_move_to(cr, x, b.h);
        cairo_line_to(cr, x + b.h, 0);
    }
    cairo_stroke(cr);
    cairo_restore(cr);
}

// A round knob with a grip line, warm when its caption says it is lit.
void draw_knob(cairo_t* cr, const Bitmap& b) {
    const double cx = b.w / 2.0, cy = b.h / 2.0, r = std::min(b.w, b.h) / 2.0 - 1;
    const bool lit = has(b.caption, "lit");
    set(cr, {0.12, 0.12, 0.13});
    cairo_arc(cr, cx, cy, r, 0, 2 * M_PI);
    cairo_fill(cr);
    set(cr, lit ? Rgb{0.55, 0.42, 0.20} : Rgb{0.30, 0.31, 0.33});
    cairo_arc(cr, cx, cy, r * 0.8, 0, 2 * M_PI);
    cairo_fill(cr);
    set(cr, lit ? Rgb{1.0, 0.85, 0.55} : Rgb{0.9, 0.9, 0.9});
    cairo_set_line_width(cr, std::max(1.0, r / 5));
    cairo_move_to(cr, cx, cy - r * 0.75);
    cairo_line_to(cr, cx, cy - r * 0.2);
    cairo_stroke(cr);
}

void draw_button(cairo_t* cr, const Bitmap& b) {
    bool pressed = has(b.caption, "pressed") || has(b.caption, "in");
    bevel(cr, 0, 0, b.w, b.h, {0.18, 0.18, 0.2});
    double inset = pressed ? 3 : 2;
    bevel(cr, inset, inset, b.w - 2 * inset, b.h - 2 * inset,
          pressed ? Rgb{0.35, 0.36, 0.38} : Rgb{0.45, 0.46, 0.48});
    set(cr, b.colour == "-" || b.colour == "white" ? kEngrave : lamp_colour(b.colour));
    caption(cr, b.caption, inset, inset, b.w - 2 * inset, b.h - 2 * inset);
}

// A toggle or lever seen from the front: its bat points the way the caption says.
void draw_switch(cairo_t* cr, const Bitmap& b) {
    bevel(cr, 0, 0, b.w, b.h, kPanel);
    double cx = b.w / 2.0, cy = b.h / 2.0, r = std::max(2.5, std::min(b.w, b.h) / 5.0);
    double dx = 0, dy = 0;
    if (has(b.caption, "up") || has(b.caption, "on") || has(b.caption, "open"))
        dy = -1;
    if (has(b.caption, "down") || has(b.caption, "off") || has(b.caption, "shut") || has(b.caption, "closed"))
        dy = 1;
    // left or right only when the caption names no other way ("left selector
    // up" is the left selector, up)
    const bool centre = has(b.caption, "centre") || has(b.caption, "center");
    if (dy == 0 && !centre && has(b.caption, "left"))
        dx = -1;
    if (dy == 0 && !centre && has(b.caption, "right"))
        dx = 1;
    double len = (dx != 0 ? b.w : b.h) / 2.0 - r - 1;
    if (dx != 0 && b.w < b.h) {
        // left or right on a tall narrow switch: a selector turned that way
        dx *= M_SQRT1_2;
        dy = -M_SQRT1_2;
        len = b.h / 2.0 - r - 1;
    }
    set(cr, {0.15, 0.15, 0.16});
    cairo_arc(cr, cx, cy, r * 1.5, 0, 2 * M_PI);
    cairo_fill(cr);
    set(cr, {0.82, 0.82, 0.84});
    cairo_set_line_width(cr, r);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    cairo_move_to(cr, cx, cy);
    cairo_line_to(cr, cx + dx * len, cy + dy * len);
    cairo_stroke(cr);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
    if (has(b.caption, "guard")) {
        bool closed = has(b.caption, "guard closed") || has(b.caption, "closed");
        cairo_set_source_rgba(cr, 0.85, 0.1, 0.1, closed ? 0.75 : 0.9);
        if (closed)
            cairo_rectangle(cr, 1, 1, b.w - 2, b.h - 2);
        else
            cairo_rectangle(cr, 1, 1, b.w - 2, std::max(3.0, b.h / 6.0));
        cairo_fill(cr);
    }
}

void draw_image(cairo_t* cr, const Bitmap& b, bool night) {
    bevel(cr, 0, 0, b.w, b.h, night ? kPanelNight : Rgb{0.22, 0.24, 0.26});
    set(cr, night ? kEngraveNight : kEngrave);
    if (b.caption != "image")
        caption(cr, b.caption, 1, 1, b.w - 2, b.h - 2);
}

// Where an invisible window toggle lies: a yellow frame on the transparent colour.
void draw_area(cairo_t* cr, const Bitmap& b) {
    cairo_set_source_rgb(cr, 1.0, 0.85, 0.1);
    cairo_set_line_width(cr, 2);
    cairo_rectangle(cr, 1, 1, b.w - 2, b.h - 2);
    cairo_stroke(cr);
    caption(cr, b.caption, 3, 3, b.w - 6, b.h - 6);
}

void draw_pointer(cairo_t* cr, const Bitmap& b) {
    set(cr, kEngrave);
    cairo_move_to(cr, 0, 0);
    cairo_line_to(cr, b.w, b.h / 2.0);
    cairo_line_to(cr, 0, b.h);
    cairo_close_path(cr);
    cairo_fill(cr);
}

// A lever carried along its travel: the knob across the track, the reverse
// lever in red, otherwise the shaft.
void draw_lever(cairo_t* cr, const Bitmap& b) {
    if (has(b.caption, "knob")) {
        set(cr, {0.12, 0.12, 0.13});
        cairo_rectangle(cr, 1, 1, b.w - 2, b.h - 2);
        cairo_fill(cr);
        set(cr, kEngrave);
        cairo_rectangle(cr, 3, b.h / 2.0 - 1, b.w - 6, 2);
        cairo_fill(cr);
    } else if (has(b.caption, "reverse")) {
        set(cr, {0.70, 0.12, 0.10});
        cairo_rectangle(cr, 1, 1, b.w - 2, b.h - 2);
        cairo_fill(cr);
    } else {
        set(cr, {0.75, 0.76, 0.78});
        cairo_rectangle(cr, 3, 0, b.w - 6, b.h);
        cairo_fill(cr);
    }
}

// A deviation bar: a white bar down the middle, the rest transparent.
void draw_bar(cairo_t* cr, const Bitmap& b) {
    const double w = std::max(2.0, b.w / 2.0);
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_rectangle(cr, (b.w - w) / 2.0, 1, w, b.h - 2);
    cairo_fill(cr);
}

void draw(cairo_t* cr, const Bitmap& b) {
    cairo_set_source_rgb(cr, 0, 0, 0);
    cairo_paint(cr);
    const std::string& r = b.role;
    if (r == "panel" || r == "panel-night")
        draw_panel(cr, b, r == "panel-night");
    else if (r == "dial")
        draw_dial(cr, b);
    else if (r == "needle")
        draw_needle(cr, b);
    else if (r == "drum" || r == "drum-h")
        draw_drum(cr, b, r == "drum");
    else if (r == "sphere")
        draw_sphere(cr, b);
    else if (r == "card")
        draw_card(cr, b);
    else if (r == "bank-scale")
        draw_bank_scale(cr, b);
    else if (r == "lamp")
        draw_lamp(cr, b);
    else if (r == "flag")
        draw_flag(cr, b);
    else if (r == "knob")
        draw_knob(cr, b);
    else if (r == "button")
        draw_button(cr, b);
    else if (r == "switch")
        draw_switch(cr, b);
    else if (r == "area")
        draw_area(cr, b);
    else if (r == "pointer")
        draw_pointer(cr, b);
    else if (r == "bar")
        draw_bar(cr, b);
    else if (r == "lever")
        draw_lever(cr, b);
    else if (r == "overlay")
        return;  // all transparent
    else
        draw_image(cr, b, r == "night");
}

}  // namespace

cairo_surface_t* render(const Bitmap& b) {
    cairo_surface_t* s = cairo_image_surface_create(CAIRO_FORMAT_RGB24, b.w, b.h);
    cairo_t* cr = cairo_create(s);
    draw(cr, b);
    cairo_destroy(cr);
    cairo_surface_flush(s);
    return s;
}

}  // namespace kestrane::bitmaps
