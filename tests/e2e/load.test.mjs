// A thousand requests from 16 clients at once; every other one saves a value of its own.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { formValues } from './lib/html.mjs';
import { startDevice } from './lib/server.mjs';

const clients = 16;
const requests = 1000;

let device;
before(async () => { device = await startDevice(); });
after(() => device?.stop());

const written = (text) => text === '' || /^client \d+, request \d+ <&>$/.test(text);

async function request(client, number) {
  const remark = `client ${client}, request ${number} <&>`;
  const saves = number % 2 === 0;
  const answer = await fetch(`${device.url}/cgi-bin/notes`, saves ? {
    method: 'POST', body: `${new URLSearchParams({ remark })}`,
    headers: { 'Content-Type': 'application/x-www-form-urlencoded' },
  } : {});
  const html = await answer.text();
  assert.equal(answer.status, 200);
  assert.ok(html.endsWith('</html>\r\n'), 'the page is whole');
  const values = formValues(html);
  assert.deepEqual({ ...values, remark: '' },
    { owner: 'Network team', place: 'Rack 4, below the patch panel', remark: '' });
  assert.ok(written(values.remark), values.remark);
}

test('all are answered, each with a whole page', async () => {
  let next = 0;
  await Promise.all(Array.from({ length: clients }, async (_, client) => {
    while (next < requests) await request(client, next++);
  }));
  assert.ok(written(device.item('remark').trimEnd()));
  console.log(`${next} requests by ${clients} clients`);
});
