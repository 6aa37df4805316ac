// The pages that are more than a form, and what pages tell programs: Routes, Status, System, Mobile.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { test } from 'node:test';
import { press } from './lib/browser.mjs';
import { ask, device, open, post, statusIn, value, written } from './lib/device.mjs';

const rowsOf = (tab) => tab.locator('main tbody tr').evaluateAll(
  (rows) => rows.map((row) => [...row.cells].map((cell) => cell.textContent)));

const routesTab = await open('routes');
const list = async () => (await rowsOf(routesTab)).map((row) => row.slice(0, 3));

// What a real XML parser makes of the list.
async function parsed() {
  const { type, text } = await ask('routes?format=xml');
  assert.equal(type, 'application/xml');
  return routesTab.evaluate((source) => {
    const document = new DOMParser().parseFromString(source, 'application/xml');
    return [...document.querySelectorAll('routes > route')].map((route, index) => {
      if (route.getAttribute('number') !== `${index + 1}`) throw new Error('wrong number');
      const content = (name) => route.querySelector(name).textContent;
      return [route.getAttribute('network'), content('gateway'), content('remark')];
    });
  }, text);
}

const office = ['198.51.100.0/24', '192.0.2.254', 'Branch office'];
const laboratory = ['203.0.113.0/25', '192.0.2.253', 'Laboratory'];
const added = ['192.0.2.64/26', '192.0.2.1', `<a> & "b" 'c' ]]> äöü €`];

test('Routes: rows are added, moved, sorted and deleted, and the file follows', async () => {
  for (const [label, text] of [['Network', '192.0.2.77/26'], ['Gateway', added[1]], ['Remark', added[2]]]) {
    await routesTab.getByLabel(label, { exact: true }).fill(text);
  }
  await press(routesTab, 'Add');
  assert.equal(await statusIn(routesTab), 'Saved: List of routes. ');
  assert.deepEqual(await list(), [office, laboratory, added], 'host bits are cleared');
  assert.deepEqual(await parsed(), await list());
  const steps = [['Up 192.0.2.64/26', office, added, laboratory],
    ['Down 198.51.100.0/24', added, office, laboratory],
    ['Down 192.0.2.64/26', office, added, laboratory],
    ['Sort by network', added, office, laboratory]];
  for (const [button, ...rows] of steps) {
    await press(routesTab, button);
    assert.deepEqual(await list(), rows, button);
    assert.equal(value('routes'), rows.map((row) => row.join(' ')).join('\n'));
  }
  assert.ok(await routesTab.getByRole('button', { name: 'Up 192.0.2.64/26' }).isDisabled());
  assert.deepEqual(await written(() => press(routesTab, 'Sort by network')), {});
  const other = await open('routes');
  await press(routesTab, 'Delete 192.0.2.64/26');
  await press(other, 'Delete 198.51.100.0/24');
  assert.match(await statusIn(other), /^Could not be saved: Change to a list/);
  assert.deepEqual(await parsed(), [office, laboratory]);
});

test('Routes: no more than 64 are stored, none that is wrong, and no remark that XML lacks', async () => {
  const older = 'Change to a list that is no longer the current one';
  const refusals = [
    ['network=here&gateway=192.0.2.1', 'Network'], ['network=&gateway=', 'Network, Gateway'],
    ['network=300.0.0.0/8&gateway=0.0.0.0', 'Network, Gateway'], ['network=10.0.0.0/8', 'Gateway'],
    ['network=198.51.100.7/24&gateway=192.0.2.9', 'Network'], ['mark=1&up=2', older],
    ['mark=1&delete=-1&sort=', older], ['gateway=192.0.2.1'], ['x=y'],
  ];
  for (const [body, refused] of refusals) {
    const { told, items } = await post('routes', body);
    assert.deepEqual([items, told.match(/Could not be saved: (.*)\. $/)?.[1]], [{}, refused], body);
  }
  const remark = encodeURIComponent(`a\u0001\n\uFFFE\uFFFF\u{1F600}b${'€'.repeat(60)}`);
  await post('routes', `network=10.0.0.0/99&gateway=192.0.2.1&remark=${remark}`);
  await post('routes', 'network=0/0&gateway=1.1&remark=%ED%A0%80%FFc');
  assert.deepEqual((await parsed()).slice(2),
    [['10.0.0.0/32', '192.0.2.1', `ab${'€'.repeat(38)}`], ['0.0.0.0/0', '1.0.0.1', 'c']]);
  for (let i = 0; i < 61; i++) {
    await post('routes', `network=10.1.${i}.0/24&gateway=192.0.2.1&remark=${'€'.repeat(40)}`);
  }
  assert.deepEqual([(await parsed()).length, value('routes').split('\n').length], [64, 64]);
});

