#!/usr/bin/env python3
"""Examines the music and the sounds that scripts/render-sound made.

Every piece: its notation (equal voices, melody and bass against the chords and each other), its performance (when the melody
enters, how far its loudness reaches, how loud the percussion is beside it), and what the game plays (length, loudness, peak,
silence inside, a real ending, made from this very MIDI file). Every sound: format, length, loudness, peak, clean edges, and its
sum with the loudest music. Prints one line each; the exit code is 1 if anything fails. -v tells every note off its chord.

Needs Python 3, abcmidi, fluidsynth, ffmpeg and the SoundFont of the package musescore-general-soundfont.
"""
import hashlib
import subprocess
import sys
import tempfile
import unicodedata
from fractions import Fraction
from pathlib import Path

import levels
import score
from levels import db
from score import BASS, MELODY, PERCUSSION, TICKS

HERE = Path(__file__).resolve().parent
GAME = HERE.parent / "game"

MUSIC_SECONDS = (60, 150)
MUSIC_LUFS = -20.0
MUSIC_PEAK = -7.5
IN_CHORD = 0.75          # least share of the melody's strong notes that are notes of the chord
ENTRY = 4.0              # seconds, the melody has begun by then
SPAN = (30, 40)          # of the melody's velocities
BESIDE = (-14.5, -5)      # LU, percussion beside the melody

SOUND_LUFS = {"Caída": -18, "Comodín": -18, "Prisa": -18, "Conseg": -16, "Diploma": -16, "Extra": -16, "Pal16": -16, "Pleno": -16,
              "Zar200": -16, "Teclado": -22}
REWARDS = {"Conseg", "Diploma", "Extra", "Pal16", "Pleno", "Zar200"}    # the game takes the music back for them,
DUCK = -10               # dB, by so much,
DUCK_SECONDS = 0.05      # in so long
SOUND_SECONDS = {"Conseg": 8.0, "Diploma": 8.0, "Pleno": 3.5, "Pal16": 3.5}    # all others: 2.5
RESTART = 0.1            # Prisa starts again after this many seconds
SUM = -1.0               # dBFS, nothing that sounds together goes above

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


# ---- the notation ---------------------------------------------------------------------------------------------------

def notated(path, work):
    """The notes as written, on the grid."""
    midi = work / "notation.mid"
    subprocess.run(["abc2midi", str(path), "-o", str(midi)], capture_output=True, check=True)
    notes = score.read_midi(midi)
    for voice in notes.notes.values():
        for note in voice:
            note.start = round(note.start / 20) * 20
    return notes


def check_lengths(name, piece, written):
    if piece.end % piece.bar:
        fail(name, "the chords do not fill whole bars")
    for channel, notes in written.notes.items():
        if max(n.end for n in notes) > piece.end + TICKS // 4:
            fail(name, f"channel {channel} goes on behind the chords")
    if PERCUSSION not in written.notes:
        fail(name, "no percussion")


def check_harmony(name, piece, written):
    """Strong notes are in the chord or the scale; returns the share of the melody's that are in the chord."""
    strong = [int(b * TICKS) for b in STRONG[piece.fields["M"]]]
    hits = total = 0
    for channel in sorted(set(written.notes) - {PERCUSSION}):
        for note in written.notes[channel]:
            place = note.start % piece.bar
            if place not in strong:
                continue
            chord = piece.chord_at(note.start)
            on_chord = note.pitch % 12 in chord.notes
            here = f"bar {note.start // piece.bar + 1} at {place / TICKS:g}: channel {channel} pitch {note.pitch} on {chord.symbol}"
            if channel == MELODY:
                total += 1
                hits += on_chord
            if on_chord:
                continue
            if note.pitch % 12 not in score.scale_of(piece.key_at(note.start)):
                fail(name, here + " is neither in the chord nor in the scale")
            elif channel == BASS and place == 0:
                fail(name, here + ": the bass leaves the chord on the first beat")
            elif verbose:
                print("      off the chord:", here)
    if hits / total < IN_CHORD:
        fail(name, f"only {hits / total:.0%} of the melody's strong notes are of the chord")
    return hits / total


def check_false_relations(name, piece, written):
    """A melody note against the same letter of the chord a semitone beside, C against the C sharp of A7, is a slip."""
    for note in written.notes[MELODY]:
        letters, chord = score.spelling(piece.key_at(note.start)), piece.chord_at(note.start)
        written_on = letters.get(note.pitch % 12, letters.get((note.pitch - 1) % 12))
        against = chord.spelled().get(written_on)
        if against is not None and (note.pitch - against) % 12 in (1, 11):
            fail(name, f"bar {note.start // piece.bar + 1} at {note.start % piece.bar / TICKS:g}: another {written_on} than that of {chord.symbol}")


def check_parallels(name, piece, written):
    """Melody and bass do not go hand in hand at the octave or the fifth."""
    def sounding(tick):
        return next((n.pitch for n in written.notes[MELODY] if n.start <= tick < n.end), None)

    pairs = [(n.start, sounding(n.start), n.pitch) for n in written.notes[BASS]]
    for (_, high, low), (tick, higher, lower) in zip(pairs, pairs[1:]):
        if None in (high, higher) or (higher - high) * (lower - low) <= 0:
            continue
        if (high - low) % 12 == (higher - lower) % 12 and (high - low) % 12 in (0, 7):
            fail(name, f"bar {tick // piece.bar + 1} at {tick % piece.bar / TICKS:g}: melody and bass in parallels")


# ---- the performance ------------------------------------------------------------------------------------------------

