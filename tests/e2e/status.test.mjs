// The Status page, with and without its script.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { openBrowser } from './lib/browser.mjs';
import { startDevice } from './lib/server.mjs';

let device;
let browser;
let url;

before(async () => {
  device = await startDevice();
  browser = await openBrowser();
  url = `${device.url}/cgi-bin/status`;
});
after(async () => {
  await browser?.close();
  await device?.stop();
});

const json = async () => (await (await fetch(`${url}?format=json`)).json()).interfaces;
const addresses = (cell) => cell.split(', ').map((text) => text.split('/')[0]).sort();
const table = (page) => page.locator('#interfaces tbody tr').evaluateAll(
  (rows) => rows.map((row) => [...row.cells].map((cell) => cell.textContent)));

test('the interfaces are those that the kernel has', async () => {
  const told = Object.fromEntries((await json()).map((row) => [row.name, row]));
  assert.equal(told.lo.state, 'up');
  assert.equal(told.lo.link, 'unknown');
  assert.match(told.lo.ipv4, /^127\.0\.0\.1\/8/);
  for (const [name, known] of Object.entries(os.networkInterfaces())) {
    for (const [family, key] of [['IPv4', 'ipv4'], ['IPv6', 'ipv6']]) {
      const expected = known.filter((one) => one.family === family).map((one) => one.address);
      if (expected.length > 0) assert.deepEqual(addresses(told[name][key]), expected.sort());
    }
  }
});

test('without script the page holds the same', async () => {
  const page = await browser.newPage({ javaScriptEnabled: false });
  await page.goto(url);
  assert.deepEqual(await table(page), (await json()).map(Object.values));
  assert.match(await page.locator('.HeadTable').textContent(), /^edge-4\d\d:\d\d:\d\d on the device/);
  await page.close();
});

test('the script takes over what the device tells, as text', async () => {
  const page = await browser.newPage();
  const wan = { name: '<b>', state: 'up', link: 'up', ipv4: '192.0.2.1/24', ipv6: '' };
  await page.clock.install();
  await page.goto(url);
  assert.match(await page.locator('.HeadTable').textContent(), / in this browser$/);
  await page.route('**/status?format=json', (route) => route.fulfill({ json: { interfaces: [wan] } }));
  await page.clock.fastForward(5000);
  await page.getByText('Updated at').waitFor();
  assert.deepEqual(await table(page), [Object.values(wan)]);
  await page.route('**/status?format=json', (route) => route.abort());
  await page.clock.fastForward(5000);
  await page.getByText('did not answer').waitFor();
  assert.deepEqual(await table(page), [Object.values(wan)], 'the last answer stays');
  await page.close();
});

test('what is no flash partition is told in words', async () => {
  const file = path.join(device.state, 'image');
  fs.writeFileSync(file, Buffer.alloc(4096));
  for (const place of [file, path.join(device.state, 'missing')]) {
    fs.writeFileSync(path.join(device.state, 'bootdevice'), `${place}\n`);
    const html = await (await fetch(url)).text();
    assert.ok(html.includes(`${place} is no flash partition of this device.`));
  }
});