async function json(page) {
  const { type, text } = await ask(page);
  assert.equal(type, 'application/json');
  return JSON.parse(text);
}
const interfaces = async () => (await json('status?format=json')).interfaces;

test('System: names can be asked for, the passphrase cannot', async () => {
  assert.deepEqual(await json('system?format=json'), { hostname: 'edge-4', timeserver: 'time.example.net' });
});

test('Status: the interfaces are those that the kernel has', async () => {
  const told = Object.fromEntries((await interfaces()).map((row) => [row.name, row]));
  assert.deepEqual([told.lo.state, told.lo.link], ['up', 'unknown']);
  assert.match(told.lo.ipv4, /^127\.0\.0\.1\/8/);
  for (const [name, known] of Object.entries(os.networkInterfaces())) {
    const cells = `${told[name].ipv4}, ${told[name].ipv6}`.split(', ').filter(Boolean);
    assert.deepEqual(cells.map((cell) => cell.split('/')[0]).sort(), known.map((one) => one.address).sort());
  }
});

test('Status: the page holds the same without script, and with it what comes later', async () => {
  const plain = await open('status', { javaScriptEnabled: false });
  assert.deepEqual((await rowsOf(plain)), (await interfaces()).map(Object.values));
  const tab = await open('status');
  const wan = { name: '<b>', state: 'up', link: 'up', ipv4: '192.0.2.1/24', ipv6: '' };
  await tab.clock.install();
  await tab.reload();
  const answers = [['Updated at', (route) => route.fulfill({ json: { interfaces: [wan] } })],
    ['did not answer', (route) => route.abort()]];
  for (const [age, answer] of answers) {
    await tab.route('**/status?format=json', answer);
    await tab.clock.fastForward(5000);
    await tab.getByText(age).waitFor();
    assert.deepEqual(await rowsOf(tab), [Object.values(wan)], 'text, and the last answer stays');
  }
});

test('Status: what is no flash partition is told in words', async () => {
  for (const place of [path.join(device.state, 'hostname'), '/missing']) {
    fs.writeFileSync(path.join(device.state, 'bootdevice'), `${place}\n`);
    assert.ok((await ask('status')).text.includes(`${place} is no flash partition of this device.`));
  }
});

test('Mobile: septets are counted, while typing and in what is stored', async () => {
  const cases = [
    ['abc def', 7, 1, ''], ['{\u20AC}\\', 8, 1, ''], ['caf\u00E9\u00E7 \u0394', 7, 1, ''],
    [`x${'['.repeat(79)}a`, 160, 1, ''], ['a'.repeat(161), 161, 2, ''], ['', 0, 1, ''],
    ['a'.repeat(306), 306, 2, ''], [`${'a'.repeat(152)}${'{'.repeat(77)}`, 306, 3, ''],
    ['\u201Ca\u201D`\u201C \u{1F600}', 2, 1, '\u201C\u201D`'],
  ];
  for (const [message, ...size] of cases) {
    const told = await json(`mobile?${new URLSearchParams({ format: 'json', message })}`);
    assert.deepEqual(Object.values(told), size, message);
  }
  const tab = await open('mobile');
  const count = () => tab.locator('output b').allTextContents();
  for (const [text, ...size] of [['ab\ncd\u201C', '5', '1', '\u201C'], ['\u20AC', '2', '1', 'none']]) {
    await Promise.all([tab.waitForResponse(/format=json/), tab.getByLabel('Alarm message').fill(text)]);
    await tab.getByText(`Septets: ${size[0]},`).waitFor();
    assert.deepEqual(await count(), size);
    await press(tab, 'Save');
    assert.deepEqual(await count(), size, 'stored');
  }
});
