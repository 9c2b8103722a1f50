// The cockpit page: draws the open panel windows from the host's state,
// sends the mouse to the host, plays the module's sounds, and shows the
// developer's side panel.
'use strict';

const MOUSE_LEFT = 0x20000000, MOUSE_RIGHT = 0x80000000, MOUSE_MOVE = 0x00400000;
const CURSORS = { 5: 'pointer', 1: 'n-resize', 2: 's-resize', '-1': 'default' };

const cockpit = (window.cockpit = {
  layout: null,
  states: {}, // gauge index -> [{h, v, s}] by drawing order
  open: [], // open window idents, bottom to top
  fields: [],
  cycle: 0,
  speed: 1,
  frames: 0, // window redraws
  messages: 0,
  bytes: 0, // received over the WebSocket
  fps: 0,
  drawn: {}, // gauge index -> the bitmaps drawn last, in order
  soundLog: [], // {n, op, loop, v, cycle}
  events: [],
  sounds: null,
});

const $ = (id) => document.getElementById(id);
let socket = null;
let dirty = true;
const dirtyGauges = new Set(); // gauges whose state changed since the last frame

function send(msg) {
  if (socket && socket.readyState === 1) socket.send(JSON.stringify(msg));
}

// ---------------------------------------------------------------- sounds

class Sounds {
  constructor() {
    this.ctx = null;
    this.items = new Map(); // name -> {buffer, gain, source, loop, volume, playing}
  }
  // Browsers start audio only after a gesture on the page.
  unlock() {
    if (!this.ctx) this.ctx = new AudioContext();
    if (this.ctx.state !== 'running') this.ctx.resume();
    $('audio').textContent = 'sound on';
    for (const [name, s] of this.items) if (s.playing && !s.source) this.start(name, s);
  }
  item(name) {
    let s = this.items.get(name);
    if (!s) {
      s = { buffer: null, gain: null, source: null, loop: false, volume: 0, playing: false, loading: null };
      this.items.set(name, s);
    }
    return s;
  }
  async fetch(name, s) {
    if (s.buffer || !this.ctx) return;
    if (!s.loading)
      s.loading = fetch(`/sounds/${name}.wav`)
        .then((r) => r.arrayBuffer())
        .then((b) => this.ctx.decodeAudioData(b))
        .then((buf) => (s.buffer = buf))
        .catch((e) => console.warn('sound', name, e));
    await s.loading;
  }
  async start(name, s) {
    if (!this.ctx) return;
    await this.fetch(name, s);
    if (!s.buffer || !s.playing || s.source) return;
    if (!s.gain) {
      s.gain = this.ctx.createGain();
      s.gain.connect(this.ctx.destination);
    }
    s.gain.gain.value = Math.pow(10, s.volume / 2000);
    const src = this.ctx.createBufferSource();
    src.buffer = s.buffer;
    src.loop = s.loop;
    src.connect(s.gain);
    src.onended = () => {
      if (s.source === src) {
        s.source = null;
        s.playing = false;
        showSounds();
      }
    };
    s.source = src;
    src.start();
    s.started = (s.started || 0) + 1;
  }
  op(o) {
    const s = this.item(o.n);
    cockpit.soundLog.push({ n: o.n, op: o.op, loop: o.loop, v: o.v, cycle: cockpit.cycle });
    if (cockpit.soundLog.length > 2000) cockpit.soundLog.splice(0, 1000);
    if (o.op === 'vol') {
      s.volume = Math.min(0, Math.max(-10000, o.v));
      if (s.gain) s.gain.gain.value = Math.pow(10, s.volume / 2000);
    } else if (o.op === 'play') {
      // playing a sound that plays already keeps it going, in the new mode
      s.loop = !!o.loop;
      s.playing = true;
      if (s.source) s.source.loop = s.loop;
      else this.start(o.n, s);
    } else if (o.op === 'stop') {
      s.playing = false;
      if (s.source) {
        const src = s.source;
        s.source = null;
        src.stop();
      }
    }
  }
  playing() {
    return [...this.items].filter(([, s]) => s.playing).map(([n, s]) => `${n}${s.loop ? ' (loop)' : ''}`);
  }
}
cockpit.sounds = new Sounds();

