// What holds for every page that the navigation names: accessible, within its security policy, and
// usable on a telephone and in the dark.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import { after, before, test } from 'node:test';
import { createRequire } from 'node:module';
import { openBrowser } from './lib/browser.mjs';
import { startDevice } from './lib/server.mjs';

const axe = fs.readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');
const looks = [
  { colorScheme: 'light', viewport: { width: 1200, height: 800 } },
  { colorScheme: 'dark', viewport: { width: 390, height: 800 } },
];

let device;
let browser;

before(async () => {
  device = await startDevice();
  browser = await openBrowser();
});
after(async () => {
  await browser?.close();
  await device?.stop();
});

async function visit(page, path) {
  const complaints = [];
  page.removeAllListeners('console');
  page.on('console', (message) => message.type() === 'error' && complaints.push(message.text()));
  const answer = await page.goto(`${device.url}/cgi-bin/${path}`);
  assert.equal(answer.status(), 200, path);
  assert.match(answer.headers()['content-security-policy'], /default-src 'none'/, path);
  assert.equal(answer.headers()['x-content-type-options'], 'nosniff', path);
  assert.match(answer.headers()['content-type'], /^text\/html; charset=utf-8$/, path);
  assert.match(await page.locator('.HeadRight').innerText(), /on the device, \d\d:\d\d:\d\d in this/);
  assert.deepEqual(complaints, [], path);
}

async function violations(page) {
  await page.evaluate(axe);
  const { violations: found } = await page.evaluate('axe.run()');
  return found.map(({ id, nodes }) => `${id}: ${nodes.map((node) => node.html).join(' ')}`);
}

for (const look of looks) {
  test(`every page, ${look.colorScheme}, ${look.viewport.width} pixels wide`, async () => {
    const context = await browser.newContext({ ...look, httpCredentials: device.login });
    const page = await context.newPage();
    await page.goto(`${device.url}/cgi-bin/system`);
    const paths = await page.locator('nav a').evaluateAll(
      (links) => links.map((link) => link.getAttribute('href')));
    assert.ok(paths.length > 3);
    for (const path of paths) {
      await visit(page, path);
      assert.deepEqual(await violations(page), [], path);
      const wide = await page.evaluate('document.documentElement.scrollWidth - innerWidth');
      assert.ok(wide <= 0, `${path} is ${wide} pixels too wide`);
    }
    await context.close();
  });
}
