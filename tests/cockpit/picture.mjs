// The README's picture of the cockpit page: the main panel after a cold
// start, a few state fields watched. Writes docs/cockpit.png.
import path from 'node:path';

import * as h from './harness.mjs';

const host = await h.startHost();
const browser = await h.startBrowser();
try {
  const page = await h.openPage(browser.context, host.url);
  await page.evaluate(() =>
    localStorage.setItem('kestrane-watch', JSON.stringify(['elec_master_sw', 'alt_alert_setting', 'panel_load_step'])));
  await page.reload();
  await page.waitForFunction(() => window.cockpit && cockpit.layout && cockpit.messages > 0);
  await h.coldStart(page);
  await h.click(page, '10100', 'kestrane toggle_pan_elec2', 20, 60);
  await h.waitOpen(page, '10100', false);
  await page.fill('#search', '_bus');
  await h.loaded(page);
  await h.cycles(page, 18);
  await page.screenshot({ path: path.join(h.root, 'docs/cockpit.png') });
} finally {
  await browser.close();
  await host.stop();
}
