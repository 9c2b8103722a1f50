// The cockpit page in headless Chromium against a real kestrane-host.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import http from 'node:http';
import path from 'node:path';
import { after, before, describe, test } from 'node:test';

import * as h from './harness.mjs';

const shots = path.join(h.root, 'build/cockpit-screenshots');
let host, browser, page;

before(async () => {
  host = await h.startHost();
  browser = await h.startBrowser();
  page = await h.openPage(browser.context, host.url);
});

after(async () => {
  await browser?.close();
  // a clean exit: no sanitizer report, no leak
  assert.equal(await host?.stop(), 0);
});

describe('cockpit page', () => {
  test('loads with the panel-load panel over the main panel, and a cold start closes it', async () => {
    await h.waitOpen(page, 'MAIN_PANEL');
    await h.coldStart(page);
    const closes = await page.evaluate(() => cockpit.events.filter((e) => e.ev === 66508).map((e) => e.value));
    assert.ok(closes.includes(10520), 'the panel-load panel closed by its own event');
    assert.equal(await h.field(page, 'panel_load_choice'), 1);
  });

  test('the electrical panel closes and opens by its toggles; the master switch turns, CLICK plays once', async () => {
    await h.click(page, '10100', 'kestrane toggle_pan_elec2', 20, 60);
    await h.waitOpen(page, '10100', false);
    await h.click(page, 'MAIN_PANEL', 'kestrane toggle_pan_elec', 100, 30);
    await h.waitOpen(page, '10100');
    const name = 'kestrane elec_mas_sw_jm47';
    const box = await h.placement(page, '10100', name);
    const sw = box.g;
    await h.loaded(page);
    await h.cycles(page, 3);
    const before = await h.states(page, sw);
    assert.equal(before[2].h, false, 'OFF shown after a cold start');
    assert.equal(before[3].h, true);
    const drawn = () => page.evaluate((g) => cockpit.drawn[g], sw);
    assert.deepEqual(await drawn(), [26272, 28208], 'background and OFF drawn');
    const clicks = () => page.evaluate(() => cockpit.soundLog.filter((s) => s.n === 'CLICK' && s.op === 'play').length);
    const playsBefore = await clicks();
    await h.click(page, '10100', name, 10, 10);
    await page.waitForFunction((g) => cockpit.states[g][3].h === false, sw);
    await h.cycles(page, 3);
    const after = await h.states(page, sw);
    assert.equal(after[2].h, true, 'OFF hidden');
    assert.equal(after[3].h, false, 'BATTERY shown');
    assert.equal(await h.field(page, 'elec_master_sw'), 2);
    assert.deepEqual(await drawn(), [26272, 28224], 'the switch is drawn in its new position');
    const plays = await clicks();
    assert.equal(plays - playsBefore, 1, 'CLICK played once');
    // the click unlocked WebAudio and the sound really started
    assert.ok(await page.evaluate(() => cockpit.sounds.items.get('CLICK').started >= 1));
    // a click on the position it has changes nothing and plays nothing
    await h.click(page, '10100', name, 10, 10);
    await h.cycles(page, 3);
    assert.equal(await clicks(), plays);
  });

  test('a window moves by its title bar, its gauges with it, and stays where it was left', async () => {
    const ident = '10100', name = 'kestrane elec_mas_sw_jm47';
    const rect = () => page.evaluate((id) => {
      const r = document.querySelector(`canvas[data-ident="${id}"]`).getBoundingClientRect();
      return [r.left, r.top];
    }, ident);
    const [x0, y0] = await rect();
    const title = page.locator(`.window[data-ident="${ident}"] .title`);
    const t = await title.boundingBox();
    await page.mouse.move(t.x + 10, t.y + 5);
    await page.mouse.down();
    await page.mouse.move(t.x - 40, t.y + 35, { steps: 5 });
    await page.mouse.up();
    const [x1, y1] = await rect();
    assert.ok(Math.abs(x1 - (x0 - 50)) <= 1 && Math.abs(y1 - (y0 + 30)) <= 1, `moved to ${x1},${y1} from ${x0},${y0}`);
    // the master switch answers where it is drawn now: to 1, and back to 2
    await h.click(page, ident, name, 50, 10);
    await h.cycles(page, 3);
    assert.equal(await h.field(page, 'elec_master_sw'), 1);
    await h.click(page, ident, name, 10, 10);
    await h.cycles(page, 3);
    assert.equal(await h.field(page, 'elec_master_sw'), 2);
    // closed and opened again by its toggles: where it was left
    await h.click(page, ident, 'kestrane toggle_pan_elec2', 20, 60);
    await h.waitOpen(page, ident, false);
    await h.click(page, 'MAIN_PANEL', 'kestrane toggle_pan_elec', 100, 30);
    await h.waitOpen(page, ident);
    assert.deepEqual(await rect(), [x1, y1]);
    assert.deepEqual(page.errors, []);
  });

  test('holding the altitude selector keeps turning it; a click turns it one step', async () => {
    const name = 'kestrane setalt_jm47';
    const at = await h.gaugePoint(page, 'MAIN_PANEL', name, 150, 70);
    const start = await h.field(page, 'alt_alert_setting');
    await h.click(page, 'MAIN_PANEL', name, 150, 70);
    await h.cycles(page, 2);
    assert.equal((await h.field(page, 'alt_alert_setting')) - start, 100, 'one click, one step');
    const drums = (await h.states(page, at.gauge)).slice(3, 8).map((s) => s.v[1]);
    await page.mouse.move(at.x, at.y);
    await page.mouse.down();
    await h.cycles(page, 18);
    await page.mouse.up();
    await h.cycles(page, 6);
    const held = (await h.field(page, 'alt_alert_setting')) - start - 100;
    assert.ok(held >= 1500, `held about a second: ${held} ft`);
    const after = (await h.states(page, at.gauge)).slice(3, 8).map((s) => s.v[1]);
    assert.notDeepEqual(after, drums, 'the drums rolled');
    // released: it stays where it is
    const settled = await h.field(page, 'alt_alert_setting');
    await h.cycles(page, 6);
    assert.equal(await h.field(page, 'alt_alert_setting'), settled);
  });

  test('hover, right and left click on the top strip', async () => {
    const strip = 'kestrane panel_display';
    const hover = async () => {
      const a = await h.gaugePoint(page, 'MAIN_PANEL', strip, 600, 4);
      await page.mouse.move(a.x - 40, a.y + 30);
      await page.mouse.move(a.x, a.y);
    };
    const closeOverview = async () => {
      await page.click('#windows-button');
      await page.uncheck('#windows-menu input[data-ident="10510"]');
      await page.click('#windows-button');
      await h.waitOpen(page, '10510', false);
    };
    await hover();
    await h.waitOpen(page, '10510');
    await closeOverview();
    // right click: hovering no longer opens the overview panel
    await h.click(page, 'MAIN_PANEL', strip, 600, 4, { button: 'right' });
    await h.cycles(page, 2);
    assert.equal(await h.field(page, 'panel_overview_mode'), 10);
    await hover();
    await h.cycles(page, 4);
    assert.equal(await h.isOpen(page, '10510'), false);
    // left click: it does again
    await h.click(page, 'MAIN_PANEL', strip, 600, 4);
    await hover();
    await h.waitOpen(page, '10510');
    await closeOverview();
  });

  test('pause, step and speed', async () => {
    await page.click('#pause');
    await page.waitForFunction(() => cockpit.speed === 0);
    const c0 = await page.evaluate(() => cockpit.cycle);
    await page.waitForTimeout(400);
    assert.equal(await page.evaluate(() => cockpit.cycle), c0, 'paused');
    await page.click('#step');
    await page.waitForFunction((c) => cockpit.cycle === c + 1, c0);
    await page.click('#speeds button[data-speed="8"]');
    await page.waitForFunction(() => cockpit.speed === 8);
    const c1 = await page.evaluate(() => cockpit.cycle);
    await page.waitForTimeout(1000);
    const ran = (await page.evaluate(() => cockpit.cycle)) - c1;
    assert.ok(ran > 18 * 3, `x8 runs faster than real time: ${ran} cycles in a second`);
    await page.click('#speeds button[data-speed="1"]');
    await page.waitForFunction(() => cockpit.speed === 1);
  });

  test('a picture of every window', async () => {
    fs.mkdirSync(shots, { recursive: true });
    const windows = await page.evaluate(() => cockpit.layout.windows.map((w) => [w.ident, w.title]));
    await page.click('#windows-button');
    for (const [i, [ident, title]] of windows.entries()) {
      const box = `#windows-menu input[data-ident="${ident}"]`;
      if (i > 0) await page.check(box);
      await h.waitOpen(page, ident);
      await h.loaded(page);
      await h.cycles(page, 3);
      // the window's own canvas, without what lies over it
      const png = await page.evaluate(
        (id) => document.querySelector(`canvas[data-ident="${id}"]`).toDataURL('image/png').split(',')[1], ident);
      const file = path.join(shots, `${String(i).padStart(2, '0')}-${title.replace(/[^A-Za-z0-9]+/g, '-')}.png`);
      fs.writeFileSync(file, Buffer.from(png, 'base64'));
      assert.ok(fs.statSync(file).size > 1000);
      if (i > 0) await page.uncheck(box);
      await h.waitOpen(page, ident, i === 0);
    }
    await page.click('#windows-button');
    await page.screenshot({ path: path.join(shots, 'page.png') });
    assert.deepEqual(page.errors, []);
  });
});

