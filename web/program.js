// The program, which is one coroutine: it runs until it waits for an event, and from each event to the next wait.

const REWINDING = 2;
const DECODER = new TextDecoder();
const ENCODER = new TextEncoder();

/** What the program throws when it has ended. */
class Ended {}

export class Program {
  #exports;
  #area;
  #game;
  #event = "";
  #page;

  /**
   * Loads the program, which is being compiled; nothing of it runs yet. `page` has the functions tell(objects), store(name, bytes), remove(name),
   * storedFiles(), which gives a map of names to bytes, and pictureSize(name), which gives width and height in pixels.
   */
  static async load(compiled, page) {
    const program = new Program(page);
    const instance = await WebAssembly.instantiate(await compiled, program.imports);
    program.begin(instance);
    return program;
  }

  constructor(page) {
    this.#page = page;
  }

  /** Takes the program, made with `imports`, as its own. */
  begin(instance) {
    this.#exports = instance.exports;
    instance.exports._initialize();
    this.#area = instance.exports.area();
    this.#game = instance.exports.open();
  }

  /** Runs the program to its first wait. False when it has ended instead. */
  start() {
    return this.#run();
  }

  /** Gives the event, a list of texts, to the program, which waits, and runs it to its next wait. */
  send(event) {
    this.#event = event.join("\n");
    this.#exports.asyncify_start_rewind(this.#area);
    return this.#run();
  }

  /** The pairs of stored files: names of counter and records, and how many bytes each can have. */
  get pairs() {
    const { memory, pairs } = this.#exports;
    const all = new Uint8Array(memory.buffer, pairs());
    const lines = new TextDecoder().decode(all.subarray(0, all.indexOf(0))).trim().split("\n");
    return lines.map((line) => {
      const [counter, records, counterSize, recordsSize] = line.split(" ");
      return { counter, records, sizes: { [counter]: Number(counterSize), [records]: Number(recordsSize) } };
    });
  }

  /** Whether a counter and records, each as bytes, fit each other, in a pair by its number from 0. */
  fit(pair, counter, records) {
    this.bytes(this.#exports.counter(), counter.length).set(counter);
    return Boolean(this.#exports.fit(pair, counter.length, records.length));
  }

  #run() {
    try {
      this.#exports.run(this.#game);
      this.#exports.asyncify_stop_unwind();
      return true;
    } catch (error) {
      if (error instanceof Ended) return false;
      throw error;
    }
  }

  /** Bytes of the program's memory. */
  bytes(address, length) {
    return new Uint8Array(this.#exports.memory.buffer, address, length);
  }

  /** A text in the program's memory. */
  text(address, length) {
    return DECODER.decode(this.bytes(address, length));
  }

  /** What the program is made with. */
  get imports() {
    return { page: this.#functions() };
  }

  #functions() {
    return {
      tell: (address, length) => this.#page.tell(JSON.parse(this.text(address, length))),
      next_event: (buffer, capacity) => {
        if (this.#exports.asyncify_get_state() === REWINDING) {
          this.#exports.asyncify_stop_rewind();
          return ENCODER.encodeInto(this.#event, this.bytes(buffer, capacity)).written;
        }
        this.#exports.asyncify_start_unwind(this.#area);
        return 0;
      },
      end: () => {
        throw new Ended();
      },
      now: () => performance.now(),
      local_time: () => {
        const now = new Date();
        return now.getTime() - now.getTimezoneOffset() * 60000;
      },
      random_bits: () => crypto.getRandomValues(new Uint32Array(1))[0],
      picture_size: (name, nameLength) => {
        const { width, height } = this.#page.pictureSize(this.text(name, nameLength)) ?? { width: 0, height: 0 };
        return width * 0x10000 + height;
      },
      stored_files: (buffer, capacity) => {
        const all = pack(this.#page.storedFiles());
        this.bytes(buffer, capacity).set(all.subarray(0, capacity));
        return all.length;
      },
      store: (name, nameLength, bytes, length) =>
        this.#page.store(this.text(name, nameLength), this.bytes(bytes, length).slice()),
      remove: (name, nameLength) => this.#page.remove(this.text(name, nameLength)),
    };
  }
}

/** Files as one run of bytes, each behind its name, a blank, its length and a line feed. */
function pack(files) {
  const parts = [];
  for (const [name, bytes] of files) parts.push(new TextEncoder().encode(`${name} ${bytes.length}\n`), bytes);
  const all = new Uint8Array(parts.reduce((length, part) => length + part.length, 0));
  let end = 0;
  for (const part of parts) {
    all.set(part, end);
    end += part.length;
  }
  return all;
}
