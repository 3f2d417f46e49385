#!/usr/bin/env python3
"""Examines the music and the sounds that scripts/render-sound made.

Every piece: its notation (notation.py), its performance (performance.py), and what the game plays (length, loudness, peak, silence
inside, an end that dies away, made from this very MIDI file); of all twelve, that no two have the same colour. Every sound: format,
length, loudness, peak, clean edges, and its sum with the loudest music. Prints one line each; the exit code is 1 if anything fails.

Needs Python 3 with numpy, abcmidi, fluidsynth, ffmpeg and the SoundFont of the package musescore-general-soundfont.
"""
import hashlib
import subprocess
import sys
import tempfile
import unicodedata
from pathlib import Path

import levels
import notation
import performance
import score
from levels import db

HERE = Path(__file__).resolve().parent
GAME = HERE.parent / "game"

MUSIC_SECONDS = (60, 150)
MUSIC_LUFS = -20.0
MUSIC_PEAK = -7.5
SILENCE = 2.8            # seconds inside a piece, at most: a bar
END = -60                # dBFS, the last tenth of a second
APART = 3.0              # dB, the colours of any two pieces

SOUND_LUFS = {"Caída": -18, "Comodín": -18, "Prisa": -18, "Conseg": -16, "Diploma": -16, "Extra": -16, "Pal16": -16, "Pleno": -16,
              "Zar200": -16, "Teclado": -22}
DUCK = -10               # dB, by so much the game takes the music back for every sound
DUCK_SECONDS = 0.05      # but the click of a key, in so long
SOUND_SECONDS = {"Conseg": 8.0, "Diploma": 8.0, "Pleno": 3.5, "Pal16": 3.5}    # all others: 2.5
RESTART = 0.1            # Prisa starts again after this many seconds
SUM = -1.0               # dBFS, nothing that sounds together goes above

failed = False


def fail(name, text):
    global failed
    failed = True
    print(f"  FAIL {name}: {text}")


# ---- the music ------------------------------------------------------------------------------------------------------

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
    if longest > SILENCE * 10:
        fail(name, f"{longest / 10:.1f} s of silence inside")
    if not MUSIC_SECONDS[0] <= seconds <= MUSIC_SECONDS[1]:
        fail(name, f"lasts {seconds:.1f} s")
    if db(level[-1]) > END:
        fail(name, f"breaks off at {db(level[-1]):.0f} dBFS")
    if abs(lufs - MUSIC_LUFS) > 0.5:
        fail(name, f"loudness {lufs} LUFS")
    if peak > MUSIC_PEAK:
        fail(name, f"peak {peak} dBFS")
    return seconds, lufs, peak


def check_music(path, work):
    """Returns the peak of the piece in dBFS."""
    name, written = path.stem, notation.read(path, work)
    played = score.read_midi(GAME / (name + ".mid"))
    for fault in (*notation.faults(written), *performance.faults(written, played)):
        fail(name, fault)
    beside = performance.percussion_beside(played, work)
    if not performance.BESIDE[0] <= beside <= performance.BESIDE[1]:
        fail(name, f"percussion {beside:.1f} LU beside the melody")
    seconds, lufs, peak = check_rendered(name, work)
    fields = written.piece.fields
    print(f"{name}  {seconds:6.1f} s  {lufs:6.1f} LUFS  peak {peak:5.1f} dB  {fields['M']:>4} {fields['K']:<3} of the chord"
          f" {notation.share_of_chord(written):4.0%}  melody at {performance.entry(played):4.2f} s,"
          f" percussion {beside:6.1f} LU  {fields['T']}")
    return peak


def check_instruments(pieces, work):
    """Each piece has an instrument that no other has."""
    used = {}
    for path in pieces:
        midi = notation.read(path, work).midi
        used[path.stem] = {program for channel in midi.notes if channel != score.PERCUSSION for _, program in midi.programs[channel]}
    for name, programs in used.items():
        if not programs - set().union(*(others for other, others in used.items() if other != name)):
            fail(name, "has no instrument of its own")


def check_colours(pieces):
    """Each piece beside its nearest neighbour."""
    spectra = {path.stem: levels.spectrum(GAME / (path.stem + ".ogg")) for path in pieces}
    near = {}
    for name, spectrum in spectra.items():
        apart, other = min((levels.distance(spectrum, spectra[o]), o) for o in spectra if o != name)
        near[name] = (apart, other)
        if apart < APART:
            fail(name, f"sounds like {other}, {apart:.1f} dB apart")
    return near


def tell_table(pieces, near, work):
    """What makes each piece itself."""
    print("piece     commonest rhythm  melody      velocities  tempo    nearest in colour")
    for path in pieces:
        name, written, played = path.stem, notation.read(path, work), score.read_midi(GAME / (path.stem + ".mid"))
        share, kinds, bars = notation.variety(written)
        pitches = [n.pitch for n in written.midi.notes[score.MELODY]]
        low, high = performance.span(played)
        apart, other = near[name]
        print(f"{name}  {share:4.0%}, {kinds:2} in {bars:2}   {score.note_name(min(pitches)):>3} to {score.note_name(max(pitches)):<3}"
              f"  {low:3} to {high:3}  {performance.tempo_spread(written.piece, played):6.1%}  {apart:4.1f} dB from {other}")


# ---- the sounds -----------------------------------------------------------------------------------------------------

def check_sum(name, samples, music_peak):
    """The sound over the loudest music, which is still going back while the sound begins."""
    loudest = 10 ** (music_peak / 20)
    ducked = loudest if name == "Teclado" else loudest * 10 ** (DUCK / 20)
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
        check_instruments(pieces, Path(work))
        tell_table(pieces, check_colours(pieces), Path(work))
        for name in SOUND_LUFS:
            check_sound(name, music_peak)
    print("something failed" if failed else "all well")
    return failed


if __name__ == "__main__":
    sys.exit(main())
