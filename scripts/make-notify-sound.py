#!/usr/bin/env python3
"""Writes Tarnwick's finish sound, a short two-note chime, as a WAV file.

The sound is our own: two sine notes (E6, then B6) with a soft attack and an
exponential decay, 22,050 samples per second, mono, 16 bits.

    scripts/make-notify-sound.py app/gui/data/Media/notify.wav
"""
import math
import struct
import sys
import wave

RATE = 22050


def note(frequency, seconds, volume):
    samples = []
    count = int(RATE * seconds)
    for i in range(count):
        t = i / RATE
        attack = min(1.0, t / 0.008)
        decay = math.exp(-t * 7.0)
        tone = math.sin(2 * math.pi * frequency * t) + 0.25 * math.sin(4 * math.pi * frequency * t)
        samples.append(volume * attack * decay * tone / 1.25)
    return samples


def main(path):
    first = note(1318.5, 0.16, 0.45)
    second = note(1975.5, 0.42, 0.40)
    samples = first + second
    frames = b"".join(struct.pack("<h", int(round(max(-1.0, min(1.0, s)) * 32767))) for s in samples)
    with wave.open(path, "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(frames)


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else "notify.wav")
