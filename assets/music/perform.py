#!/usr/bin/env python3
"""Plays a piece as musicians would: from the notation as abc2midi writes it to the MIDI file of the game.

    perform.py MusicaNN.abc NOTATION.mid OUT.mid

The tempo breathes with the phrases, loudness follows their dynamics and the metre, chords lie close, move by step and are rolled on
plucked strings, held notes swell, notes are tied or detached, players drift a little ahead and behind, and the percussion leads on
at the end of a phrase. Chance comes from a generator that the title seeds: the same sources give the same bytes.
"""
import math
import random
import sys
from itertools import groupby
from pathlib import Path

import score
from score import BASS, EXPRESSION, MELODY, PERCUSSION, ROOM, SECOND, TICKS, VOICES, VOLUME, Note

# Velocity of the melody in the middle of a phrase, by its dynamics, and how far above and below a note may be.
DYNAMICS = {"pp": 48, "p": 58, "mp": 68, "mf": 80, "f": 92, "ff": 104}
REACH = 16
ARCH = 9                         # from the edge of a phrase to its middle
HEIGHT = 0.5                     # for each semitone above the mean of the voice
BESIDE = {SECOND: -8, score.THIRD: -8, score.FOURTH: -8, BASS: -4}    # velocities beside the melody; of chords:
CHORDS_BESIDE = -14
PERCUSSION_GAIN = 1.5            # of the velocities as written, 7 dB

# What a place in the bar adds to the velocity, in quarter notes from the bar line; all other places:
ACCENTS = {
    "4/4": {0: 7, 1: -1, 2: 3, 3: -1}, "3/4": {0: 7, 1: -1, 2: 1}, "2/4": {0: 7, 0.75: 1, 1: 3, 1.5: 1},
    "6/8": {0: 7, 1.5: 4}, "3/8": {0: 7, 1: 1}, "5/8": {0: 7, 0.5: 2, 1.5: 4},
}
OFF = -4

LENGTHENED = {"phrase": 0.024, "period": 0.034}    # the last bar, where the dynamics go on and where they change
FLOW = 0.006                     # the middle of a phrase is so much faster

DRIFT = {MELODY: 0.009, PERCUSSION: 0.003, BASS: 0.005}    # seconds that a player is usually off; all others:
OTHERS_DRIFT = 0.007
MEMORY = 0.95                    # share of it that is left a sixteenth later

EARLY = 16                       # ticks, at any tempo here more than any drift
RING = 4.5                       # seconds after the last note
ROOM_SHARE = {BASS: 60, PERCUSSION: 80}    # of what sounds in the room; all others more
LOWEST = 55                      # no chord reaches below G3
HIGHEST = 77

# Seconds from string to string of a chord, by program; all others sound together.
ROLL = {24: 0.024, 25: 0.016, 46: 0.042, 6: 0.022, 15: 0.026, 107: 0.03, 45: 0.012, 11: 0.012}
SUSTAINED = {19, 20, 21, 22, 40, 41, 42, 43, 48, 56, 57, 58, 60, 68, 69, 70, 71, 72, 73, 74, 75, 78, 79, 109}    # these can swell
REST_EXPRESSION = 104            # between swells
SWELL_SECONDS = 0.7              # a note held that long swells,
DEEPEST_SWELL = 2.0              # and the longer, the more


