// Files that are sent to the device, Firmware's and Certificates': whole, in part, too many, too big,
// under any name; and what becomes of them.
import assert from 'node:assert/strict';
import { execFileSync, spawnSync } from 'node:child_process';
import { createHash, randomBytes } from 'node:crypto';
import fs from 'node:fs';
import net from 'node:net';
import path from 'node:path';
import { beforeEach, test } from 'node:test';
import { press } from './lib/browser.mjs';
import { address, ask, device, open, post, statusIn, until } from './lib/device.mjs';
import { closing, contentType, multipart, opening } from './lib/multipart.mjs';
import { demo, exchange, streamsBodies } from './lib/server.mjs';

const folder = (page) => path.join(device.state, page);
const image = () => fs.readFileSync(path.join(folder('firmware'), 'image'));
const certificates = () =>
  fs.readdirSync(folder('certificates')).filter((name) => name !== '.incoming').sort();
const incoming = path.join(folder('firmware'), '.incoming');
const size = (name) => fs.statSync(path.join(incoming, name)).size;
const left = () => {
  try {
    return fs.readdirSync(incoming);
  } catch { // the folder goes and comes back when an upload begins
    return [];
  }
};

const old = Buffer.from('the old image');
const nasty = Buffer.concat([Buffer.from(`\r\n--\r\n------WebKit\r\n--${'-'.repeat(50)}Xb`),
  randomBytes(3 << 20), Buffer.from('\r\n\r\n--'), Buffer.alloc(70000, '\r\n-')]);
const certificate = execFileSync('openssl', ['req', '-x509', '-newkey', 'ec', '-pkeyopt',
  'ec_paramgen_curve:P-256', '-nodes', '-keyout', '/dev/null', '-subj', '/CN=<b>"it\'s"'],
{ stdio: ['ignore', 'pipe', 'ignore'] });

const send = async (page, ...part) => (await post(page, multipart(...part), contentType)).told;
const store = (content) => send('firmware', 'image', 'x', content);
const upload = (name) => send('certificates', 'certificate', name, certificate);
const stored = 'The file was stored.';
const brokeOff = 'The upload broke off. Nothing was stored.';
const head = (length) => `POST /cgi-bin/firmware HTTP/1.0\r\nContent-Type: ${contentType}\r\n` +
  `Authorization: ${device.authorization.Authorization}\r\nContent-Length: ${length}\r\n\r\n`;

// An upload that does not end by itself.
function beginUpload() {
  const socket = net.connect(device.port, '127.0.0.1');
  socket.write(Buffer.concat([Buffer.from(head(1 << 30)), opening('image', 'x'), nasty]));
  return socket;
}

beforeEach(async () => {
  for (const name of certificates()) fs.rmSync(path.join(folder('certificates'), name));
  fs.writeFileSync(path.join(folder('certificates'), 'a.pem'), certificate);
  assert.equal(await store(old), stored);
});

for (const javaScriptEnabled of [true, false]) {
  test(`Firmware: a file comes as it is, ${javaScriptEnabled ? 'with' : 'without'} script`, async () => {
    const tab = await open('firmware', { javaScriptEnabled });
    await tab.getByLabel('Image file').setInputFiles({ name: 'a "b"/\\.bin', mimeType: '', buffer: nasty });
    await press(tab, 'Upload');
    assert.equal(await statusIn(tab), stored);
    assert.ok(image().equals(nasty));
    const facts = (await tab.locator('.facts td').allInnerTexts()).map((text) => text.trim());
    assert.deepEqual(facts, [`${nasty.length}`, createHash('sha256').update(nasty).digest('hex')]);
  });
}

