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

// Each server's command line, for a port and a folder with the device's state.
const servers = {
  busybox: ({ port, state }) => ['busybox', 'httpd', '-f', '-c', path.join(state, 'httpd.conf'),
    '-p', `127.0.0.1:${port}`, '-h', path.join(demo, 'www')],
  lighttpd({ port, state, folder }) {
    const root = path.resolve(process.env.TAVIK_LIGHTTPD ?? '../../build/tools/lighttpd');
    const configuration = path.join(folder, 'lighttpd.conf');
    fs.writeFileSync(configuration, lighttpdConfiguration(port, state, folder));
    return [`${root}/usr/sbin/lighttpd`, '-D', '-f', configuration, '-m', `${root}/usr/lib/lighttpd`];
  },
};
const serverName = process.env.TAVIK_E2E_SERVER ?? 'busybox';

// The options of a test that needs a page to run while its body is still on the way.
export const streamsBodies = {
  skip: serverName !== 'busybox' && 'this server starts a page when the whole body is there',
};

// The options of a test that needs a server to go on with a password that is no longer the stored one.
export const readsPasswordsOnce = {
  skip: serverName !== 'busybox' && 'this server reads the password anew at each request',
};

// The same pages behind the same login as in the state's configuration for busybox.
function lighttpdConfiguration(port, state, folder) {
  const lines = fs.readFileSync(path.join(state, 'httpd.conf'), 'latin1').split('\n')
    .map((line) => line.match(/^(\/cgi-bin\/[^:]+):([^:]+):/)).filter(Boolean);
  const guarded = lines.map(([, page, user]) => `"${page}" => ("method" => "basic", ` +
    `"realm" => "Demo device", "require" => "user=${user}")`);
  return `server.bind = "127.0.0.1"
server.port = ${port}
server.document-root = "${path.join(demo, 'www')}"
server.modules = ("mod_setenv", "mod_auth", "mod_authn_file", "mod_cgi")
server.upload-dirs = ("${folder}")
auth.backend = "htpasswd"
auth.backend.htpasswd.userfile = "${path.join(state, 'htpasswd')}"
auth.require = (${guarded.join(', ')})
$HTTP["url"] =~ "^/cgi-bin/" { cgi.assign = ("" => "") }
setenv.add-environment = ("TAVIK_DEMO_STATE" => "${state}", "PATH" => "${process.env.PATH}")
`;
}

export async function startDevice() {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'tavik-e2e-'));
  const state = path.join(folder, 'state');
  const told = execFileSync(path.join(demo, 'setup'), [state], { encoding: 'latin1' });
  const [, username, password] = told.match(/^user (\S+), password (\S+)$/m);
  const port = await freePort();
  const [command, ...words] = servers[serverName]({ port, state, folder });
  const server = spawn(command, words,
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
