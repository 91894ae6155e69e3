// Spectra of the sound that passes, on the audio thread: nothing is allocated while it runs.
import {Haldgen, scale} from './haldgen/haldgen.mjs';

class Spectrum extends AudioWorkletProcessor {
  #transform;
  #levels;
  #filled = 0;
  #blocks = 0;

  constructor({processorOptions: {module, points}}) {
    super();
    const library = new Haldgen(module);  // compiled by the page; starting it takes no promise
    this.#transform = library.transform('dft', points, {scale: scale.forwardByN});
    this.#levels = new Float32Array(Math.floor(points / 2) + 1);
  }

  process([input], [output]) {
    input.forEach((channel, k) => output[k]?.set(channel));
    if (input.length === 0) return true;
    const [samples] = input;
    const {input: src, length} = this.#transform;
    for (const sample of samples) {
      // A Hann window, so that tones between two bins stay narrow.
      const window = 1 - Math.cos(2 * Math.PI * (this.#filled + 0.5) / length);
      src[2 * this.#filled] = sample * window;
      if (++this.#filled === length) this.#take();
    }
    // About 47 pictures in a second.
    if (++this.#blocks % 8 === 0) {
      this.port.postMessage(this.#levels);
      this.#levels.fill(0);
    }
    return true;
  }

  /// The highest of each bin since the last picture. The imaginary parts of the input stay 0.
  #take() {
    this.#filled = 0;
    this.#transform.run();
    const dst = this.#transform.output;
    for (let k = 0; k < this.#levels.length; ++k) {
      const level = Math.hypot(dst[2 * k], dst[2 * k + 1]);
      if (level > this.#levels[k]) this.#levels[k] = level;
    }
  }
}

registerProcessor('haldgen-spectrum', Spectrum);
