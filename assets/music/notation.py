"""Examines a piece as it is written: the voices against the chords and against each other, their ranges, their rhythms."""
import subprocess
from collections import Counter
from dataclasses import dataclass
from fractions import Fraction
from itertools import combinations

import score
from score import BASS, FOURTH, MELODY, PERCUSSION, SECOND, THIRD, TICKS

IN_CHORD = 0.75          # least share of the melody's strong notes that are notes of the chord
RUBBED = 0.4             # seconds that two voices may stand a semitone apart, on notes that are not both of the chord
STRUCK = 0.35            # the same for a voice beside a note of a chord that is struck
RING = 0.5               # seconds that a struck chord is heard
LEANING = 0.9            # seconds that a note above the bass may lean on the chord if it goes on by step
SAME_RHYTHM = 0.34       # of the melody's bars have one rhythm, at most

NAMES = {MELODY: "melody", SECOND: "second voice", THIRD: "third voice", FOURTH: "fourth voice", BASS: "bass"}

# Strong places of a bar, in quarter notes.
STRONG = {
    "4/4": (0, 2), "3/4": (0,), "2/4": (0, 1), "6/8": (0, Fraction(3, 2)), "3/8": (0,), "5/8": (0, Fraction(1, 2), Fraction(3, 2)),
}

# Lowest and highest note of an instrument, by its program.
RANGES = {
    0: (21, 108),     # piano
    4: (28, 103),     # electric piano
    6: (29, 89),      # harpsichord
    8: (60, 108),     # celesta
    9: (79, 108),     # glockenspiel
    10: (60, 103),    # music box
    11: (53, 89),     # vibraphone
    12: (36, 96),     # marimba
    15: (36, 88),     # struck strings
    19: (36, 96),     # organ
    21: (48, 93),     # accordion
    22: (48, 96),     # mouth organ
    24: (40, 83),     # guitar
    25: (40, 93),     # plucked steel strings, from the lute to the bandurria
    32: (28, 67),     # double bass, plucked
    33: (28, 67),     # electric bass
    40: (55, 100),    # violin
    42: (36, 76),     # cello, viol
    43: (28, 67),     # double bass, bowed
    45: (28, 91),     # plucked strings
    46: (23, 103),    # harp
    47: (36, 57),     # kettledrums
    48: (28, 100),    # strings
    56: (52, 82),     # trumpet
    58: (28, 65),     # tuba
    60: (34, 77),     # horn
    68: (58, 91),     # oboe
    69: (52, 81),     # English horn
    70: (34, 72),     # bassoon
    71: (50, 91),     # clarinet
    72: (74, 108),    # piccolo
    73: (60, 96),     # flute
    74: (60, 98),     # recorder
    75: (55, 91),     # pan flute
    78: (67, 96),     # whistle
}


@dataclass
class Written:
    """A piece and its notes on the grid."""
    piece: score.Piece
    midi: score.Midi

    def where(self, tick):
        return f"bar {tick // self.piece.bar + 1}, beat {tick % self.piece.bar / TICKS + 1:g}"

    @property
    def voices(self):
        return [channel for channel in NAMES if channel in self.midi.notes]


def read(path, work):
    """The notes as abc2midi takes them from the notation, which begins them one tick late."""
    target = work / "notation.mid"
    subprocess.run(["abc2midi", str(path), "-o", str(target)], capture_output=True, check=True)
    midi = score.read_midi(target)
    for voice in midi.notes.values():
        for note in voice:
            note.start = round(note.start / 20) * 20
            note.end = round(note.end / 20) * 20
    return Written(score.Piece(path), midi)


def faults(written):
    """What is wrong, a line each."""
    for examine in (lengths, harmony, false_relations, parallels, rubs, chords_against, ranges, rhythm):
        yield from examine(written)


def lengths(written):
    piece, midi = written.piece, written.midi
    if piece.phrases[-1].end != piece.end:
        yield f"the phrases have {piece.phrases[-1].end / piece.bar:g} bars, the piece {piece.end / piece.bar:g}"
    if piece.end % piece.bar:
        yield "the chords do not fill whole bars"
    for channel, notes in midi.notes.items():
        if max(n.end for n in notes) > piece.end + TICKS // 4:
            yield f"channel {channel} goes on behind the chords"
    if PERCUSSION not in midi.notes:
        yield "no percussion"


def strong_notes(written, channel):
    """(note, chord, whether it is of the chord) on the strong places of the bar."""
    strong = [int(b * TICKS) for b in STRONG[written.piece.fields["M"]]]
    for note in written.midi.notes[channel]:
        if note.start % written.piece.bar in strong:
            chord = written.piece.chord_at(note.start)
            yield note, chord, note.pitch % 12 in chord.notes


def share_of_chord(written):
    """How many of the melody's strong notes are notes of the chord, 0 to 1."""
    hits = [hit for _, _, hit in strong_notes(written, MELODY)]
    return sum(hits) / len(hits)


def harmony(written):
    """Strong notes are in the chord or the scale; the bass begins each bar in the chord."""
    for channel in written.voices:
        for note, chord, hit in strong_notes(written, channel):
            here = f"{written.where(note.start)}: {NAMES[channel]} {score.note_name(note.pitch)} on {chord.symbol}"
            if not hit and note.pitch % 12 not in score.scale_of(written.piece.key_at(note.start)):
                yield here + " is neither in the chord nor in the scale"
            elif not hit and channel == BASS and note.start % written.piece.bar == 0:
                yield here + " leaves the chord on the first beat"
    share = share_of_chord(written)
    if share < IN_CHORD:
        yield f"only {share:.0%} of the melody's strong notes are of the chord"


