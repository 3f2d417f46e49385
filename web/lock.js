// One page of an address has its storage: by a lock of the browser, or, where there is none (a page that has not come by https),
// by a lease in the database that it renews.

import { completed, finished, NOTES } from "./database.js";

const LEASE = "lease";
const LENGTH = 10000; // milliseconds that a lease is good for
const BEAT = 4000; // milliseconds after which it is renewed
const ANSWER = 700; // milliseconds that the holder has to answer: its timers may be held back, messages are not

const pause = (milliseconds) => new Promise((done) => setTimeout(done, milliseconds));

/** Takes the lock of this name for as long as the page lives: "held", "taken" by another page, or "missing". */
export async function takeLock(name) {
  if (!navigator.locks) return "missing";
  return new Promise((resolve) => {
    navigator.locks
      .request(name, { ifAvailable: true }, (lock) => {
        resolve(lock === null ? "taken" : "held");
        return lock === null ? undefined : new Promise(() => {});
      })
      .catch(() => resolve("missing"));
  });
}

export class Lease {
  #id = crypto.getRandomValues(new Uint32Array(4)).join("-");
  #channel;
  #database;

  /** Whether another page has taken the storage, and what follows then. */
  isLost = false;
  onLost = () => {};

  /**
   * Takes the storage of this name; null if a page that lives has it. The lease of a browser that was lost runs out; `onWait` is
   * called before that is waited for. `database` gives the database that is open.
   */
  static async take(name, database, onWait) {
    const lease = new Lease(name, database);
    let held = await lease.#claim(undefined);
    if (held !== undefined) {
      if (await lease.#isAnswered()) return lease.#leave();
      onWait();
      await pause(Math.min(LENGTH, Math.max(0, held.until - Date.now())));
      held = await lease.#claim(held);
      if (held !== undefined) return lease.#leave();
    }
    lease.#keep();
    return lease;
  }

  constructor(name, database) {
    this.#channel = new BroadcastChannel(name);
    this.#database = database;
  }

  /** Renews the lease within a transaction. Throws if it is lost. */
  async renew(transaction) {
    const store = transaction.objectStore(NOTES);
    const held = await finished(store.get(LEASE));
    if (held !== undefined && held.id !== this.#id) {
      this.#lose();
      throw new Error("another page has the storage");
    }
    store.put({ id: this.#id, until: Date.now() + LENGTH }, LEASE);
  }

  /** Takes the lease if there is none, or still the one that is `dead`; comes back with the one that is in the way. */
  async #claim(dead) {
    const transaction = this.#database().transaction(NOTES, "readwrite");
    const done = completed(transaction);
    const store = transaction.objectStore(NOTES);
    const held = await finished(store.get(LEASE));
    const isFree = held === undefined || (held.id === dead?.id && held.until === dead.until);
    if (isFree) store.put({ id: this.#id, until: Date.now() + LENGTH }, LEASE);
    await done;
    return isFree ? undefined : held;
  }

  async #isAnswered() {
    const answered = new Promise((resolve) => {
      this.#channel.onmessage = ({ data }) => data === "held" && resolve(true);
    });
    this.#channel.postMessage("held?");
    return Promise.race([answered, pause(ANSWER)]).then(Boolean);
  }

  #keep() {
    this.#channel.onmessage = ({ data }) => data === "held?" && !this.isLost && this.#channel.postMessage("held");
    const beat = setInterval(() => (this.isLost ? clearInterval(beat) : this.#renewAlone()), BEAT);
    addEventListener("pagehide", () => this.#release());
  }

  async #renewAlone() {
    try {
      await this.renew(this.#database().transaction(NOTES, "readwrite"));
    } catch {
      // What is lost has been told; a database that cannot be written now is written with the next beat.
    }
  }

  #release() {
    try {
      const store = this.#database().transaction(NOTES, "readwrite").objectStore(NOTES);
      store.get(LEASE).onsuccess = ({ target }) => target.result?.id === this.#id && store.delete(LEASE);
    } catch {
      // The lease runs out by itself.
    }
  }

  #lose() {
    if (this.isLost) return;
    this.isLost = true;
    this.onLost();
  }

  #leave() {
    this.#channel.close();
    return null;
  }
}
