"""A spectrogram in Python: spectrogram.py [RECORDING.wav [PICTURE.png]]. Frames of 64 samples at half a
frame's distance are transformed in one call; without a recording, a chirp is."""

import sys
import wave

import haldgen
import numpy as np

FRAME = 64


def read(path: str) -> tuple[np.ndarray, int]:
    """The first channel of a WAV file of 16-bit samples, and its rate."""
    with wave.open(path) as file:
        if file.getsampwidth() != 2:
            raise SystemExit(f"{path}: not 16-bit samples")
        data = np.frombuffer(file.readframes(file.getnframes()), "<i2")
        return data[:: file.getnchannels()].astype(np.float32) / 32768, file.getframerate()


def spectrogram(samples: np.ndarray) -> np.ndarray:
    """Powers in dB: a row for each frame, a column for each of 33 bins."""
    if len(samples) < FRAME:
        raise SystemExit(f"a recording of at least {FRAME} samples is needed")
    frames = np.lib.stride_tricks.sliding_window_view(samples, FRAME)[:: FRAME // 2]
    bins = haldgen.rfft(frames * np.hanning(FRAME).astype(np.float32))
    return 10 * np.log10(np.abs(bins) ** 2 + 1e-10)


def draw(powers: np.ndarray, rate: int, path: str) -> None:
    """Writes a picture; needs matplotlib."""
    import matplotlib.pyplot as plt

    seconds = len(powers) * FRAME / 2 / rate
    plt.imshow(powers.T, origin="lower", aspect="auto", extent=(0, seconds, 0, rate / 2000), vmin=-60)
    plt.xlabel("seconds")
    plt.ylabel("kHz")
    plt.colorbar(label="dB")
    plt.savefig(path, dpi=150)


if __name__ == "__main__":
    if len(sys.argv) > 1:
        samples, rate = read(sys.argv[1])
    else:
        rate = 16000
        time = np.arange(2 * rate) / rate
        samples = np.sin(2 * np.pi * (500 * time + 1500 * time**2)).astype(np.float32)
    powers = spectrogram(samples)
    peak = powers.argmax(axis=1) * rate / FRAME
    print(f"{len(powers)} frames; the loudest bin rises from {peak[0]:.0f} to {peak[-1]:.0f} Hz")
    if len(sys.argv) > 2:
        draw(powers, rate, sys.argv[2])
    if len(sys.argv) == 1:  # a chirp from 500 to 6,500 Hz
        expected = 500 + 3000 * (np.arange(len(powers)) * FRAME / 2 + FRAME / 2) / rate
        assert np.abs(peak - expected).max() <= rate / FRAME, "the chirp is not where it should be"
