// Draws the module's bitmaps from bitmaps.tsv, one 24-bit BMP file per id.
//   bmpgen TABLE OUTDIR                      writes OUTDIR/ID.bmp
//   bmpgen TABLE --contact-sheet FILE.png    one sheet of every image, by gauge
// Pure black is the host's transparent colour: needles, sprites and overlays
// stand on it, panels never use it.
#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Bitmap {
    int id = 0;
    std::string gauge;
    int w = 0, h = 0;
    std::string role, caption, colour, params;
};

struct Rgb {
    double r, g, b;
};

constexpr Rgb kPanel{0.30, 0.33, 0.36};
constexpr Rgb kPanelNight{0.12, 0.10, 0.08};
constexpr Rgb kEngrave{0.93, 0.93, 0.90};
constexpr Rgb kEngraveNight{1.0, 0.72, 0.35};
constexpr Rgb kFace{0.06, 0.06, 0.07};

std::vector<std::string> split(const std::string& s, char sep) {
    std::vector<std::string> out;
    std::stringstream in(s);
    std::string part;
    while (std::getline(in, part, sep))
        out.push_back(part);
    return out;
}

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
        if (v.size() != 4)
            continue;
        set(cr, ink, 0.55);
        cairo_rectangle(cr, std::atoi(v[0].c_str()) + 1.5, std::atoi(v[1].c_str()) + 1.5,
                        std::atoi(v[2].c_str()) - 3, std::atoi(v[3].c_str()) - 3);
        cairo_stroke(cr);
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
    for (int i = 0; i <= 10; ++i) {
        std::string d(1, static_cast<char>('0' + i % 10));
        if (vertical) {
            double step = (b.h - 20) / 10.0;
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
    if (has(b.caption, "left"))
        dx = -1, dy = 0;
    if (has(b.caption, "right"))
        dx = 1, dy = 0;
    set(cr, {0.15, 0.15, 0.16});
    cairo_arc(cr, cx, cy, r * 1.5, 0, 2 * M_PI);
    cairo_fill(cr);
    double len = (dx != 0 ? b.w : b.h) / 2.0 - r - 1;
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
    else if (r == "lamp")
        draw_lamp(cr, b);
    else if (r == "button")
        draw_button(cr, b);
    else if (r == "switch")
        draw_switch(cr, b);
    else if (r == "area")
        draw_area(cr, b);
    else if (r == "pointer")
        draw_pointer(cr, b);
    else
        draw_image(cr, b, r == "night");
}

cairo_surface_t* render(const Bitmap& b) {
    cairo_surface_t* s = cairo_image_surface_create(CAIRO_FORMAT_RGB24, b.w, b.h);
    cairo_t* cr = cairo_create(s);
    draw(cr, b);
    cairo_destroy(cr);
    cairo_surface_flush(s);
    return s;
}

void put32(std::string& out, unsigned v) {
    for (int i = 0; i < 4; ++i)
        out.push_back(static_cast<char>((v >> (8 * i)) & 0xFF));
}

void put16(std::string& out, unsigned v) {
    out.push_back(static_cast<char>(v & 0xFF));
    out.push_back(static_cast<char>((v >> 8) & 0xFF));
}

// 24-bit, bottom-up, rows padded to four bytes.
bool write_bmp(cairo_surface_t* s, const std::string& path) {
    int w = cairo_image_surface_get_width(s), h = cairo_image_surface_get_height(s);
    int stride = cairo_image_surface_get_stride(s);
    const unsigned char* px = cairo_image_surface_get_data(s);
    unsigned row = (static_cast<unsigned>(w) * 3 + 3) & ~3u;
    unsigned image = row * static_cast<unsigned>(h);
    std::string out;
    out.reserve(54 + image);
    out += "BM";
    put32(out, 54 + image);
    put32(out, 0);
    put32(out, 54);
    put32(out, 40);
    put32(out, static_cast<unsigned>(w));
    put32(out, static_cast<unsigned>(h));
    put16(out, 1);
    put16(out, 24);
    put32(out, 0);
    put32(out, image);
    put32(out, 2835);
    put32(out, 2835);
    put32(out, 0);
    put32(out, 0);
    for (int y = h - 1; y >= 0; --y) {
        const unsigned char* p = px + y * stride;
        for (int x = 0; x < w; ++x) {
            out.push_back(static_cast<char>(p[4 * x + 0]));
            out.push_back(static_cast<char>(p[4 * x + 1]));
            out.push_back(static_cast<char>(p[4 * x + 2]));
        }
        out.append(row - static_cast<unsigned>(w) * 3, '\0');
    }
    std::ofstream f(path, std::ios::binary);
    f.write(out.data(), static_cast<std::streamsize>(out.size()));
    return static_cast<bool>(f);
}

bool read_table(const char* path, std::vector<Bitmap>& out) {
    std::ifstream in(path);
    if (!in)
        return false;
    std::string line;
    int n = 0;
    while (std::getline(in, line)) {
        ++n;
        if (line.empty() || line[0] == '#')
            continue;
        std::vector<std::string> f = split(line, '\t');
        if (f.size() < 8) {
            std::fprintf(stderr, "%s:%d: expected 8 fields\n", path, n);
            return false;
        }
        Bitmap b{std::atoi(f[0].c_str()),
                 f[1],
                 std::atoi(f[2].c_str()),
                 std::atoi(f[3].c_str()),
                 f[4],
                 f[5],
                 f[6],
                 f[7]};
        if (b.id <= 0 || b.w <= 0 || b.h <= 0 || b.w > 4096 || b.h > 4096) {
            std::fprintf(stderr, "%s:%d: bad id or size\n", path, n);
            return false;
        }
        out.push_back(b);
    }
    return true;
}

// Every image at most 240 px wide, in rows under its gauge's name, id below each.
int contact_sheet(const std::vector<Bitmap>& all, const char* path) {
    constexpr double kWidth = 1600, kMax = 240, kPad = 8, kLabel = 14;
    std::vector<std::string> gauges;
    for (const Bitmap& b : all) {
        bool seen = false;
        for (const std::string& g : gauges)
            seen = seen || g == b.gauge;
        if (!seen)
            gauges.push_back(b.gauge);
    }
    // lay out once to know the height, then draw
    for (int pass = 0; pass < 2; ++pass) {
        static double height = 0;
        cairo_surface_t* s = nullptr;
        cairo_t* cr = nullptr;
        if (pass == 1) {
            s = cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(kWidth),
                                           static_cast<int>(height));
            cr = cairo_create(s);
            cairo_set_source_rgb(cr, 0.85, 0.85, 0.85);
            cairo_paint(cr);
        }
        double y = kPad;
        for (const std::string& g : gauges) {
            if (cr) {
                cairo_set_source_rgb(cr, 0, 0, 0);
                cairo_select_font_face(cr, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
                cairo_set_font_size(cr, 12);
                cairo_move_to(cr, kPad, y + 11);
                cairo_show_text(cr, g.c_str());
            }
            y += kLabel + 4;
            double x = kPad, row_h = 0;
            for (const Bitmap& b : all) {
                if (b.gauge != g)
                    continue;
                double k = std::min(1.0, kMax / std::max(b.w, b.h));
                double w = std::max(b.w * k, 36.0), h = b.h * k;
                if (x + w > kWidth - kPad) {
                    x = kPad;
                    y += row_h + kLabel + kPad;
                    row_h = 0;
                }
                if (cr) {
                    cairo_surface_t* img = render(b);
                    cairo_save(cr);
                    cairo_translate(cr, x, y);
                    cairo_scale(cr, k, k);
                    cairo_set_source_surface(cr, img, 0, 0);
                    cairo_paint(cr);
                    cairo_restore(cr);
                    cairo_surface_destroy(img);
                    cairo_set_source_rgb(cr, 0.1, 0.1, 0.5);
                    cairo_select_font_face(cr, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL,
                                           CAIRO_FONT_WEIGHT_NORMAL);
                    cairo_set_font_size(cr, 10);
                    cairo_move_to(cr, x, y + h + 11);
                    cairo_show_text(cr, std::to_string(b.id).c_str());
                }
                x += w + kPad;
                row_h = std::max(row_h, h);
            }
            y += row_h + kLabel + kPad * 2;
        }
        if (pass == 0) {
            height = y;
            continue;
        }
        cairo_destroy(cr);
        cairo_status_t st = cairo_surface_write_to_png(s, path);
        cairo_surface_destroy(s);
        if (st != CAIRO_STATUS_SUCCESS) {
            std::fprintf(stderr, "cannot write %s\n", path);
            return 1;
        }
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3 && !(argc == 4 && std::string(argv[2]) == "--contact-sheet")) {
        std::fprintf(stderr, "usage: bmpgen TABLE OUTDIR | bmpgen TABLE --contact-sheet FILE.png\n");
        return 2;
    }
    std::vector<Bitmap> all;
    if (!read_table(argv[1], all))
        return 1;
    if (argc == 4)
        return contact_sheet(all, argv[3]);
    for (const Bitmap& b : all) {
        cairo_surface_t* s = render(b);
        std::string path = std::string(argv[2]) + "/" + std::to_string(b.id) + ".bmp";
        bool ok = write_bmp(s, path);
        cairo_surface_destroy(s);
        if (!ok) {
            std::fprintf(stderr, "cannot write %s\n", path.c_str());
            return 1;
        }
    }
    return 0;
}