// ---------------------------------------------------------------- state

function applyElements(list) {
  for (const e of list) {
    const [g, i, h, v, s] = e;
    const st = cockpit.states[g] || (cockpit.states[g] = []);
    st[i] = { h: !!h, v, s };
    dirtyGauges.add(g);
  }
}

function apply(msg) {
  cockpit.messages++;
  if (msg.t === 'error') {
    console.warn('host:', msg.why);
    return;
  }
  if (msg.t === 'full') {
    cockpit.states = {};
    for (const view of views) view.dirty = true;
  }
  if (msg.el) applyElements(msg.el);
  if (msg.win) {
    cockpit.open = msg.win;
    placeWindows();
  }
  if (msg.fld) {
    if (msg.t === 'full') cockpit.fields = msg.fld.slice();
    else for (const [i, v] of msg.fld) cockpit.fields[i] = v;
    fieldsChanged(msg.t === 'full' ? null : msg.fld.map((f) => f[0]));
  }
  if (msg.snd) {
    for (const o of msg.snd) cockpit.sounds.op(o);
    showSounds();
  }
  if (msg.ev) {
    for (const [ev, value] of msg.ev) cockpit.events.push({ ev, value, cycle: msg.cycle });
    if (cockpit.events.length > 500) cockpit.events.splice(0, 250);
    showEvents();
  }
  if (msg.cycle !== undefined) cockpit.cycle = msg.cycle;
  if (msg.speed !== undefined && msg.speed !== cockpit.speed) {
    cockpit.speed = msg.speed;
    showSpeed();
  }
  dirty = true;
}

// ---------------------------------------------------------------- windows

const views = []; // per window of the layout: {win, div, canvas, cx}
let bitmaps = null;

function buildWindows() {
  const screen = $('screen');
  const main = cockpit.layout.windows[0];
  screen.style.width = `${main.w}px`;
  screen.style.height = `${main.h}px`;
  const menu = $('windows-menu');
  cockpit.layout.windows.forEach((win, index) => {
    const div = document.createElement('div');
    div.className = 'window';
    div.dataset.ident = win.ident;
    div.hidden = true;
    const title = document.createElement('div');
    title.className = 'title';
    title.textContent = win.title;
    const canvas = document.createElement('canvas');
    canvas.width = win.w;
    canvas.height = win.h;
    canvas.dataset.ident = win.ident;
    div.append(title, canvas);
    screen.append(div);
    const view = { win, div, canvas, cx: canvas.getContext('2d'), index, moved: null };
    views.push(view);
    hookMouse(view);
    hookDrag(view, title);
    const label = document.createElement('label');
    const box = document.createElement('input');
    box.type = 'checkbox';
    box.dataset.ident = win.ident;
    box.addEventListener('change', () => send({ t: 'window', ident: win.ident, open: box.checked }));
    label.append(box, ` ${win.title} (${win.ident})`);
    menu.append(label);
  });
  fit();
}

// Places a window on the screen by its anchor: 0 top-left ... 8 bottom-right.
function anchor(win, main) {
  const col = win.position % 3, row = Math.floor(win.position / 3);
  const x = col === 0 ? 0 : col === 1 ? (main.w - win.w) / 2 : main.w - win.w;
  const y = row === 0 ? 0 : row === 1 ? (main.h - win.h) / 2 : main.h - win.h;
  return [Math.max(0, Math.round(x)), Math.max(18, Math.round(y))];
}

