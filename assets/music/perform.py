#!/usr/bin/env python3
"""Plays a piece as musicians would: from the notation as abc2midi writes it to the MIDI file of the game.

    perform.py MusicaNN.abc NOTATION.mid OUT.mid

Chords lie close and move by step, strings are strummed and rolled, loudness follows the phrase, held notes swell, notes are
tied or detached, nobody is exactly on the beat, and the percussion fills the last bar of eight. Chance comes from a
generator that the title seeds: the same sources give the same bytes.
"""
import math
import random
import sys
from itertools import groupby
from pathlib import Path

import score
from score import BASS, EXPRESSION, MELODY, PERCUSSION, ROOM, SECOND, TICKS, VOICES, VOLUME, Note

PHRASE, PERIOD = 4, 8            # bars

# Velocities of each voice, softest and loudest.
SPAN = {MELODY: (64, 100), SECOND: (56, 84), score.THIRD: (56, 84), score.FOURTH: (56, 84), BASS: (60, 88)}
CHORD_SPAN = (50, 78)
PERCUSSION_GAIN = 1.5            # of the velocities as written, 7 dB

LOOSE = 0.006                    # seconds, how far a note may be from its place
EARLY = 16                       # ticks, at any tempo here more than that
RING = 2.5                       # seconds after the last note
ROOM_SHARE = {BASS: 60, PERCUSSION: 80}    # of what sounds in the room; all others more
LOWEST = 55                      # no chord reaches below G3
HIGHEST = 77

# Seconds from string to string of a chord, by program; all others sound together.
ROLL = {24: 0.014, 25: 0.011, 46: 0.032, 6: 0.012, 45: 0.006, 11: 0.006}
SUSTAINED = {21, 40, 42, 48, 60, 68, 69, 70, 71, 73, 74, 75, 79}    # what is blown or bowed can swell
REST_EXPRESSION = 104            # between swells
SWELL_SECONDS = 0.7              # a note held that long swells,
DEEPEST_SWELL = 2.0              # and the longer, the more


