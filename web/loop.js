// The road of an event: into the program, what it wrote into the storage, what it changed onto the page.

import { pictureSize } from "./pictures.js";

/** Events behind which there is no player: they do not try again to store what could not be stored. */
const OWN_EVENTS = ["tick", "unsaved", "wishes"];

export class Loop {
  #program;
  #storage;
  #show;
  #end;
  #fail;
  #message = [];
  #queue = [];
  #storing = false;
  #ended = false; // by itself
  #stopped = false;
  #timer = 0;
  #unsaved = false; // something could not be stored yet

  /** `show` takes the list of objects that the program tells after an event; `end` is called when it has ended, `fail` when it has broken down. */
  constructor(storage, { show, end, fail }) {
    this.#storage = storage;
    this.#show = show;
    this.#end = end;
    this.#fail = fail;
  }

  /** The program's way to the page, for Program.load. */
  get page() {
    return {
      tell: (objects) => this.#message.push(...objects),
      store: (name, bytes) => this.#storage.store(name, bytes),
      remove: (name) => this.#storage.remove(name),
      storedFiles: () => this.#storage.files,
      pictureSize,
    };
  }

  /** Runs the program to its first wait. What it shows then tells nothing of what it wrote, and does not wait for it. */
  start(program) {
    this.#program = program;
    this.#ended = !this.#run(() => program.start());
    if (this.#stopped) return;
    this.#showMessage();
    if (this.#storage.hasNews) this.#store();
  }

  /** Whether an event is taken at once; otherwise it waits until what was written is stored. */
  get isReady() {
    return !this.#storing && !this.#ended && !this.#stopped;
  }

  /** Gives an event to the program. True if the program leaves a key to the element that has the focus. */
  send(...event) {
    if (this.#ended || this.#stopped) return false;
    if (this.#storing) {
      this.#queue.push(event);
      return false;
    }
    const goesOn = this.#run(() => this.#program.send(event));
    if (this.#stopped) return false;
    const leaves = this.#message.some((object) => object.do === "leaveKey");
    this.#settle(goesOn, event[0]);
    return leaves;
  }

  /** Nothing more happens; `then` is called. */
  stop(then) {
    if (this.#ended || this.#stopped) return;
    this.#stopped = true;
    clearTimeout(this.#timer);
    then();
  }

  /** What the program has written before it broke down is half of something, and is not stored. */
  #run(program) {
    try {
      return program();
    } catch (error) {
      console.error(error);
      this.stop(this.#fail);
      return false;
    }
  }

  #settle(goesOn, event) {
    this.#ended = !goesOn;
    const retries = this.#unsaved && !OWN_EVENTS.includes(event);
    if (this.#storage.hasNews || retries) this.#store();
    else this.#showMessage();
  }

  /** Stores, and shows what waits for it. A failure is told once, until what could not be stored has been. */
  async #store() {
    this.#storing = true;
    const stored = await this.#storage.commit();
    this.#storing = false;
    if (this.#stopped) return;
    if (this.#message.length > 0) this.#showMessage();
    const isNew = !stored && !this.#unsaved;
    this.#unsaved = !stored;
    if (isNew) this.send("unsaved");
    while (!this.#storing && this.#queue.length > 0) this.send(...this.#queue.shift());
  }

  #showMessage() {
    const message = this.#message;
    this.#message = [];
    clearTimeout(this.#timer);
    this.#show(message);
    if (this.#ended) {
      this.#end();
      return;
    }
    const wake = message.findLast((object) => object.do === "wake");
    if (wake?.after !== undefined) this.#timer = setTimeout(() => this.send("tick"), wake.after);
  }
}
