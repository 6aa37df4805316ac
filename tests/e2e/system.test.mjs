// The System page, in a real browser and posted to directly.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { openBrowser, press } from './lib/browser.mjs';
import { startDevice } from './lib/server.mjs';

let device;
let browser;
let page;
const items = ['hostname', 'location', 'contact', 'timeserver', 'passphrase'];

before(async () => {
  device = await startDevice();
  browser = await openBrowser();
  page = await browser.newPage();
  await page.goto(`${device.url}/cgi-bin/system`);
});
after(async () => {
  await browser?.close();
  await device?.stop();
});

const stamps = () => items.map(device.changedAt);
const save = () => press(page, 'Save');
const told = () => page.getByRole('status').textContent();

async function json() {
  const answer = await fetch(`${device.url}/cgi-bin/system?format=json`);
  assert.equal(answer.headers.get('content-type'), 'application/json');
  return answer.json();
}

test('what a person types comes back, but for characters that do not exist here', async () => {
  const typed = `"it's" <b>here</b> & äöü € \u{1F600}end`;
  await page.getByLabel('Location').fill(typed);
  await page.getByLabel('Host name').fill('core_1.example');
  await save();
  assert.equal(await told(), 'Saved: Host name, Location. ');
  await page.reload();
  const kept = typed.replace('\u{1F600}', '');
  assert.equal(await page.getByLabel('Location').inputValue(), kept);
  assert.equal(device.item('location'), `${Buffer.from(kept).toString('latin1')}\n`);
  assert.equal(await page.getByLabel('Host name').inputValue(), 'core1.example', 'filtered');
  assert.deepEqual(await json(), { hostname: 'core1.example', timeserver: 'time.example.net' });
});

test('saving unchanged touches no file, the passphrase included', async () => {
  const before = stamps();
  await save();
  assert.equal(await told(), 'Nothing has changed: all settings are as they were.');
  assert.deepEqual(stamps(), before);
});

test('a passphrase is stored as typed and shown as bullets only', async () => {
  await page.getByLabel('Passphrase').fill('s3cret"\'-x');
  await save();
  assert.equal(await told(), 'Could not be saved: Passphrase. ', 'quotes are refused');
  await page.getByLabel('Passphrase').fill('s3cret-x');
  await save();
  assert.equal(await told(), 'Saved: Passphrase. ');
  assert.equal(device.item('passphrase'), 's3cret-x\n');
  assert.equal(await page.getByLabel('Passphrase').inputValue(), '\u2022'.repeat(8));
  assert.ok(!(await page.content()).includes('s3cret'));
  assert.deepEqual(Object.keys(await json()), ['hostname', 'timeserver']);
});

test('a reload after saving sends nothing again', async () => {
  await page.getByLabel('Contact').fill('night shift');
  await save();
  const before = stamps();
  await page.reload();
  assert.deepEqual(stamps(), before);
});

test('the page has its language, title and labels, and runs in standards mode', async () => {
  assert.equal(await page.evaluate('document.documentElement.lang'), 'en');
  assert.equal(await page.title(), 'System');
  assert.equal(await page.evaluate('document.compatMode'), 'CSS1Compat');
  assert.equal(await page.getByRole('textbox').count(), items.length);
});

const post = (body, headers = {}) => fetch(`${device.url}/cgi-bin/system`, {
  method: 'POST', redirect: 'manual', body,
  headers: { 'Content-Type': 'application/x-www-form-urlencoded', ...headers },
});

test('posted directly: what a browser would not send', async () => {
  const cases = [
    { body: `hostname=${'x'.repeat(500)}`, name: 'hostname', value: `${'x'.repeat(63)}\n` },
    { body: 'hostname=a%0Ab%00c', name: 'hostname', value: 'ab\n' },
    { body: 'location=%FF%C3%28ok%', name: 'location', value: 'ok\n' },
    { body: 'contact=one&contact=two', name: 'contact', value: 'two\n' },
    { body: 'contact', name: 'contact', value: '\n' },
    { body: 'unknown=1&&=;', name: 'contact', value: '\n' },
  ];
  for (const { body, name, value } of cases) {
    const answer = await post(body);
    assert.equal(answer.status, 303);
    assert.match(answer.headers.get('location'), /^system\?changed=\d+&failed=0$/);
    assert.equal(device.item(name), value, body);
    await json();
  }
});

test('a form of another site is refused', async () => {
  const before = stamps();
  const foreign = ['http://evil.example', 'null', `http://127.0.0.1:${device.port}.evil.example`];
  for (const origin of foreign) {
    assert.equal((await post('contact=evil', { Origin: origin })).status, 403);
  }
  assert.deepEqual(stamps(), before);
  assert.equal((await post('contact=own', { Origin: device.url })).status, 303);
  assert.equal(device.item('contact'), 'own\n');
});