function placeWindows() {
  const main = cockpit.layout.windows[0];
  for (const view of views) {
    const z = cockpit.open.indexOf(view.win.ident);
    const wasHidden = view.div.hidden;
    view.div.hidden = z < 0;
    if (z >= 0) {
      const [x, y] = view === views[0] ? [0, 0] : view.moved || anchor(view.win, main);
      view.div.style.left = `${x}px`;
      view.div.style.top = `${y}px`;
      view.div.style.zIndex = String(z + 1);
      view.div.querySelector('.title').hidden = view === views[0];
      if (wasHidden) {
        view.dirty = true;
        prefetch(view.win);
      }
    }
  }
  for (const box of document.querySelectorAll('#windows-menu input'))
    box.checked = cockpit.open.includes(box.dataset.ident);
}

// A window moves with its title bar dragged, and stays where it was left when
// closed and opened again (until the page reloads). Its title stays on the
// screen.
function hookDrag(view, title) {
  title.addEventListener('mousedown', (e) => {
    if (e.button !== 0) return;
    e.preventDefault();
    const scale = view.div.getBoundingClientRect().width / view.div.offsetWidth || 1;
    const start = [e.clientX, e.clientY, view.div.offsetLeft, view.div.offsetTop];
    const main = cockpit.layout.windows[0];
    const move = (m) => {
      const x = start[2] + (m.clientX - start[0]) / scale;
      const y = start[3] + (m.clientY - start[1]) / scale;
      view.moved = [
        Math.round(Math.min(Math.max(x, -view.win.w + 40), main.w - 40)),
        Math.round(Math.min(Math.max(y, 18), main.h - 18)),
      ];
      view.div.style.left = `${view.moved[0]}px`;
      view.div.style.top = `${view.moved[1]}px`;
    };
    const up = () => {
      window.removeEventListener('mousemove', move);
      window.removeEventListener('mouseup', up);
    };
    window.addEventListener('mousemove', move);
    window.addEventListener('mouseup', up);
  });
}

// Redraws a whole window, or only its gauges whose state changed (gauges of
// a window never overlap).
// Asks for every bitmap of a window, hidden images too, so that a switch
// shows its new position on the cycle it moves.
function prefetch(win) {
  for (const p of win.gauges)
    for (const el of cockpit.layout.gauges[p.g].el) if (el.k !== 2) bitmaps.get(el.b, true);
}

function drawWindow(view) {
  const { cx, win } = view;
  cx.fillStyle = `rgb(${win.bg.join(',')})`;
  if (view.dirty) cx.fillRect(0, 0, win.w, win.h);
  for (const p of win.gauges) {
    if (!view.dirty && !dirtyGauges.has(p.g)) continue;
    if (!view.dirty) cx.fillRect(p.x, p.y, p.w, p.h);
    cockpit.drawn[p.g] = drawGauge(cx, bitmaps, cockpit.layout.gauges[p.g], p, cockpit.states[p.g]);
  }
  view.dirty = false;
}

// Draws at most once a display frame, after every message that arrived.
function frame() {
  if (dirty) {
    dirty = false;
    for (const view of views) if (!view.div.hidden) drawWindow(view);
    dirtyGauges.clear();
    cockpit.frames++;
    $('cycle').textContent = cockpit.cycle;
  }
  requestAnimationFrame(frame);
}

function redrawAll() {
  for (const view of views) view.dirty = true;
  dirty = true;
}

// While bitmaps arrive, the windows are redrawn a few times a second.
let redrawTimer = null;
function bitmapArrived() {
  if (!redrawTimer)
    redrawTimer = setTimeout(() => {
      redrawTimer = null;
      redrawAll();
    }, 150);
}
cockpit.loading = () => (bitmaps ? bitmaps.loading() : 1);

function fit() {
  if (!cockpit.layout) return;
  const vp = $('viewport');
  const main = cockpit.layout.windows[0];
  const s = Math.min(vp.clientWidth / main.w, vp.clientHeight / main.h, 1);
  $('screen').style.transform = `scale(${s})`;
}
window.addEventListener('resize', fit);

