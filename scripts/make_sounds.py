#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the sounds for a right and a wrong answer. They are computed, so they come out the same each time."""

import array
import math
import pathlib
import sys
import wave

RATE = 44100
LOUDEST = 0.34  # Of full scale: a little below -9 dB.
FADE_IN = 0.004  # Seconds; without it a note begins with a click.
FADE_OUT = 0.06

# A note: start in seconds, frequency in hertz, loudness, and how fast it dies away per second. A partial: multiple of
# the frequency, loudness, and how much faster than the note it dies away.
RIGHT = {
    "length": 0.35,
    "notes": [(0.0, 1046.5, 0.8, 11), (0.1, 1568.0, 1.0, 11)],
    "partials": [(1, 1.0, 1), (2.0, 0.35, 1.6), (3.01, 0.15, 2.4), (4.17, 0.06, 3.5)],
}
WRONG = {
    "length": 0.4,
    "notes": [(0.0, 261.6, 0.9, 7), (0.15, 207.7, 1.0, 7)],
    "partials": [(1, 1.0, 1), (2, 0.25, 1.5), (3, 0.08, 2)],
}


def samples_of(sound):
    count = round(sound["length"] * RATE)
    values = [0.0] * count
    for start, frequency, loudness, decay in sound["notes"]:
        first = round(start * RATE)
        for index in range(first, count):
            time = (index - first) / RATE
            for multiple, share, faster in sound["partials"]:
                values[index] += (loudness * share * math.exp(-decay * faster * time)
                                  * math.sin(2 * math.pi * frequency * multiple * time) * min(1, time / FADE_IN))
    for index in range(count):
        left = (count - 1 - index) / RATE
        values[index] *= math.sin(math.pi / 2 * min(1, left / FADE_OUT)) ** 2
    scale = LOUDEST * 32767 / max(map(abs, values))
    return array.array("h", (round(value * scale) for value in values))


def write(path, samples):
    if sys.byteorder == "big":
        samples.byteswap()
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(samples.tobytes())


def main():
    folder = pathlib.Path(__file__).resolve().parent.parent / "sounds"
    folder.mkdir(exist_ok=True)
    write(folder / "right.wav", samples_of(RIGHT))
    write(folder / "wrong.wav", samples_of(WRONG))


if __name__ == "__main__":
    main()
