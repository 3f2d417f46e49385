// Sound by Web Audio: one piece of music at a time, effects over each other, softer while something sounds over it.

const FADE = 0.05; // seconds
const DUCKED = 10 ** (-10 / 20);

export class Sound {
  #context = null;
  #files;
  #buffers = new Map();
  #channels = new Map();
  #music = null;
  #over = 0; // sounds over the music

  /** `files` maps the names that the program uses to what lies on the server; a file that it does not have is silent. */
  constructor(files) {
    this.#files = files;
  }

  /** Browsers let a page sound from the player's first deed on. */
  wake() {
    this.#context ??= this.#makeContext();
    if (this.#context?.state === "suspended") this.#context.resume().catch(() => {});
  }

  async play(channel, name, overMusic) {
    const file = this.#files[name];
    this.wake();
    if (file === undefined || this.#context === null) return;
    const isMusic = name.endsWith(".mid");
    if (isMusic) for (const key of this.#channels.keys()) if (this.#channels.get(key).isMusic) this.stop(key);
    this.#stopNow(channel);
    const sounding = { isMusic, overMusic };
    this.#channels.set(channel, sounding);
    const buffer = await this.#load(file, isMusic);
    // While the file came the channel may have been given something else to do.
    if (buffer && this.#channels.get(channel) === sounding) this.#start(channel, sounding, buffer);
  }

  /** Fades what the channel sounds. */
  stop(channel) {
    const sounding = this.#channels.get(channel);
    this.#channels.delete(channel);
    if (!sounding?.source) return;
    const now = this.#context.currentTime;
    sounding.gain.gain.setTargetAtTime(0, now, FADE / 3);
    sounding.source.stop(now + FADE);
  }

  /** The warning sound. */
  beep() {
    this.wake();
    if (this.#context === null) return;
    const tone = this.#context.createOscillator();
    const gain = this.#context.createGain();
    const now = this.#context.currentTime;
    gain.gain.setValueAtTime(0.15, now);
    gain.gain.setTargetAtTime(0, now + 0.1, 0.02);
    tone.frequency.value = 660;
    tone.connect(gain).connect(this.#context.destination);
    tone.start(now);
    tone.stop(now + 0.25);
  }

  #makeContext() {
    try {
      const context = new AudioContext();
      this.#music = context.createGain();
      this.#music.connect(context.destination);
      return context;
    } catch {
      return null;
    }
  }

  #stopNow(channel) {
    this.#channels.get(channel)?.source?.stop();
    this.#channels.delete(channel);
  }

  #start(channel, sounding, buffer) {
    sounding.source = this.#context.createBufferSource();
    sounding.source.buffer = buffer;
    sounding.gain = this.#context.createGain();
    sounding.source.connect(sounding.gain).connect(sounding.isMusic ? this.#music : this.#context.destination);
    if (sounding.overMusic) this.#duck(1);
    sounding.source.onended = () => {
      if (sounding.overMusic) this.#duck(-1);
      if (this.#channels.get(channel) === sounding) this.#channels.delete(channel);
    };
    sounding.source.start();
  }

  #duck(step) {
    this.#over += step;
    this.#music.gain.setTargetAtTime(this.#over > 0 ? DUCKED : 1, this.#context.currentTime, FADE / 3);
  }

  /** Effects are kept, music is not: a piece decoded is large. */
  async #load(file, isMusic) {
    if (this.#buffers.has(file)) return this.#buffers.get(file);
    try {
      const response = await fetch(file);
      const buffer = await this.#context.decodeAudioData(await response.arrayBuffer());
      if (!isMusic) this.#buffers.set(file, buffer);
      return buffer;
    } catch {
      return null;
    }
  }
}
