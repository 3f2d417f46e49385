// One page of an address has its storage: by a lock of the browser, or, where there is none (a page that has not come by https),
// by a lease in the database that it renews.

import { completed, finished, NOTES } from "./database.js";

const LEASE = "lease";
const BEAT = 2000; // milliseconds after which a lease is renewed
const LISTEN = 3000; // milliseconds in which its holder answers or renews it, if it lives: timers may be held back, messages are not

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
   * Takes the storage of this name; null if a page that lives has it. `onWait` is called before it is listened for one that has a
   * lease. `database` gives the database that is open.
   */
  static async take(name, database, onWait) {
    const lease = new Lease(name, database);
    let held = await lease.#claim(undefined);
    if (held !== undefined) {
      onWait();
      if (await lease.#isAnswered()) return lease.#leave();
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
    store.put({ id: this.#id, renewed: Date.now() }, LEASE);
  }

  /** Takes the lease if there is none, or still the one that is `dead`; comes back with the one that is in the way. */
  async #claim(dead) {
    const transaction = this.#database().transaction(NOTES, "readwrite");
    const done = completed(transaction);
    const store = transaction.objectStore(NOTES);
    const held = await finished(store.get(LEASE));
    const isFree = held === undefined || (held.id === dead?.id && held.renewed === dead.renewed);
    if (isFree) store.put({ id: this.#id, renewed: Date.now() }, LEASE);
    await done;
    return isFree ? undefined : held;
  }

  async #isAnswered() {
    const answered = new Promise((resolve) => {
      this.#channel.onmessage = ({ data }) => data === "held" && resolve(true);
    });
    this.#channel.postMessage("held?");
    return Promise.race([answered, pause(LISTEN)]).then(Boolean);
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

  /** Gives the lease back, in one step: a page that goes gets no answer any more. */
  #release() {
    if (this.isLost) return;
    try {
      const transaction = this.#database().transaction(NOTES, "readwrite", { durability: "relaxed" });
      transaction.objectStore(NOTES).delete(LEASE);
      transaction.commit();
    } catch {
      // Who comes next listens for a while, and takes it.
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