describe('server', () => {
  test('serves only the page, the bitmaps, the sounds and the layout', async () => {
    const get = (p, init) => fetch(host.url.replace(/\/$/, '') + p, init);
    assert.equal((await get('/')).status, 200);
    assert.equal((await get('/cockpit.js')).status, 200);
    assert.equal((await get('/sounds/CLICK.wav')).headers.get('content-type'), 'audio/wav');
    assert.equal((await get('/bitmaps/16.bmp')).status, 200);
    for (const bad of ['/../panel/panel.cfg', '/%2e%2e/%2e%2e/etc/passwd', '/page/index.html', '/bitmaps/17.bmp',
      '/sounds/click.wav', '/CMakeLists.txt'])
      assert.equal((await get(bad)).status, 404, bad);
    assert.equal((await get('/?a=1')).status, 400);
    // the WebSocket only for the cockpit's own page
    const upgrade = (origin) =>
      new Promise((resolve) => {
        const req = http.get(host.url + 'ws', {
          headers: { Connection: 'Upgrade', Upgrade: 'websocket', 'Sec-WebSocket-Version': '13',
            'Sec-WebSocket-Key': 'dGhlIHNhbXBsZSBub25jZQ==', Origin: origin },
        });
        req.on('upgrade', (res, socket) => {
          socket.destroy();
          resolve(101);
        });
        req.on('response', (res) => resolve(res.statusCode));
        req.on('error', () => resolve('refused'));
      });
    assert.equal(await upgrade(new URL(host.url).origin), 101);
    assert.notEqual(await upgrade('http://elsewhere.example'), 101);
    assert.equal((await get('/', { method: 'POST', body: 'x' })).status, 405);
  });

  test('bad WebSocket messages get an error and do not stop the cycles', async () => {
    const replies = await page.evaluate(async () => {
      const ws = new WebSocket(`ws://${location.host}/ws`);
      const got = [];
      ws.onmessage = (m) => got.push(JSON.parse(m.data).t);
      await new Promise((r) => (ws.onopen = r));
      for (const m of ['nonsense', '{"t":"down","g":17}', '{"t":"down","g":99999,"x":1,"y":1}', '{"t":"speed","v":"3"}',
        '{"t":"window","ident":5,"open":true}', '[1,2]'])
        ws.send(m);
      await new Promise((r) => setTimeout(r, 600));
      ws.close();
      return got;
    });
    assert.equal(replies.filter((t) => t === 'error').length, 5, 'one error each, the unknown gauge ignored');
    assert.ok(replies.includes('full'));
    assert.ok(replies.filter((t) => t === 'diff').length >= 5, 'cycles go on');
  });
});
