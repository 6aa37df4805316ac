// The Administration page: a new password, which the real server then asks for.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import fs from 'node:fs';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { openBrowser } from './lib/browser.mjs';
import { demo, readsPasswordsOnce, startDevice } from './lib/server.mjs';

let device;
let browser;
let page;
let password;

before(async () => {
  device = await startDevice();
  browser = await openBrowser();
  page = `${device.url}/cgi-bin/administration`;
  password = device.login.password;
});
after(async () => {
  await browser?.close();
  await device?.stop();
});

const login = (word) => ({ Authorization: `Basic ${btoa(`${device.login.username}:${word}`)}` });
const status = async (word) => (await fetch(page, { headers: login(word) })).status;
async function change(present, first, again, next = password) {
  const sent = await fetch(page, {
    method: 'POST', redirect: 'manual',
    headers: { ...login(password), 'Content-Type': 'application/x-www-form-urlencoded' },
    body: `${new URLSearchParams({ present, new: first, again })}` });
  assert.equal(sent.status, 303);
  const shown = await fetch(new URL(sent.headers.get('location'), page), { headers: login(next) });
  return (await shown.text()).match(/role="status">([^<]*)</)?.[1];
}

test('what is wrong with an entry is told, and nothing changes', async () => {
  const hash = device.item('adminpassword');
  const cases = [
    ['', '', '', undefined],
    ['wrong', 'long-enough', 'long-enough', 'The present password is not right. It stays as it was.'],
    [password, 'long-enough', 'long-enougH', 'The two new passwords differ. The present one stays.'],
    [password, 'long-enough', '', 'The two new passwords differ. The present one stays.'],
    [password, 'short-1', 'short-1', 'A password has 8 to 64 characters. The present one stays.'],
    [password, 'x'.repeat(65), 'x', 'A password has 8 to 64 characters. The present one stays.'],
    [password, 'with blank', 'x', 'A password has only the characters named below. The present one stays.'],
    [password, 'häßlich-1', 'x', 'A password has only the characters named below. The present one stays.'],
  ];
  for (const [present, first, again, text] of cases) assert.equal(await change(present, first, again), text);
  assert.equal(device.item('adminpassword'), hash);
  assert.equal(await status(password), 200);
});

test('the new password is the one asked for next, in a browser', async () => {
  const tab = await browser.newPage({ httpCredentials: device.login });
  await tab.goto(page);
  const next = 'a:b#c@d/e;1';
  const typed = { 'Present password': password, 'New password': next, 'New password again': next };
  for (const [label, text] of Object.entries(typed)) {
    await tab.getByLabel(label, { exact: true }).fill(text);
  }
  const [answer] = await Promise.all([
    tab.waitForResponse((response) => response.url().includes('told=')),
    tab.getByRole('button', { name: 'Save' }).click()]);
  assert.equal(answer.status(), 401);
  await tab.close();
  assert.equal(await status(password), 401);
  password = next;
  assert.equal(await status(password), 200);
  assert.match(device.item('adminpassword'), /^\$1\$.{8}\$.{22}\n$/);
  assert.equal(device.item('saved/adminpassword'), device.item('adminpassword'));
  assert.equal(await change(password, 'next-word', 'next-word', 'next-word'),
    'The password was changed. It is the one to log in with from now on.');
  password = 'next-word';
});

test('the log tells of every attempt, also as a file, and of no password', async () => {
  const answer = await fetch(`${device.url}/cgi-bin/log?format=text`, { headers: login(password) });
  assert.match(answer.headers.get('content-disposition'), /^attachment; filename="log\.txt"$/);
  const text = await answer.text();
  assert.equal(text, device.item('log'));
  assert.equal(text.match(/Z admin: administration: /g).length, 9);
  assert.ok(!text.includes('next-word'));
});

test('a set-up leaves the password, also when one copy of it is lost', () => {
  const hash = device.item('adminpassword');
  const setup = () => execFileSync(path.join(demo, 'setup'), [device.state], { encoding: 'latin1' });
  for (const lost of ['adminpassword', 'saved/adminpassword', 'httpd.conf', 'htpasswd']) {
    fs.writeFileSync(path.join(device.state, lost), '');
    assert.equal(setup(), '');
    for (const copy of ['adminpassword', 'saved/adminpassword']) assert.equal(device.item(copy), hash);
    for (const file of ['httpd.conf', 'htpasswd']) assert.ok(device.item(file).endsWith(`:${hash}`), file);
  }
});

test('a password that could not be put in force is told', readsPasswordsOnce, async () => {
  fs.rmSync(path.join(device.state, 'serverpid'));
  assert.match(await change(password, 'third-word', 'third-word'), /goes on asking for the old one/);
});

test('a password that could not be stored is told', async () => {
  fs.rmSync(path.join(device.state, 'adminpassword'));
  assert.equal(await change('', 'fourth-word', 'fourth-word'),
    'The password could not be stored. The old one still counts.');
  assert.equal(await status(password), 200);
});