test('Certificates: one comes, is described, and is deleted when that is confirmed', async () => {
  const name = '<i>ä & b.pem';
  const log = path.join(device.state, 'log');
  const tab = await open('certificates');
  fs.writeFileSync(log, 'line\n'.repeat(15000));
  await send('certificates', 'certificate', 'b.pem', 'text');
  assert.ok(!fs.existsSync(log), 'the log is kept short');
  await tab.getByLabel('Certificate file').setInputFiles({ name, mimeType: '', buffer: certificate });
  await press(tab, 'Upload');
  assert.equal(await statusIn(tab), stored);
  assert.ok(fs.readFileSync(path.join(folder('certificates'), name)).equals(certificate));
  const cell = tab.getByRole('cell', { name, exact: true });
  assert.match(await cell.getAttribute('title'), /^subject=CN = "?<b>.*it's.*\nnotAfter=.* GMT$/);
  await press(tab, `Delete ${name}`);
  await tab.getByRole('link', { name: 'Keep it' }).click();
  assert.deepEqual(certificates(), [name, 'a.pem', 'b.pem']);
  await press(tab, `Delete ${name}`);
  await press(tab, 'Delete it');
  assert.equal(await statusIn(tab), 'The file was deleted.');
  assert.deepEqual(await tab.locator('.rows tr').allInnerTexts(),
    ['a.pem\tDelete', 'b.pem no certificate\tDelete']);
  await tab.goto(address('log'));
  const lines = (await tab.locator('pre').innerText()).split('\n');
  assert.deepEqual(lines.slice(0, 197), Array(197).fill('line'));
  assert.match(lines[198], /^\d{4}-.*Z admin: certificate "<i>ä & b\.pem": The file was stored\.$/);
  assert.match(lines[199], /"<i>ä & b\.pem": The file was deleted\.$/);
});

test('Certificates: names that mean something to a shell or a file system are refused', async () => {
  const names = {
    "The file's name cannot be used here. Nothing was stored.": ['`id`', '$(touch x)', '$HOME', "it's",
      'a\nb', 'a\tb', 'a\x7fb', '.', '..', 'x/..', '.hidden', '\u{1F600}', 'n'.repeat(121), 'dir\\$y'],
    'No file was chosen.': ['', 'dir/', 'dir\\'],
    [stored]: ['n'.repeat(120), 'C:\\dir\\a b;c|d&e>f*.pem', 'dir/-in', 'x', 'cut" .pem'],
  };
  for (const [told, list] of Object.entries(names)) {
    for (const name of list) assert.equal(await upload(name), told, name);
  }
  const kept = ['-in', 'a b;c|d&e>f*.pem', 'a.pem', 'cut', 'n'.repeat(120), 'x'];
  assert.deepEqual(certificates(), kept);
  assert.equal((await ask('certificates')).text.match(/title="subject=/g).length, kept.length);
});

test('a file may be too big, none, empty, or of another control; only a listed one is deleted', async () => {
  const big = await send('certificates', 'certificate', 'big.pem', Buffer.alloc((256 << 10) + 1));
  assert.equal(big, 'The file is too big. Nothing was stored.');
  assert.equal(await send('firmware', 'image', '', ''), 'No file was chosen.');
  assert.equal(await send('firmware', 'other', 'x', 'y'), undefined);
  assert.deepEqual(image(), old);
  assert.equal(await store(''), stored);
  assert.equal(image().length, 0);
  for (const other of ['', '.', '../hostname', '.incoming', 'b.pem', 'a.pem/', 'a']) {
    const { told } = await post('certificates', `delete=${encodeURIComponent(other)}`);
    assert.equal(told, 'The file could not be deleted.');
  }
  assert.deepEqual([certificates(), fs.existsSync(folder('hostname'))], [['a.pem'], true]);
});

test('the bar shows how far an upload is, and cancelled it leaves nothing', streamsBodies, async () => {
  const tab = await open('firmware');
  const network = await tab.context().newCDPSession(tab);
  await network.send('Network.emulateNetworkConditions',
    { offline: false, latency: 0, downloadThroughput: -1, uploadThroughput: 1 << 20 });
  await tab.getByLabel('Image file').setInputFiles({ name: 'x', mimeType: '', buffer: nasty });
  await tab.getByRole('button', { name: 'Upload' }).click();
  const shown = () => tab.locator('progress').evaluate((bar) => bar.value);
  await until(async () => await shown() > 0.01);
  assert.ok(await shown() < 1);
  assert.match(await statusIn(tab), /^[1-9]\d* %$/);
  await tab.getByRole('button', { name: 'Cancel' }).click();
  assert.equal(await statusIn(tab), 'The upload was cancelled. Nothing was stored.');
  await until(() => left().length === 0);
  assert.ok(image().equals(old));
});

test('an upload that breaks off, wherever it does, leaves the old image', streamsBodies, async () => {
  const whole = multipart('image', 'x', nasty.subarray(0, 5000));
  for (const end of [opening('image', 'x').length, 3000, whole.length - closing.length, whole.length - 3]) {
    const sent = Buffer.concat([Buffer.from(head(whole.length)), whole.subarray(0, end)]);
    const [, page] = (await exchange(device.port, sent)).match(/^Location: (firmware\?told=\d+)\r$/m);
    assert.equal((await ask(page)).told, brokeOff);
  }
  const cut = beginUpload();
  await until(() => left().some((name) => size(name) > 1 << 20));
  cut.destroy();
  await until(() => left().length === 0);
  assert.ok(image().equals(old));
  await until(() => device.item('log').endsWith(`${brokeOff}\n`));
  const hanging = beginUpload();
  await until(() => left().length === 1);
  await store('newer');
  hanging.end(closing);
  await until(() => device.item('log').endsWith('could not be stored.\n'));
  assert.equal(image().toString(), 'newer');
});

test('a full disk is told, and the old image stays', async (t) => {
  fs.rmSync(incoming, { recursive: true });
  const mount = ['-t', 'tmpfs', '-o', 'size=1m', 'tmpfs', folder('firmware')];
  if (spawnSync('mount', mount).status !== 0) {
    t.skip('this machine cannot mount a small file system');
    return;
  }
  t.after(() => execFileSync('umount', [folder('firmware')]));
  await store(old);
  assert.equal(await store(nasty), 'The device has no room for this file. Nothing was stored.');
  assert.deepEqual([image(), left()], [old, []]);
});

test('64 MiB take no more memory than 1 MiB', () => {
  const [used, bigUsed] = [1, 64].map((mebibytes) => {
    const { stdout, stderr } = spawnSync('busybox', ['time', '-v', './firmware'], {
      cwd: path.join(demo, 'www/cgi-bin'), encoding: 'latin1',
      input: multipart('image', 'x', Buffer.alloc(mebibytes << 20)),
      env: { TAVIK_DEMO_STATE: device.state, REMOTE_USER: device.login.username,
        REQUEST_METHOD: 'POST', CONTENT_TYPE: contentType, CONTENT_LENGTH: '1' },
    });
    assert.match(stdout, /^Status: 303 /);
    assert.equal(image().length, mebibytes << 20);
    return Number(stderr.match(/Maximum resident set size \(kbytes\): (\d+)/)[1]);
  });
  // What is in use also counts how much of the C library the kernel has read ahead.
  assert.ok(bigUsed < used + 2048, `${used} KiB and ${bigUsed} KiB`);
});
