// Where the modules are as long as nothing is bundled; bundlers find files by just these words.
export const beside = file => file === 'kavi.wasm' ? new URL('./kavi.wasm', import.meta.url)
  : new URL('./kavi-everyday.wasm', import.meta.url);
