// haldgen in node and in browsers: loads the modules, finds their functions, and gives views of their
// memory. Types and explanations are in haldgen.d.ts.

export const modules = Object.freeze(['common', 'complex', 'real', 'hartley', 'wht', 'dct4']);

export const scale = Object.freeze({forwardByN: 1, inverseByN: 2, bySqrtN: 4, none: 8});

export class HaldgenError extends Error {
  constructor(text, status) {
    super(`haldgen: ${text}`);
    this.name = 'HaldgenError';
    this.status = status;
  }
}

const statusTexts = new Map([
  [-5, 'not a state that was set up'],
  [-6, 'no function of this length or order'],
  [-8, 'a null pointer, or no memory'],
  [-16, 'the scale is none of scale.forwardByN, inverseByN, bySqrtN and none'],
]);

function check(status) {
  if (status === 0) return;
  throw new HaldgenError(statusTexts.get(status) ?? `unknown status ${status}`, status);
}

const floatTypes = {
  f32: {bits: 32, View: Float32Array},
  f64: {bits: 64, View: Float64Array},
};
const packings = {ccs: 'CCS', pack: 'Pack', perm: 'Perm'};

// What there is of each kind: `size` is the number in the exported name, of which a transform has
// `points`; `src` and `dst` are floats in the arrays. A DCT-IV has no number in its name.
const kinds = {
  dft: {
    title: (options) => `${options.inverse ? 'inverse' : 'forward'} complex DFT`,
    word: (options) => `haldgDFT${options.inverse ? 'Inv' : 'Fwd'}_CToC_`,
    suffix: 'fc',
    src: (n) => 2 * n,
    dst: (n) => 2 * n,
  },
  rdft: {
    title: (options) => `${options.inverse ? 'inverse' : 'forward'} real DFT`,
    word: ({inverse, packing}) =>
        inverse ? `haldgDFTInv_${packings[packing]}ToR_` : `haldgDFTFwd_RTo${packings[packing]}_`,
    suffix: 'f',
    src: (n, options) => (options.inverse ? halfSpectrum(n, options.packing) : n),
    dst: (n, options) => (options.inverse ? n : halfSpectrum(n, options.packing)),
  },
  hartley: {title: () => 'Hartley transform', word: () => 'haldgHartley_', suffix: 'f'},
  wht: {
    title: () => 'Walsh-Hadamard transform',
    word: () => 'haldgWHT_',
    suffix: 'f',
    points: (order) => 2 ** order,
    size: (n) => Math.log2(n),
  },
  dct4: {title: () => 'DCT-IV', suffix: 'f'},
};
const homes = {dft: 'complex', rdft: 'real', hartley: 'hartley', wht: 'wht', dct4: 'dct4'};

function halfSpectrum(n, packing) {
  return packing === 'ccs' ? 2 * (Math.floor(n / 2) + 1) : n;
}

function member(table, key, what) {
  if (!Object.hasOwn(table, key)) {
    throw new HaldgenError(`no ${what} '${key}'; there are ${Object.keys(table).join(', ')}`);
  }
  return table[key];
}

function natural(value, what) {
  if (!Number.isInteger(value) || value < 1 || value > 0x7fffffff) {
    throw new HaldgenError(`${what} is ${value}; it must be a positive integer`);
  }
  return value;
}

/// A module's file beside this one, or at another place.
export async function compile(name = 'common', source) {
  if (source instanceof WebAssembly.Module) return source;
  if (source instanceof ArrayBuffer || ArrayBuffer.isView(source)) return WebAssembly.compile(source);
  if (source === undefined && !modules.includes(name)) {
    throw new HaldgenError(`no module '${name}'; there are ${modules.join(', ')}`);
  }
  const url = new URL(source ?? `./${name}.wasm`, import.meta.url);
  if (url.protocol === 'file:') {
    const {readFile} = await import('node:fs/promises');
    return WebAssembly.compile(await readFile(url));
  }
  const response = await fetch(url);
  if (!response.ok) {
    throw new HaldgenError(`${url} answers ${response.status}; serve ${name}.wasm beside haldgen.mjs, ` +
                           'or name its place in the second argument');
  }
  // Servers that do not know the type of the file are no reason to fail.
  return WebAssembly.compile(await response.arrayBuffer());
}

