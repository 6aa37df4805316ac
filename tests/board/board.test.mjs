// The library and the demo device on the emulated board: the device's libc, flash and a PHY.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { createHash, randomBytes } from 'node:crypto';
import fs from 'node:fs';
import { after, test } from 'node:test';
import { boot } from './board.mjs';
import { openBrowser, press } from '../e2e/lib/browser.mjs';

const folder = 'build/board-test';
const board = await boot(folder);
const browser = await openBrowser();
after(() => Promise.all([board.stop(), browser.close()]));

const address = (page) => `${board.url}/cgi-bin/${page}`;
const ask = (page, fields) => fetch(address(page), {
  signal: AbortSignal.timeout(60000), redirect: 'manual', method: fields ? 'POST' : 'GET',
  headers: { Authorization: `Basic ${btoa(`${board.user}:${board.password}`)}`,
    ...(fields && { 'Content-Type': 'application/x-www-form-urlencoded' }) },
  body: fields && `${new URLSearchParams(fields)}`,
});
const textOf = async (page) => (await ask(page)).text();

test('a form is saved by a browser and shown again', async () => {
  const tab = await browser.newPage();
  await tab.goto(address('notes'));
  const controls = ['owner', 'place', 'remark'].map((name) => tab.locator(`#post-${name}`));
  const values = [`<b>"it's"</b> äöü €`, 'a b', ''];
  for (const [i, control] of controls.entries()) await control.fill(values[i]);
  await press(tab, 'Save by post');
  assert.deepEqual(await Promise.all(controls.map((control) => control.inputValue())), values);
  assert.equal(await board.run('cat /state/place'), 'a b');
});

test('a file that curl sends comes as it is', async () => {
  const content = Buffer.concat([randomBytes(300000), Buffer.from('\r\n--'.repeat(99))]);
  fs.writeFileSync(`${folder}/upload`, content);
  const status = execFileSync('curl', ['-sS', '-m', '60', '-w', '%{http_code}',
    '-u', `${board.user}:${board.password}`, '-F', `image=@${folder}/upload`, address('firmware')]);
  assert.equal(`${status}`, '303');
  assert.equal(await board.run('sha256sum /state/firmware/image | cut -c 1-64'),
    createHash('sha256').update(content).digest('hex'));
});

test('a new password counts at once', async () => {
  const words = { present: board.password, new: 'a-new:Word1', again: 'a-new:Word1' };
  assert.equal((await ask('administration', words)).status, 303);
  assert.equal((await ask('administration')).status, 401);
  board.password = words.new;
  assert.equal((await ask('administration')).status, 200);
});

// From the page as a program: without the cable no request gets to the board.
async function interfaces() {
  const page = '/demo/www/cgi-bin/status';
  const printed = await board.run(
    `REQUEST_METHOD=GET QUERY_STRING=format=json TAVIK_DEMO_STATE=/state ${page}`);
  const told = JSON.parse(printed.slice(printed.indexOf('{')));
  return Object.fromEntries(told.interfaces.map((row) => [row.name, row]));
}

test('the interfaces are told, with their addresses and links', async () => {
  const { lo, eth0 } = await interfaces();
  assert.deepEqual(lo, { name: 'lo', state: 'up', link: 'unknown', ipv4: '127.0.0.1/8', ipv6: '::1/128' });
  assert.match(eth0.ipv6, /^(?=.*\bfe80:)([0-9a-f:]+\/64(, |$))+$/);
  for (const up of [false, true, false, true]) {
    await board.setCable(up);
    const { state, link, ipv4 } = (await interfaces()).eth0;
    assert.deepEqual([state, link, ipv4], ['up', up ? 'up' : 'down', '10.0.2.15/24']);
  }
});

test('the PHY is powered down and up', async () => {
  const steps = [['eth0', 'up', 'power 0 control 3000'], ['eth0', 'down', 'power 1 control 3800'],
    ['eth0', 'down', 'power 1 control 3800'], ['eth0', 'up', 'power 0 control 3000'],
    ['lo', 'down', 'power -1 control ffff']];
  for (const [name, way, answer] of steps) {
    assert.equal(await board.run(`/tests/link ${name} 6 ${way}`), answer);
  }
});

test('the boot environment is read from flash partitions of every kind', async () => {
  const answers = {
    environment: /serial#<.*>TK-0042<.*ethaddr<.*>not set<.*bootcmd<\/th><td></s,
    damaged: /has a wrong checksum/,
    tiny: /has a size that no environment has/,
    small: /serial#<.*>not set<.*bootcmd<\/th><td>not set</s,
    large: /has a size that no environment has/,
  };
  for (const [label, answer] of Object.entries(answers)) {
    await board.run(`sed -n 's|^\\(mtd[0-9]*\\):.*"${label}"|/dev/\\1|p' /proc/mtd >/state/bootdevice`);
    assert.match(await textOf('status'), answer, label);
  }
});

test('every page is served whole, and then the board restarts', async () => {
  for (const name of fs.readdirSync(`${folder}/root/demo/www/cgi-bin`)) {
    assert.match(await textOf(name), /<\/html>\s*$/, name);
  }
  assert.equal(await board.restart(), 0);
});