class Performer:
    def __init__(self, piece, midi):
        self.piece, self.midi = piece, midi
        self.chance = random.Random(midi.title)
        self.chords = midi.chord_channel()
        self.straighten()

    def play(self):
        self.breathe()
        self.voice_chords()
        for channel in (*VOICES, BASS, self.chords):
            if channel in self.midi.notes:
                self.shape(channel)
                self.articulate(channel)
        self.fill()
        self.shape_percussion()
        for channel in self.midi.notes:
            self.express(channel)
            self.drift(channel)
        last = max(n.end for notes in self.midi.notes.values() for n in notes)
        self.midi.end = last + self.midi.ticks(last, RING)
        self.midi.controls[MELODY].append((self.midi.end, EXPRESSION, REST_EXPRESSION))    # a player goes on until the last event
        return self.midi

    def straighten(self):
        """abc2midi begins notes one tick late. A change of instrument comes early enough for a note that drifts."""
        for notes in self.midi.notes.values():
            for note in notes:
                note.start = round(note.start / 20) * 20
        for table in (self.midi.programs, self.midi.controls):
            for channel, changes in table.items():
                table[channel] = [(max(0, tick - EARLY), *change) for tick, *change in changes]

    # ---- time ----

    def breathe(self):
        """Each phrase flows a little in its middle and takes its time at the end."""
        step = TICKS // 4
        written = self.midi.tempos
        tempos = []
        for tick in range(0, self.piece.end + 1, step):
            speed = [value for at, value in written if at <= tick][-1]
            tempos.append((tick, round(speed * self.stretch(tick))))
        self.midi.tempos = [t for before, t in zip([None] + tempos, tempos) if before is None or before[1] != t[1]]

    def stretch(self, tick):
        """How much longer than written time is here: the last bar of a phrase ever more from its first beat on."""
        phrase = self.piece.phrase_at(tick)
        into_last = 1 - (phrase.end - tick) / self.piece.bar
        if into_last < 0:
            return 1 - FLOW * math.sin(math.pi * (tick - phrase.start) / (phrase.end - phrase.start))
        following = self.piece.phrase_at(phrase.end)
        longer = LENGTHENED["phrase" if following.dynamics == phrase.dynamics else "period"]
        return 1 + longer * 2 * into_last

    def drift(self, channel):
        """Nobody is exactly on the beat, and who is late now is late a moment later too."""
        usual = DRIFT.get(channel, OTHERS_DRIFT)
        step, off = TICKS // 4, 0.0
        late = []
        for _ in range(self.midi.end // step + 2):
            off = MEMORY * off + self.chance.gauss(0, usual * math.sqrt(1 - MEMORY ** 2))
            late.append(max(-2 * usual, min(2 * usual, off)))
        ends = {}
        for note in self.midi.notes[channel]:
            ticks = self.midi.ticks(note.start, late[note.start // step])
            note.start = max(0, note.start + ticks)
            note.end = max(note.start + 10, note.end + ticks)
            before = ends.get(note.pitch)
            if before and before.end >= note.start:
                before.end = max(before.start + 1, note.start - 1)
            ends[note.pitch] = note

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
        """Velocities that follow the phrase, the metre and the line."""
        notes = self.midi.notes[channel]
        mean = sum(n.pitch for n in notes) / len(notes)
        beside = CHORDS_BESIDE if channel == self.chords else BESIDE.get(channel, 0)
        touch = 0.0
        for note in notes:
            touch = 0.7 * touch + self.chance.gauss(0, 1.2)
            line = HEIGHT * max(-12, min(12, note.pitch - mean))
            off = self.swell(note.start) + accent(self.piece, note.start) + line + touch
            level = DYNAMICS[self.piece.phrase_at(note.start).dynamics]
            note.velocity = round(level + beside + max(-REACH, min(REACH, off)))

    def swell(self, tick):
        """An arch over the phrase that leans towards the next one; the last bars die away."""
        phrase = self.piece.phrase_at(tick)
        place = (tick - phrase.start) / (phrase.end - phrase.start)
        arch = ARCH * (math.sin(math.pi * place ** 1.2) - 0.5)
        lean = (DYNAMICS[self.piece.phrase_at(phrase.end).dynamics] - DYNAMICS[phrase.dynamics]) / 2 * max(0, 2 * place - 1)
        left = (self.piece.end - tick) / self.piece.bar
        return arch + lean - (8 * (3 - left) / 3 if left < 3 else 0)

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
            elif self.piece.phrase_at(following.start).start == following.start:
                gate = 0.85
            else:
                leap = abs(following.pitch - note.pitch)
                gate = 0.84 if leap == 0 else 1.0 if leap <= 2 else 0.93 if leap <= 7 else 0.87
            note.end = note.start + max(TICKS // 16, round(held * gate))
        self.roll(channel)

    def roll(self, channel):
        """The strings of a chord one after the other, downwards off the beat."""
        groups = [list(g) for _, g in groupby(self.midi.notes[channel], key=lambda n: n.start)]
        for strings in groups:
            start = strings[0].start
            step = ROLL.get(self.midi.program_at(channel, start), 0)
            if step == 0 or len(strings) < 2:
                continue
            last = strings is groups[-1]
            offbeat = accent(self.piece, start) == OFF
            for i, note in enumerate(sorted(strings, key=lambda n: -n.pitch if offbeat else n.pitch)):
                late = self.midi.ticks(start, step * i * (2.5 if last else 1))
                note.start = min(start + late, note.end - 10)
                if offbeat:
                    note.velocity = max(1, note.velocity - 2 * i)

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
        """One more stroke leads from phrase to phrase; where the dynamics change the last beats become a run."""
        notes = self.midi.notes[PERCUSSION]
        bar = self.piece.bar
        for phrase, following in zip(self.piece.phrases[1:], self.piece.phrases[2:]):
            start = phrase.end - bar
            here = [n for n in notes if start <= n.start < phrase.end]
            if not here:
                continue
            if following.dynamics != phrase.dynamics:
                run = self.run(here, start)
                notes = [n for n in notes if not run[0].start <= n.start < phrase.end] + run
            else:
                lead = max(here, key=lambda n: n.start)
                notes.append(Note(phrase.end - TICKS // 4, phrase.end - TICKS // 8, lead.pitch, round(lead.velocity * 0.8)))
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
            level = DYNAMICS[self.piece.phrase_at(note.start).dynamics] - DYNAMICS["mf"]
            wish = note.velocity * PERCUSSION_GAIN + 0.5 * (level + self.swell(note.start)) + self.chance.uniform(-4, 4)
            note.velocity = max(12, min(127, round(wish)))


def accent(piece, tick):
    """What the metre adds to the velocity."""
    return ACCENTS[piece.fields["M"]].get(tick % piece.bar / TICKS, OFF)


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