def check_performance(name, played, work):
    """Entry of the melody in seconds, span of its velocities, percussion beside it in LU."""
    entry = played.seconds(min(n.start for n in played.notes[MELODY]))
    if entry > ENTRY:
        fail(name, f"the melody enters after {entry:.2f} s")
    velocities = [n.velocity for n in played.notes[MELODY]]
    span = max(velocities) - min(velocities)
    if not SPAN[0] <= span <= SPAN[1]:
        fail(name, f"velocities of the melody span {span}")
    heard = []
    for channel in (PERCUSSION, MELODY):
        score.write_midi(played, work / "voice.mid", [channel])
        levels.synthesize(work / "voice.mid", work / "voice.wav")
        heard.append(levels.loudness(work / "voice.wav")[0])
    beside = heard[0] - heard[1]
    if not BESIDE[0] <= beside <= BESIDE[1]:
        fail(name, f"percussion {beside:.1f} LU beside the melody")
    return entry, span, beside


def check_rendered(name, work):
    """Seconds, loudness and peak of what the game plays."""
    ogg = GAME / (name + ".ogg")
    source = "source=sha1:" + hashlib.sha1((GAME / (name + ".mid")).read_bytes()).hexdigest()
    if source.encode() not in ogg.read_bytes()[:4096]:
        fail(name, "was not rendered from this MIDI file")
    lufs, peak = levels.loudness(ogg)
    wav = work / "piece.wav"
    subprocess.run(["ffmpeg", "-loglevel", "error", "-y", "-i", str(ogg), "-ac", "1", str(wav)], check=True)
    (rate, _, _), samples = levels.read_wave(wav)
    level = levels.windows(samples, rate // 10)
    seconds = len(samples) / rate
    quiet = longest = 0
    for value in level[5:-10]:
        quiet = quiet + 1 if db(value) < -50 else 0
        longest = max(longest, quiet)
    if longest >= 5:
        fail(name, f"{longest / 10:.1f} s of silence inside")
    if not MUSIC_SECONDS[0] <= seconds <= MUSIC_SECONDS[1]:
        fail(name, f"lasts {seconds:.1f} s")
    if db(level[-1]) > -45:
        fail(name, "breaks off")
    if abs(lufs - MUSIC_LUFS) > 0.5:
        fail(name, f"loudness {lufs} LUFS")
    if peak > MUSIC_PEAK:
        fail(name, f"peak {peak} dBFS")
    return seconds, lufs, peak


def check_music(path, work):
    """Returns the peak of the piece in dBFS."""
    name, piece = path.stem, score.Piece(path)
    written = notated(path, work)
    check_lengths(name, piece, written)
    share = check_harmony(name, piece, written)
    check_false_relations(name, piece, written)
    check_parallels(name, piece, written)
    entry, span, beside = check_performance(name, score.read_midi(GAME / (name + ".mid")), work)
    seconds, lufs, peak = check_rendered(name, work)
    print(f"{name}  {seconds:6.1f} s  {lufs:6.1f} LUFS  peak {peak:5.1f} dB  {piece.fields['M']:>4} {piece.fields['K']:<3} of the chord"
          f" {share:4.0%}  melody at {entry:4.2f} s, span {span}, percussion {beside:6.1f} LU  {piece.fields['T']}")
    return peak


# ---- the sounds -----------------------------------------------------------------------------------------------------

def check_sum(name, samples, music_peak):
    """The sound over the loudest music, which is still going back while a reward begins."""
    loudest = 10 ** (music_peak / 20)
    ducked = loudest * 10 ** (DUCK / 20) if name in REWARDS else loudest
    ramp = int(DUCK_SECONDS * 44100)
    both = max(max(map(abs, samples[:ramp])) / 32768 + loudest, max(map(abs, samples[ramp:]), default=0) / 32768 + ducked)
    if db(both) > SUM:
        fail(name, f"{db(both):.1f} dBFS together with music")
    return db(both)


def check_restart(name, samples):
    cut = int(RESTART * 44100)
    rest = max(abs(s) for s in samples[cut - 441:cut + 2205]) / max(abs(s) for s in samples)
    if rest > 0.02:
        fail(name, f"still sounding at {db(rest):.0f} dB where it is started again")


def check_sound(name, music_peak):
    path = GAME / (name + ".wav")
    if unicodedata.normalize("NFC", name) != name or not path.exists():
        fail(name, "missing")
        return
    form, samples = levels.read_wave(path)
    if form != (44100, 16, 1):
        fail(name, f"format {form}")
    seconds = len(samples) / 44100
    lufs, peak = levels.loudness(path)
    if name == "Teclado":
        lufs = levels.click_loudness(path)
    if abs(lufs - SOUND_LUFS[name]) > 0.5:
        fail(name, f"loudness {lufs:.1f} LUFS")
    if seconds > SOUND_SECONDS.get(name, 2.5):
        fail(name, f"lasts {seconds:.2f} s")
    if max(abs(samples[0]), abs(samples[-1])) > 300:
        fail(name, "an edge clicks")
    first = next(i for i, s in enumerate(samples) if abs(s) > 1000) / 44.1
    if first > 30:
        fail(name, f"starts late, after {first:.0f} ms")
    if name == "Prisa":
        check_restart(name, samples)
    together = check_sum(name, samples, music_peak)
    print(f"{name:<8} {seconds:5.2f} s  {lufs:6.1f} LUFS  peak {peak:6.1f} dB  with music {together:5.1f} dB")


def main():
    with tempfile.TemporaryDirectory() as work:
        pieces = sorted(HERE.glob("Musica*.abc"))
        if [p.stem for p in pieces] != [f"Musica{n:02}" for n in range(1, 13)]:
            fail("music", "not twelve pieces")
        music_peak = max(check_music(path, Path(work)) for path in pieces)
        for name in SOUND_LUFS:
            check_sound(name, music_peak)
    print("something failed" if failed else "all well")
    return failed


if __name__ == "__main__":
    sys.exit(main())
