// The playground in a real browser: typing, pasting much, bytes of all kinds, attempts to run as script, a
// lexicon, links, samples, copies, time a keystroke, accessibility; offline, from a file.
//
// Usage: node playground_test.mjs PAGE FOLDER   (playwright-core and axe-core in NODE_PATH)

import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import {mkdirSync} from 'node:fs';
import {pathToFileURL} from 'node:url';
import {browser, check_accessibility, open_page} from './support/browser.mjs';

const [page_file, folder] = process.argv.slice(2);
mkdirSync(folder, {recursive: true});
const url = pathToFileURL(page_file).href;

async function open(hash = '', options = {}) {
  const context = await browser.newContext({offline: true, permissions: ['clipboard-read', 'clipboard-write'], ...options});
  const page = await open_page(context, url + hash);
  await settled(page);
  return page;
}
const settled = page => page.waitForFunction(() => /sentence/.test(document.getElementById('status').textContent));
const said = page => page.$$eval('#rows i', words => words.map(word => word.firstChild.textContent).join(' '));
async function write(page, text) {
  await page.fill('#text', text);
  await settled(page);
}

const page = await open();
assert.match(await said(page), /doctor Smith paid five dollars fifty cents/);
await page.focus('#text');
await page.keyboard.press('Control+End');
await page.keyboard.type('\nIt is 5');
await settled(page);
assert.match(await said(page), /It is five$/);
assert.equal(await page.textContent('#rows section:last-child article > a'), 'line 3');
await page.keyboard.press('Control+Home');
await page.keyboard.type('7\n');
await settled(page);
assert.match(await said(page), /^seven doctor/);
assert.equal(await page.textContent('#rows section:last-child article > a'), 'line 4');
console.log('typing: only what it should be, lines counted anew');

// Whatever is edited, the rows are those of a page that is opened with the text.
const rows = shown => shown.$eval('#rows', main => main.innerText);
let text = 'One 1. Two 2!\nthree\n\nfour 4';
for (const edit of [t => t.replace('Two', 'Too'), t => t.replace('three', 'th\nree'), t => t.replace('\n\n', '\n'),
  t => 'x\n' + t, t => t.replace('One 1. ', ''), () => '', () => '5', t => t + '\n\n\n']) {
  text = edit(text);
  await write(page, text);
  const fresh = await open('#' + new URLSearchParams({text}));
  assert.equal(await rows(page), await rows(fresh), JSON.stringify(text));
  await fresh.context().close();
}
console.log('edits: as a page that is opened with the text');

// They are those of kavi-tn's page.
const written = 'a <poem=x>b</poem></poem> & 5. Café';
const whole = execFileSync('build/release/tools/kavi-tn/kavi-tn', ['--format', 'html'],
  {input: `x\n${written}\n`, stdio: ['pipe', 'pipe', 'ignore']}).toString();
const line = await page.evaluate(async source => (await kavi.load()).reader().rows(source, 2), written);
assert.match(line, /^<article[^]*<\/article>\s*$/);
assert.ok(whole.includes(line), line);

const ATTACKS = ['<script>alert(1)</script>', '<img src=x onerror=alert(1)>', '</textarea><script>alert(1)</script>',
  '<prosody=rate="><img src=x onerror=alert(1)>">a</prosody>', '<poem=<svg/onload=alert(1)>>b</poem>', '"><i onclick=alert(1)>'];
await write(page, ATTACKS.join('\n'));
assert.equal(await page.$$eval('#rows script, #rows img, #rows svg, #rows [onclick], #rows [onerror]', all => all.length), 0);
const attacked = await open('#' + new URLSearchParams({text: ATTACKS.join('\n'), lexicon: ATTACKS[1] + '\ta'}));
await attacked.context().close();
await write(page, '😀 \u0000\u0001\u007f \ud800 café 5');
assert.match(await said(page), /five$/);
console.log('attempts to run as script, bytes and emoji: text');

await write(page, 'kavi won’t cost €5, and Tom’s 5  km');
await page.fill('#lexicon', 'kavi  kahvee');
await settled(page);
assert.match(await said(page), /^kahvee/);
await page.fill('#lexicon', 'kavi');
assert.match(await page.textContent('#fault'), /^lexicon:1:/);
await page.check('#everyday');
await settled(page);
assert.match(await said(page), /^kahvee will not cost five euros/);
await page.fill('#lexicon', '');
console.log('lexicon and everyday English');

await page.click('#link');
const copied = () => page.evaluate(() => navigator.clipboard.readText());
const link = await copied();
const linked = await open(new URL(link).hash);
assert.equal(await linked.inputValue('#text'), await page.inputValue('#text'));
assert.equal(await linked.isChecked('#everyday'), true);
await page.click('#json');
assert.equal(JSON.parse(await copied())[0].sentences[0].words[0].word, 'kavi');
await page.click('#records');
assert.match(await copied(), /\nfive\t€5\t/);
await page.selectOption('#sample', 'findings');
await settled(page);
assert.ok(await page.$$eval('#rows p mark', marks => marks.map(m => m.textContent).includes('</poem>')));
console.log('link, copies, samples, findings underlined');

for (const [name, options] of [['playground', {}], ['playground-phone', {viewport: {width: 360, height: 800}}],
  ['playground-dark', {colorScheme: 'dark'}]]) {
  const shown = await open('#' + new URLSearchParams({text: await page.inputValue('#text') + '\nDr. Smith paid $5.50.'}), options);
  await check_accessibility(shown, folder, name);
  await shown.context().close();
}

// The longest a keystroke keeps the page from the next one, the best of some, in a text of 10,000 words: of
// many lines, and of a single one. It is told, not judged: the machine may have other things to do.
const PROSE = 'It is 10:30 and we have 2 cats in the garden today. ';
for (const [kind, long] of [['lines', (PROSE + '\n').repeat(900)], ['one line', PROSE.repeat(900)]]) {
  await write(page, long);
  const times = [];
  for (let i = 0; i < 5; ++i) {
    times.push(await page.evaluate(async at => {
      const area = document.getElementById('text');
      area.setRangeText('x', at, at, 'end');
      const begin = performance.now();
      area.dispatchEvent(new Event('input'));
      while (!/sentence/.test(document.getElementById('status').textContent)) await new Promise(r => setTimeout(r));
      return performance.now() - begin;
    }, 20000 + i));
    await page.evaluate(() => new Promise(r => requestAnimationFrame(() => setTimeout(r))));
  }
  console.log(`a keystroke in 10,000 words, ${kind}: ${Math.min(...times).toFixed(1)} ms`);
}

const begin = Date.now();
await page.evaluate(text => {
  const area = document.getElementById('text');
  area.value = text; // as a paste does; to type it by script takes the browser minutes
  area.dispatchEvent(new Event('input'));
}, 'We paid $5.50 to Dr. Lee on 3/1/2020, ok?\n'.repeat(5000));
await settled(page);
await page.waitForFunction(() => document.querySelectorAll('#rows section').length === 5001);
console.log(`200 KB pasted: ${((Date.now() - begin) / 1000).toFixed(1)} s until all of it is read`);
assert.equal(await page.$$eval('#rows article', all => all.length), 10000);
await browser.close();
