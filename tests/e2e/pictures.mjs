// Makes the documents' pictures of the demo's pages: node pictures.mjs [FOLDER]
import { openBrowser } from './lib/browser.mjs';
import { startDevice } from './lib/server.mjs';

const folder = process.argv[2] ?? '../../docs/pictures';
const shots = [
  { page: 'system', name: 'system', width: 900, height: 560 },
];

const device = await startDevice();
const browser = await openBrowser();
for (const { page: name, name: file, width, height, scheme = 'light' } of shots) {
  const page = await browser.newPage({ viewport: { width, height }, colorScheme: scheme });
  await page.goto(`${device.url}/cgi-bin/${name}`);
  await page.screenshot({ path: `${folder}/${file}.png` });
  await page.close();
}
await browser.close();
await device.stop();
