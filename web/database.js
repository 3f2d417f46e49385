// The browser's database: a store of files and one of the page's own notes, both by names.

export const FILES = "files";
export const NOTES = "notes";

const OLD_NAME = "zarpi"; // of all copies of the page on one server, until each had a name of its own

export function finished(request) {
  return new Promise((resolve, reject) => {
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error);
  });
}

export function completed(transaction) {
  return new Promise((resolve, reject) => {
    transaction.oncomplete = resolve;
    transaction.onabort = () => reject(transaction.error ?? new DOMException("aborted", "AbortError"));
    transaction.onerror = () => reject(transaction.error);
  });
}

/** Opens a database; null if there is none. */
export async function openExisting(name) {
  const request = indexedDB.open(name, 1);
  let isNew = false;
  request.onupgradeneeded = () => {
    isNew = true;
    request.transaction.abort();
  };
  return finished(request).catch((error) => {
    if (isNew) return null;
    throw error;
  });
}

/** Creates a database with this content, a map of entries by the names of the stores, in one step. */
export async function create(name, content) {
  const request = indexedDB.open(name, 1);
  request.onupgradeneeded = () => {
    for (const [store, entries] of content) {
      const made = request.result.createObjectStore(store);
      for (const [key, value] of entries) made.put(value, key);
    }
  };
  return finished(request);
}

async function oldFiles() {
  const database = await openExisting(OLD_NAME);
  if (database === null) return new Map();
  const store = database.transaction(FILES).objectStore(FILES);
  const [names, contents] = await Promise.all([finished(store.getAllKeys()), finished(store.getAll())]);
  database.close();
  return new Map(names.map((name, i) => [name, contents[i]]));
}

/**
 * Hands what was stored under the old name to `use`; comes back with what that gives, or with null while a page of then has it.
 * It stays there for the other copies.
 */
export async function takenOver(use) {
  const take = async () => use(await oldFiles());
  if (!navigator.locks) return take();
  return navigator.locks.request(OLD_NAME, { ifAvailable: true, mode: "shared" }, (lock) => (lock === null ? null : take()));
}