def false_relations(written):
    """A melody note against the same letter of the chord a semitone beside, C against the C sharp of A7, is a slip."""
    for note in written.midi.notes[MELODY]:
        letters, chord = score.spelling(written.piece.key_at(note.start)), written.piece.chord_at(note.start)
        letter = letters.get(note.pitch % 12, letters.get((note.pitch - 1) % 12))
        against = chord.spelled().get(letter)
        if against is not None and (note.pitch - against) % 12 in (1, 11):
            yield f"{written.where(note.start)}: another {letter} than that of {chord.symbol}"


def sounding(notes, tick):
    """The pitch of a voice at a moment, None in a rest; of several notes the highest."""
    return max((n.pitch for n in notes if n.start <= tick < n.end), default=None)


def parallels(written):
    """Melody and bass do not go hand in hand at the octave or the fifth, from any note of either to the next nor from one
    bass note to the next."""
    high, low = written.midi.notes[MELODY], written.midi.notes[BASS]
    found = set()
    for ticks in ({n.start for n in low}, {n.start for n in low} | {n.start for n in high}):
        at = [(tick, sounding(high, tick), sounding(low, tick)) for tick in sorted(ticks)]
        for (before, upper, lower), (tick, upper2, lower2) in zip(at, at[1:]):
            if None in (upper, lower, upper2, lower2) or (upper2 - upper) * (lower2 - lower) <= 0:
                continue
            if (upper - lower) % 12 == (upper2 - lower2) % 12 and (upper - lower) % 12 in (0, 7):
                found.add((tick, before, (upper - lower) % 12))
    for tick, before, interval in sorted(found):
        kind = "fifths" if interval else "octaves"
        yield f"{written.where(before)} to {written.where(tick)}: melody and bass in parallel {kind}"


def semitone(a, b):
    return (a - b) % 12 in (1, 11)


def rubs(written):
    """Two voices do not stand a semitone apart for long, unless the chord has both notes."""
    midi, piece = written.midi, written.piece
    for one, other in combinations(written.voices, 2):
        for a in midi.notes[one]:
            for b in midi.notes[other]:
                start, end = max(a.start, b.start), min(a.end, b.end)
                if end <= start or not semitone(a.pitch, b.pitch):
                    continue
                if {a.pitch % 12, b.pitch % 12} <= set(piece.chord_at(start).notes):
                    continue
                if midi.seconds(end) - midi.seconds(start) >= RUBBED:
                    yield (f"{written.where(start)}: {NAMES[one]} {score.note_name(a.pitch)} against {NAMES[other]}"
                           f" {score.note_name(b.pitch)}")


def chords_against(written):
    """No voice stands a semitone beside a note of the chord that is struck under it while the chord is heard, but for a
    suspension or a passing note."""
    midi, piece = written.midi, written.piece

    def leans(channel, note):
        following = min((n for n in midi.notes[channel] if n.start >= note.end), key=lambda n: n.start, default=note)
        steps = channel != BASS and abs(following.pitch - note.pitch) <= 2
        return steps and midi.seconds(note.end) - midi.seconds(note.start) <= LEANING

    strikes = sorted({n.start for n in midi.notes[midi.chord_channel()]})
    for tick in strikes:
        chord = piece.chord_at(tick)
        heard = min(tick + midi.ticks(tick, RING), min((c.tick for c in piece.chords if c.tick > tick), default=piece.end))
        for channel in written.voices:
            for note in midi.notes[channel]:
                start, end = max(note.start, tick), min(note.end, heard)
                if start >= end or note.pitch % 12 in chord.notes or midi.seconds(end) - midi.seconds(start) < STRUCK:
                    continue
                if any(semitone(note.pitch, pitch) for pitch in chord.notes) and not leans(channel, note):
                    yield f"{written.where(tick)}: {NAMES[channel]} {score.note_name(note.pitch)} against {chord.symbol}"


def ranges(written):
    """Every voice stays within its instrument."""
    for channel in written.voices:
        for note in written.midi.notes[channel]:
            program = written.midi.program_at(channel, note.start)
            low, high = RANGES.get(program, (0, 0))
            if not low <= note.pitch <= high:
                yield f"{written.where(note.start)}: {NAMES[channel]} {score.note_name(note.pitch)} is beyond program {program}"


def rhythms(written):
    """How often each rhythm of a bar of the melody occurs; a rhythm is the places and lengths of the notes that begin in it."""
    bars = Counter()
    bar = written.piece.bar
    for number in range(written.piece.end // bar):
        notes = [n for n in written.midi.notes[MELODY] if number * bar <= n.start < (number + 1) * bar]
        if notes:
            bars[tuple((n.start % bar, n.end - n.start) for n in notes)] += 1
    return bars


def variety(written):
    """(share of the commonest rhythm, number of rhythms, number of bars)"""
    bars = rhythms(written)
    return max(bars.values()) / bars.total(), len(bars), bars.total()


def rhythm(written):
    share, _, bars = variety(written)
    if share > SAME_RHYTHM:
        yield f"{share:.0%} of {bars} bars have one rhythm"
