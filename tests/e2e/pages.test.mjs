// What holds for every page that the navigation names: it is accessible, keeps within its security
// policy, has room on a telephone, and takes what is stored for text.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import { createRequire } from 'node:module';
import path from 'node:path';
import { test } from 'node:test';
import { address, device, open } from './lib/device.mjs';

const axe = fs.readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');
const desk = { width: 1280, height: 800 };
const telephone = { width: 390, height: 800 };
const looks = {
  'light, on a desk': { colorScheme: 'light', viewport: desk },
  'dark, on a telephone': { colorScheme: 'dark', viewport: telephone },
  'without script': { viewport: telephone },
  'with markup in every value': { viewport: desk },
};
const markup = '"></textarea></title><i class="foreign">&amp;</i> äöü €';

// The web server's own files stay as they are.
function storeMarkup() {
  const names = fs.readdirSync(device.state, { withFileTypes: true })
    .filter((entry) => entry.isFile() && !/^(admin|ht|server)/.test(entry.name)).map(({ name }) => name);
  for (const name of [...names, 'log', `certificates/${markup.replaceAll('/', '')}`]) {
    fs.writeFileSync(path.join(device.state, name), markup);
  }
  fs.writeFileSync(path.join(device.state, 'routes'), `192.0.2.0/26 192.0.2.1 ${markup.slice(-38)}\n`);
}

async function visit(tab, page, hasScript) {
  const scripts = await tab.context().newCDPSession(tab);
  await scripts.send('Emulation.setScriptExecutionDisabled', { value: !hasScript });
  const answer = await tab.goto(address(page));
  await scripts.send('Emulation.setScriptExecutionDisabled', { value: false });
  const { 'content-security-policy': policy, ...headers } = answer.headers();
  assert.match(policy, /default-src 'none'/);
  assert.deepEqual([answer.status(), headers['x-content-type-options'], headers['content-type']],
    [200, 'nosniff', 'text/html; charset=utf-8']);
  assert.match(await tab.locator('.HeadRight').innerText(),
    hasScript ? /on the device, \d\d:\d\d:\d\d in this/ : /^\d\d:\d\d:\d\d on the device$/);
  assert.deepEqual(await tab.evaluate(() => [document.compatMode, document.documentElement.lang,
    document.title, document.querySelector('[aria-current]').pathname, document.querySelector('.foreign')]),
  ['CSS1Compat', 'en', await tab.locator('h1').innerText(), `/cgi-bin/${page}`, null]);
  await tab.evaluate(axe);
  const { violations } = await tab.evaluate('axe.run()');
  assert.deepEqual(violations.map(({ id, nodes }) => [id, ...nodes.map(({ html }) => html)]), []);
  const wide = await tab.evaluate('document.documentElement.scrollWidth - innerWidth');
  assert.ok(wide <= 0, `${wide} pixels too wide`);
}

for (const [name, look] of Object.entries(looks)) {
  test(`every page, ${name}`, async (t) => {
    if (name.includes('markup')) storeMarkup();
    const tab = await open('system', look);
    const complaints = [];
    tab.on('console', (message) => message.type() === 'error' && complaints.push(message.text()));
    const pages = await tab.locator('nav a').evaluateAll(
      (links) => links.map((link) => link.getAttribute('href')));
    assert.equal(pages.length, 12);
    for (const page of pages) await t.test(page, () => visit(tab, page, name !== 'without script'));
    assert.deepEqual(complaints, []);
  });
}
