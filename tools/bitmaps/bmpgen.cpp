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

#include "roles.h"

namespace {

using kestrane::bitmaps::Bitmap;
using kestrane::bitmaps::render;
using kestrane::bitmaps::split;

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
