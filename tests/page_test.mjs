// The page that kavi-tn makes, in a real browser: links, filter, keyboard, accessibility, light and
// dark, phone-wide and printed; and its pictures.
//
// Usage: node page_test.mjs PAGE LONG-PAGE FOLDER   (playwright-core and axe-core in NODE_PATH)

import assert from 'node:assert/strict';
import {readFileSync, statSync} from 'node:fs';
import {createRequire} from 'node:module';
import {pathToFileURL} from 'node:url';

const require = createRequire(process.env.NODE_PATH + '/');
const {chromium} = require('playwright-core');
const axe = readFileSync(require.resolve('axe-core/axe.min.js'), 'utf8');
const [page_file, long_file, folder] = process.argv.slice(2);

const browser = await chromium.launch({
  executablePath: '/usr/bin/chromium',
  args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
    '--disable-background-networking', '--disable-component-update', '--disable-sync'],
});

async function open(file, options) {
  const page = await browser.newPage(options);
  page.on('console', message => assert.notEqual(message.type(), 'error', message.text()));
  page.on('pageerror', error => assert.fail(error));
  await page.goto(pathToFileURL(file).href);
  return page;
}

async function check_accessibility(page, name) {
  await page.evaluate(axe);
  const {violations} = await page.evaluate(() => axe.run());
  assert.deepEqual(violations.map(v => [v.id, v.nodes.slice(0, 3).map(n => n.html)]), [], name);
  console.log(`${name}: no violation`);
}

const looks = {
  wide: {viewport: {width: 900, height: 800}},
  phone: {viewport: {width: 390, height: 800}},
  dark: {viewport: {width: 900, height: 800}, colorScheme: 'dark'},
};
for (const [name, options] of Object.entries(looks)) {
  const page = await open(page_file, options);
  const width = await page.evaluate(() => document.documentElement.scrollWidth);
  assert.ok(width <= options.viewport.width, `${name}: wider than the screen: ${width}`);
  await check_accessibility(page, name);
  await page.screenshot({path: `${folder}/${name}.png`});
  await page.close();
}

const page = await open(page_file, looks.wide);
const visible = () => page.locator('article:visible').count();
const all = await visible();
const with_findings = await page.locator('article:has(ol)').count();
assert.ok(with_findings > 0 && with_findings < all);

// Every link leads to a place on the page.
const lost = await page.$$eval('a', links => links.map(a => a.hash.slice(1))
  .filter(id => !document.getElementById(id)));
assert.deepEqual(lost, []);

// By keyboard: to the check box and back.
await page.keyboard.press('Tab');
while (await page.evaluate(() => document.activeElement.id !== 'only')) await page.keyboard.press('Tab');
await page.keyboard.press('Space');
assert.equal(await visible(), with_findings);
assert.equal(await page.locator('#count').textContent(), `${with_findings} of ${all} sentences`);
await page.keyboard.press('Space');
assert.equal(await visible(), all);

await page.locator('#rule').selectOption('date');
assert.equal(await visible(), await page.locator('article:has(small:text-is("date"))').count());

// A finding of the index leads to its sentence, which the filter would hide.
await page.locator('#index summary').click();
await page.locator('#index a').first().click();
assert.equal(await visible(), all);
assert.ok(await page.locator('li:target').isVisible());

// What is written stands over what is said for it.
const run = page.locator('u', {hasText: '$5.50'}).first();
const [written, said] = await run.evaluate(u => {
  const range = document.createRange();
  range.selectNode(u.firstChild);
  return [range.getBoundingClientRect(), u.querySelector('i').getBoundingClientRect()]
    .map(box => [box.left, box.bottom, box.top]);
});
assert.ok(written[1] <= said[2] + 1, `${written} is not over ${said}`);

await page.emulateMedia({media: 'print'});
assert.ok(!await page.locator('#tools').isVisible());
await page.pdf({path: `${folder}/page.pdf`});
assert.ok(statSync(`${folder}/page.pdf`).size > 10000);

const began = Date.now();
const long_page = await open(long_file, looks.wide);
const articles = await long_page.locator('article').count();
await long_page.screenshot({path: `${folder}/long.png`});
console.log(`${articles} sentences: open after ${Date.now() - began} ms`);
await browser.close();
