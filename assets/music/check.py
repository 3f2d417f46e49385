#!/usr/bin/env python3
"""Examines the music and the sounds that scripts/render-sound made.

Every piece: its notation against its MIDI file (equal voices, melody and bass against the chords), then the piece as it
sounds through the SoundFont (length, loudness, peak, silence inside, a real ending). Every sound: format, length,
loudness, peak, clean edges. Prints one line each; the exit code is 1 if anything fails. -v tells every note off its chord.

Needs Python 3, fluidsynth, ffmpeg and the SoundFont of the package timgm6mb-soundfont.
"""
import array
import math
import re
import struct
import subprocess
import sys
import tempfile
import unicodedata
import wave
from fractions import Fraction
from pathlib import Path

HERE = Path(__file__).resolve().parent
GAME = HERE.parent / "game"
SOUNDFONT = "/usr/share/sounds/sf2/TimGM6mb.sf2"
GAIN = "0.6"

MUSIC_SECONDS = (60, 150)
MUSIC_LUFS = (-25.0, -23.0)
MUSIC_PEAK = -6.0
IN_CHORD = 0.75          # least share of the melody's strong notes that are notes of the chord

SOUND_LUFS = -16.0
SOUND_SECONDS = {"Conseg.wav": 8.0, "Diploma.wav": 8.0}    # all others: 2.5
SOUNDS = ["Caída.wav", "Comodín.wav", "Conseg.wav", "Diploma.wav", "Extra.wav", "Zar200.wav", "Pal16.wav", "Pleno.wav",
          "Prisa.wav", "Teclado.wav"]
RESTART = 0.1            # Prisa.wav starts again after this many seconds

MELODY, BASS, PERCUSSION = 11, 13, 10    # MIDI channels, the same in every piece

TICKS = 480              # per quarter note, as abc2midi writes
NOTE = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
QUALITY = {
    "": (0, 4, 7), "m": (0, 3, 7), "7": (0, 4, 7, 10), "m7": (0, 3, 7, 10), "maj7": (0, 4, 7, 11), "6": (0, 4, 7, 9),
    "m6": (0, 3, 7, 9), "dim": (0, 3, 6), "sus4": (0, 5, 7),
}
# Strong places of a bar, in quarter notes.
STRONG = {
    "4/4": (0, 2), "3/4": (0,), "2/4": (0, 1), "6/8": (0, Fraction(3, 2)), "3/8": (0,), "5/8": (0, Fraction(1, 2), Fraction(3, 2)),
}

verbose = "-v" in sys.argv
failed = False


def fail(name, text):
    global failed
    failed = True
    print(f"  FAIL {name}: {text}")


# ---- notation -----------------------------------------------------------------------------------------------------

def pitch_class(name):
    value = NOTE[name[0].upper()]
    for sign in name[1:]:
        value += {"b": -1, "#": 1}[sign]
    return value % 12


def scale_of(key):
    root, minor = re.match(r"([A-G][b#]?)(m?)$", key).groups()
    steps = (0, 2, 3, 5, 7, 8, 9, 10, 11) if minor else (0, 2, 4, 5, 7, 9, 11)
    return {(pitch_class(root) + s) % 12 for s in steps}


class Piece:
    """What the notation says: chords and keys along the time, in ticks."""

    def __init__(self, path):
        self.fields = {}
        self.chords = []           # (tick, symbol, pitch classes)
        self.keys = []             # (tick, scale)
        lines = path.read_text(encoding="utf-8").splitlines()
        voice = None
        tick = 0
        for line in lines:
            line = re.sub(r"%.*", "", line) if not line.startswith("%%") else ""
            field = re.match(r"([A-Z]):\s*(.*)", line)
            if field:
                letter, value = field.groups()
                if letter == "V":
                    voice, tick = value.strip(), 0
                elif voice is None:
                    self.fields[letter] = value.strip()
                    if letter == "L":
                        n, d = value.split("/")
                        self.unit = TICKS * 4 * int(n) // int(d)
                    if letter == "K":
                        self.keys.append((0, scale_of(value.strip())))
                elif letter == "K" and voice == "M":
                    self.keys.append((tick, scale_of(value.strip())))
                continue
            if voice == "H":
                tick = self.read_chords(line, tick)
            elif voice == "M":
                tick += self.bar() * line.count("|")
        self.end = self.chord_end

    def bar(self):
        n, d = self.fields["M"].split("/")
        return TICKS * 4 * int(n) // int(d)

    def read_chords(self, line, tick):
        line = re.sub(r"\[[A-Z]:[^]]*\]", "", line)
        for symbol, length in re.findall(r'"([^"]+)"\s*z(\d+)', line):
            root, quality = re.match(r"([A-G][b#]?)(.*)$", symbol).groups()
            classes = {(pitch_class(root) + s) % 12 for s in QUALITY[quality]}
            self.chords.append((tick, symbol, classes))
            tick += int(length) * self.unit
        self.chord_end = tick
        return tick

    @staticmethod
    def at(table, tick):
        found = table[0]
        for entry in table:
            if entry[0] > tick:
                break
            found = entry
        return found[1:]


