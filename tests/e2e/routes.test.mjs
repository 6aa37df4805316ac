// The Routes page: the list in a real browser, posted to directly, and as a document.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { openBrowser, press } from './lib/browser.mjs';
import { startDevice } from './lib/server.mjs';

let device;
let browser;
let page;
let url;

before(async () => {
  device = await startDevice();
  browser = await openBrowser();
  page = await browser.newPage();
  url = `${device.url}/cgi-bin/routes`;
  await page.goto(url);
});
after(async () => {
  await browser?.close();
  await device?.stop();
});

const click = (name) => press(page, name);
const told = () => page.getByRole('status').textContent();
const list = () => page.locator('main tbody tr').evaluateAll(
  (rows) => rows.map((row) => [...row.cells].slice(0, 3).map((cell) => cell.textContent)));
const networks = async () => (await list()).map(([network]) => network);
const file = () => Buffer.from(device.item('routes'), 'latin1').toString();

async function add(network, gateway, remark) {
  await page.getByLabel('Network', { exact: true }).fill(network);
  await page.getByLabel('Gateway').fill(gateway);
  await page.getByLabel('Remark').fill(remark);
  await click('Add');
}

// What a real XML parser makes of the list.
async function parsed() {
  const answer = await fetch(`${url}?format=xml`);
  assert.equal(answer.headers.get('content-type'), 'application/xml');
  return page.evaluate((text) => {
    const document = new DOMParser().parseFromString(text, 'application/xml');
    const content = (route, name) => route.querySelector(name).textContent;
    return [...document.querySelectorAll('routes > route')].map((route, index) => {
      if (route.getAttribute('number') !== `${index + 1}`) throw new Error('wrong number');
      return [route.getAttribute('network'), content(route, 'gateway'), content(route, 'remark')];
    });
  }, await answer.text());
}

const office = ['198.51.100.0/24', '192.0.2.254', 'Branch office'];
const laboratory = ['203.0.113.0/25', '192.0.2.253', 'Laboratory'];
const markup = `<a> & "b" 'c' ]]> äöü €`;

test('rows are added, moved, sorted and deleted, and the file follows', async () => {
  await add('192.0.2.77/26', '192.0.2.1', markup);
  assert.equal(await told(), 'Saved: List of routes. ');
  const added = ['192.0.2.64/26', '192.0.2.1', markup];
  assert.deepEqual(await list(), [office, laboratory, added], 'host bits are cleared');
  assert.deepEqual(await parsed(), await list());
  await click('Up 192.0.2.64/26');
  await click('Down 198.51.100.0/24');
  assert.deepEqual(await list(), [added, office, laboratory]);
  await add('9.0.0.0/8', '192.0.2.1', '');
  await click('Sort by network');
  assert.deepEqual(await networks(), ['9.0.0.0/8', '192.0.2.64/26', office[0], laboratory[0]]);
  await click('Delete 9.0.0.0/8');
  await page.reload();
  assert.deepEqual(await list(), [added, office, laboratory]);
  assert.equal(file(), [added, office, laboratory].map((row) => `${row.join(' ')}\n`).join(''));
  assert.ok(await page.getByRole('button', { name: 'Up 192.0.2.64/26' }).isDisabled());
});

test('a change without effect touches no file', async () => {
  const stamp = device.changedAt('routes');
  await click('Sort by network');
  assert.equal(await told(), 'Nothing has changed: all settings are as they were.');
  assert.equal(device.changedAt('routes'), stamp);
});

test('a change to a list that somebody else has changed is refused', async () => {
  const other = await browser.newPage();
  await other.goto(url);
  await click('Delete 192.0.2.64/26');
  await other.getByRole('button', { name: 'Delete 198.51.100.0/24' }).click();
  assert.match(await other.getByRole('status').textContent(), /^Could not be saved: Change to a list/);
  await other.close();
  assert.deepEqual(await parsed(), [office, laboratory]);
});

const post = (fields) => fetch(url, {
  method: 'POST', redirect: 'manual', body: new URLSearchParams(fields).toString(),
  headers: { 'Content-Type': 'application/x-www-form-urlencoded' },
});

test('posted directly: what is no route is refused, what no document holds is dropped', async () => {
  const before = file();
  const cases = [
    [{ network: 'here', gateway: '192.0.2.1' }, 2], [{ network: '', gateway: '' }, 2 + 4],
    [{ network: '300.0.0.0/8', gateway: '0.0.0.0' }, 2 + 4], [{ network: '10.0.0.0/8' }, 4],
    [{ network: '198.51.100.7/24', gateway: '192.0.2.9' }, 2], [{ mark: 1, up: 2 }, 16],
    [{ mark: 1, delete: -1, sort: '' }, 16], [{ gateway: '192.0.2.1' }, 0], [{ x: 'y' }, 0],
  ];
  for (const [fields, failed] of cases) {
    const place = (await post(fields)).headers.get('location');
    assert.equal(place, `routes?changed=0&failed=${failed}`, JSON.stringify(fields));
  }
  assert.equal(file(), before);
  const remark = `a\u0001\n\uFFFE\uFFFF\u{1F600}b${'€'.repeat(60)}`;
  await post({ network: '10.0.0.0/99', gateway: '192.0.2.1', remark });
  await fetch(url, { method: 'POST', redirect: 'manual', body: 'network=0/0&gateway=1.1&remark=%ED%A0%80%FFc',
    headers: { 'Content-Type': 'application/x-www-form-urlencoded' } });
  assert.deepEqual((await parsed()).slice(2),
    [['10.0.0.0/32', '192.0.2.1', `ab${'€'.repeat(38)}`], ['0.0.0.0/0', '1.0.0.1', 'c']]);
});

test('the list ends at 64 routes', async () => {
  for (let i = 0; i < 70; i++) await post({ network: `10.1.${i}.0/24`, gateway: '192.0.2.1', remark: '€'.repeat(40) });
  assert.equal((await parsed()).length, 64);
  assert.equal(file().split('\n').length, 65);
});
