#!/usr/bin/env python3
"""How loud sounds are as the game plays them: a single channel comes out of both loudspeakers.

    levels.py CLICK.wav LUFS       the gain in dB that makes a click as loud as that
    levels.py --spectra A.ogg B.ogg C.ogg     how far apart the colours of pieces are, in dB, each with each
"""
import array
import math
import re
import subprocess
import sys
import wave

import numpy

SOUNDFONT = "/usr/share/sounds/sf3/MuseScore_General_Full.sf3"
CLICK_SECONDS = 0.05     # too short for a loudness; it counts by its loudest moment of this length


def db(value):
    return 20 * math.log10(max(value, 1e-9))


def read_wave(path):
    """(rate, bits, channels) and the samples."""
    with wave.open(str(path)) as w:
        return (w.getframerate(), w.getsampwidth() * 8, w.getnchannels()), array.array("h", w.readframes(w.getnframes()))


def loudness(path):
    """Integrated loudness in LUFS and true peak in dBFS."""
    out = subprocess.run(["ffmpeg", "-hide_banner", "-nostats", "-i", str(path), "-filter_complex",
                          "aformat=channel_layouts=mono|stereo,pan=stereo|FL=FL+FC|FR=FR+FC,ebur128=peak=true", "-f", "null", "-"],
                         capture_output=True, text=True, check=True).stderr
    summary = out[out.rindex("Summary:"):]
    return float(re.search(r"I:\s+(-?[\d.]+)", summary)[1]), float(re.search(r"Peak:\s+(-?[\d.]+|-inf)", summary)[1])


def windows(samples, step):
    """RMS of one piece of `step` samples after the other, full scale 1."""
    return [math.sqrt(sum(s * s for s in samples[i:i + step]) / step) / 32768 for i in range(0, len(samples) - step + 1, step)]


def synthesize(midi, wav):
    """A MIDI file as 16 bit stereo, dry enough to compare voices."""
    subprocess.run(["fluidsynth", "-q", "-ni", "-g", "0.5", "-r", "44100", "-T", "wav", "-O", "s16", "-F", str(wav),
                    "-o", "synth.dynamic-sample-loading=1", "-o", "synth.chorus.active=0", SOUNDFONT, str(midi)],
                   capture_output=True, check=True)


THIRDS = [1000 * 2 ** (n / 3) for n in range(-12, 10)]    # of octaves, 62 Hz to 8 kHz
FAINT = -45              # dB below the whole, what is softer colours nothing


def spectrum(path):
    """The colour of a piece: its level in each third of an octave, dB beside the whole."""
    rate, size = 22050, 8192
    raw = subprocess.run(["ffmpeg", "-loglevel", "error", "-i", str(path), "-ac", "1", "-ar", str(rate), "-f", "f32le", "-"],
                         capture_output=True, check=True).stdout
    samples = numpy.frombuffer(raw, dtype="<f4")
    frames = numpy.array([samples[i:i + size] for i in range(0, len(samples) - size, size // 2)]) * numpy.hanning(size)
    power = (numpy.abs(numpy.fft.rfft(frames, axis=1)) ** 2).mean(axis=0)
    pitch = numpy.fft.rfftfreq(size, 1 / rate)
    bands = [power[(pitch >= third / 2 ** (1 / 6)) & (pitch < third * 2 ** (1 / 6))].sum() for third in THIRDS]
    return [max(FAINT, 10 * math.log10(band / sum(bands) + 1e-12)) for band in bands]


def distance(one, other):
    """Between two spectra, the mean difference in dB."""
    return sum(abs(a - b) for a, b in zip(one, other)) / len(one)


def _filter(samples, b, a):
    x1 = x2 = y1 = y2 = 0.0
    for x in samples:
        y = b[0] * x + b[1] * x1 + b[2] * x2 - a[0] * y1 - a[1] * y2
        x2, x1, y2, y1 = x1, x, y1, y
        yield y


def _ear(samples, rate):
    """The weighting of ITU-R BS.1770: a shelf for the head, a high pass for the ear."""
    k = math.tan(math.pi * 1681.974450955533 / rate)
    gain, q = 10 ** (3.999843853973347 / 20), 0.7071752369554196
    middle, norm = gain ** 0.4996667741545416, 1 + k / q + k * k
    shelf = _filter(samples, [(gain + middle * k / q + k * k) / norm, 2 * (k * k - gain) / norm, (gain - middle * k / q + k * k) / norm],
                    [2 * (k * k - 1) / norm, (1 - k / q + k * k) / norm])
    k, q = math.tan(math.pi * 38.13547087602444 / rate), 0.5003270373238773
    norm = 1 + k / q + k * k
    return list(_filter(shelf, [1, -2, 1], [2 * (k * k - 1) / norm, (1 - k / q + k * k) / norm]))


def click_loudness(path):
    """Of the loudest moment, both loudspeakers together, in LUFS."""
    (rate, _, _), samples = read_wave(path)
    step = int(CLICK_SECONDS * rate)
    heard = _ear([s / 32768 for s in samples] + [0.0] * step, rate)
    energy = [0.0]
    for y in heard:
        energy.append(energy[-1] + y * y)
    return -0.691 + 10 * math.log10(2 * max(b - a for a, b in zip(energy, energy[step:])) / step)


def main():
    if sys.argv[1] != "--spectra":
        print(f"{float(sys.argv[2]) - click_loudness(sys.argv[1]):.2f}")
        return
    spectra = {path: spectrum(path) for path in sys.argv[2:]}
    for path in spectra:
        print(path.rsplit("/", 1)[-1].ljust(14), *(f"{distance(spectra[path], other):5.1f}" for other in spectra.values()))


if __name__ == "__main__":
    main()
