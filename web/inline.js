// The end of inline/kavi.js, which begins with what kavi.js has, and WASM, the larger module in base64.

const load = loading(() => Uint8Array.from(atob(WASM), c => c.charCodeAt(0)));
if (typeof module === 'object') {
  module.exports = {EVERYDAY, load};
} else {
  globalThis.kavi = {EVERYDAY, load};
}
