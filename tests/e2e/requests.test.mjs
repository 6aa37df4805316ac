// Requests that no browser makes: hostile ones, strangers', forms of other sites, and very many.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import fs from 'node:fs';
import path from 'node:path';
import { beforeEach, test } from 'node:test';
import { address, ask, device, form, post, value, written } from './lib/device.mjs';
import { formValues } from './lib/html.mjs';
import { demo, exchange, streamsBodies } from './lib/server.mjs';

const programs = path.join(demo, 'www/cgi-bin');
const note = (fields) => post('notes', `${new URLSearchParams(fields)}`);
beforeEach(() => note({ owner: 'o', place: 'p', remark: '' }));

test('values come by GET as well, from the page itself only, and go out in ASCII', async () => {
  const fields = { owner: `<b>"it's"</b> & </title> äöü €`, place: '"2', remark: '' };
  const query = `notes?${new URLSearchParams(fields)}`;
  const looks = [['notes'], ['notes', { method: 'HEAD' }], [query],
    [query, { headers: { Referer: 'http://evil.example/' } }]];
  for (const look of looks) {
    assert.deepEqual(await written(async () => assert.equal((await ask(...look)).status, 200)), {});
  }
  const { text } = await ask(query, { headers: { Referer: address('notes') } });
  assert.deepEqual(formValues(text), fields);
  assert.match(text, /^[\x00-\x7F]*$/);
});

test('a form of another site is refused by every page that stores something', async () => {
  const foreign = ['http://evil.example', 'null', `http://127.0.0.1:${device.port}.evil.example`];
  for (const page of fs.readdirSync(programs).filter((name) => name !== 'status')) {
    for (const Origin of foreign) {
      const { status, items } = await post(page, 'contact=evil&owner=evil', form, { Origin });
      assert.deepEqual([status, items], [403, {}], page);
    }
  }
  const { items } = await post('system', 'contact=own', form, { Origin: device.url });
  assert.deepEqual(items, { contact: 'own' });
});

test('what cannot be served is told in plain text', async () => {
  const json = { 'Content-Type': 'application/json' };
  const cases = [[{ method: 'PUT', body: 'a=1' }, 'REQUEST_METHOD'],
    [{ method: 'POST', body: '{}', headers: json }, 'Content-Type']];
  for (const [request, cause] of cases) {
    const { type, text } = await ask('notes', request);
    assert.deepEqual([type, text], ['text/plain', `getcgivars(): Unsupported ${cause}.\r\n`]);
  }
});

test('a body may end early, and a length be beyond 31 bits', streamsBodies, async () => {
  for (const [length, body, status] of [[500, 'owner=short', 303], [2 ** 31, 'owner=x', 400]]) {
    const answer = await exchange(device.port, 'POST /cgi-bin/notes HTTP/1.0\r\n' +
      `Content-Type: ${form}\r\nContent-Length: ${length}\r\n\r\n${body}`);
    assert.match(answer, new RegExp(`^HTTP/1\\.[01] ${status} `));
    assert.equal(value('owner'), 'short');
  }
});

test('bytes that are no UTF-8, 10,000 fields, and a value of 9 MiB are read', async () => {
  const many = Array.from({ length: 10000 }, (_, i) => `f${i}=${i}&`).join('');
  const cases = [['owner=ok%FF%C3A%F0z+', 'ok', 'p'], [`${many}owner=last`, 'last', 'p'],
    [`owner=${'v'.repeat(9 << 20)}&place=behind it`, 'v'.repeat(100), 'behind it']];
  for (const [body, owner, place] of cases) {
    const { text } = await post('notes', body);
    assert.match(text, /^[\x00-\x7F]*$/);
    assert.deepEqual(formValues(text), { owner, place, remark: '' });
  }
});

test('without the password nobody gets in, on any way to the pages', async () => {
  const { password } = device.login;
  const users = ['', 'admin', 'admin:', 'admin:wrong', `Admin:${password}`, `root:${password}`];
  const strangers = [{}, ...[...users.map(btoa), '%'].map((word) => ({ Authorization: `Basic ${word}` }))];
  for (const name of ['certificates', 'firmware', 'log', 'administration']) {
    const escaped = `%${name.charCodeAt(0).toString(16)}${name.slice(1)}`;
    for (const stranger of strangers) {
      for (const way of [name, `${name}?told=1`, `/.//${name}`, `${name}/x`, escaped]) {
        const headers = { 'Remote-User': 'admin', REMOTE_USER: 'admin', ...stranger };
        const { status } = await fetch(address(way), { method: 'POST', body: 'x', headers });
        assert.ok([400, 401].includes(status), `${way} ${JSON.stringify(stranger)}`);
      }
    }
    const env = { REQUEST_METHOD: 'GET', TAVIK_DEMO_STATE: device.state };
    const answer = execFileSync(path.join(programs, name), { env, encoding: 'latin1' });
    assert.match(answer, /^Status: 403 /, 'nor when the server has not asked');
  }
});

test('1,000 requests of 16 clients are answered, each with a whole page', async () => {
  let next = 0;
  const oneClient = async (_, client) => {
    for (let number; (number = next++) < 1000;) {
      const remark = `client ${client}, request ${number} <&>`;
      const { status, text } = await (number % 2 === 0 ? note({ remark }) : ask('notes'));
      assert.ok(status === 200 && text.endsWith('</html>\r\n'), 'the page is whole');
      const { remark: told, ...others } = formValues(text);
      assert.deepEqual(others, { owner: 'o', place: 'p' });
      assert.match(told, /^(client \d+, request \d+ <&>)?$/);
    }
  };
  await Promise.all(Array.from({ length: 16 }, oneClient));
  // Behind an item's line there may be the end of a longer one, written at the same time.
  assert.match(value('remark'), /^client \d+, request \d+ <&>$/m);
});
