"""What a piece is made of: its notation (ABC) as chords and keys along the time, and its MIDI file as notes and controls."""
import re
import struct
from collections import defaultdict
from dataclasses import dataclass, field

TICKS = 480              # per quarter note, as abc2midi writes

# MIDI channels from 1, the same in every piece; the chords lie on whichever channel abc2midi gives them.
MELODY, SECOND, BASS, THIRD, FOURTH, PERCUSSION = 11, 12, 13, 14, 15, 10
VOICES = (MELODY, SECOND, THIRD, FOURTH)

VOLUME, EXPRESSION, ROOM = 7, 11, 91    # controls

LETTERS = "CDEFGAB"
NATURAL = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
SIGN = {"b": -1, "#": 1}
QUALITY = {
    "": (0, 4, 7), "m": (0, 3, 7), "7": (0, 4, 7, 10), "m7": (0, 3, 7, 10), "maj7": (0, 4, 7, 11), "6": (0, 4, 7, 9),
    "m6": (0, 3, 7, 9), "dim": (0, 3, 6), "sus4": (0, 5, 7),
}
DEGREE = {0: 0, 3: 2, 4: 2, 5: 3, 6: 4, 7: 4, 9: 5, 10: 6, 11: 6}    # how many letters above the root a note is written


def pitch_class(name):
    """0 to 11 for a letter with its signs, such as Bb."""
    return (NATURAL[name[0].upper()] + sum(SIGN[sign] for sign in name[1:])) % 12


