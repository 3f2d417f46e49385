// The stored files, in the browser's database. What is to be stored is gathered and committed in one transaction.

import { completed, create, finished, FILES, NOTES, openExisting, takenOver } from "./database.js";
import { Lease, takeLock } from "./lock.js";

/** What each copy of the page on a server calls its own. */
const NAME = `zarpi ${new URL("./", location.href).pathname}`;

/** Opens the storage and reads all files. Null if another page of this address has it. A browser that forbids it gives one that keeps nothing. */
export async function openStorage(onWait) {
  const lock = await takeLock(NAME);
  if (lock === "taken") return null;
  const storage = new Storage();
  try {
    return (await storage.open(lock === "missing", onWait)) ? storage : null;
  } catch {
    return new Storage();
  }
}

export class Storage {
  #database = null;
  #keeps = false;
  #lease = null;
  #files = new Map();
  #notes = new Map();
  #pending = new Map();
  #hasNews = false;
  #isReplaced = false;
  #hasAsked = false;

  /** What follows when another page has taken the storage. */
  onLost = () => {};

  /** Reads what is stored; false if another page has it. `needsLease` where the browser has no locks. */
  async open(needsLease, onWait) {
    const old = await openExisting(NAME);
    const found = old ?? (await takenOver((files) => create(NAME, new Map([[FILES, files], [NOTES, new Map()]]))));
    if (found === null) return false;
    this.#use(found);
    if (needsLease) {
      this.#lease = await Lease.take(NAME, () => this.#database, onWait);
      if (this.#lease === null) return false;
      this.#lease.onLost = () => this.onLost();
    }
    const transaction = found.transaction([FILES, NOTES]);
    for (const [name, map] of [[FILES, this.#files], [NOTES, this.#notes]]) {
      const store = transaction.objectStore(name);
      const [keys, values] = await Promise.all([finished(store.getAllKeys()), finished(store.getAll())]);
      keys.forEach((key, i) => map.set(key, values[i]));
    }
    this.#keeps = true;
    return true;
  }

  /** Whether what is stored outlives the page. */
  get keeps() {
    return this.#keeps;
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

  /** Stores all that is pending, or nothing of it: false then, and it stays pending. */
  async commit() {
    const changes = new Map(this.#pending);
    this.#hasNews = false;
    if (!this.#keeps) {
      this.#pending.clear();
      return true;
    }
    if (!this.#isReplaced && !(await this.#write(FILES, changes))) return false;
    for (const [name, bytes] of changes) if (this.#pending.get(name) === bytes) this.#pending.delete(name);
    this.#keepForGood();
    return true;
  }

  /**
   * Stores files in the place of those of the same names, and what is pending. What the running program writes from here on
   * is not stored: the page is to be loaded anew. False, and nothing has changed, if that cannot be done.
   */
  async replace(files) {
    if (!this.#keeps || !(await this.#write(FILES, new Map([...this.#pending, ...files])))) return false;
    this.#isReplaced = true;
    return true;
  }

  /** What the page itself has noted under a name. */
  noted(name) {
    return this.#notes.get(name);
  }

  async setNote(name, value) {
    this.#notes.set(name, value);
    if (this.#keeps) await this.#write(NOTES, new Map([[name, value]]));
  }

  /** As soon as there is something to lose the browser is asked not to clear it away by itself. */
  #keepForGood() {
    if (this.#hasAsked || ![...this.#files.keys()].some((name) => name.endsWith(".rnd"))) return;
    this.#hasAsked = true;
    navigator.storage?.persist?.().catch(() => {});
  }

  #use(database) {
    this.#database = database;
    // The player has cleared what the browser keeps: the files are in memory still.
    database.onclose = () => this.#openAnew().catch(() => {});
  }

  async #openAnew() {
    this.#database.onclose = null;
    this.#database.close();
    const old = await openExisting(NAME);
    this.#use(old ?? (await create(NAME, new Map([[FILES, this.#files], [NOTES, this.#notes]]))));
  }

  /** Writes all changes, null for what is gone, or none. */
  async #write(name, changes) {
    try {
      await this.#transact(name, changes);
    } catch {
      if (this.#lease?.isLost) return false;
      try {
        await this.#openAnew();
        await this.#transact(name, changes);
      } catch {
        return false;
      }
    }
    return true;
  }

  async #transact(name, changes) {
    const transaction = this.#database.transaction([FILES, NOTES], "readwrite", { durability: "strict" });
    const done = completed(transaction);
    try {
      await this.#lease?.renew(transaction);
      const store = transaction.objectStore(name);
      for (const [key, value] of changes) {
        if (value === null) store.delete(key);
        else store.put(value, key);
      }
    } catch (error) {
      done.catch(() => {});
      transaction.abort();
      throw error;
    }
    await done;
  }
}
