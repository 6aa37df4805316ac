// The Firmware page: big files, and everything that can go wrong with them on their way.
import assert from 'node:assert/strict';
import { execFileSync, spawn } from 'node:child_process';
import { createHash, randomBytes } from 'node:crypto';
import { once } from 'node:events';
import fs from 'node:fs';
import net from 'node:net';
import path from 'node:path';
import { after, before, beforeEach, test } from 'node:test';
import { openBrowser } from './lib/browser.mjs';
import { closing, contentType, multipart, opening } from './lib/multipart.mjs';
import { demo, exchange, startDevice, streamsBodies } from './lib/server.mjs';

let device;
let browser;
let folder;
let page;
const old = Buffer.from('the old image');
const nasty = Buffer.concat([Buffer.from(`\r\n--\r\n------WebKit\r\n--${'-'.repeat(50)}Xb`),
  randomBytes(3 << 20),
  Buffer.from('\r\n\r\n--'), Buffer.alloc(70000, '\r\n-')]);

before(async () => {
  device = await startDevice();
  browser = await openBrowser();
  folder = path.join(device.state, 'firmware');
  page = `${device.url}/cgi-bin/firmware`;
  fs.writeFileSync(path.join(device.state, '..', 'nasty'), nasty);
});
after(async () => {
  await browser?.close();
  await device?.stop();
});

const stored = () => fs.readFileSync(path.join(folder, 'image'));
const incoming = () => path.join(folder, '.incoming');
const left = () => {
  try {
    return fs.readdirSync(incoming());
  } catch { // the folder goes and comes back when an upload begins
    return [];
  }
};
const size = (name) => fs.statSync(path.join(incoming(), name)).size;
const until = async (reached) => {
  for (let tries = 0; !(await reached()); tries++) {
    assert.ok(tries < 2000, `never came: ${reached}`);
    await new Promise((resolve) => setTimeout(resolve, 10));
  }
};
const file = (name) => ({ name, mimeType: '', buffer: nasty });
const body = (content) => multipart('image', 'x', content);
const post = (content) => fetch(page, {
  method: 'POST', body: content, headers: { 'Content-Type': contentType, ...device.authorization },
});
const told = async (answer) => (await answer.text()).match(/role="status">([^<]*)</)?.[1];
const head = (length) => Buffer.from(`POST /cgi-bin/firmware HTTP/1.0\r\n` +
  `Authorization: ${device.authorization.Authorization}\r\n` +
  `Content-Type: ${contentType}\r\nContent-Length: ${length}\r\n\r\n`);

beforeEach(async () => assert.equal(await told(await post(body(old))), 'The file was stored.'));

for (const javaScriptEnabled of [true, false]) {
  test(`a browser's file comes as it is, ${javaScriptEnabled ? 'with' : 'without'} script`, async () => {
    const tab = await browser.newPage({ httpCredentials: device.login, javaScriptEnabled });
    await tab.goto(page);
    await tab.getByLabel('Image file').setInputFiles(file('a "b"/\\.bin'));
    await Promise.all([tab.waitForURL(/told=/), tab.getByRole('button', { name: 'Upload' }).click()]);
    assert.equal(await tab.getByRole('status').first().textContent(), 'The file was stored.');
    assert.ok(stored().equals(nasty));
    const facts = await tab.locator('.facts').innerText();
    assert.ok(facts.includes(`${nasty.length}`));
    assert.ok(facts.includes(createHash('sha256').update(nasty).digest('hex')));
    await tab.close();
  });
}

test('the bar shows how far an upload is, and one that is cancelled leaves nothing', streamsBodies, async () => {
  const tab = await browser.newPage({ httpCredentials: device.login });
  await tab.goto(page);
  const network = await tab.context().newCDPSession(tab);
  await network.send('Network.emulateNetworkConditions',
    { offline: false, latency: 0, downloadThroughput: -1, uploadThroughput: 1 << 20 });
  await tab.getByLabel('Image file').setInputFiles(file('image'));
  await tab.getByRole('button', { name: 'Upload' }).click();
  const value = () => tab.locator('progress').evaluate((bar) => bar.value);
  await until(async () => await value() > 0);
  assert.ok(await value() < 1);
  assert.match(await tab.getByRole('status').textContent(), /^\d+ %$/);
  await tab.getByRole('button', { name: 'Cancel' }).click();
  assert.equal(await tab.getByRole('status').textContent(),
    'The upload was cancelled. Nothing was stored.');
  await until(() => left().length === 0);
  assert.ok(stored().equals(old));
  await tab.close();
});

