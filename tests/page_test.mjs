// The page that kavi-tn makes, in a real browser: links, filter, keyboard, accessibility, light and
// dark, phone-wide and printed; and its pictures.
//
// Usage: node page_test.mjs PAGE LONG-PAGE FOLDER   (playwright-core and axe-core in NODE_PATH)

import assert from 'node:assert/strict';
import {statSync} from 'node:fs';
import {pathToFileURL} from 'node:url';
import {browser, check_accessibility, open_page} from './support/browser.mjs';

const [page_file, long_file, folder] = process.argv.slice(2);
const open = async (file, options) => open_page(await browser.newContext(options), pathToFileURL(file).href);

const looks = {
  wide: {viewport: {width: 900, height: 800}},
  phone: {viewport: {width: 390, height: 800}},
  dark: {viewport: {width: 900, height: 800}, colorScheme: 'dark'},
};
for (const [name, options] of Object.entries(looks)) {
  const page = await open(page_file, options);
  await check_accessibility(page, folder, name);
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
