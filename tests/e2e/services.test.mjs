// The pages Mobile, VPN and Schedule: filled in, reloaded, saved unchanged, and posted to directly.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { openBrowser, press } from './lib/browser.mjs';
import { startDevice } from './lib/server.mjs';

let device;
let browser;
let page;

before(async () => {
  device = await startDevice();
  browser = await openBrowser();
  page = await browser.newPage();
});
after(async () => {
  await browser?.close();
  await device?.stop();
});

const open = (name) => page.goto(`${device.url}/cgi-bin/${name}`);
const save = () => press(page, 'Save');
const told = () => page.getByRole('status').first().textContent();
const label = (text) => page.getByLabel(text, { exact: true });
const labels = (text) => label(text).locator('option').allTextContents();
const value = (item) => Buffer.from(device.item(item), 'latin1').toString().trimEnd();

async function saveUnchanged(items) {
  const before = items.map(device.changedAt);
  await save();
  assert.match(await told(), /^Nothing has changed/);
  assert.deepEqual(items.map(device.changedAt), before);
}

async function post(name, body) {
  const answer = await fetch(`${device.url}/cgi-bin/${name}`, {
    method: 'POST', redirect: 'manual', body,
    headers: { 'Content-Type': 'application/x-www-form-urlencoded' },
  });
  return Number(/failed=(\d+)/.exec(answer.headers.get('location'))[1]);
}

const bodies = async (name, cases) => {
  for (const [body, failed, item, stored] of cases) {
    assert.equal(await post(name, body), failed, body);
    assert.equal(value(item), stored, body);
  }
};

test('Mobile: the country decides on the operators, and a new one forgets the old choice', async () => {
  await open('mobile');
  await saveUnchanged(['country', 'operator', 'message']);
  assert.deepEqual(await labels('Operator'),
    ['Automatic', 'Funknetz Nord', 'Funknetz S\u00FCd', 'Marschland Mobil']);
  await label('Operator').selectOption('Funknetz S\u00FCd');
  await save();
  assert.equal(value('operator'), '26292');
  assert.equal(await label('Operator').inputValue(), '26292');
  await label('Country').selectOption("C\u00F4te d'Ivoire");
  await save();
  assert.equal(await told(), 'Saved: Country, Operator. ');
  assert.deepEqual([value('country'), value('operator')], ['ci', 'auto']);
  assert.deepEqual(await labels('Operator'), ['Automatic', 'Lagune Mobile']);
  await bodies('mobile', [
    ['country=xx', 1, 'country', 'ci'], ['country=', 1, 'country', 'ci'],
    ['country=%23', 1, 'country', 'ci'], ['operator=26292', 0, 'operator', 'auto'],
    ['operator=61291', 0, 'operator', '61291'], ['operator=6129', 0, 'operator', '61291'],
  ]);
});

test('Mobile: septets are counted while typing, and stored texts as well', async () => {
  const cases = [
    ['abc\ndef', 7, 1, 'none'], ['{\u20AC}\\', 8, 1, 'none'], ['caf\u00E9\u00E7 \u0394', 7, 1, 'none'],
    [`x${'['.repeat(79)}a`, 160, 1, 'none'], ['a'.repeat(161), 161, 2, 'none'],
    [`${'a'.repeat(152)}${'{'.repeat(77)}`, 306, 3, 'none'],
    ['\u201Ca\u201D`\u201C \u{1F600}', 2, 1, '\u201C\u201D`'], ['', 0, 1, 'none'],
  ];
  const count = () => page.locator('output b').allTextContents();
  await open('mobile');
  for (const [text, ...expected] of cases) {
    await Promise.all([page.waitForResponse(/format=json/), label('Alarm message').fill(text)]);
    await page.waitForFunction(
      (wanted) => document.querySelector('output').textContent.includes(wanted), `Septets: ${expected[0]},`);
    assert.deepEqual(await count(), expected.map(String), text);
    await save();
    assert.deepEqual(await count(), expected.map(String), `${text}, stored`);
    assert.equal(device.item('message'), Buffer.from(text.replace(' \u{1F600}', ' ')).toString('latin1'));
  }
  await post('mobile', `message=%0A%0D%0Aa%00b&x`);
  assert.equal(device.item('message'), 'a');
  await post('mobile', `message=${'%E2%82%AC'.repeat(900)}`);
  assert.equal(value('message'), '\u20AC'.repeat(480));
  await open('mobile');
  await saveUnchanged(['message']);
});