# ---- MIDI ---------------------------------------------------------------------------------------------------------

def read_midi(path):
    """Notes as {channel: [(start, end, pitch, velocity)]} with channels from 1, the length of every track, tempos."""
    data = path.read_bytes()
    assert data[:4] == b"MThd" and struct.unpack(">H", data[12:14])[0] == TICKS
    notes, lengths, tempos, at = {}, [], [], 14
    while at < len(data):
        size = struct.unpack(">I", data[at + 4:at + 8])[0]
        track, at = data[at + 8:at + 8 + size], at + 8 + size
        i, tick, status, open_notes, any_note = 0, 0, 0, {}, False

        def variable():
            nonlocal i
            value = 0
            while True:
                byte = track[i]
                i += 1
                value = value << 7 | byte & 127
                if byte < 128:
                    return value

        while i < len(track):
            tick += variable()
            if track[i] >= 128:
                status = track[i]
                i += 1
            if status == 0xFF:
                kind = track[i]
                i += 1
                size = variable()
                if kind == 0x51:
                    tempos.append((tick, int.from_bytes(track[i:i + size], "big")))
                i += size
            elif status in (0xF0, 0xF7):
                i += variable()
            else:
                kind, channel = status >> 4, (status & 15) + 1
                first = track[i]
                second = track[i + 1] if kind not in (12, 13) else 0
                i += 2 if kind not in (12, 13) else 1
                if kind == 9 and second:
                    any_note = True
                    open_notes.setdefault((channel, first), []).append((tick, second))
                elif kind in (8, 9) and open_notes.get((channel, first)):
                    start, velocity = open_notes[channel, first].pop(0)
                    notes.setdefault(channel, []).append((start, tick, first, velocity))
        lengths.append((tick, any_note))
    return notes, lengths, sorted(tempos)


def seconds_of(tempos, tick):
    total, last, speed = 0.0, 0, 500000
    for at, value in tempos:
        if at >= tick:
            break
        total += (at - last) * speed / TICKS / 1e6
        last, speed = at, value
    return total + (tick - last) * speed / TICKS / 1e6


# ---- sound --------------------------------------------------------------------------------------------------------

def read_wave(path):
    with wave.open(str(path)) as w:
        form = (w.getframerate(), w.getsampwidth() * 8, w.getnchannels())
        samples = array.array("h", w.readframes(w.getnframes()))
    return form, samples


def db(value):
    return 20 * math.log10(max(value, 1e-9))


def loudness(path):
    out = subprocess.run(["ffmpeg", "-hide_banner", "-nostats", "-i", str(path), "-af", "ebur128=peak=true", "-f", "null", "-"],
                         capture_output=True, text=True, check=True).stderr
    summary = out[out.rindex("Summary:"):]
    return float(re.search(r"I:\s+(-?[\d.]+)", summary)[1]), float(re.search(r"Peak:\s+(-?[\d.]+|-inf)", summary)[1])


def levels(samples, step):
    """RMS of one piece of `step` samples after the other, full scale 1."""
    return [math.sqrt(sum(s * s for s in samples[i:i + step]) / step) / 32768 for i in range(0, len(samples) - step + 1, step)]


# ---- the checks ---------------------------------------------------------------------------------------------------

