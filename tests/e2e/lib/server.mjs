// The demo device under a real web server, on a free loopback port and with a state of its own.
import { spawn, execFileSync } from 'node:child_process';
import fs from 'node:fs';
import net from 'node:net';
import os from 'node:os';
import path from 'node:path';

export const demo = path.resolve(process.env.TAVIK_DEMO ?? '../../build/release/demo');

export function freePort() {
  return new Promise((resolve, reject) => {
    const probe = net.createServer();
    probe.on('error', reject);
    probe.listen(0, '127.0.0.1', () => {
      const { port } = probe.address();
      probe.close(() => resolve(port));
    });
  });
}

function connects(port) {
  return new Promise((resolve) => {
    const socket = net.connect(port, '127.0.0.1');
    socket.on('connect', () => { socket.destroy(); resolve(true); });
    socket.on('error', () => resolve(false));
  });
}

async function untilItAnswers(port, server) {
  for (let tries = 0; tries < 200; tries++) {
    if (server.exitCode !== null) throw new Error(`the server ended with ${server.exitCode}`);
    if (await connects(port)) return;
    await new Promise((resolve) => setTimeout(resolve, 25));
  }
  throw new Error('the server does not answer');
}

export async function startDevice() {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'tavik-e2e-'));
  const state = path.join(folder, 'state');
  const told = execFileSync(path.join(demo, 'setup'), [state], { encoding: 'latin1' });
  const [, username, password] = told.match(/^user (\S+), password (\S+)$/m);
  const port = await freePort();
  const server = spawn('busybox',
    ['httpd', '-f', '-c', path.join(state, 'httpd.conf'), '-p', `127.0.0.1:${port}`,
      '-h', path.join(demo, 'www')],
    { env: { ...process.env, TAVIK_DEMO_STATE: state }, stdio: ['ignore', 'ignore', 'inherit'] });
  fs.writeFileSync(path.join(state, 'serverpid'), `${server.pid}\n`);
  await untilItAnswers(port, server);
  return {
    port,
    url: `http://127.0.0.1:${port}`,
    state,
    login: { username, password },
    authorization: { Authorization: `Basic ${btoa(`${username}:${password}`)}` },
    item: (name) => fs.readFileSync(path.join(state, name), 'latin1'),
    changedAt: (name) => fs.statSync(path.join(state, name), { bigint: true }).mtimeNs,
    async stop() {
      const ended = new Promise((resolve) => server.once('exit', resolve));
      server.kill();
      await ended;
      fs.rmSync(folder, { recursive: true });
    },
  };
}

// Sends bytes as they are, half-closes the connection, and gives the whole answer.
export function exchange(port, request) {
  return new Promise((resolve, reject) => {
    const chunks = [];
    const socket = net.connect({ port, host: '127.0.0.1', allowHalfOpen: true });
    socket.on('connect', () => socket.end(request));
    socket.on('data', (chunk) => chunks.push(chunk));
    socket.on('error', reject);
    socket.on('end', () => { socket.destroy(); resolve(Buffer.concat(chunks).toString('latin1')); });
  });
}
