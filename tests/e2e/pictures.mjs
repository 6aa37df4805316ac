// Makes the documents' pictures of the demo's pages: node pictures.mjs [FOLDER]
import { openBrowser } from './lib/browser.mjs';
import { startDevice } from './lib/server.mjs';

const folder = process.argv[2] ?? '../../docs/pictures';
const device = await startDevice();
const browser = await openBrowser();
for (const [name, width, height] of [['system', 900, 560]]) {
  const page = await browser.newPage({ viewport: { width, height } });
  await page.goto(`${device.url}/cgi-bin/${name}`);
  await page.screenshot({ path: `${folder}/${name}.png` });
}
await browser.close();
await device.stop();