def note_name(pitch):
    """C4 for 60; black keys as sharps."""
    return ("C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B")[pitch % 12] + str(pitch // 12 - 1)


def scale_of(key):
    """Pitch classes of a key; a minor one has both sixths and both sevenths."""
    root, minor = re.match(r"([A-G][b#]?)(m?)$", key).groups()
    steps = (0, 2, 3, 5, 7, 8, 9, 10, 11) if minor else (0, 2, 4, 5, 7, 9, 11)
    return {(pitch_class(root) + s) % 12 for s in steps}


def spelling(key):
    """{pitch class: letter} of the seven notes of a key."""
    root, minor = re.match(r"([A-G][b#]?)(m?)$", key).groups()
    first = LETTERS.index(root[0])
    steps = (0, 2, 3, 5, 7, 8, 10) if minor else (0, 2, 4, 5, 7, 9, 11)
    return {(pitch_class(root) + step) % 12: LETTERS[(first + i) % 7] for i, step in enumerate(steps)}


@dataclass
class Chord:
    tick: int
    symbol: str
    notes: tuple             # pitch classes from the root upwards

    def spelled(self):
        """{letter: pitch class} of its notes as they are written."""
        root = LETTERS.index(self.symbol[0])
        return {LETTERS[(root + DEGREE[(note - self.notes[0]) % 12]) % 7]: note for note in self.notes}


@dataclass
class Phrase:
    start: int               # ticks
    end: int
    dynamics: str            # pp to ff


class Piece:
    """What the notation says: fields, chords and keys along the time, in ticks, and the phrases that its field N lists, dynamics and
    bars of each: p8 mf4."""

    def __init__(self, path):
        self.fields = {}
        self.chords = []
        self.keys = []             # (tick, key)
        self.changes = []          # of the tempo, ticks
        self.end = 0
        voice, tick = None, 0
        for line in path.read_text(encoding="utf-8").splitlines():
            line = "" if line.startswith("%%") else re.sub(r"%.*", "", line)
            entry = re.match(r"([A-Z]):\s*(.*)", line)
            if entry:
                letter, value = entry[1], entry[2].strip()
                if letter == "V":
                    voice, tick = value, 0
                elif voice is None:
                    self.fields[letter] = value
                if letter == "K" and voice in (None, "M"):
                    self.keys.append((tick, value))
            elif voice == "H":
                tick = self.read_chords(line, tick)
            elif voice == "M":
                tick += self.bar * line.count("|")
        self.phrases = []
        for dynamics, bars in re.findall(r"([pmf]+)(\d+)", self.fields["N"]):
            start = self.phrases[-1].end if self.phrases else 0
            self.phrases.append(Phrase(start, start + int(bars) * self.bar, dynamics))

    @property
    def bar(self):
        n, d = map(int, self.fields["M"].split("/"))
        return TICKS * 4 * n // d

    @property
    def unit(self):
        n, d = map(int, self.fields["L"].split("/"))
        return TICKS * 4 * n // d

    def read_chords(self, line, tick):
        for change, symbol, length in re.findall(r'(\[Q:)|"([^"]+)"\s*z(\d+)', line):
            if change:
                self.changes.append(tick)
                continue
            root, quality = re.match(r"([A-G][b#]?)(.*)$", symbol).groups()
            self.chords.append(Chord(tick, symbol, tuple((pitch_class(root) + s) % 12 for s in QUALITY[quality])))
            tick += int(length) * self.unit
        self.end = tick
        return tick

    def chord_at(self, tick):
        return [c for c in self.chords if c.tick <= tick][-1]

    def phrase_at(self, tick):
        """The phrase around a moment; behind the end the last one."""
        return next((p for p in self.phrases if tick < p.end), self.phrases[-1])

    def key_at(self, tick):
        return [key for at, key in self.keys if at <= tick][-1]


@dataclass
class Note:
    start: int
    end: int
    pitch: int
    velocity: int


@dataclass
class Midi:
    """A MIDI file: notes, controls and programs by channel, tempos (tick, microseconds a quarter), its last tick."""
    title: str = ""
    end: int = 0
    tempos: list = field(default_factory=list)
    notes: dict = field(default_factory=lambda: defaultdict(list))
    controls: dict = field(default_factory=lambda: defaultdict(list))    # (tick, number, value)
    programs: dict = field(default_factory=lambda: defaultdict(list))    # (tick, program)

    def chord_channel(self):
        return next(c for c in sorted(self.notes) if c not in (*VOICES, BASS, PERCUSSION))

    def seconds(self, tick):
        """When a tick sounds."""
        total, last, speed = 0.0, 0, 500000
        for at, value in self.tempos:
            if at >= tick:
                break
            total += (at - last) * speed / TICKS / 1e6
            last, speed = at, value
        return total + (tick - last) * speed / TICKS / 1e6

    def ticks(self, tick, seconds):
        """How many ticks a short time is around `tick`."""
        speed = [value for at, value in self.tempos if at <= max(tick, 0)][-1]
        return round(seconds * 1e6 / speed * TICKS)

    def program_at(self, channel, tick):
        return ([p for at, p in self.programs[channel] if at <= tick + 1] or [0])[-1]


class _Track:
    """The bytes of one track, read in turn."""

    def __init__(self, data):
        self.data, self.at, self.tick, self.status = data, 0, 0, 0

    def byte(self):
        self.at += 1
        return self.data[self.at - 1]

    def variable(self):
        value = 0
        while True:
            byte = self.byte()
            value = value << 7 | byte & 127
            if byte < 128:
                return value

    def events(self):
        """(tick, status, data): of a meta event its kind and its bytes, of others their one or two numbers."""
        while self.at < len(self.data):
            self.tick += self.variable()
            if self.data[self.at] >= 128:
                self.status = self.byte()
            if self.status == 0xFF:
                kind, size = self.byte(), self.variable()
                self.at += size
                yield self.tick, 0xFF, (kind, self.data[self.at - size:self.at])
            elif self.status >> 4 in (12, 13):
                yield self.tick, self.status, (self.byte(), 0)
            else:
                yield self.tick, self.status, (self.byte(), self.byte())


def read_midi(path):
    data = path.read_bytes()
    assert data[:4] == b"MThd" and struct.unpack(">H", data[12:14])[0] == TICKS
    midi, at = Midi(), 14
    while at < len(data):
        size = struct.unpack(">I", data[at + 4:at + 8])[0]
        _read_track(midi, _Track(data[at + 8:at + 8 + size]))
        at += 8 + size
    midi.tempos.sort()
    for notes in midi.notes.values():
        notes.sort(key=lambda n: (n.start, n.pitch))
    return midi


def _read_track(midi, track):
    sounding = defaultdict(list)
    for tick, status, (first, second) in track.events():
        kind, channel = status >> 4, (status & 15) + 1
        if status == 0xFF:
            if first == 0x51:
                midi.tempos.append((tick, int.from_bytes(second, "big")))
            elif first == 0x03 and not midi.title:
                midi.title = second.decode("utf-8")
        elif kind == 9 and second:
            note = Note(tick, tick, first, second)
            sounding[channel, first].append(note)
            midi.notes[channel].append(note)
        elif kind in (8, 9) and sounding[channel, first]:
            sounding[channel, first].pop(0).end = tick
        elif kind == 11:
            midi.controls[channel].append((tick, first, second))
        elif kind == 12:
            midi.programs[channel].append((tick, first))
        midi.end = max(midi.end, tick)


def _number(value):
    out = bytes([value & 127])
    while value := value >> 7:
        out = bytes([value & 127 | 128]) + out
    return out


def _chunk(events):
    """One track of (tick, rank, bytes), in the order of time and rank."""
    body, last = b"", 0
    for tick, _, message in sorted(events):
        body += _number(tick - last) + message
        last = tick
    return b"MTrk" + struct.pack(">I", len(body)) + body


def write_midi(midi, path, channels=None):
    """Writes a file of all channels, or of some of them."""
    close = (midi.end, 9, b"\xff\x2f\x00")
    title = midi.title.encode("utf-8")
    tracks = [[(0, 0, b"\xff\x03" + _number(len(title)) + title), close] +
              [(tick, 1, b"\xff\x51\x03" + value.to_bytes(3, "big")) for tick, value in midi.tempos]]
    for channel in sorted(channels or midi.notes):
        low = channel - 1
        events = [close]
        events += [(tick, 2, bytes([0xC0 | low, program])) for tick, program in midi.programs[channel]]
        events += [(tick, 3, bytes([0xB0 | low, number, value])) for tick, number, value in midi.controls[channel]]
        for note in midi.notes[channel]:
            events.append((note.end, 1, bytes([0x80 | low, note.pitch, 0])))
            events.append((note.start, 4, bytes([0x90 | low, note.pitch, note.velocity])))
        tracks.append(events)
    path.write_bytes(b"MThd" + struct.pack(">IHHH", 6, 1, len(tracks), TICKS) + b"".join(map(_chunk, tracks)))