test("curl's file comes as it is", async () => {
  const { username, password } = device.login;
  execFileSync('curl', ['-sS', '-f', '-u', `${username}:${password}`, '-F',
    `image=@${path.join(device.state, '..', 'nasty')}`, page]);
  assert.ok(stored().equals(nasty));
});

test('of an upload whose connection is cut nothing is left, and its page ends', streamsBodies, async () => {
  const socket = net.connect(device.port, '127.0.0.1');
  socket.write(Buffer.concat([head(1 << 30), opening('image', 'x'), nasty]));
  await until(() => left().some((name) => size(name) > 1 << 20));
  socket.destroy();
  await until(() => left().length === 0);
  assert.ok(stored().equals(old));
  await until(() => /The upload broke off\.[^\n]*\n$/.test(device.item('log')));
});

test('a body that ends early is told, wherever it ends', streamsBodies, async () => {
  const whole = body(nasty.subarray(0, 5000));
  const ends = [opening('image', 'x').length, 3000, whole.length - closing.length, whole.length - 3];
  for (const end of ends) {
    const sent = Buffer.concat([head(whole.length), whole.subarray(0, end)]);
    const answer = await exchange(device.port, sent);
    const [, query] = answer.match(/^Location: firmware(\?told=\d+)\r$/m);
    assert.equal(await told(await fetch(page + query, { headers: device.authorization })),
      'The upload broke off. Nothing was stored.');
    assert.ok(stored().equals(old));
  }
  assert.deepEqual(left(), []);
});

test('a newer upload wins over one that hangs', streamsBodies, async () => {
  const socket = net.connect(device.port, '127.0.0.1');
  socket.write(Buffer.concat([head(1 << 30), opening('image', 'x'), nasty]));
  await until(() => left().length === 1);
  await post(body('newer'));
  socket.end(closing);
  await until(() => /could not be stored\.\n$/.test(device.item('log')));
  assert.equal(stored().toString(), 'newer');
});

test('no file, another control, a form without a file', async () => {
  assert.equal(await told(await post(multipart('image', '', ''))), 'No file was chosen.');
  assert.equal(await told(await post(multipart('other', 'x', 'y'))), undefined);
  assert.equal(await told(await post(body(''))), 'The file was stored.', 'an empty one is a file');
  assert.equal(stored().length, 0);
});

test('a full disk is told, and the old image stays', async (t) => {
  fs.rmSync(incoming(), { recursive: true });
  try {
    execFileSync('mount', ['-t', 'tmpfs', '-o', 'size=1m', 'tmpfs', folder], { stdio: 'ignore' });
  } catch {
    t.skip('this machine cannot mount a small file system');
    return;
  }
  t.after(() => execFileSync('umount', [folder]));
  await post(body(old));
  assert.equal(await told(await post(body(nasty))),
    'The device has no room for this file. Nothing was stored.');
  assert.ok(stored().equals(old));
  assert.deepEqual(left(), []);
});

// The page's peaks, of address space and of memory in use in KiB, when all but a file's end has come.
async function peak(mebibytes) {
  const program = path.join(demo, 'www/cgi-bin/firmware');
  const child = spawn(program, {
    cwd: path.dirname(program), stdio: ['pipe', 'ignore', 'inherit'],
    env: { TAVIK_DEMO_STATE: device.state, REMOTE_USER: device.login.username,
      REQUEST_METHOD: 'POST', CONTENT_TYPE: contentType, CONTENT_LENGTH: '1' },
  });
  const write = async (data) => child.stdin.write(data) || once(child.stdin, 'drain');
  await write(opening('image', 'x'));
  for (let i = 0; i < mebibytes; i++) await write(nasty.subarray(0, 1 << 20));
  await until(() => left().some((name) => size(name) > (mebibytes << 20) - 10000));
  const status = fs.readFileSync(`/proc/${child.pid}/status`, 'latin1');
  child.stdin.end(closing);
  await once(child, 'exit');
  assert.equal(stored().length, mebibytes << 20);
  return ['VmPeak', 'VmHWM'].map((name) => Number(status.match(new RegExp(`${name}:\\s*(\\d+)`))[1]));
}

test('64 MiB take no more memory than 1 MiB', async () => {
  const [space, used] = await peak(1);
  const [bigSpace, bigUsed] = await peak(64);
  assert.equal(bigSpace, space);
  // What is in use also counts how much of the C library the kernel has read ahead.
  assert.ok(Math.abs(bigUsed - used) < 512, `${used} KiB and ${bigUsed} KiB`);
});
