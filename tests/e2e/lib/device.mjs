// The device of a test file, a browser if one is wanted, and what the tests do with both.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import { after } from 'node:test';
import { openBrowser } from './browser.mjs';
import { startDevice } from './server.mjs';

export const device = await startDevice();
let browser;
after(async () => {
  await browser?.close();
  await device.stop();
});

export const address = (page) => `${device.url}/cgi-bin/${page}`;

// A tab with a page in it.
export async function open(page, options) {
  browser ??= await openBrowser();
  const tab = await browser.newPage({ httpCredentials: device.login, ...options });
  await tab.goto(address(page));
  return tab;
}

export const statusIn = (tab) => tab.getByRole('status').first().textContent();

// What an item holds, without its line end.
export const value = (item) => Buffer.from(device.item(item), 'latin1').toString().replace(/\n$/, '');

// The items that an action wrote, with what they hold then. The log is none.
export async function written(action) {
  const stamps = () => fs.readdirSync(device.state, { withFileTypes: true })
    .filter((entry) => entry.isFile() && entry.name !== 'log')
    .map(({ name }) => [name, device.changedAt(name)]);
  const before = new Map(stamps());
  await action();
  const changed = stamps().filter(([name, at]) => before.get(name) !== at);
  return Object.fromEntries(changed.map(([name]) => [name, value(name)]));
}

// A request as no browser makes it, up to the page that its answer leads to.
export async function ask(page, { headers, ...options } = {}) {
  const answer = await fetch(address(page),
    { headers: { ...device.authorization, ...headers }, ...options });
  const text = await answer.text();
  const told = text.match(/role="status">([^<]*)</)?.[1];
  return { status: answer.status, type: answer.headers.get('content-type'), text, told };
}

export const form = 'application/x-www-form-urlencoded';

// A post, with what it made the device write.
export async function post(page, body, type = form, headers = {}) {
  let answer;
  const items = await written(async () => {
    answer = await ask(page, { method: 'POST', body, headers: { 'Content-Type': type, ...headers } });
  });
  return { ...answer, items };
}

// Comes back when something has come to be true.
export async function until(reached) {
  for (let tries = 0; !(await reached()); tries++) {
    assert.ok(tries < 2000, `never came: ${reached}`);
    await new Promise((resolve) => setTimeout(resolve, 10));
  }
}
