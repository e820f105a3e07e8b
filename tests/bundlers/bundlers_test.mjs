// The npm package as its users bundle it, without configuration, in a real browser, under the policy that its README
// tells; and what it says where the module is not found.
//
// Usage: node bundlers_test.mjs   (in a folder whose node_modules has the packed kavi-tn and what package.json names)

import assert from 'node:assert/strict';
import {cpSync, mkdirSync, readFileSync, rmSync, writeFileSync} from 'node:fs';
import {createServer} from 'node:http';
import {createRequire} from 'node:module';
import path from 'node:path';
import {pathToFileURL} from 'node:url';

const require = createRequire(path.resolve('package.json'));
const [{chromium}, esbuild, webpack, vite] = [...['playwright-core', 'esbuild', 'webpack'].map(name => require(name)),
  await import(pathToFileURL(path.resolve('node_modules/vite/dist/node/index.js')))];
const browser = await chromium.launch({executablePath: '/usr/bin/chromium', args: ['--no-sandbox', '--disable-gpu',
  '--disable-background-networking', '--disable-component-update', '--disable-sync']});

const TYPES = {html: 'text/html', js: 'text/javascript', wasm: 'application/wasm'};
const CSP = "default-src 'self'; script-src 'self' 'wasm-unsafe-eval'";

// The answer to what is said in a page: its text.
async function shown(url) {
  const page = await browser.newPage();
  await page.goto(url);
  await page.waitForFunction(() => document.body.textContent !== '');
  const text = await page.textContent('body');
  await page.close();
  return text;
}

// The same for a folder that is served, with a page for files that are not there, or none.
async function served(folder, {policy = CSP, index = false} = {}) {
  const server = createServer(({url}, response) => {
    const file = path.join(folder, url === '/' ? 'index.html' : url);
    response.setHeader('Content-Security-Policy', policy);
    try {
      const bytes = readFileSync(file);
      response.setHeader('Content-Type', TYPES[file.split('.').at(-1)] ?? '').end(bytes);
    } catch {
      response.setHeader('Content-Type', TYPES.html).writeHead(index ? 200 : 404).end('<p>a page');
    }
  }).listen(0, '127.0.0.1');
  await new Promise(done => server.once('listening', done));
  try {
    return await shown(`http://127.0.0.1:${server.address().port}/`);
  } finally {
    server.close();
  }
}

// A project with a page and its program, in a folder of its own.
function project(name, from, options = '', script = '<script type="module" src="./main.js"></script>') {
  const folder = path.resolve('projects', name);
  rmSync(folder, {recursive: true, force: true});
  mkdirSync(folder, {recursive: true});
  writeFileSync(`${folder}/index.html`, `<!doctype html><meta charset="utf-8"><body>${script}`);
  writeFileSync(`${folder}/main.js`, `${from}
load(${options}).then(({normalize}) => normalize('It is 10:30, ok?'), String).then(text => {
  document.body.textContent = text;
});\n`);
  return folder;
}

const IMPORT = "import {load} from 'kavi-tn';";
const SAID = 'It is ten thirty, ok?';
const MODULES = 'node_modules/kavi-tn';

async function with_vite(root, outDir) {
  await vite.build({root, logLevel: 'error', build: {outDir}});
  return served(`${root}/${outDir}`);
}
async function with_vite_dev(root) {
  const server = await vite.createServer({root, logLevel: 'error', server: {host: '127.0.0.1'}});
  await server.listen();
  try {
    return await shown(server.resolvedUrls.local[0]);
  } finally {
    await server.close();
  }
}
async function with_webpack(context) {
  const stats = await new Promise((done, failed) => webpack({mode: 'production', context, entry: './main.js',
    output: {path: context, filename: 'bundle.js'}}, (error, built) => error ? failed(error) : done(built)));
  assert.deepEqual(stats.toJson().errors, []);
  return served(context);
}
async function with_esbuild(folder, format) {
  await esbuild.build({absWorkingDir: folder, entryPoints: ['main.js'], bundle: true, format, outfile: 'bundle.js', logLevel: 'error'});
  return served(folder);
}
const BUNDLE = '<script src="./bundle.js" defer></script>';
const located = project('esbuild-locate', IMPORT, '{locate: file => `./${file}`}', BUNDLE);
cpSync(`${MODULES}/kavi.wasm`, `${located}/kavi.wasm`);
const plain = project('plain', "import {load} from './kavi-tn/browser.js';");
const file = project('file', 'const {load} = globalThis.kavi;', '',
  '<script src="./kavi-tn/inline/kavi.js"></script><script src="./main.js" defer></script>');
const required = project('webpack-require', "const {load} = require('kavi-tn');", '', BUNDLE);
writeFileSync(`${required}/package.json`, '{"type": "commonjs"}');
for (const folder of [plain, file]) cpSync(MODULES, `${folder}/kavi-tn`, {recursive: true, dereference: true});

for (const [name, says] of [
  ['vite build', () => with_vite(project('vite', IMPORT), 'dist')],
  ['vite, its server', () => with_vite_dev(project('vite-dev', IMPORT))],
  ['webpack', () => with_webpack(project('webpack', IMPORT, '', BUNDLE.replace('./', '')))],
  ['webpack, require()', () => with_webpack(required)],
  ['esbuild, kavi-tn/inline', () => with_esbuild(project('esbuild', "import {load} from 'kavi-tn/inline';", '', BUNDLE), 'iife')],
  ['esbuild, locate', () => with_esbuild(located, 'iife')],
  ['no bundler', () => served(plain)],
  ['no bundler, no server', () => shown(pathToFileURL(`${file}/index.html`).href)],
]) {
  assert.equal(await says(), SAID, name);
  console.log(`${name}: ${SAID}`);
}

assert.match(await served(plain, {policy: "script-src 'self'"}), /CompileError.*Content Security Policy/);
rmSync(`${plain}/kavi-tn/kavi.wasm`);
assert.match(await served(plain), /^Error: .*kavi\.wasm: 404 Not Found$/);
assert.match(await served(plain, {index: true}), /^Error: .*kavi\.wasm: a page, not kavi\.wasm$/);
console.log('told: no policy, no file, a page in its place');
await browser.close();
