import * as h from './harness.mjs';
const host = await h.startHost();
const b = await h.startBrowser();
const page = await h.openPage(b.context, host.url);
await h.cycles(page, 20);
console.log(await page.evaluate(() => {
  const out = [];
  for (const gi of [126, 137, 127, 177, 131]) {
    const g = cockpit.layout.gauges[gi];
    out.push(g.name + ' ' + g.w + 'x' + g.h);
    g.el.forEach((e, i) => { if (e.k === 6 || e.k === 5 || e.k === 1) out.push(`  e${i} k${e.k} b${e.b} at ${e.x},${e.y} r${e.rx},${e.ry} tc=${e.tc} sc=${e.sc} mn=${e.mn} st=${JSON.stringify(cockpit.states[gi][i])}`); });
  }
  return out.join('\n');
}));
await b.close(); host.stop();
