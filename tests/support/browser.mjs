// A headless browser for the tests of pages (playwright-core and axe-core in NODE_PATH), and what every page must
// hold: nothing goes wrong, and axe-core finds no violation.

import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {createRequire} from 'node:module';

const require = createRequire(process.env.NODE_PATH + '/');
const {chromium} = require('playwright-core');
const axe = readFileSync(require.resolve('axe-core/axe.min.js'), 'utf8');

export const browser = await chromium.launch({
  executablePath: '/usr/bin/chromium',
  args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
    '--disable-background-networking', '--disable-component-update', '--disable-sync'],
});

export async function open_page(where, url) {
  const page = await where.newPage();
  page.on('console', message => assert.notEqual(message.type(), 'error', message.text()));
  page.on('pageerror', error => assert.fail(error));
  page.on('dialog', () => assert.fail('a script ran'));
  page.on('request', request => assert.match(request.url(), /^(file|data|blob):/));
  await page.goto(url);
  return page;
}

// Also fails when the page is wider than the screen; takes its picture.
export async function check_accessibility(page, folder, name) {
  await page.evaluate(axe);
  const {violations} = await page.evaluate(() => axe.run());
  assert.deepEqual(violations.map(v => [v.id, v.nodes.slice(0, 3).map(n => n.html)]), [], name);
  assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), `${name} is too wide`);
  await page.screenshot({path: `${folder}/${name}.png`});
  console.log(`${name}: no violation`);
}
