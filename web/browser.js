// kavi-tn for browsers.

import {beside} from './beside.js';
import {loading} from './kavi.js';

export {EVERYDAY} from './kavi.js';

// Servers that have a page for everything answer with it for files that they do not have.
async function fetched(file, locate) {
  const url = locate ? locate(file) : beside(file);
  const response = await fetch(url);
  if (!response.ok) throw new Error(`${url}: ${response.status} ${response.statusText}`);
  if (response.headers.get('content-type')?.startsWith('text/html')) throw new Error(`${url}: a page, not ${file}`);
  return response.arrayBuffer();
}

export const load = loading(fetched);
