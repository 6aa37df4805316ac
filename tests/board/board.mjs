// The emulated board: its console, its network cable, and its web server on a loopback port.
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import fs from 'node:fs';
import net from 'node:net';
import os from 'node:os';
import path from 'node:path';
import readline from 'node:readline';
import { freePort } from '../e2e/lib/server.mjs';

// Reads lines up to one that matches; gives the match and the lines ahead of it.
async function until(lines, pattern, seconds) {
  const ahead = [];
  const fail = (what) => new Error(`${what} ${pattern} came: ${ahead.join('\n')}`);
  let timer;
  const late = new Promise((_, reject) => {
    timer = setTimeout(() => reject(fail(`${seconds} s went by before`)), seconds * 1000);
  });
  try {
    for (;;) {
      const { value, done } = await Promise.race([lines.next(), late]);
      if (done) throw fail('the board ended before');
      const match = pattern.exec(value);
      if (match) return { match, ahead };
      ahead.push(value.trimEnd());
    }
  } finally {
    clearTimeout(timer);
  }
}

const linesOf = (stream) => readline.createInterface({ input: stream })[Symbol.asyncIterator]();

export class Board {
  constructor(folder) {
    this.folder = folder;
    this.sockets = fs.mkdtempSync(path.join(os.tmpdir(), 'tavik-board-'));
  }

  async boot() {
    const port = await freePort();
    const monitor = path.join(this.sockets, 'monitor');
    this.url = `http://127.0.0.1:${port}`;
    this.emulator = spawn('scripts/lib/board/boot',
      [this.folder, `${port}`, '-qmp', `unix:${monitor},server=on,wait=off`],
      { stdio: ['pipe', 'pipe', 'inherit'] });
    this.ended = once(this.emulator, 'exit');
    process.once('exit', () => this.emulator.kill());
    this.console = linesOf(this.emulator.stdout);
    const { ahead } = await until(this.console, /^board: ready/, 180);
    [, this.user, this.password] = ahead.join('\n').match(/^board: user (\S+), password (\S+)$/m);
    this.monitor = net.connect(monitor);
    this.answers = linesOf(this.monitor);
    await this.ask('qmp_capabilities');
  }

  async ask(execute, argument) {
    this.monitor.write(`${JSON.stringify({ execute, arguments: argument })}\n`);
    await until(this.answers, /^\{"return"/, 30);
  }

  setCable(up) {
    return this.ask('set_link', { name: 'cable', up });
  }

  // Runs a command on the board; gives what it printed, and throws if it failed.
  async run(command) {
    this.emulator.stdin.write(`${command}\n`);
    const { match, ahead } = await until(this.console, /^board: status (\d+)/, 60);
    if (match[1] !== '0') throw new Error(`${command}: ${ahead.join('\n')}`);
    return ahead.join('\n');
  }

  // A restart ends the emulator, whose exit status this gives.
  async restart() {
    this.emulator.stdin.write('reboot -f\n');
    return (await this.ended)[0];
  }

  async stop() {
    this.monitor?.destroy();
    this.emulator?.kill();
    await this.ended;
    fs.rmSync(this.sockets, { recursive: true });
  }
}
