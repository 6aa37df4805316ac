// The emulated board: its console, its network cable, and its web server on a loopback port.
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import net from 'node:net';
import readline from 'node:readline';
import { freePort } from '../e2e/lib/server.mjs';

// A console's line ends can come in two pieces.
const linesOf = (input) =>
  readline.createInterface({ input, crlfDelay: Infinity })[Symbol.asyncIterator]();

// Reads lines up to one that matches; gives the match and the lines ahead of it.
async function until(lines, pattern) {
  const ahead = [];
  for (;;) {
    const { value, done } = await lines.next();
    if (done) throw new Error(`the board ended before ${pattern} came: ${ahead.join('\n')}`);
    const match = pattern.exec(value);
    if (match) return { match, ahead: ahead.join('\n') };
    ahead.push(value.trimEnd());
  }
}

export async function boot(folder) {
  const port = await freePort();
  const monitorPath = `${folder}/monitor`;
  const words = [folder, `${port}`, '-qmp', `unix:${monitorPath},server=on,wait=off`];
  const emulator = spawn('scripts/lib/board/boot', words, { stdio: ['pipe', 'pipe', 'inherit'] });
  const ended = once(emulator, 'exit');
  const end = () => emulator.kill();
  process.once('exit', end);
  const tooLate = setTimeout(end, 600000); // then what waits fails, and tells what came
  const console = linesOf(emulator.stdout);
  const { ahead } = await until(console, /^board: ready/);
  const [, user, password] = ahead.match(/^board: user (\S+), password (\S+)$/m);
  const monitor = net.connect(monitorPath);
  const answers = linesOf(monitor);
  const ask = async (execute, argument) => {
    monitor.write(`${JSON.stringify({ execute, arguments: argument })}\n`);
    await until(answers, /^\{"return"/);
  };
  await ask('qmp_capabilities');
  return {
    url: `http://127.0.0.1:${port}`,
    user,
    password,
    setCable: (up) => ask('set_link', { name: 'cable', up }),

    // Runs a command on the board; gives what it printed, and throws if it failed.
    async run(command) {
      emulator.stdin.write(`${command}\n`);
      const { match, ahead: printed } = await until(console, /^board: status (\d+)/);
      if (match[1] !== '0') throw new Error(`${command}: ${printed}`);
      return printed;
    },

    // A restart ends the emulator, whose exit status this gives.
    async restart() {
      emulator.stdin.write('reboot -f\n');
      return (await ended)[0];
    },

    async stop() {
      clearTimeout(tooLate);
      monitor.destroy();
      end();
      await ended;
    },
  };
}
