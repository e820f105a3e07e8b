// The npm package beside the same lines through the host layer in C++.
// Usage: bench_web.mjs PACKAGE LINES NANOSECONDS-A-LINE-IN-C++

import {readFileSync} from 'node:fs';
import {pathToFileURL} from 'node:url';

const RUNS = 7;
const NOISE = 0.05;
const [folder, file, native] = process.argv.slice(2);
const {load} = await import(pathToFileURL(`${folder}/node.js`));
const {normalize, read} = await load();
const lines = readFileSync(file, 'latin1').split('\n').slice(0, -1);

// Nanoseconds a line, the median.
function time(work) {
  const times = Array.from({length: RUNS}, () => {
    const begin = process.hrtime.bigint();
    for (const line of lines) work(line);
    return Number(process.hrtime.bigint() - begin) / lines.length;
  });
  return times.sort((a, b) => a - b)[RUNS >> 1];
}

let missed = 0;
function goal(text, figure, most) {
  const holds = figure <= most * (1 + NOISE);
  missed += holds ? 0 : 1;
  console.log(`${holds ? 'holds ' : 'MISSED'}  ${text} (at most ${most}): ${figure.toFixed(2)}`);
}

const normalized = time(normalize);
goal('WebAssembly in node, normalize(), times C++', normalized / native, 3);
goal('WebAssembly in node, read(), times normalize()', time(read) / normalized, 4);
process.exit(missed > 0 ? 1 : 0);
