// Sound by Web Audio: one piece of music at a time, streamed, and effects over each other, kept whole. How loud they are beside each
// other and how they fade the program tells.

const gainOf = (decibels) => 10 ** (decibels / 20);

/** A level on its way, in decibels. Not every browser tells a level on its way, so it is reckoned here. */
class Fader {
  #context;
  #way;

  constructor(context, decibels = 0) {
    this.#context = context;
    this.node = context.createGain();
    this.#way = { from: decibels, to: decibels, start: 0, seconds: 0 };
    this.node.gain.value = gainOf(decibels);
  }

  /** Sets out for a level, to be there after some milliseconds; the moment at which it is there. */
  goTo(decibels, milliseconds) {
    const now = this.#context.currentTime;
    this.#way = { from: this.#at(now), to: decibels, start: now, seconds: milliseconds / 1000 };
    const { gain } = this.node;
    gain.cancelScheduledValues(now);
    gain.setValueAtTime(gainOf(this.#way.from), now);
    gain.exponentialRampToValueAtTime(gainOf(decibels), now + this.#way.seconds);
    return now + this.#way.seconds;
  }

  #at(time) {
    const { from, to, start, seconds } = this.#way;
    return time >= start + seconds ? to : from + ((to - from) * (time - start)) / seconds;
  }
}

/** An effect: all of it is in memory. */
class Effect {
  #source;
  #fader;

  constructor(context, buffer, output, onEnd) {
    this.#source = context.createBufferSource();
    this.#source.buffer = buffer;
    this.#fader = new Fader(context);
    this.#source.connect(this.#fader.node).connect(output);
    this.#source.onended = onEnd;
    this.#source.start();
  }

  fade({ silence, stop }) {
    this.#source.stop(this.#fader.goTo(silence, stop));
  }

  cut() {
    this.#source.stop();
  }
}

/** A piece of music: the browser fetches and decodes it as it goes on. */
class Piece {
  #context;
  #audio;
  #fader;

  constructor(context, file, output) {
    this.#context = context;
    this.#audio = new Audio(file);
    this.#fader = new Fader(context);
    context.createMediaElementSource(this.#audio).connect(this.#fader.node).connect(output);
    this.resume();
  }

  /** Browsers refuse to sound before the player's first deed; from there on it is asked again. */
  resume() {
    if (this.#audio.paused && !this.#audio.ended) this.#audio.play().catch(() => {});
  }

  pause() {
    this.#audio.pause();
  }

  /** The page's clock and that of the sound are two: it is the latter's that tells when the piece has faded. */
  fade({ silence, stop }) {
    const end = this.#fader.goTo(silence, stop);
    const cutWhenFaded = () => {
      if (this.#context.state === "running" && this.#context.currentTime < end) setTimeout(cutWhenFaded, stop);
      else this.cut();
    };
    setTimeout(cutWhenFaded, stop);
  }

  /** Without its address it lets go of what it has fetched. */
  cut() {
    this.#audio.pause();
    this.#audio.removeAttribute("src");
    this.#audio.load();
    this.#fader.node.disconnect();
  }
}

export class Sound {
  #context = null;
  #files;
  #mix;
  #buffers = new Map();
  #channels = new Map();
  #all = null; // fader of all that sounds
  #music = null; // fader of all music
  #isHidden = false;
  #isClosed = false;
  #pause = 0;
  #over = 0; // sounds over the music

  /** `files` maps the names that the program uses to what lies on the server; a file that it does not have is silent. */
  constructor(files) {
    this.#files = files;
  }

  /** The table of levels, in decibels, and of fades, in milliseconds: underSound, silence, back, up, stop. */
  mix(table) {
    this.#mix = table;
  }

  /** Browsers let a page sound from the player's first deed on. */
  wake() {
    if (this.#isClosed) return;
    this.#context ??= this.#makeContext();
    if (this.#context?.state !== "suspended" || this.#isHidden) return;
    this.#context.resume().catch(() => {});
    for (const piece of this.#pieces()) piece.resume();
  }

  /** A page that is not seen is not heard: what sounds fades, and the music goes on where it was when the page is seen again. */
  setHidden(isHidden) {
    this.#isHidden = isHidden;
    clearTimeout(this.#pause);
    // The program tells the table before its first sound.
    if (this.#context === null || this.#mix === undefined) return;
    const { silence, stop, up } = this.#mix;
    this.#all.goTo(isHidden ? silence : 0, isHidden ? stop : up);
    if (!isHidden) return this.wake();
    this.#pause = setTimeout(() => {
      for (const piece of this.#pieces()) piece.pause();
      this.#context?.suspend().catch(() => {});
    }, stop);
  }

  /** Nothing sounds any more. */
  close() {
    this.#isClosed = true;
    for (const { sound } of this.#channels.values()) sound?.cut();
    this.#channels.clear();
    this.#context?.close().catch(() => {});
    this.#context = null;
  }

  #pieces() {
    return [...this.#channels.values()].map(({ sound }) => sound).filter((sound) => sound instanceof Piece);
  }

  async play(channel, name, overMusic) {
    const file = this.#files[name];
    this.wake();
    if (file === undefined || this.#context === null) return;
    if (name.endsWith(".mid")) return this.#playMusic(channel, file);
    this.#channels.get(channel)?.sound?.cut();
    const playing = { isMusic: false, sound: null };
    this.#channels.set(channel, playing);
    const buffer = await this.#load(file);
    // While the file came the channel may have been given something else to do.
    if (buffer === null || this.#isHidden || this.#channels.get(channel) !== playing) return;
    if (overMusic) this.#goBack(1);
    playing.sound = new Effect(this.#context, buffer, this.#all.node, () => {
      if (overMusic) this.#goBack(-1);
      if (this.#channels.get(channel) === playing) this.#channels.delete(channel);
    });
  }

  #playMusic(channel, file) {
    for (const [key, { isMusic }] of this.#channels) if (isMusic) this.stop(key);
    const sound = new Piece(this.#context, file, this.#music.node);
    this.#channels.set(channel, { isMusic: true, sound });
    if (this.#isHidden) sound.pause();
  }

  /** Fades what the channel sounds. */
  stop(channel) {
    const playing = this.#channels.get(channel);
    this.#channels.delete(channel);
    playing?.sound?.fade(this.#mix);
  }

  /** The warning sound. */
  beep() {
    this.wake();
    if (this.#context === null || this.#isHidden) return;
    const tone = this.#context.createOscillator();
    const gain = this.#context.createGain();
    const now = this.#context.currentTime;
    gain.gain.setValueAtTime(0.15, now);
    gain.gain.setTargetAtTime(0, now + 0.1, 0.02);
    tone.frequency.value = 660;
    tone.connect(gain).connect(this.#all.node);
    tone.start(now);
    tone.stop(now + 0.25);
  }

  #makeContext() {
    try {
      const context = new AudioContext();
      this.#music = new Fader(context);
      this.#all = new Fader(context);
      this.#all.node.connect(context.destination);
      this.#music.node.connect(this.#all.node);
      return context;
    } catch {
      return null;
    }
  }

  #goBack(step) {
    const { underSound, back, up } = this.#mix;
    const before = this.#over;
    this.#over += step;
    if (before === 0) this.#music.goTo(underSound, back);
    if (this.#over === 0) this.#music.goTo(0, up);
  }

  async #load(file) {
    if (this.#buffers.has(file)) return this.#buffers.get(file);
    try {
      const response = await fetch(file);
      const buffer = await this.#context.decodeAudioData(await response.arrayBuffer());
      this.#buffers.set(file, buffer);
      return buffer;
    } catch {
      return null;
    }
  }
}
