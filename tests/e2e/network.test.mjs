// The Network page: every kind of control, in a real browser and posted to directly.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { openBrowser, press } from './lib/browser.mjs';
import { startDevice } from './lib/server.mjs';

let device;
let browser;
let page;
const items = ['mode', 'address', 'netmask', 'route', 'mac', 'mtu', 'pool', 'zone', 'dns',
  'netnotes', 'ipv6', 'multicast', 'upnp'];

before(async () => {
  device = await startDevice();
  browser = await openBrowser();
  page = await browser.newPage();
  await page.goto(`${device.url}/cgi-bin/network`);
});
after(async () => {
  await browser?.close();
  await device?.stop();
});

const stored = () => Object.fromEntries(items.map((name) => [name, device.item(name)]));
const stamps = () => items.map(device.changedAt);
const told = () => page.getByRole('status').textContent();

const typed = {
  mode: '1\n', address: '10.1.2.3\n', netmask: '255.255.0.0\n', route: '10.9.0.0/16\n',
  mac: '02:AA:BB:00:00:0F\n', mtu: '1492\n', pool: '20-40\n', zone: 'dmz\n', dns: '1\n',
  netnotes: 'first <line>\nsecond & "last"', ipv6: '0\n', multicast: '1\n', upnp: '0\n',
};

test('every control carries its value to the item and back', async () => {
  await page.getByLabel('Address mode').selectOption('From a DHCP server');
  await page.getByLabel('Address', { exact: true }).fill('10.1.2.3');
  await page.getByLabel('Netmask').fill('255.255.0.0');
  await page.getByLabel('Route').fill('10.9.8.7/16');
  await page.getByLabel('MAC address').fill('2:aa:bb:0:0:f');
  await page.getByLabel('MTU').fill('1492');
  await page.getByLabel('DHCP range').fill('40 - 20');
  await page.getByLabel('Zone').selectOption('Servers & cameras');
  await page.getByLabel("This device's own").check();
  await page.getByLabel('Notes').fill('first <line>\nsecond & "last"');
  await page.getByLabel('IPv6').uncheck();
  await page.getByLabel('Multicast').check();
  await press(page, 'Save');
  assert.deepEqual(stored(), typed);
  assert.match(await told(), /^Saved: Address mode, Address, Netmask, .*IPv6, Multicast\. $/);
  await page.reload();
  assert.equal(await page.getByLabel('MAC address').inputValue(), '02-AA-BB-00-00-0F');
  assert.equal(await page.getByLabel('DHCP range').inputValue(), '20-40');
  assert.equal(await page.getByLabel('Zone').inputValue(), 'dmz');
  assert.equal(await page.getByLabel('Notes').inputValue(), typed.netnotes);
});

test('saving unchanged touches no file', async () => {
  const before = stamps();
  await press(page, 'Save');
  assert.match(await told(), /^Nothing has changed/);
  assert.deepEqual(stamps(), before);
});

test('the form works with the keyboard alone', async () => {
  await page.getByLabel('MTU').focus();
  await page.keyboard.press('Control+A');
  await page.keyboard.type('1280');
  await page.keyboard.press('Tab');
  await page.keyboard.press('Tab');
  await page.keyboard.press('ArrowUp');
  await page.keyboard.press('Tab');
  await page.keyboard.press('ArrowLeft');
  await Promise.all([page.waitForURL(/changed=416&/), page.keyboard.press('Enter')]);
  assert.deepEqual([device.item('mtu'), device.item('zone'), device.item('dns')],
    ['1280\n', 'guest\n', '0\n']);
});

test('the first values can be had again', async () => {
  await press(page, 'Restore first values');
  assert.equal(device.item('address'), '192.0.2.1\n');
  assert.equal(device.item('pool'), '100-199\n');
  assert.equal(device.item('ipv6'), '1\n');
});

const post = (body) => fetch(`${device.url}/cgi-bin/network`, {
  method: 'POST', redirect: 'manual', body,
  headers: { 'Content-Type': 'application/x-www-form-urlencoded' },
});

test('posted directly: wrong values are corrected, missing ones left alone', async () => {
  const cases = [
    ['mode=77', 'mode', '2\n'], ['mode=x', 'mode', '0\n'],
    ['address=1.2.3.999', 'address', '192.0.2.1\n'],
    ['address=<script>', 'address', '192.0.2.1\n'],
    ['netmask=255.0.255.0', 'netmask', '255.0.0.0\n'],
    ['netmask=nonsense', 'netmask', '255.255.255.252\n'],
    ['route=10.0.0.1/99', 'route', '10.0.0.1/32\n'],
    ['mtu=99999999', 'mtu', '9000\n'], ['mtu=-5', 'mtu', '1500\n'],
    ['pool=1-999', 'pool', '2-254\n'],
    ['zone=nowhere', 'zone', 'lan\n'], ['dns=9', 'dns', '1\n'],
    ['mac=ff:ff:ff:ff:ff:ff', 'mac', '02:00:5E:10:00:01\n'],
    [`netnotes=${'%C3%A4'.repeat(600)}`, 'netnotes', '\u00C3\u00A4'.repeat(500)],
    ['features=', 'ipv6', '0\n'], ['ipv6=1', 'ipv6', '0\n'], ['features=&ipv6=1', 'ipv6', '1\n'],
  ];
  for (const [body, name, value] of cases) {
    assert.equal((await post(body)).status, 303, body);
    assert.equal(device.item(name), value, body);
  }
});
