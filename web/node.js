// kavi-tn for node.

import {readFile} from 'node:fs/promises';
import {beside} from './beside.js';
import {loading} from './kavi.js';

export {EVERYDAY} from './kavi.js';
export const load = loading((file, locate) => readFile(locate ? locate(file) : beside(file)));
