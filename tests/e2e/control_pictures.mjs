// Makes the guide's pictures, one of each control: node control_pictures.mjs [PROGRAM [FOLDER]]
import { execFileSync } from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { openBrowser } from './lib/browser.mjs';

const program = path.resolve(process.argv[2] ?? '../../build/release/tests/guide/controls');
const folder = process.argv[3] ?? '../../docs/pictures/fields';
const style = 'p { display: inline-block; margin: 4px; padding: 6px; background: white }';
const image = '<svg xmlns="http://www.w3.org/2000/svg" width="18" height="18">' +
  '<circle cx="9" cy="9" r="8" fill="green"/></svg>';

// The files that the program reads.
const work = fs.mkdtempSync(path.join(os.tmpdir(), 'tavik-controls-'));
fs.mkdirSync(path.join(work, 'certs'));
fs.writeFileSync(path.join(work, 'certs', 'ca.pem'), '');
fs.writeFileSync(path.join(work, 'countries'), 'de\nGermany\n\nfr\nFrance\n');
const html = execFileSync(program, { cwd: work, encoding: 'utf8' }).split('\r\n\r\n')[1];
fs.rmSync(work, { recursive: true });

const browser = await openBrowser();
const page = await browser.newPage({ deviceScaleFactor: 1 });
await page.route('**', (route) => (route.request().url().endsWith('.svg')
  ? route.fulfill({ contentType: 'image/svg+xml', body: image })
  : route.fulfill({ contentType: 'text/html', body: html })));
await page.goto('http://device/');
await page.addStyleTag({ content: style });
for (const control of await page.locator('p').all()) {
  await control.screenshot({ path: `${folder}/${await control.getAttribute('id')}.png` });
}
await browser.close();
