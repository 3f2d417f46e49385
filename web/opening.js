// What the page has to wait for, under way while its other modules are still coming.

import { lockStorage, Storage } from "./storage.js";

/** The program. */
export const compiled = WebAssembly.compileStreaming(fetch("zarpi.wasm"));

/** What pictures and sounds there are. */
export const assets = fetch("assets.json").then((response) => response.json());

/** Whether this page has the storage for itself, and the storage. */
export const opened = Promise.all([lockStorage(), Storage.open()]);

// Who waits for them tells what has failed.
for (const promise of [compiled, assets, opened]) promise.catch(() => {});
