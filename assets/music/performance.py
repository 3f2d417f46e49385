"""Examines how a piece is played: time, loudness, chords."""
from itertools import groupby
from statistics import mean, median

import levels
import score
from perform import DYNAMICS, OFF, REACH, ROLL, accent
from score import MELODY, PERCUSSION

ENTRY = 4.0              # seconds, the melody has begun by then
BESIDE = (-14.5, -5)     # LU, percussion beside the melody
LENGTHENED = (0.02, 0.042)    # of the last bar of a phrase beside the other bars
SOFT, LOUD = 85, 100     # velocities: a piece without mf stays under the one, a piece with f goes beyond the other
SPAN = 26                # of the melody's velocities, at least
ACCENTED = 4             # velocities, the first note of the bar above those beside the beat, on the average
OFF_THE_BEAT = 0.015     # seconds, at most, as a root mean square
CORRELATED = 0.5         # how alike a note's deviation is to that of the one before, at least


def entry(played):
    return played.seconds(min(n.start for n in played.notes[MELODY]))


def span(played):
    velocities = [n.velocity for n in played.notes[MELODY]]
    return min(velocities), max(velocities)


def bars(piece, played):
    """Seconds of each bar before the first change of tempo that is written."""
    last = min(piece.changes, default=piece.end)
    return [played.seconds(at + piece.bar) - played.seconds(at) for at in range(0, last - piece.bar + 1, piece.bar)]


def tempo_spread(piece, played):
    """By how much the slowest of these bars is longer than the quickest."""
    lengths = bars(piece, played)
    return max(lengths) / min(lengths) - 1


def deviations(written, played):
    """Seconds by which each note of the melody comes early or late, of a double stop the first."""
    def starts(midi):
        return sorted(n.start for n in midi.notes[MELODY])

    if len(starts(written.midi)) != len(starts(played)):
        return []
    pairs = {}
    for at, there in zip(starts(written.midi), starts(played)):
        pairs.setdefault(at, there)
    return [played.seconds(there) - played.seconds(at) for at, there in pairs.items()]


def correlation(numbers):
    """Of each number with the next one."""
    middle = mean(numbers)
    off = [n - middle for n in numbers]
    return sum(a * b for a, b in zip(off, off[1:])) / max(sum(a * a for a in off), 1e-12)


def percussion_beside(played, work):
    """Loudness of the percussion beside the melody in LU."""
    heard = []
    for channel in (PERCUSSION, MELODY):
        score.write_midi(played, work / "voice.mid", [channel])
        levels.synthesize(work / "voice.mid", work / "voice.wav")
        heard.append(levels.loudness(work / "voice.wav")[0])
    return heard[0] - heard[1]


def faults(written, played):
    """What is wrong, a line each."""
    if entry(played) > ENTRY:
        yield f"the melody enters after {entry(played):.2f} s"
    yield from tempo(written.piece, played)
    yield from loudness(written.piece, played)
    yield from timing(written, played)
    yield from rolled(played)


def tempo(piece, played):
    lengths = bars(piece, played)
    ends = {phrase.end // piece.bar - 1 for phrase in piece.phrases}
    usual = median(length for number, length in enumerate(lengths) if number not in ends)
    for number in sorted(ends):
        if number < len(lengths) and not LENGTHENED[0] <= lengths[number] / usual - 1 <= LENGTHENED[1]:
            yield f"bar {number + 1} ends a phrase and is {lengths[number] / usual - 1:+.1%} longer than others"


def loudness(piece, played):
    notes = played.notes[MELODY]
    low, high = span(played)
    loudest = max((p.dynamics for p in piece.phrases), key=DYNAMICS.get)
    if high - low < SPAN:
        yield f"velocities of the melody span {high - low}"
    if high > DYNAMICS[loudest] + REACH:
        yield f"velocity {high} in a piece that is {loudest} at most"
    if DYNAMICS[loudest] < DYNAMICS["mf"] and high >= SOFT:
        yield f"velocity {high} in a piece without mf"
    if DYNAMICS[loudest] > DYNAMICS["mf"] and high < LOUD:
        yield f"velocity {high} in a piece with f"
    by_dynamics = {}
    for note in notes:
        by_dynamics.setdefault(piece.phrase_at(note.start).dynamics, []).append(note.velocity)
    in_order = [mean(by_dynamics[d]) for d in DYNAMICS if d in by_dynamics]
    if in_order != sorted(in_order):
        yield "a louder phrase is played softer"
    standing_out = list(first_beats(piece, notes))
    if standing_out and mean(standing_out) < ACCENTED:
        yield f"the first beat stands out by {mean(standing_out):.1f}"


def first_beats(piece, notes):
    """Of each bar that has both, how much louder its first note is than those beside the beat."""
    for number in range(piece.end // piece.bar):
        here = [(n, round((n.start - number * piece.bar) / 120) * 120) for n in notes]
        first = [n.velocity for n, place in here if place == 0]
        beside = [n.velocity for n, place in here if 0 < place < piece.bar and accent(piece, place) == OFF]
        if first and beside:
            yield mean(first) - mean(beside)


def timing(written, played):
    off = deviations(written, played)
    if not off:
        yield "the melody has other notes than are written"
        return
    usual = (sum(d * d for d in off) / len(off)) ** 0.5
    if usual > OFF_THE_BEAT:
        yield f"the melody is {usual * 1000:.0f} ms off the beat"
    if correlation(off) < CORRELATED:
        yield f"how late a note is says nothing of the next one ({correlation(off):.2f})"


def rolled(played):
    """Plucked strings sound one after the other."""
    channel = played.chord_channel()
    together = 0
    for _, strings in groupby(played.notes[channel], key=lambda n: n.start):
        strings = list(strings)
        together += len(strings) > 1 and played.program_at(channel, strings[0].start) in ROLL
    if together:
        yield f"{together} chords of plucked strings are struck all at once"