// ---------------------------------------------------------------- mouse

// The gauge under a window point, topmost (last placed) first, and the point
// in that gauge's own pixels.
function gaugeAt(view, ox, oy) {
  const placed = view.win.gauges;
  for (let i = placed.length - 1; i >= 0; i--) {
    const p = placed[i];
    if (ox >= p.x && ox < p.x + p.w && oy >= p.y && oy < p.y + p.h) {
      const g = cockpit.layout.gauges[p.g];
      const gx = Math.floor(((ox - p.x) * g.w) / p.w), gy = Math.floor(((oy - p.y) * g.h) / p.h);
      return { index: p.g, gauge: g, x: gx, y: gy };
    }
  }
  return null;
}

function rowAt(hit, flags) {
  for (const r of hit.gauge.mouse) {
    const [x, y, w, h, , f] = r;
    if (flags && (f & flags) === 0) continue;
    if (hit.x >= x && hit.x < x + w && hit.y >= y && hit.y < y + h) return r;
  }
  return null;
}

let held = false;
let lastMove = '';

function hookMouse(view) {
  const c = view.canvas;
  const point = (e) => {
    const r = c.getBoundingClientRect();
    return gaugeAt(view, ((e.clientX - r.left) * c.width) / r.width, ((e.clientY - r.top) * c.height) / r.height);
  };
  c.addEventListener('mousemove', (e) => {
    const hit = point(e);
    const row = hit && rowAt(hit, 0);
    c.style.cursor = row ? CURSORS[row[4]] || 'default' : 'default';
    const tip = $('tooltip');
    if (hit && hit.gauge.tip) {
      tip.textContent = hit.gauge.tip;
      tip.style.left = `${e.clientX + 14}px`;
      tip.style.top = `${e.clientY + 16}px`;
      tip.hidden = false;
    } else tip.hidden = true;
    if (hit && rowAt(hit, MOUSE_MOVE)) {
      const key = `${hit.index},${hit.x},${hit.y}`;
      if (key !== lastMove) send({ t: 'move', g: hit.index, x: hit.x, y: hit.y });
      lastMove = key;
    } else lastMove = '';
  });
  c.addEventListener('mouseleave', () => ($('tooltip').hidden = true));
  c.addEventListener('mousedown', (e) => {
    if (e.button !== 0) return;
    e.preventDefault();
    const hit = point(e);
    if (hit && rowAt(hit, MOUSE_LEFT)) {
      send({ t: 'down', g: hit.index, x: hit.x, y: hit.y });
      held = true;
    }
  });
  c.addEventListener('contextmenu', (e) => {
    e.preventDefault();
    const hit = point(e);
    if (hit && rowAt(hit, MOUSE_RIGHT)) send({ t: 'right', g: hit.index, x: hit.x, y: hit.y });
  });
}

window.addEventListener('mouseup', () => {
  if (held) send({ t: 'up' });
  held = false;
});
window.addEventListener('pointerdown', () => cockpit.sounds.unlock(), true);

// ---------------------------------------------------------------- controls

function showSpeed() {
  $('pause').classList.toggle('on', cockpit.speed === 0);
  for (const b of document.querySelectorAll('#speeds button')) {
    const v = b.dataset.speed === 'max' ? -1 : Number(b.dataset.speed);
    b.classList.toggle('on', v === cockpit.speed);
  }
}

$('pause').addEventListener('click', () => send({ t: 'speed', v: cockpit.speed === 0 ? '1' : 'pause' }));
$('step').addEventListener('click', () => send({ t: 'step' }));
for (const b of document.querySelectorAll('#speeds button'))
  b.addEventListener('click', () => send({ t: 'speed', v: b.dataset.speed }));
$('windows-button').addEventListener('click', () => ($('windows-menu').hidden = !$('windows-menu').hidden));

// ---------------------------------------------------------------- side panel

