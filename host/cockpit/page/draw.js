// Drawing the module's elements on a canvas: bitmaps (black is transparent
// where the element asks for it), needles turned by their value tables,
// moving images, the slider, sprites and strings.
'use strict';

const KIND = { STATIC: 0, NEEDLE: 1, STRING: 2, SLIDER: 3, ICON: 4, MOVING: 5, SPRITE: 6 };
const TRANSPARENT = 0x1;

// Bitmaps by id, each in an opaque and a keyed (black transparent) variant.
class Bitmaps {
  constructor(onload) {
    this.images = new Map();
    this.pending = new Map();
    this.settled = 0;
    this.onload = onload;
  }
  // Bitmaps asked for and not loaded yet.
  loading() {
    return this.pending.size - this.settled;
  }
  get(id, keyed) {
    const img = this.images.get(id);
    if (img) return keyed ? img.keyed : img.opaque;
    if (!this.pending.has(id)) this.pending.set(id, this.load(id));
    return null;
  }
  async load(id) {
    try {
      const res = await fetch(`/bitmaps/${id}.bmp`);
      if (!res.ok) return;
      const opaque = await createImageBitmap(await res.blob());
      const c = new OffscreenCanvas(opaque.width, opaque.height);
      const cx = c.getContext('2d');
      cx.drawImage(opaque, 0, 0);
      const data = cx.getImageData(0, 0, c.width, c.height);
      const p = data.data;
      for (let i = 0; i < p.length; i += 4)
        if (p[i] === 0 && p[i + 1] === 0 && p[i + 2] === 0) p[i + 3] = 0;
      const keyed = await createImageBitmap(data);
      this.images.set(id, { opaque, keyed });
      this.onload();
    } catch (e) {
      console.warn('bitmap', id, e);
    } finally {
      this.settled++;
    }
  }
}

// The angle a needle points at for `value`: its table pairs values with dial
// points; between two points the angle is interpolated the short way round.
function needleAngle(el, value) {
  const t = el.t || [];
  if (t.length === 0) return (value * Math.PI) / 180;
  const angle = (p) => Math.atan2(p[1] - el.y, p[0] - el.x);
  if (t.length === 1) return angle(t[0]);
  for (let i = 0; i + 1 < t.length; i++) {
    const a = t[i], b = t[i + 1];
    const lo = Math.min(a[2], b[2]), hi = Math.max(a[2], b[2]);
    if (value >= lo && value <= hi) {
      const f = a[2] === b[2] ? 0 : (value - a[2]) / (b[2] - a[2]);
      const a0 = angle(a);
      let d = angle(b) - a0;
      while (d > Math.PI) d -= 2 * Math.PI;
      while (d <= -Math.PI) d += 2 * Math.PI;
      return a0 + f * d;
    }
  }
  // outside the table: the end nearer in value
  const first = t[0], last = t[t.length - 1];
  const rising = last[2] >= first[2];
  const below = rising ? value < first[2] : value > first[2];
  return angle(below ? first : last);
}

function colour(ref) {
  const r = ref & 0xff, g = (ref >> 8) & 0xff, b = (ref >> 16) & 0xff;
  return `rgb(${r},${g},${b})`;
}

const num = (v) => (typeof v === 'number' && isFinite(v) ? v : 0);

