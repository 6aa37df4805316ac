// The Certificates page: names that a shell would read, tooltips, deletion, and who gets in.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import fs from 'node:fs';
import path from 'node:path';
import { after, before, beforeEach, test } from 'node:test';
import { openBrowser } from './lib/browser.mjs';
import { contentType, multipart } from './lib/multipart.mjs';
import { demo, startDevice } from './lib/server.mjs';

let device;
let browser;
let tab;
let folder;
let page;
let certificate;

before(async () => {
  device = await startDevice();
  browser = await openBrowser();
  tab = await browser.newPage({ httpCredentials: device.login });
  folder = path.join(device.state, 'certificates');
  page = `${device.url}/cgi-bin/certificates`;
  certificate = execFileSync('openssl', ['req', '-x509', '-newkey', 'ec', '-pkeyopt',
    'ec_paramgen_curve:P-256', '-nodes', '-keyout', '/dev/null', '-subj', '/CN=<b>"it\'s"'],
  { stdio: ['ignore', 'pipe', 'ignore'] });
});
after(async () => {
  await browser?.close();
  await device?.stop();
});
beforeEach(() => {
  for (const name of files()) fs.rmSync(path.join(folder, name));
  fs.writeFileSync(path.join(folder, 'a.pem'), certificate);
});

const files = () => fs.readdirSync(folder).filter((name) => name !== '.incoming').sort();
const post = async (body, type = contentType, headers = {}) => {
  const answer = await fetch(page, {
    method: 'POST', body, headers: { 'Content-Type': type, ...device.authorization, ...headers } });
  return (await answer.text()).match(/role="status">([^<]*)</)?.[1];
};
const upload = (name) => post(multipart('certificate', name, certificate));
const form = 'application/x-www-form-urlencoded';

test('a certificate is uploaded, described, and deleted when that is confirmed', async () => {
  await tab.goto(page);
  await tab.getByLabel('Certificate file')
    .setInputFiles({ name: '<i>ä & b.pem', mimeType: '', buffer: certificate });
  await Promise.all([tab.waitForURL(/told=/), tab.getByRole('button', { name: 'Upload' }).click()]);
  assert.equal(await tab.getByRole('status').first().textContent(), 'The file was stored.');
  assert.ok(fs.readFileSync(path.join(folder, '<i>ä & b.pem')).equals(certificate));
  const cell = tab.getByRole('cell', { name: '<i>ä & b.pem', exact: true });
  assert.match(await cell.getAttribute('title'), /^subject=CN = "?<b>.*it's.*\nnotAfter=.* GMT$/);
  const ask = () => tab.getByRole('button', { name: 'Delete <i>ä & b.pem' }).click();
  await ask();
  await tab.getByRole('link', { name: 'Keep it' }).click();
  assert.deepEqual(files(), ['<i>ä & b.pem', 'a.pem']);
  await ask();
  await tab.getByRole('button', { name: 'Delete it' }).click();
  assert.equal(await tab.getByRole('status').first().textContent(), 'The file was deleted.');
  assert.deepEqual(files(), ['a.pem']);
  await tab.goto(`${device.url}/cgi-bin/log`);
  const [stored, deleted] = (await tab.locator('pre').innerText()).split('\n');
  assert.match(stored, /^\d{4}-.*Z admin: certificate "<i>ä & b\.pem": The file was stored\.$/);
  assert.match(deleted, /"<i>ä & b\.pem": The file was deleted\.$/);
});

test('the log is kept short, and shows its last lines across the cut', async () => {
  fs.writeFileSync(path.join(device.state, 'log'), 'line\n'.repeat(15000));
  await upload('x');
  assert.ok(!fs.existsSync(path.join(device.state, 'log')));
  await upload('y');
  await tab.goto(`${device.url}/cgi-bin/log`);
  const lines = (await tab.locator('pre').innerText()).split('\n');
  assert.deepEqual(lines.slice(0, 198), Array(198).fill('line'));
  assert.match(lines.slice(198).join(), /"x":.*,.*"y":/);
});

test('what is no certificate is listed as none', async () => {
  await post(multipart('certificate', 'b.pem', 'text'));
  await tab.goto(page);
  assert.deepEqual(await tab.locator('.rows tr').allInnerTexts(),
    ['a.pem\tDelete', 'b.pem no certificate\tDelete']);
});

const refused = ['`id`', '$(touch x)', '$HOME', "it's", 'a\nb', 'a\rb', 'a\tb', 'a\x7fb', '.', '..', 'x/..',
  '.hidden', '\u{1F600}', 'n'.repeat(121), 'dir\\$y'];

test('names that mean something to a shell or a file system are refused', async () => {
  for (const name of refused) {
    assert.equal(await upload(name), "The file's name cannot be used here. Nothing was stored.", name);
  }
  for (const name of ['', 'dir/', 'dir\\']) assert.equal(await upload(name), 'No file was chosen.');
  assert.deepEqual(files(), ['a.pem']);
  const kept = ['n'.repeat(120), 'a b;c|d&e>f*.pem', '-in', 'x'];
  for (const name of kept) assert.equal(await upload(`C:\\dir\\${name}`), 'The file was stored.');
  assert.equal(await upload('cut" .pem'), 'The file was stored.', 'a name ends at its first quote');
  assert.deepEqual(files(), [...kept, 'cut', 'a.pem'].sort());
  const html = await (await fetch(page, { headers: device.authorization })).text();
  assert.equal(html.match(/title="subject=/g).length, files().length, 'each has its tooltip');
});

test('too big a file is refused, and no file but a listed one can be deleted', async () => {
  const big = multipart('certificate', 'big.pem', Buffer.alloc((256 << 10) + 1));
  assert.equal(await post(big), 'The file is too big. Nothing was stored.');
  for (const name of ['', '.', '../hostname', '.incoming', 'b.pem', 'a.pem/', 'a']) {
    assert.equal(await post(`delete=${encodeURIComponent(name)}`, form), 'The file could not be deleted.');
  }
  await post('delete=a.pem', form, { Origin: 'http://evil.example' });
  assert.deepEqual(files(), ['a.pem']);
  assert.ok(fs.existsSync(path.join(device.state, 'hostname')));
});

test('without the password nobody gets in, on any way to the pages', async () => {
  const { password } = device.login;
  const users = ['admin:', 'admin:wrong', `Admin:${password}`, `root:${password}`, 'admin', `:${password}`];
  const strangers = [...users.map((user) => ({ Authorization: `Basic ${btoa(user)}` })),
    {}, { Authorization: 'Basic %' }, { 'Remote-User': 'admin', REMOTE_USER: 'admin' }];
  const body = multipart('certificate', 'x', 'y');
  for (const name of ['certificates', 'firmware', 'log', 'administration']) {
    const escaped = `%${name.charCodeAt(0).toString(16)}${name.slice(1)}`;
    for (const stranger of strangers) {
      for (const way of [name, `${name}?told=1`, `/.//${name}`, `${name}/x`, escaped]) {
        const headers = { 'Content-Type': contentType, ...stranger };
        const answer = await fetch(`${device.url}/cgi-bin/${way}`, { method: 'POST', body, headers });
        assert.ok([400, 401].includes(answer.status), `${way} ${JSON.stringify(stranger)}`);
      }
    }
    const env = { REQUEST_METHOD: 'GET', TAVIK_DEMO_STATE: device.state };
    const answer = execFileSync(path.join(demo, 'www/cgi-bin', name), { env, encoding: 'latin1' });
    assert.match(answer, /^Status: 403 /, 'nor when the server has not asked');
  }
  assert.deepEqual(files(), ['a.pem']);
});