const watched = new Set(JSON.parse(localStorage.getItem('kestrane-watch') || '[]'));
let fieldRows = []; // [{i, tr, td}]

function formatValue(v) {
  if (v === null || v === undefined) return 'NaN';
  return Number.isInteger(v) ? String(v) : v.toPrecision(7);
}

function buildFieldRows() {
  const body = $('fields').tBodies[0];
  body.textContent = '';
  fieldRows = [];
  const q = $('search').value.trim().toLowerCase();
  const names = cockpit.layout.fields;
  const order = [...names.keys()].filter((i) => watched.has(names[i][0]));
  if (q) for (let i = 0; i < names.length && order.length < 300; i++)
    if (!watched.has(names[i][0]) && names[i][0].includes(q)) order.push(i);
  for (const i of order) {
    const tr = document.createElement('tr');
    tr.className = watched.has(names[i][0]) ? 'watched' : '';
    const box = document.createElement('input');
    box.type = 'checkbox';
    box.title = 'watch';
    box.checked = watched.has(names[i][0]);
    box.addEventListener('change', () => {
      if (box.checked) watched.add(names[i][0]);
      else watched.delete(names[i][0]);
      localStorage.setItem('kestrane-watch', JSON.stringify([...watched]));
      buildFieldRows();
    });
    const td0 = document.createElement('td');
    td0.append(box);
    const td1 = document.createElement('td');
    td1.textContent = names[i][0];
    const td2 = document.createElement('td');
    td2.className = 'v';
    td2.textContent = formatValue(cockpit.fields[i]);
    tr.append(td0, td1, td2);
    tr.dataset.field = names[i][0];
    body.append(tr);
    fieldRows.push({ i, tr, td: td2 });
  }
}

function fieldsChanged(changed) {
  const set = changed ? new Set(changed) : null;
  for (const r of fieldRows) {
    r.td.textContent = formatValue(cockpit.fields[r.i]);
    r.tr.classList.toggle('changed', !!set && set.has(r.i));
  }
}

$('search').addEventListener('input', buildFieldRows);

function showEvents() {
  const ol = $('events');
  ol.textContent = '';
  for (const e of cockpit.events.slice(-40).reverse()) {
    const li = document.createElement('li');
    li.textContent = `cycle ${e.cycle}: ${e.ev} (0x${e.ev.toString(16)}) value ${e.value}`;
    ol.append(li);
  }
}

function showSounds() {
  const ul = $('playing');
  ul.textContent = '';
  for (const s of cockpit.sounds.playing()) {
    const li = document.createElement('li');
    li.textContent = `playing ${s}`;
    ul.append(li);
  }
  for (const o of cockpit.soundLog.slice(-12).reverse()) {
    if (o.op === 'vol') continue;
    const li = document.createElement('li');
    li.textContent = `cycle ${o.cycle}: ${o.op} ${o.n}${o.loop ? ' loop' : ''}`;
    ul.append(li);
  }
}

// ---------------------------------------------------------------- start

function connect() {
  socket = new WebSocket(`ws://${location.host}/ws`);
  socket.onopen = () => ($('link').textContent = 'connected');
  socket.onmessage = (m) => {
    cockpit.bytes += m.data.length;
    apply(JSON.parse(m.data));
  };
  socket.onclose = () => {
    $('link').textContent = 'disconnected';
    setTimeout(connect, 1000);
  };
}

setInterval(() => {
  cockpit.fps = cockpit.frames - (cockpit.lastFrames || 0);
  cockpit.lastFrames = cockpit.frames;
  $('fps').textContent = cockpit.fps;
}, 1000);

fetch('/api/layout')
  .then((r) => r.json())
  .then((layout) => {
    cockpit.layout = layout;
    bitmaps = new Bitmaps(bitmapArrived);
    buildWindows();
    buildFieldRows();
    connect();
    requestAnimationFrame(frame);
  });