export async function load(name, source) {
  return new Haldgen(await compile(name, source));
}

/// Floats in a module's memory.
export class Block {
  #memory;
  #release;
  #view;
  constructor(memory, type, address, length, release) {
    this.#memory = memory;
    this.#release = release;
    this.type = type;
    this.address = address;
    this.length = length;
    this.#view = new floatTypes[type].View(memory.buffer, address, length);
  }
  /// Memory that grows leaves old views empty.
  get view() {
    if (this.#view.buffer !== this.#memory.buffer) {
      this.#view = new floatTypes[this.type].View(this.#memory.buffer, this.address, this.length);
    }
    return this.#view;
  }
  free() {
    if (this.address === 0) return;
    this.#release(this.address);
    this.address = this.length = 0;
    this.#view = new floatTypes[this.type].View(0);
    this.#memory = this.#view;  // whose buffer stays as it is
  }
}

export class Haldgen {
  #places = new Map();

  /// Of a compiled module, at once: what an AudioWorklet can do.
  constructor(module) {
    this.exports = new WebAssembly.Instance(module, {}).exports;
    this.exports._initialize();
  }

  get memory() { return this.exports.memory; }

  /// `bytes` of memory that is not moved.
  reserve(bytes) {
    const address = bytes <= 0x7fffffff ? this.exports.haldMalloc(bytes) : 0;
    if (address === 0) {
      throw new HaldgenError(`no memory for ${bytes} bytes; free() what is no longer needed`);
    }
    return address;
  }

  allocate(type, length) {
    const {View} = member(floatTypes, type, 'type');
    natural(length, 'the length of a block');
    const address = this.reserve(length * View.BYTES_PER_ELEMENT);
    const block = new Block(this.memory, type, address, length, this.exports.haldFree);
    block.view.fill(0);
    return block;
  }

  /// The lengths in points, in ascending order. Of the DCT-IV all powers of two.
  lengths(kind, options = {}) {
    const description = member(kinds, kind, 'kind');
    const {type = 'f32', packing = 'ccs', inverse = false} = options;
    const {bits} = member(floatTypes, type, 'type');
    member(packings, packing, 'packing');
    if (kind === 'dct4') {
      const there = Object.hasOwn(this.exports, `haldgDCT4_${bits}f`);
      return there ? Array.from({length: 24}, (_, k) => 2 ** (k + 1)) : [];
    }
    const word = description.word({inverse, packing});
    const end = `_${bits}${description.suffix}`;
    return Object.keys(this.exports)
        .filter((name) => name.startsWith(word) && name.endsWith(end))
        .map((name) => Number(name.slice(word.length, -end.length)))
        .filter(Number.isInteger)
        .map(description.points ?? ((n) => n))
        .sort((a, b) => a - b);
  }

  transform(kind, length, options = {}) { return new Transform(this, kind, length, options); }

  /// Where a function lies in the module's table.
  place(name) {
    if (!this.#places.has(name)) {
      const table = this.exports.__indirect_function_table;
      const place = table.grow(1);
      table.set(place, this.exports[name]);
      this.#places.set(name, place);
    }
    return this.#places.get(name);
  }
}

export class Transform {
  #owned = [];
  #run;