class Performer:
    def __init__(self, piece, midi):
        self.piece, self.midi = piece, midi
        self.chance = random.Random(midi.title)
        self.chords = midi.chord_channel()
        self.straighten()
        self.first_bar = midi.notes[MELODY][0].start // piece.bar

    def play(self):
        self.voice_chords()
        for channel in (*VOICES, BASS, self.chords):
            if channel in self.midi.notes:
                self.shape(channel)
                self.articulate(channel)
        self.fill()
        self.shape_percussion()
        for channel in self.midi.notes:
            self.express(channel)
            self.loosen(channel)
        last = max(n.end for notes in self.midi.notes.values() for n in notes)
        self.midi.end = last + self.midi.ticks(last, RING)
        self.midi.controls[MELODY].append((self.midi.end, EXPRESSION, REST_EXPRESSION))    # a player goes on until the last event
        return self.midi

    def straighten(self):
        """abc2midi begins notes one tick late. A change of instrument comes early enough for a note that is loosened."""
        for notes in self.midi.notes.values():
            for note in notes:
                note.start = round(note.start / 20) * 20
        for table in (self.midi.programs, self.midi.controls):
            for channel, changes in table.items():
                table[channel] = [(max(0, tick - EARLY), *change) for tick, *change in changes]

    # ---- chords ----

    def voice_chords(self):
        """Inversions that move by step in place of root positions; what a strike was told in velocity becomes volume."""
        struck = self.midi.notes[self.chords]
        self.midi.controls[self.chords] = [(max(0, n.start - EARLY), VOLUME, n.velocity)
                                           for before, n in zip([None] + struck, struck)
                                           if before is None or before.velocity != n.velocity]
        played, at, last = [], None, None
        for start, together in groupby(struck, key=lambda n: n.start):
            together = list(together)
            chord = self.piece.chord_at(start)
            if chord is not at:
                at, last = chord, nearest_voicing(chord, last)
            strings = last if len(together) > 2 else [last[chord.notes.index(together[0].pitch % 12)]]
            played += [Note(start, together[0].end, pitch, 64) for pitch in strings]
        self.midi.notes[self.chords] = played

    # ---- loudness ----

    def shape(self, channel):
        """Velocities that follow the phrase, the beat and the line, over the whole span of the voice."""
        notes = self.midi.notes[channel]
        mean = sum(n.pitch for n in notes) / len(notes)
        wish = [self.phrase(n.start) + self.accent(n.start) + 0.6 * max(-10, min(10, n.pitch - mean)) +
                self.chance.uniform(-1.5, 1.5) for n in notes]
        low, high = SPAN.get(channel, CHORD_SPAN)
        least, most = min(wish), max(wish)
        for note, w in zip(notes, wish):
            note.velocity = round(low + (high - low) * (w - least) / (most - least))

    def phrase(self, tick):
        """An arch over four bars; the answering phrase is softer, the last bars die away."""
        bars = tick / self.piece.bar - self.first_bar
        place = bars / PHRASE % 1
        arch = 10 * math.sin(math.pi * place ** 1.3)
        answer = -3 if bars / PHRASE % 2 >= 1 else 0
        left = (self.piece.end - tick) / self.piece.bar
        return arch + answer - (6 * (3 - left) / 3 if left < 3 else 0)

    def accent(self, tick):
        place = tick % self.piece.bar
        if place == 0:
            return 5
        return 1 if place % self.beat() == 0 else -3

    def beat(self):
        return TICKS * 3 // 2 if self.piece.fields["M"] in ("6/8", "3/8") else TICKS

    # ---- length and place ----

    def articulate(self, channel):
        """Steps are tied, leaps and repeated notes detached, the end of a phrase takes a breath; chords are rolled."""
        notes = self.midi.notes[channel]
        after = {a.start: b for a, b in zip(notes, notes[1:]) if b.start > a.start}
        for note in notes:
            following = after.get(note.start)
            held = note.end - note.start
            if following is None or following.start - note.end > TICKS // 8:
                gate = 0.94
            elif (following.start // self.piece.bar - self.first_bar) % PHRASE == 0 and following.start % self.piece.bar == 0:
                gate = 0.88
            else:
                leap = abs(following.pitch - note.pitch)
                gate = 0.84 if leap == 0 else 1.0 if leap <= 2 else 0.93 if leap <= 7 else 0.87
            note.end = note.start + max(TICKS // 16, round(held * gate))
        self.roll(channel)

    def roll(self, channel):
        groups = [list(g) for _, g in groupby(self.midi.notes[channel], key=lambda n: n.start)]
        for strings in groups:
            start = strings[0].start
            step = ROLL.get(self.midi.program_at(channel, start), 0)
            if step == 0 or len(strings) < 3:
                continue
            last = strings is groups[-1]
            offbeat = start % self.beat() != 0
            for i, note in enumerate(sorted(strings, key=lambda n: -n.pitch if offbeat else n.pitch)):
                late = self.midi.ticks(start, step * i * (2.5 if last else 1))
                note.start = min(start + late, note.end - 10)
                if offbeat:
                    note.velocity = max(1, note.velocity - 2 * i)

    def loosen(self, channel):
        """A few milliseconds early or late; what is struck together stays together."""
        late = {}
        ends = {}
        for note in self.midi.notes[channel]:
            place = note.start // (TICKS // 8)
            if place not in late:
                late[place] = self.midi.ticks(note.start, self.chance.uniform(-LOOSE, LOOSE))
            note.start = max(0, note.start + late[place])
            note.end = max(note.start + 10, note.end + late[place])
            before = ends.get(note.pitch)
            if before and before.end >= note.start:
                before.end = max(before.start + 1, note.start - 1)
            ends[note.pitch] = note

    def express(self, channel):
        """Held notes of wind and strings grow and fade, the last one dies away; all others keep one expression."""
        out = [(0, EXPRESSION, REST_EXPRESSION)]
        for start, together in groupby(self.midi.notes[channel], key=lambda n: n.start):
            end = max(n.end for n in together)
            held = self.midi.seconds(end) - self.midi.seconds(start)
            sustained = channel != PERCUSSION and self.midi.program_at(channel, start) in SUSTAINED
            if not sustained or held < SWELL_SECONDS or channel == self.chords:
                out.append((start, EXPRESSION, REST_EXPRESSION))
                continue
            last = end == self.midi.notes[channel][-1].end
            depth = min(1, held / DEEPEST_SWELL)
            for tick in range(start, end, 40):
                place = (tick - start) / (end - start)
                swell = -2.2 * place if last else math.sin(math.pi * place ** 0.8)
                out.append((tick, EXPRESSION, round(REST_EXPRESSION + depth * (28 * swell - 8))))
        kept = [e for before, e in zip([None] + out, out) if before is None or before[2] != e[2]]
        room = [(0, ROOM, ROOM_SHARE.get(channel, 110))]
        self.midi.controls[channel] = sorted(self.midi.controls[channel] + room + kept)

    # ---- percussion ----

    def fill(self):
        """The last beats of every eighth bar become a run, and the fourth bar of each leads on with one more stroke."""
        notes = self.midi.notes[PERCUSSION]
        bar = self.piece.bar
        last_bar = self.piece.end // bar - 2
        for number in range(self.first_bar, last_bar):
            start = number * bar
            here = [n for n in notes if start <= n.start < start + bar]
            place = (number - self.first_bar) % PERIOD
            if not here or place % PHRASE != PHRASE - 1:
                continue
            if place == PERIOD - 1:
                run = self.run(here, start)
                notes = [n for n in notes if not run[0].start <= n.start < start + bar] + run
            else:
                lead = max(here, key=lambda n: n.start)
                notes.append(Note(start + bar - TICKS // 4, start + bar - TICKS // 8, lead.pitch, round(lead.velocity * 0.8)))
        self.midi.notes[PERCUSSION] = sorted(notes, key=lambda n: (n.start, n.pitch))

    def run(self, here, start):
        """Strokes in sixteenths over the last beat, in a triangle's case three in eighths, that grow."""
        pitches = sorted({n.pitch for n in here}, key=lambda p: -sum(n.pitch == p for n in here))[:2]
        ringing = set(pitches) <= {80, 81}
        step = TICKS // 2 if ringing else TICKS // 4
        length = min(self.piece.bar // 2 // step, 3 if ringing else 6) * step
        loud = max(n.velocity for n in here)
        times = range(start + self.piece.bar - length, start + self.piece.bar, step)
        return [Note(t, t + step, 80 if ringing else pitches[i % len(pitches)], round(loud * (0.6 + 0.4 * i / len(times))))
                for i, t in enumerate(times)]

    def shape_percussion(self):
        for note in self.midi.notes[PERCUSSION]:
            wish = note.velocity * PERCUSSION_GAIN + 0.5 * self.phrase(note.start) + self.chance.uniform(-4, 4)
            note.velocity = max(12, min(127, round(wish)))


def nearest_voicing(chord, last):
    """The inversion in close position that moves least from the last one."""
    choices = []
    for turn in range(len(chord.notes)):
        order = chord.notes[turn:] + chord.notes[:turn]
        for low in range(LOWEST, LOWEST + 12):
            if low % 12 != order[0]:
                continue
            pitches = [low]
            for note in order[1:]:
                pitches.append(pitches[-1] + (note - pitches[-1]) % 12)
            if pitches[-1] <= HIGHEST:
                choices.append(pitches)
    centre = (LOWEST + HIGHEST) / 2

    def cost(pitches):
        home = abs(sum(pitches) / len(pitches) - centre)
        if last is None:
            return home
        return sum(min(abs(p - q) for q in last) for p in pitches) + sum(min(abs(p - q) for p in pitches) for q in last) + 0.3 * home

    return min(choices, key=cost)


def main():
    notation, source, target = map(Path, sys.argv[1:])
    score.write_midi(Performer(score.Piece(notation), score.read_midi(source)).play(), target)


if __name__ == "__main__":
    main()