def check_music(path, work):
    name = path.stem
    piece = Piece(path)
    notes, lengths, tempos = read_midi(GAME / (name + ".mid"))

    if piece.end % piece.bar():
        fail(name, "the chords do not fill whole bars")
    for length, any_note in lengths[1:]:
        if any_note and abs(length - piece.end) > TICKS // 4:
            fail(name, f"a voice ends at tick {length}, the chords at {piece.end}")
    if PERCUSSION not in notes:
        fail(name, "no percussion")

    strong = [int(b * TICKS) for b in STRONG[piece.fields["M"]]]
    hits = total = 0
    for channel in sorted(notes):
        if channel == PERCUSSION:
            continue
        for start, end, pitch, _ in sorted(notes[channel]):
            tick = round(start / 60) * 60
            place = tick % piece.bar()
            bar = tick // piece.bar() + 1
            symbol, chord = Piece.at(piece.chords, tick)
            (scale,) = Piece.at(piece.keys, tick)
            on_chord = pitch % 12 in chord
            here = f"bar {bar} at {place / TICKS:g}: channel {channel} pitch {pitch} on {symbol}"
            if channel == MELODY and place in strong:
                total += 1
                hits += on_chord
            if place in strong and not on_chord:
                if pitch % 12 not in scale:
                    fail(name, here + " is neither in the chord nor in the scale")
                elif channel == BASS and place == 0:
                    fail(name, here + ": the bass leaves the chord on the first beat")
                elif verbose:
                    print("      off the chord:", here)
    share = hits / total
    if share < IN_CHORD:
        fail(name, f"only {share:.0%} of the melody's strong notes are of the chord")

    # Semitones struck together on a strong place, neither of them struck from the chord itself
    struck = {}
    for channel in notes:
        if channel != PERCUSSION:
            for start, end, pitch, _ in notes[channel]:
                struck.setdefault(round(start / 60) * 60, []).append((pitch, channel))
    for tick, together in sorted(struck.items()):
        symbol, chord = Piece.at(piece.chords, tick)
        for pitch, channel in together:
            for other, channel2 in together:
                if channel < channel2 and abs(pitch - other) % 12 in (1, 11) and not {pitch % 12, other % 12} <= chord:
                    if verbose:
                        print(f"      semitone: bar {tick // piece.bar() + 1} at {tick % piece.bar() / TICKS:g}:"
                              f" {channel}:{pitch} {channel2}:{other} on {symbol}")

    seconds = seconds_of(tempos, max(n[1] for c in notes for n in notes[c]))
    sound = work / (name + ".wav")
    subprocess.run(["fluidsynth", "-q", "-ni", "-g", GAIN, "-r", "44100", "-T", "wav", "-O", "s16", "-F", str(sound),
                    SOUNDFONT, str(GAME / (name + ".mid"))], capture_output=True, check=True)
    _, samples = read_wave(sound)
    lufs, peak = loudness(sound)
    level = levels(samples, 4410 * 2)
    while level and level[-1] < 10 ** (-50 / 20):
        level.pop()
    heard = len(level) / 10
    quiet = longest = 0
    for value in level[5:]:
        quiet = quiet + 1 if value < 10 ** (-50 / 20) else 0
        longest = max(longest, quiet)
    if longest >= 5:
        fail(name, f"{longest / 10:.1f} s of silence inside")
    if not MUSIC_SECONDS[0] <= heard <= MUSIC_SECONDS[1]:
        fail(name, f"lasts {heard:.1f} s")
    if seconds_of(tempos, max(length for length, _ in lengths)) - seconds > 3:
        fail(name, "nothing for long after the last note")
    if level[-1] > 10 ** (-38 / 20):
        fail(name, "breaks off")
    if not MUSIC_LUFS[0] <= lufs <= MUSIC_LUFS[1]:
        fail(name, f"loudness {lufs} LUFS")
    if peak > MUSIC_PEAK:
        fail(name, f"peak {peak} dBTP")
    print(f"{name}.mid  {heard:6.1f} s  {lufs:6.1f} LUFS  peak {peak:6.1f} dB  {piece.fields['M']:>4} {piece.fields['K']:<3}"
          f" strong notes of the chord {share:4.0%}  {piece.fields['T']}")


def check_sound(name):
    path = GAME / name
    if unicodedata.normalize("NFC", name) != name or not path.exists():
        fail(name, "missing")
        return
    form, samples = read_wave(path)
    if form != (44100, 16, 1):
        fail(name, f"format {form}")
    seconds = len(samples) / 44100
    lufs, peak = loudness(path)
    if max(samples) == 32767 or min(samples) == -32768 or peak > -0.5:
        fail(name, f"clipped or nearly so: {peak} dBTP")
    if seconds > SOUND_SECONDS.get(name, 2.5):
        fail(name, f"lasts {seconds:.2f} s")
    if seconds > 0.4 and abs(lufs - SOUND_LUFS) > 0.5:
        fail(name, f"loudness {lufs} LUFS")
    if max(abs(samples[0]), abs(samples[-1])) > 300:
        fail(name, "an edge clicks")
    first = next(i for i, s in enumerate(samples) if abs(s) > 1000) / 44.1
    if first > 30:
        fail(name, f"starts late, after {first:.0f} ms")
    more = ""
    if name == "Prisa.wav":
        cut = int(RESTART * 44100)
        rest = max(abs(s) for s in samples[cut - 441:cut + 2205]) / max(abs(s) for s in samples)
        more = f"  left at the restart {db(rest):.0f} dB"
        if rest > 0.02:
            fail(name, "still sounding where it is started again")
    print(f"{name:<12} {seconds:5.2f} s  {lufs:6.1f} LUFS  peak {peak:6.1f} dB{more}")


def main():
    with tempfile.TemporaryDirectory() as work:
        pieces = sorted(HERE.glob("Musica*.abc"))
        if [p.stem for p in pieces] != [f"Musica{n:02}" for n in range(1, 13)]:
            fail("music", "not twelve pieces")
        for path in pieces:
            check_music(path, Path(work))
        for name in SOUNDS:
            check_sound(name)
    print("something failed" if failed else "all well")
    return failed


if __name__ == "__main__":
    sys.exit(main())
