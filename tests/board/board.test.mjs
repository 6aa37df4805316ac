// The library and the demo device on the emulated board: the device's libc, flash and a PHY.
import assert from 'node:assert/strict';
import { createHash, randomBytes } from 'node:crypto';
import fs from 'node:fs';
import { after, before, test } from 'node:test';
import { Board } from './board.mjs';
import { formValues } from '../e2e/lib/html.mjs';
import { contentType, multipart } from '../e2e/lib/multipart.mjs';

const board = new Board('build/board-test');
before(() => board.boot());
after(() => board.stop());

const authorized = () => ({ Authorization: `Basic ${btoa(`${board.user}:${board.password}`)}` });
const page = (name, options) => fetch(`${board.url}/cgi-bin/${name}`,
  { signal: AbortSignal.timeout(60000), headers: authorized(), ...options });
const send = (name, body, type) => page(name, {
  method: 'POST', body, headers: { 'Content-Type': type, ...authorized() }, redirect: 'manual',
});
const post = (name, fields) => send(
  name, `${new URLSearchParams(fields)}`, 'application/x-www-form-urlencoded');

test('a form is saved and shown again', async () => {
  const fields = { owner: `<b>"it's"</b> äöü €`, place: 'a b', remark: '' };
  await post('notes', fields);
  assert.deepEqual(formValues(await (await page('notes')).text()), fields);
  assert.equal(await board.run('cat /state/place'), 'a b');
});

test('a file comes as it is', async () => {
  const content = Buffer.concat([randomBytes(300000), Buffer.from('\r\n--'.repeat(99))]);
  assert.equal((await send('firmware', multipart('image', 'x', content), contentType)).status, 303);
  assert.equal(await board.run('sha256sum /state/firmware/image | cut -c 1-64'),
    createHash('sha256').update(content).digest('hex'));
});

test('a new password counts at once', async () => {
  const words = { present: board.password, new: 'a-new:Word1', again: 'a-new:Word1' };
  assert.equal((await post('administration', words)).status, 303);
  assert.equal((await page('administration')).status, 401);
  board.password = words.new;
  assert.equal((await page('administration')).status, 200);
});

test('the interfaces are told, with their IPv6 addresses', async () => {
  assert.equal(await board.run('/tests/interfaces lo'),
    '0 up 127.0.0.1 255.0.0.0\n0 lo 127.0.0.1\n::1/128\n1');
  const eth0 = await board.run('/tests/interfaces eth0');
  assert.match(eth0, /^0 up 10.0.2.15 255.255.255.0\n0 eth0 10.0.2.15\n/);
  assert.match(eth0, /^fe80:[0-9a-f:]+\/64$/m);
  assert.equal(await board.run('/tests/interfaces eth9'), '-1 down 0.0.0.0 0.0.0.0\n0');
});

test('the status page shows link and boot environment', async () => {
  const { interfaces } = await (await page('status?format=json')).json();
  const eth0 = interfaces.find(({ name }) => name === 'eth0');
  assert.deepEqual([eth0.state, eth0.link, eth0.ipv4], ['up', 'up', '10.0.2.15/24']);
  assert.match(eth0.ipv6, /\bfe80:/);
  assert.match(await (await page('status')).text(), /serial#<.*>TK-0042</);
});

test('the boot environment is read from flash partitions of every kind', async () => {
  const names = 'serial# bootcmd boot partition';
  const none = names.replaceAll(/(\S+) ?/g, '$1 unset\n').trimEnd();
  const answers = {
    environment: 'result 0\nserial#=TK-0042\nbootcmd=\nboot unset\npartition=environment',
    damaged: `result 5\n${none}`,
    tiny: `result 2\n${none}`,
    small: `result 0\n${none}`,
    large: `result 2\n${none}`,
  };
  for (const [label, answer] of Object.entries(answers)) {
    const device = (await board.run(`grep '"${label}"' /proc/mtd`)).split(':')[0];
    assert.equal(await board.run(`/tests/boot_env /dev/${device} ${names}`), answer);
  }
});

const link = (words) => board.run(`/tests/link ${words}`);

test('the link follows the cable', async () => {
  for (const [up, answer] of [[false, 0], [true, 1], [false, 0], [true, 1]]) {
    await board.setCable(up);
    assert.equal(await link('eth0 6'), `link ${answer} control 3000`);
  }
  assert.equal(await link('lo 6'), 'link -1 control ffff');
});

test('the PHY is powered down and up', async () => {
  assert.match(await link('eth0 6 up'), /^power 0 .*control 3000$/);
  assert.match(await link('eth0 6 down'), /^power 1 .*control 3800$/);
  assert.match(await link('eth0 6 down'), /^power 1 .*control 3800$/);
  assert.match(await link('eth0 6 up'), /^power 0 .*control 3000$/);
  assert.match(await link('lo 6 down'), /^power -1 /);
});

test('every page is served whole', async () => {
  for (const name of fs.readdirSync('build/board-test/root/demo/www/cgi-bin')) {
    assert.match(await (await page(name)).text(), /<\/html>\s*$/, name);
  }
});

test('after all that pages are served and the board restarts', async () => {
  assert.equal((await page('notes')).status, 200);
  assert.equal(await board.restart(), 0);
});
