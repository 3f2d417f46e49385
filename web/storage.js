// The stored files, in the browser's database. What is to be stored is gathered and committed in one transaction.

const STORE = "files";

function finished(request) {
  return new Promise((resolve, reject) => {
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error);
  });
}

function completed(transaction) {
  return new Promise((resolve, reject) => {
    transaction.oncomplete = resolve;
    transaction.onabort = () => reject(transaction.error);
    transaction.onerror = () => reject(transaction.error);
  });
}

async function openDatabase() {
  const request = indexedDB.open("zarpi", 1);
  request.onupgradeneeded = () => request.result.createObjectStore(STORE);
  return finished(request);
}

export class Storage {
  #database = null;
  #files = new Map();
  #pending = new Map();
  #hasNews = false;

  /** Opens the storage and reads all files. A browser that forbids it gives one that keeps nothing. */
  static async open() {
    const storage = new Storage();
    try {
      storage.#database = await openDatabase();
      const store = storage.#database.transaction(STORE).objectStore(STORE);
      const [names, contents] = await Promise.all([finished(store.getAllKeys()), finished(store.getAll())]);
      names.forEach((name, i) => storage.#files.set(name, contents[i]));
    } catch {
      storage.#database = null;
    }
    return storage;
  }

  /** Whether what is stored outlives the page. */
  get keeps() {
    return this.#database !== null;
  }

  /** A map of names to bytes. */
  get files() {
    return this.#files;
  }

  /** Whether something has been written since the last commit began. */
  get hasNews() {
    return this.#hasNews;
  }

  store(name, bytes) {
    this.#files.set(name, bytes);
    this.#note(name, bytes);
  }

  remove(name) {
    this.#files.delete(name);
    this.#note(name, null);
  }

  #note(name, bytes) {
    this.#pending.set(name, bytes);
    this.#hasNews = true;
  }

  /** Gives the files of `files` the place of all that are there. */
  replaceAll(files) {
    for (const name of [...this.#files.keys()]) this.remove(name);
    for (const [name, bytes] of files) this.store(name, bytes);
  }

  /** Stores all that is pending, or nothing of it: false then, and it stays pending. */
  async commit() {
    const changes = [...this.#pending];
    this.#hasNews = false;
    if (this.#database === null) {
      this.#pending.clear();
      return true;
    }
    try {
      const transaction = this.#database.transaction(STORE, "readwrite", { durability: "strict" });
      const done = completed(transaction);
      const store = transaction.objectStore(STORE);
      for (const [name, bytes] of changes) {
        if (bytes === null) store.delete(name);
        else store.put(bytes, name);
      }
      await done;
    } catch {
      return false;
    }
    for (const [name, bytes] of changes) if (this.#pending.get(name) === bytes) this.#pending.delete(name);
    return true;
  }
}

/** Keeps the storage for this page as long as it lives; false if another page of the same address has it. */
export async function lockStorage() {
  if (!navigator.locks) return true;
  return new Promise((resolve) => {
    navigator.locks
      .request("zarpi", { ifAvailable: true }, (lock) => {
        resolve(lock !== null);
        return lock === null ? undefined : new Promise(() => {});
      })
      .catch(() => resolve(true));
  });
}
