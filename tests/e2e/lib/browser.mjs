// A real browser: Debian's Chromium with an empty profile.
import { chromium } from 'playwright-core';

export function openBrowser() {
  return chromium.launch({
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
      '--disable-background-networking', '--disable-component-update', '--disable-sync'],
  });
}

// Presses the button of a form and waits for the page that the device sends it on to.
export function press(page, name) {
  return Promise.all([
    page.waitForEvent('load'), page.getByRole('button', { name, exact: true }).click()]);
}
