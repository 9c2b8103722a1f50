// Measures the cockpit with the main panel and two windows open and a
// headless page attached: the host's CPU time (from /proc) and the page's
// redraw and message rates, over SECONDS (30 by default), after a cold
// start or (with `ready`) a ready-to-fly one, engines running.
//   node perf.mjs [SECONDS] [cold|ready]
import fs from 'node:fs';

import * as h from './harness.mjs';

const seconds = Number(process.argv[2] || 30);
const ready = process.argv[3] === 'ready';
const host = await h.startHost();
const browser = await h.startBrowser();
try {
  const page = await h.openPage(browser.context, host.url);
  if (ready) await h.readyStart(page);
  else await h.coldStart(page); // leaves the electrical panel open
  for (const ident of ['10100', '10050']) {
    await page.evaluate((id) => {
      const box = document.querySelector(`#windows-menu input[data-ident="${id}"]`);
      if (!box.checked) box.click();
    }, ident);
    await h.waitOpen(page, ident);
  }
  await h.loaded(page);
  await h.cycles(page, 36);

  const ticks = () => {
    const f = fs.readFileSync(`/proc/${host.child.pid}/stat`, 'utf8').split(') ')[1].split(' ');
    return Number(f[11]) + Number(f[12]); // utime + stime, in clock ticks
  };
  const page0 = await page.evaluate(() => [cockpit.frames, cockpit.messages, cockpit.cycle, cockpit.bytes]);
  const t0 = ticks(), w0 = performance.now();
  await page.waitForTimeout(seconds * 1000);
  const t1 = ticks(), w1 = performance.now();
  const page1 = await page.evaluate(() => [cockpit.frames, cockpit.messages, cockpit.cycle, cockpit.bytes]);
  const wall = (w1 - w0) / 1000;
  const tickRate = 100; // USER_HZ on Linux
  console.log(`windows open: ${await page.evaluate(() => cockpit.open.join(' '))}`);
  console.log(`over ${wall.toFixed(1)} s:`);
  console.log(`  host CPU: ${((100 * (t1 - t0)) / tickRate / wall).toFixed(1)} % of a core`);
  console.log(`  cycles: ${((page1[2] - page0[2]) / wall).toFixed(1)} a second`);
  console.log(`  page redraws: ${((page1[0] - page0[0]) / wall).toFixed(1)} a second`);
  console.log(`  messages: ${((page1[1] - page0[1]) / wall).toFixed(1)} a second, ` +
    `${((page1[3] - page0[3]) / wall / 1024).toFixed(1)} KiB a second`);
} finally {
  await browser.close();
  await host.stop();
}