test('VPN: the selects store values and refuse what is none', async () => {
  const folder = path.join(device.state, 'certificates');
  const name = `"b" & 's' <\u00E9>.pem`;
  fs.mkdirSync(folder, { recursive: true });
  for (const file of ['a.crt', name, '.hidden']) fs.writeFileSync(path.join(folder, file), '');
  await open('vpn');
  await saveUnchanged(['vpnpeer', 'vpncipher', 'vpndigest', 'vpncert']);
  assert.deepEqual(await labels('Certificate'), [name, 'a.crt', 'None']);
  await label('Certificate').selectOption(name);
  assert.equal((await labels('Cipher')).length, 13);
  await label('Cipher').selectOption('CAST5 128 Bit');
  await label('Digest').selectOption('None');
  await save();
  assert.equal(await told(), 'Saved: Cipher, Digest, Certificate. ');
  await page.reload();
  assert.equal(await label('Cipher').inputValue(), 'CAST5-CBC');
  assert.equal(value('vpndigest'), 'none');
  assert.equal(value('vpncert'), name);
  const encoded = (file) => `vpncert=${encodeURIComponent(Buffer.from(file).toString('base64'))}`;
  await saveUnchanged(['vpncert']);
  await bodies('vpn', [
    ['vpncipher=aes-256-cbc', 0, 'vpncipher', 'CAST5-CBC'], ['vpncipher=', 0, 'vpncipher', 'CAST5-CBC'],
    ['vpndigest=SHA5120', 0, 'vpndigest', 'none'], ['vpndigest=SHA512', 0, 'vpndigest', 'SHA512'],
    ...['../hostname', '.hidden', 'gone.pem', 'x'.repeat(121), '\u0000'].map(
      (file) => [encoded(file), 8, 'vpncert', name]),
    ['vpncert=!', 8, 'vpncert', name], ['vpncert=', 0, 'vpncert', ''], [encoded('a.crt'), 0, 'vpncert', 'a.crt'],
    ['vpnpeer=a%22%3Cb_.example', 0, 'vpnpeer', 'ab.example'],
  ]);
});

test('Schedule: times and weekdays make the cron lines', async () => {
  const lines = () => page.locator('pre').textContent();
  await open('schedule');
  await saveUnchanged(['restart_time', 'restart_days', 'backup_time', 'backup_days']);
  assert.equal(await lines(), '30 3 * * 0 /sbin/reboot\n0 22 * * 1,2,3,4,5 /usr/sbin/backup\n');
  await label('Restart at').fill('25:90');
  await label('Sunday').first().uncheck();
  await label('Saturday').nth(1).check();
  await label('Sunday').nth(1).check();
  await save();
  assert.equal(await told(), 'Saved: Restart at, Restart on, Backup on. ');
  await page.reload();
  assert.equal(await label('Restart at').inputValue(), '02:30');
  assert.equal(await lines(), '# never: /sbin/reboot\n0 22 * * * /usr/sbin/backup\n');
  await bodies('schedule', [
    ['restart_time=x', 1, 'restart_time', '02:30'], ['restart_time=', 1, 'restart_time', '02:30'],
    ['restart_time=-5', 0, 'restart_time', '05:00'], ['restart_time=99999%3A99', 0, 'restart_time', '15:00'],
    ['restart_days=7&restart_days=12&restart_days=x', 0, 'restart_days', '0'],
    ['restart_days=6&restart_days=0&restart_days=6', 0, 'restart_days', '65'],
    ['backup_days', 0, 'backup_days', '0'], ['other=1', 0, 'backup_days', '0'],
  ]);
});