  constructor(library, kind, length, options) {
    const description = member(kinds, kind, 'kind');
    const settings = {type: 'f32', inverse: false, packing: 'ccs', scale: scale.none, count: 1, ...options};
    const {View, bits} = member(floatTypes, settings.type, 'type');
    const lengths = library.lengths(kind, settings);
    if (!lengths.includes(length)) throw missing(description.title(settings), kind, length, lengths);
    if (!Object.values(scale).includes(settings.scale)) check(-16);
    const count = natural(settings.count, 'count');
    const srcFloats = description.src?.(length, settings) ?? length;
    const dstFloats = description.dst?.(length, settings) ?? length;
    const parts = kind === 'dft' ? 2 : 1;
    const hop = parts * natural(settings.hop ?? srcFloats / parts, 'hop');

    Object.assign(this, {library, kind, length, type: settings.type, count});
    this.source = this.#block(settings.source, (count - 1) * hop + srcFloats, 'source');
    try {
      this.destination = this.#block(settings.destination, count * dstFloats, 'destination');
      const prepared = this.#prepared(description, settings, bits);
      const src = this.source.address;
      const dst = this.destination.address;
      const bytes = View.BYTES_PER_ELEMENT;
      const {exports} = library;
      const {name, last} = prepared;
      if (count === 1) {
        const call = exports[name];
        this.#run = () => call(src, dst, ...last);
        if (last.length === 1) {
          const argument = last[0];
          this.#run = () => call(src, dst, argument);
        }
      } else {
        const each = last.length === 1 ? exports.haldwEach : exports.haldwEachBuffered;
        const place = library.place(name);
        this.#run = () => each(place, src, hop * bytes, dst, dstFloats * bytes, count, ...last);
      }
    } catch (error) {
      this.free();
      throw error;
    }
  }

  get input() { return this.source.view; }
  get output() { return this.destination.view; }

  run() {
    const status = this.#run();
    if (status !== 0) check(status);
  }

  free() {
    for (const release of this.#owned.splice(0)) release();
    this.#run = () => { throw new HaldgenError('a transform after its free()'); };
  }

  #block(given, length, what) {
    if (given === undefined) {
      const block = this.library.allocate(this.type, length);
      this.#owned.push(() => block.free());
      return block;
    }
    if (!(given instanceof Block) || given.type !== this.type || given.length < length ||
        given.view.buffer !== this.library.memory.buffer) {
      throw new HaldgenError(`the ${what} must be a Block of at least ${length} ${this.type}, made by ` +
                             'allocate() of the same Haldgen');
    }
    return given;
  }

  #reserved(bytes) {
    const address = this.library.reserve(bytes);
    this.#owned.push(() => this.library.exports.haldFree(address));
    return address;
  }

  /// A word that a function writes behind a pointer.
  #written(call) {
    const {exports} = this.library;
    const place = this.library.reserve(4);
    try {
      check(call(place));
      return new Uint32Array(exports.memory.buffer, place, 1)[0];
    } finally {
      exports.haldFree(place);
    }
  }

  /// The function and what it takes besides its arrays.
  #prepared(description, settings, bits) {
    const {exports} = this.library;
    if (this.kind === 'dct4') {
      const size = this.#written((place) => exports[`haldgDCT4GetSize_${bits}f`](this.length, place));
      const buffer = this.#reserved(size);
      const state = this.#written(
          (place) => exports[`haldgDCT4Init_${bits}f`](place, this.length, buffer));
      return {name: `haldgDCT4_${bits}f`, last: [state]};
    }
    const size = description.size?.(this.length) ?? this.length;
    const name = `${description.word(settings)}${size}_${bits}${description.suffix}`;
    if (this.kind !== 'wht') return {name, last: [settings.scale]};
    const bytes = this.#written((place) => exports[`haldgWHTGetBufferSize_${bits}f`](size, place));
    return {name, last: [settings.scale, bytes === 0 ? 0 : this.#reserved(bytes)]};
  }
}

function missing(title, kind, length, lengths) {
  const there = lengths.length === 0 ? 'none' : lengths.join(', ');
  return new HaldgenError(`no ${title} of ${length} points in this module; there are ${there}. ` +
                          `load('${homes[kind]}') has all that the library has`, -6);
}
