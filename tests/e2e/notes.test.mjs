// "Notes on this device", posted to directly.
import assert from 'node:assert/strict';
import { after, before, beforeEach, test } from 'node:test';
import { exchange, startDevice, streamsBodies } from './lib/server.mjs';
import { formValues, formTags } from './lib/html.mjs';

let device;
let page;

before(async () => {
  device = await startDevice();
  page = `${device.url}/cgi-bin/notes`;
});
after(() => device.stop());

const type = 'application/x-www-form-urlencoded';
const post = (fields) => fetch(page, {
  method: 'POST', headers: { 'Content-Type': type }, body: `${new URLSearchParams(fields)}`,
});

beforeEach(() => post({ owner: 'o', place: 'p', remark: '' }));

// Every character with a named reference of its own.
const named = String.fromCharCode(...Array.from({ length: 96 }, (_, i) => 0xA0 + i));
const markup = `<b>"it's"</b> & </title><script>alert(1)</script> äöü €`;

test('a GET shows the stored values and changes nothing', async () => {
  const stamp = device.changedAt('owner');
  const answer = await fetch(page);
  assert.equal(answer.headers.get('content-type'), 'text/html; charset=utf-8');
  assert.deepEqual(formValues(await answer.text()), { owner: 'o', place: 'p', remark: '' });
  assert.equal(device.changedAt('owner'), stamp);
});

for (const method of ['GET', 'POST']) {
  test(`values with markup come back as they were sent by ${method}`, async () => {
    const fields = { owner: markup, place: `${markup}2`, remark: named };
    const query = new URLSearchParams(fields);
    const answer = method === 'POST' ? await post(fields) : await fetch(`${page}?${query}`, { headers: { Referer: page } });
    const html = await answer.text();
    assert.deepEqual(formValues(html), fields);
    assert.deepEqual(formTags(html), new Set(['p', 'label', 'input', 'button']));
    assert.match(html, /^[\x00-\x7F]*$/, 'the page is ASCII');
    assert.equal(device.item('owner'), `${Buffer.from(markup).toString('latin1')}\n`);
  });
}

test('the page tells what changed; what did not is not rewritten', async () => {
  const stamp = device.changedAt('place');
  const html = await (await post({ owner: 'new', place: 'p' })).text();
  assert.match(html, /role="status">Saved: Owner\. </);
  assert.equal(device.changedAt('place'), stamp);
});

test('a link on another site stores nothing', async () => {
  for (const headers of [{}, { Referer: 'http://evil.example/' }]) {
    await fetch(`${page}?owner=evil`, { headers });
    assert.equal(device.item('owner'), 'o\n');
  }
});

test('HEAD stores nothing by itself and has no fault', async () => {
  const answer = await fetch(page, { method: 'HEAD' });
  assert.equal(answer.status, 200);
});

test('what cannot be served is told in plain text', async () => {
  const cases = [
    [{ method: 'PUT', body: 'a=1' }, 'getcgivars(): Unsupported REQUEST_METHOD.\r\n'],
    [{ method: 'POST', body: '{}', headers: { 'Content-Type': 'application/json' } },
      'getcgivars(): Unsupported Content-Type.\r\n'],
  ];
  for (const [request, message] of cases) {
    const answer = await fetch(page, request);
    assert.equal(answer.headers.get('content-type'), 'text/plain');
    assert.equal(await answer.text(), message);
  }
});

const rawPost = (length, body) => exchange(device.port, Buffer.concat([
  Buffer.from('POST /cgi-bin/notes HTTP/1.0\r\nContent-Type: ' +
    `${type}\r\nContent-Length: ${length}\r\n\r\n`), Buffer.from(body, 'latin1')]));

test('a body that ends early is taken as far as it came', streamsBodies, async () => {
  assert.match(await rawPost(500, 'owner=short'), /^HTTP.* 303 See Other/);
  assert.equal(device.item('owner'), 'short\n');
});

test('a length beyond 31 bits does no harm', streamsBodies, async () => {
  assert.match(await rawPost('2147483648', 'owner=x'), /^HTTP\/1\.[01] 400 /);
  assert.equal(device.item('owner'), 'o\n');
});

test('bytes that are no UTF-8 end the value and the answer stays clean', async () => {
  await rawPost(20, 'owner=ok%FF%C3A%F0z+');
  const html = await (await fetch(page)).text();
  assert.match(html, /^[\x00-\x7F]*$/);
  assert.equal(formValues(html).owner, 'ok');
});

test('10,000 fields and a value of 9 MiB are read', async () => {
  const many = Array.from({ length: 10000 }, (_, i) => [`f${i}`, `${i}`]);
  const html = await (await post([...many, ['owner', 'last of many']])).text();
  assert.equal(formValues(html).owner, 'last of many');
  const long = await (await post({ owner: 'v'.repeat(9 << 20), place: 'behind it' })).text();
  assert.equal(formValues(long).owner, 'v'.repeat(100));
  assert.equal(formValues(long).place, 'behind it');
});
