// The pages whose forms are settings: typed into by a browser, and posted to by what is none.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import { test } from 'node:test';
import { press } from './lib/browser.mjs';
import { device, open, post, statusIn, value, written } from './lib/device.mjs';

const markup = `<b>"it's"</b> &amp; </title></textarea><script>alert(1)</script> äöü €`;
const certificate = `"b" & 's' <é>.pem`;
for (const name of ['a.crt', certificate, '.hidden']) {
  fs.writeFileSync(path.join(device.state, 'certificates', name), '');
}

// Page, label, what is typed or chosen there, the item and what it holds then, and what is shown
// then unless it is what was typed. A group's name stands ahead of its boxes.
const controls = [
  ['system', 'Host name', 'core_1.example', 'hostname', 'core1.example', 'core1.example'],
  ['system', 'Location', `${markup}\u{1F600}`, 'location', markup, markup],
  ['system', 'Contact', 'night shift', 'contact', 'night shift'],
  ['system', 'Time server', '2001:db8::1', 'timeserver', '2001:db8::1'],
  ['system', 'Passphrase', 's3cret-x', 'passphrase', 's3cret-x', '\u2022'.repeat(8)],
  ['network', 'Address mode', 'From a DHCP server', 'mode', '1'],
  ['network', 'Address', '10.1.2.3', 'address', '10.1.2.3'],
  ['network', 'Netmask', '255.255.0.0', 'netmask', '255.255.0.0'],
  ['network', 'Route', '10.9.8.7/16', 'route', '10.9.0.0/16', '10.9.0.0/16'],
  ['network', 'MAC address', '2:aa:bb:0:0:f', 'mac', '02:AA:BB:00:00:0F', '02-AA-BB-00-00-0F'],
  ['network', 'MTU', '1492', 'mtu', '1492'],
  ['network', 'DHCP range', '40 - 20', 'pool', '20-40', '20-40'],
  ['network', 'Zone', 'Servers & cameras', 'zone', 'dmz'],
  ['network', 'Name servers: This device\'s own', true, 'dns', '1'],
  ['network', 'Notes', `${markup}\nsecond`, 'netnotes', `${markup}\nsecond`],
  ['network', 'IPv6', false, 'ipv6', '0'],
  ['network', 'Multicast', true, 'multicast', '1'],
  ['network', 'Port requests by UPnP', true, 'upnp', '1'],
  ['vpn', 'Server', 'a"<b_.example', 'vpnpeer', 'ab.example', 'ab.example'],
  ['vpn', 'Cipher', 'CAST5 128 Bit', 'vpncipher', 'CAST5-CBC'],
  ['vpn', 'Digest', 'None', 'vpndigest', 'none'],
  ['vpn', 'Certificate', certificate, 'vpncert', certificate],
  ['schedule', 'Restart at', '25:90', 'restart_time', '02:30', '02:30'],
  ['schedule', 'Restart on: Sunday', false, 'restart_days', '0'],
  ['schedule', 'Backup at', '23:59', 'backup_time', '23:59'],
  ['schedule', 'Backup on: Sunday', true, 'backup_days', '127'],
  ['schedule', 'Backup on: Saturday', true, 'backup_days', '127'],
  ['mobile', 'Operator', 'Funknetz S\u00FCd', 'operator', '26292'],
  ['mobile', 'Alarm message', `${markup}\nsecond`, 'message', `${markup}\nsecond`],
  ['notes', 'Owner', markup, 'owner', markup],
  ['notes', 'Place', `${markup}2`, 'place', `${markup}2`],
  ['notes', 'Remark', 'none', 'remark', 'none'],
];
const firstValues = controls.map(([page, , , item]) => [page, item, value(item)]);
const unchanged = 'Nothing has changed: all settings are as they were.';

function control(tab, label) {
  const [group, box] = label.split(': ');
  const within = box ? tab.getByRole('group', { name: group }) : tab;
  return within.getByLabel(box ?? label, { exact: true }).first();
}
async function fill(place, content) {
  if (typeof content === 'boolean') return place.setChecked(content);
  const isSelect = await place.evaluate(({ options }) => options !== undefined);
  return isSelect ? place.selectOption(content) : place.fill(content);
}
const shown = (place) => place.evaluate(({ selectedOptions, type, checked, value: text }) => {
  if (selectedOptions) return selectedOptions[0].text;
  return ['checkbox', 'radio'].includes(type) ? checked : text;
});

