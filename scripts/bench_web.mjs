// The npm package beside the same lines through the host layer in C++.
// Usage: bench_web.mjs PACKAGE LINES NANOSECONDS-A-LINE-IN-C++

import {readFileSync} from 'node:fs';
import {pathToFileURL} from 'node:url';

const [folder, file, native] = process.argv.slice(2);
const {load} = await import(pathToFileURL(`${folder}/node.js`));
const {normalize} = await load();
const lines = readFileSync(file, 'latin1').split('\n').slice(0, -1);
let best = Infinity;
for (let run = 0; run < 7; ++run) {
  const begin = process.hrtime.bigint();
  for (const line of lines) normalize(line);
  best = Math.min(best, Number(process.hrtime.bigint() - begin) / lines.length);
}
const share = native / best;
console.log(`${share >= 1 / 3 ? 'holds ' : 'MISSED'}  WebAssembly in node, of the rate of C++ (at least 0.33): ${share.toFixed(2)}`);
process.exit(share < 1 / 3 ? 1 : 0);