// Draws one element whose hidden bit is clear. `st` is its state:
// { h: hidden, v: [v0, v1, v2], s: text }.
function drawElement(cx, bitmaps, el, st) {
  const keyed = (el.f & TRANSPARENT) !== 0;
  const v = st ? st.v : [0, 0, 0];
  switch (el.k) {
    case KIND.STATIC:
    case KIND.ICON: {
      const img = bitmaps.get(el.b, keyed);
      if (img) cx.drawImage(img, el.x, el.y);
      break;
    }
    case KIND.NEEDLE: {
      const img = bitmaps.get(el.b, keyed);
      if (!img) break;
      cx.save();
      cx.translate(el.x, el.y);
      cx.rotate(needleAngle(el, num(v[0])));
      cx.drawImage(img, -el.rx, -el.ry);
      cx.restore();
      break;
    }
    case KIND.STRING: {
      const w = el.bw, h = el.bh;
      cx.save();
      cx.beginPath();
      cx.rect(el.x, el.y, w, h);
      cx.clip();
      cx.fillStyle = colour(el.bg);
      cx.fillRect(el.x, el.y, w, h);
      cx.fillStyle = colour(el.fg);
      const size = Math.max(6, Math.min(h * 0.8, (w / Math.max(1, el.n)) * 1.6));
      cx.font = `${size}px "Courier New", "DejaVu Sans Mono", monospace`;
      cx.textAlign = 'center';
      cx.textBaseline = 'middle';
      cx.fillText((st && st.s) || '', el.x + w / 2, el.y + h / 2 + 1);
      cx.restore();
      break;
    }
    case KIND.SLIDER: {
      const img = bitmaps.get(el.b, keyed);
      if (img) cx.drawImage(img, el.x + num(v[0]) * el.sc[0], el.y + num(v[1]) * el.sc[1]);
      break;
    }
    case KIND.MOVING: {
      // A strip scrolled by its value through a window at the element's place.
      // A lever moves whole.
      const img = bitmaps.get(el.b, keyed);
      if (!img) break;
      const [minX, maxX, minY, maxY] = el.mn;
      const vertical = maxY - minY >= maxX - minX;
      const clamp = (x, a, b) => Math.min(Math.max(x, Math.min(a, b)), Math.max(a, b));
      const dx = clamp(num(v[0]), minX, maxX) - minX;
      const dy = clamp(num(v[1]), minY, maxY) - minY;
      // a bitmap shorter than its travel is a part carried along it (a lever)
      if (vertical ? img.height < maxY - minY : img.width < maxX - minX) {
        cx.drawImage(img, el.x + dx, el.y + dy);
        break;
      }
      // a strip: its range scrolls the whole strip past the window, as far
      // as the strip is longer than the window
      const winW = vertical ? img.width : Math.min(16, img.width);
      const winH = vertical ? Math.min(20, img.height) : img.height;
      const along = (d, lo, hi, size, win) => (hi !== lo ? (d / Math.abs(hi - lo)) * (size - win) : 0);
      cx.save();
      cx.beginPath();
      cx.rect(el.x, el.y, winW, winH);
      cx.clip();
      cx.drawImage(
        img,
        el.x - along(dx, minX, maxX, img.width, winW),
        el.y - along(dy, minY, maxY, img.height, winH),
      );
      cx.restore();
      break;
    }
    case KIND.SPRITE: {
      // A sprite turns about its bitmap's middle, which sits at the
      // element's place (or its reference point for those placed at 0,0),
      // offset by its x and y values along the turned axes.
      const img = bitmaps.get(el.b, keyed);
      if (!img) break;
      const atOrigin = el.x === 0 && el.y === 0;
      cx.save();
      cx.translate(atOrigin ? el.rx : el.x, atOrigin ? el.ry : el.y);
      if (Math.abs(img.width - img.height) <= 0.1 * Math.max(img.width, img.height)) {
        // a square bitmap is a round instrument's sphere or card: it shows
        // through the round window it fills when centred, however it turns
        // or is moved (a bar or a pointer is not clipped)
        const k = Math.min(Math.abs(el.sc[0] || 1), Math.abs(el.sc[1] || 1));
        cx.beginPath();
        cx.arc(0, 0, (Math.min(img.width, img.height) / 2) * k, 0, 2 * Math.PI);
        cx.clip();
      }
      cx.rotate((num(v[2]) * Math.PI) / 180);
      cx.translate(num(v[0]), num(v[1]));
      cx.scale(el.sc[0] || 1, el.sc[1] || 1);
      cx.drawImage(img, -img.width / 2, -img.height / 2);
      cx.restore();
      break;
    }
  }
}

// Draws a gauge placed at p = {x, y, w, h} of its window, stretched from its
// background bitmap over its place, clipped to it. Returns the bitmaps it drew.
function drawGauge(cx, bitmaps, gauge, p, states) {
  const drawn = [];
  cx.save();
  cx.beginPath();
  cx.rect(p.x, p.y, p.w, p.h);
  cx.clip();
  cx.translate(p.x, p.y);
  if (gauge.w > 0 && gauge.h > 0) cx.scale(p.w / gauge.w, p.h / gauge.h);
  for (let i = 0; i < gauge.el.length; i++) {
    const st = states ? states[i] : null;
    if (!st || st.h) continue;
    drawElement(cx, bitmaps, gauge.el[i], st);
    if (gauge.el[i].k !== KIND.STRING) drawn.push(gauge.el[i].b);
  }
  cx.restore();
  return drawn;
}

if (typeof module !== 'undefined') module.exports = { needleAngle, colour };