for (const page of new Set(controls.map(([name]) => name))) {
  test(`${page}: every control carries its value to its item and back`, async () => {
    const rows = controls.filter(([name]) => name === page);
    const labels = new Set(rows.map(([, label]) => label.split(': ')[0]));
    const stored = Object.fromEntries(rows.map(([, , , item, content]) => [item, content]));
    const tab = await open(page);
    const save = () => press(tab, page === 'notes' ? 'Save by post' : 'Save');
    assert.deepEqual(await written(save), {});
    assert.equal(await statusIn(tab), unchanged);
    for (const [, label, typed] of rows) await fill(control(tab, label), typed);
    assert.deepEqual(await written(save), stored);
    assert.equal(await statusIn(tab), `Saved: ${[...labels].join(', ')}. `);
    assert.deepEqual(await written(() => tab.reload()), {}, 'a reload sends nothing again');
    for (const [, label, typed, , , other = typed] of rows) {
      assert.equal(await shown(control(tab, label)), other, label);
    }
    assert.deepEqual(await written(save), {});
    assert.ok(!(await tab.content()).includes('s3cret'));
  });
}

// Page, body, the items that are written with what they hold then, the label that is complained of.
const bodies = [
  ['system', `hostname=${'x'.repeat(500)}&location=%FF%C3%28ok%&contact=one&contact=two&unknown=1&&=;`,
    { hostname: 'x'.repeat(63), location: 'ok', contact: 'two' }],
  ['system', 'hostname=a%0Ab%00c&contact&passphrase=s3cret"\'-x',
    { hostname: 'ab', contact: '' }, 'Passphrase'],
  ['network', 'mode=77&netmask=255.0.255.0&route=10.0.0.1/99&mtu=99999999&pool=1-999',
    { mode: '2', netmask: '255.0.0.0', route: '10.0.0.1/32', mtu: '9000', pool: '2-254' }],
  ['network', `netmask=nonsense&mtu=-5&netnotes=${'%C3%A4'.repeat(600)}`,
    { netmask: '255.255.255.252', mtu: '1500', netnotes: 'ä'.repeat(500) }],
  ['network', 'address=1.2.3.999&address=<script>&zone=nowhere&dns=9&ipv6=1', {}],
  ['network', 'mac=ff:ff:ff:ff:ff:ff', {}, 'MAC address'],
  ['network', 'features=&multicast=1', { upnp: '0' }],
  ['mobile', `country=xx&country=&country=%23&operator=6129&message=${'%E2%82%AC'.repeat(900)}`,
    { message: '€'.repeat(480) }, 'Country'],
  ['mobile', 'message=%0A%0D%0Aa%00b&x', { message: 'a' }],
  ['vpn', 'vpncipher=aes-256-cbc&vpncipher=&vpndigest=SHA5120', {}],
  ...['../hostname', '.hidden', 'gone.pem', 'x'.repeat(121), '\u0000', '\u00FF'].map(
    (name) => ['vpn', `vpncert=${encodeURIComponent(btoa(name))}`, {}, 'Certificate']),
  ['vpn', 'vpncert=!', {}, 'Certificate'],
  ['vpn', 'vpncert=', { vpncert: '' }],
  ['schedule', 'restart_time=x&restart_time=&restart_days=7&restart_days=12', {}, 'Restart at'],
  ['schedule', 'restart_time=-5&restart_days=6&restart_days=0&restart_days=6',
    { restart_time: '05:00', restart_days: '65' }],
  ['schedule', 'restart_time=99999%3A99&restart_days&backup_days=3',
    { restart_time: '15:00', restart_days: '0', backup_days: '8' }],
];

test('posted directly: wrong values are corrected or refused, missing ones left alone', async () => {
  for (const [page, body, stored, refused] of bodies) {
    const { told, items } = await post(page, body);
    assert.deepEqual(items, stored, body);
    assert.equal(told.match(/Could not be saved: (.*)\. $/)?.[1], refused, body);
  }
});

test('Network: the first values can be had again', async () => {
  await press(await open('network'), 'Restore first values');
  for (const [page, item, first] of firstValues) {
    if (page === 'network') assert.equal(value(item), first, item);
  }
});

test('what can be chosen, and what is made of it', async () => {
  const texts = [['vpn', '#vpncert option', certificate, 'a.crt', 'None'],
    ['mobile', '#operator option', 'Automatic', 'Funknetz Nord', 'Funknetz S\u00FCd', 'Marschland Mobil'],
    ['schedule', 'pre', '# never: /sbin/reboot\n59 23 * * 3 /usr/sbin/backup\n']];
  for (const [page, selector, ...expected] of texts) {
    assert.deepEqual(await (await open(page)).locator(selector).allTextContents(), expected);
  }
});

test('Mobile: a new country has its own operators, and forgets the old choice', async () => {
  const tab = await open('mobile');
  await fill(control(tab, 'Country'), "C\u00F4te d'Ivoire");
  assert.deepEqual(await written(() => press(tab, 'Save')), { country: 'ci', operator: 'auto' });
  assert.equal(await statusIn(tab), 'Saved: Country, Operator. ');
  const { items } = await post('mobile', 'operator=26292&operator=61291');
  assert.deepEqual(items, { operator: '61291' });
});
