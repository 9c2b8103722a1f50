// Starts kestrane-host cockpit and a headless Chromium on its page, and
// helps the tests work the cockpit with the real mouse.
import { spawn } from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { chromium } from 'playwright-core';

export const root = path.resolve(path.dirname(new URL(import.meta.url).pathname), '../..');
const hostBinary = process.env.KESTRANE_HOST || path.join(root, 'build/release/host/kestrane-host');
const chromiumPath = process.env.CHROMIUM || '/usr/bin/chromium';

export async function startHost(args = []) {
  const child = spawn(hostBinary, ['cockpit', '--port', '0', ...args], { stdio: ['ignore', 'pipe', 'inherit'] });
  const url = await new Promise((resolve, reject) => {
    let out = '';
    child.stdout.on('data', (d) => {
      out += d;
      const m = out.match(/cockpit at (http:\/\/\S+)/);
      if (m) resolve(m[1]);
    });
    child.on('exit', (code) => reject(new Error(`kestrane-host exited with ${code}`)));
  });
  const exited = new Promise((resolve) => child.on('exit', (code, signal) => resolve(signal ? 128 : code)));
  // stops the host; resolves to its exit status (0 when it shut down cleanly)
  const stop = () => {
    child.kill('SIGTERM');
    return exited;
  };
  return { child, url, stop };
}

export async function startBrowser() {
  const dir = fs.mkdtempSync(path.join(os.tmpdir(), 'kestrane-chromium-'));
  const context = await chromium.launchPersistentContext(dir, {
    executablePath: chromiumPath,
    headless: true,
    viewport: { width: 1900, height: 1150 },
    args: ['--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
      '--disable-background-networking', '--disable-component-update', '--disable-sync'],
  });
  return {
    context,
    close: async () => {
      await context.close();
      fs.rmSync(dir, { recursive: true, force: true });
    },
  };
}

// Opens the page and waits for the first full state.
export async function openPage(context, url) {
  const page = await context.newPage();
  const errors = [];
  page.on('pageerror', (e) => errors.push(e.message));
  await page.goto(url);
  await page.waitForFunction(() => window.cockpit && cockpit.layout && cockpit.messages > 0);
  page.errors = errors;
  return page;
}

// The page point of gauge pixel (gx, gy) of gauge `name` on window `ident`.
export async function gaugePoint(page, ident, name, gx, gy) {
  return page.evaluate(([ident, name, gx, gy]) => {
    const win = cockpit.layout.windows.find((w) => w.ident === ident);
    const p = win.gauges.find((q) => cockpit.layout.gauges[q.g].name === name);
    const g = cockpit.layout.gauges[p.g];
    const canvas = document.querySelector(`canvas[data-ident="${ident}"]`);
    const r = canvas.getBoundingClientRect();
    const sx = r.width / canvas.width, sy = r.height / canvas.height;
    return {
      x: r.left + (p.x + ((gx + 0.5) * p.w) / g.w) * sx,
      y: r.top + (p.y + ((gy + 0.5) * p.h) / g.h) * sy,
      gauge: p.g,
    };
  }, [ident, name, gx, gy]);
}

export async function click(page, ident, name, gx, gy, options = {}) {
  const at = await gaugePoint(page, ident, name, gx, gy);
  await page.mouse.click(at.x, at.y, options);
  return at;
}

export const isOpen = (page, ident) => page.evaluate((id) => cockpit.open.includes(id), ident);

export async function waitOpen(page, ident, open = true) {
  await page.waitForFunction(([id, want]) => cockpit.open.includes(id) === want, [ident, open]);
}

// Waits for `n` more cycles to reach the page.
export async function cycles(page, n) {
  const start = await page.evaluate(() => cockpit.cycle);
  await page.waitForFunction((c) => cockpit.cycle >= c, start + n);
}

export const field = (page, name) =>
  page.evaluate((n) => cockpit.fields[cockpit.layout.fields.findIndex((f) => f[0] === n)], name);

// The elements of a gauge as the page last heard them: [{h, v, s}].
export const states = (page, gauge) => page.evaluate((g) => cockpit.states[g], gauge);

// Chooses a cold start on the panel-load panel and waits for its sequence to
// close the windows it opened, all but the electrical panel.
export async function coldStart(page) {
  await waitOpen(page, '10520');
  await click(page, '10520', 'kestrane panload', 100, 120);
  await page.waitForFunction(() => cockpit.open.join() === 'MAIN_PANEL,10100');
}

// Chooses a ready-to-fly start and waits for the sequence to close every
// window again.
export async function readyStart(page) {
  await waitOpen(page, '10520');
  await click(page, '10520', 'kestrane panload', 400, 120);
  await page.waitForFunction(() => cockpit.open.join() === 'MAIN_PANEL', null, { timeout: 60000 });
}

// Where gauge `name` sits on window `ident`.
export const placement = (page, ident, name) =>
  page.evaluate(([ident, name]) => {
    const win = cockpit.layout.windows.find((w) => w.ident === ident);
    return win.gauges.find((q) => cockpit.layout.gauges[q.g].name === name);
  }, [ident, name]);

export const loaded = (page) => page.waitForFunction(() => cockpit.loading() === 0);
