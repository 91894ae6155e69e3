// The package in node: node package_test.mjs PACKAGE PUBLISHED
import assert from 'node:assert/strict';
import {readFileSync, statSync} from 'node:fs';
import {join} from 'node:path';
import test from 'node:test';
import {pathToFileURL} from 'node:url';

const [folder, publishedPath] = process.argv.slice(2);
const {HaldgenError, compile, Haldgen, load, modules, scale} =
    await import(pathToFileURL(join(folder, 'haldgen.mjs')));
const published = new Map(readFileSync(publishedPath, 'utf8').trim().split('\n').map((line) => line.split('\t')));
const scales = [scale.forwardByN, scale.inverseByN, scale.bySqrtN, scale.none];

const limits = {
  f32: {digits: 24, least: -149, most: 128, Pattern: Uint32Array, View: Float32Array, nan: 0x7fc00000},
  f64: {digits: 53, least: -1074, most: 1024, Pattern: BigUint64Array, View: Float64Array, nan: 0x7ff8000000000000n},
};

/// The inputs of haldgen-bits: splitmix64, and how its sets are made of it.
function* inputs(type, points, count) {
  const {digits, least, most, View} = limits[type];
  const top = most - digits - 4 - 2 * points.toString(2).length;
  const sets = [
    [digits, -digits, -digits], [digits, -digits, -digits], [digits, -digits - 15, -digits + 15],
    [digits, -digits - 5, -digits + 5], [digits, top, top], [digits, least + 3, least + 3],
    [digits - 1, least, least], [4, least, least], [2, 0, 0], [digits, -digits, -digits, 2],
    [1, 0, 0, 2], ...Array(25).fill([0, 0, 0]), ...Array(8).fill([1, 0, 0])];
  for (const [seed, [bits, lowest, highest, rarity = 0]] of sets.entries()) {
    let state = BigInt(seed);
    const next = () => {
      state = BigInt.asUintN(64, state + 0x9E3779B97F4A7C15n);
      let z = BigInt.asUintN(64, (state ^ (state >> 30n)) * 0xBF58476D1CE4E5B9n);
      z = BigInt.asUintN(64, (z ^ (z >> 27n)) * 0x94D049BB133111EBn);
      return z ^ (z >> 31n);
    };
    const drawn = (width) => (width === 0 ? 0 : Number(next() >> BigInt(64 - width)));
    yield View.from({length: count}, () => {
      const integer = drawn(bits);
      const kept = drawn(rarity) === 0;
      const negative = drawn(1) !== 0;
      const exponent = lowest + Number(next() % BigInt(highest - lowest + 1));
      // In two steps, since a power of two by itself may be too small for a number.
      const half = Math.trunc(exponent / 2);
      const magnitude = (kept ? integer : 0) * 2 ** half * 2 ** (exponent - half);
      return negative ? -magnitude : magnitude;
    });
  }
}

/// FNV-1a over the bytes of numbers, of which all NaNs are one.
class Checksum {
  sum = 0xCBF29CE484222325n;
  add(view, type) {
    const {Pattern, nan} = limits[type];
    const patterns = new Pattern(view.slice().buffer);
    view.forEach((value, k) => { if (Number.isNaN(value)) patterns[k] = nan; });
    for (const byte of new Uint8Array(patterns.buffer)) {
      this.sum = BigInt.asUintN(64, (this.sum ^ BigInt(byte)) * 0x100000001B3n);
    }
  }
  get text() { return this.sum.toString(16).padStart(16, '0'); }
}

let compared = 0;

/// What haldgen-bits says of a function, taken through a Transform, in batches too.
function expectPublished(name, library, kind, n, options) {
  const type = options.type ?? 'f32';
  const used = kind === 'dct4' ? [scale.none] : scales;
  const transforms = used.map((s) => library.transform(kind, n, {...options, scale: s}));
  const batch = library.transform(kind, n, {...options, count: 3});
  const {length} = transforms[0].input;
  const outputs = transforms[0].output.length;
  const checksum = new Checksum();
  for (const input of inputs(type, n, length)) {
    if (kind === 'rdft' && options.inverse && options.packing === 'ccs') {
      input[1] = NaN;  // parts that are zero are never read
      if (n % 2 === 0) input[n + 1] = NaN;
    }
    for (const transform of transforms) {
      transform.input.set(input);
      transform.output.fill(0.75);
      transform.run();
      checksum.add(transform.output, type);
    }
    batch.output.fill(0.75);
    for (let k = 0; k < 3; ++k) batch.input.set(input, k * length);
    batch.run();
    for (let k = 0; k < 3; ++k) {
      assert.deepEqual(batch.output.subarray(k * outputs, (k + 1) * outputs), transforms.at(-1).output);
    }
  }
  for (const transform of [...transforms, batch]) transform.free();
  assert.equal(checksum.text, published.get(name), name);
  ++compared;
}

test('the default module: 16 lengths in both directions with the published bits, below 60 KB', async () => {
  const library = await load();
  assert.ok(statSync(join(folder, 'common.wasm')).size < 60_000);
  const lengths = library.lengths('dft');
  assert.equal(lengths.length, 16);
  assert.deepEqual(library.lengths('dft', {inverse: true}), lengths);
  for (const n of lengths) {
    for (const inverse of [false, true]) {
      expectPublished(`haldgDFT${inverse ? 'Inv' : 'Fwd'}_CToC_${n}_32fc`, library, 'dft', n, {inverse});
    }
  }
});

test('modules of a family have all of its functions, with the published bits', async () => {
  const has = new Set();
  const before = compared;
  for (const name of modules.slice(1)) {
    const library = await load(name);
    for (const exported of Object.keys(library.exports)) has.add(exported);
    for (const type of ['f32', 'f64']) {
      const bits = type.slice(1);
      for (const n of library.lengths('dft', {type}).filter((length) => length % 13 === 12)) {
        expectPublished(`haldgDFTInv_CToC_${n}_${bits}fc`, library, 'dft', n, {type, inverse: true});
      }
      for (const packing of library.lengths('rdft', {type}).length === 0 ? [] : ['ccs', 'pack', 'perm']) {
        const word = {ccs: 'CCS', pack: 'Pack', perm: 'Perm'}[packing];
        for (const n of [9, 16, 30]) {
          expectPublished(`haldgDFTFwd_RTo${word}_${n}_${bits}f`, library, 'rdft', n, {type, packing});
          expectPublished(`haldgDFTInv_${word}ToR_${n}_${bits}f`, library, 'rdft', n, {type, packing, inverse: true});
        }
      }
      for (const n of library.lengths('hartley', {type}).filter((length) => length % 16 === 0)) {
        expectPublished(`haldgHartley_${n}_${bits}f`, library, 'hartley', n, {type});
      }
      for (const n of library.lengths('wht', {type}).filter((length) => length <= 512)) {
        expectPublished(`haldgWHT_${Math.log2(n)}_${bits}f`, library, 'wht', n, {type});
      }
      for (const n of library.lengths('dct4', {type}).filter((length) => length <= 1024)) {
        expectPublished(`haldgDCT4_${bits}f/${n}`, library, 'dct4', n, {type});
      }
    }
  }
  assert.ok(compared - before > 80);
  // All but those that take the length as an argument, and the version record.
  const general = /^haldg(DFT(Fwd|Inv)_[A-Za-z]+|Hartley|WHT)_\d+fc?$|^haldgenGet/;
  for (const name of published.keys()) {
    if (name.startsWith('hald') && !name.includes('/') && !general.test(name)) assert.ok(has.has(name), name);
  }
});

test('views stay valid when memory grows, and arrays are shared without copies', async () => {
  const library = await load();
  const there = library.transform('dft', 12, {scale: scale.bySqrtN, count: 2});
  const back = library.transform('dft', 12, {
    inverse: true, scale: scale.bySqrtN, count: 2, source: there.destination, destination: there.source});
  assert.equal(back.input, there.output);
  there.input.set(there.input.map((_, k) => k));
  const old = there.input;
  library.allocate('f64', 1 << 20);
  assert.equal(old.length, 0);
  assert.equal(there.input[47], 47);
  there.run();
  there.input.fill(0);
  back.run();
  there.input.forEach((value, k) => assert.ok(Math.abs(value - k) < 1e-4));
  // Windows that overlap, in one call.
  const windows = library.transform('dft', 8, {count: 3, hop: 2});
  assert.equal(windows.input.length, 2 * (8 + 2 * 2));
  windows.input[2 * 4] = 1;  // element 4: of the windows 4, 2 and 0
  windows.run();
  const sums = [4, 2, 0].map((at) => Math.round(Math.cos(2 * Math.PI * at / 8)));
  assert.deepEqual([0, 1, 2].map((k) => Math.round(windows.output[16 * k + 2])), sums);
});

test('many transforms come and go in the same memory', async () => {
  const library = await load('wht');
  const {memory} = library;
  library.transform('wht', 8192, {type: 'f64'}).free();
  const before = memory.buffer.byteLength;
  for (let k = 0; k < 100; ++k) library.transform('wht', 8192, {type: 'f64'}).free();
  assert.equal(memory.buffer.byteLength, before);
});

test('errors say what to do', async () => {
  const module = await compile();
  const library = new Haldgen(module);
  const expectError = (call, pattern) => assert.throws(call, (error) => {
    assert.ok(error instanceof HaldgenError);
    assert.match(error.message, pattern);
    return true;
  });
  expectError(() => library.transform('dft', 7), /no forward complex DFT of 7 points.*there are 2, 3.*load\('complex'\)/);
  expectError(() => library.transform('hartley', 8), /there are none.*load\('hartley'\)/);
  expectError(() => library.transform('fft', 8), /no kind 'fft'; there are dft/);
  expectError(() => library.transform('dft', 8, {type: 'f16'}), /there are f32, f64/);
  expectError(() => library.transform('dft', 8, {scale: 3}), /the scale is none of/);
  expectError(() => library.transform('dft', 8, {count: 0}), /count is 0/);
  expectError(() => library.transform('dft', 8, {source: new Float32Array(16)}), /Block of at least 16 f32/);
  const stranger = new Haldgen(module).allocate('f32', 16);
  expectError(() => library.transform('dft', 8, {destination: stranger}), /of the same Haldgen/);
  expectError(() => library.allocate('f64', 2 ** 29), /no memory for 4294967296 bytes/);
  const freed = library.transform('dft', 8);
  freed.free();
  freed.free();
  expectError(() => freed.run(), /after its free/);
  assert.equal(freed.input.length, 0);
  await assert.rejects(load('fft'), /no module 'fft'; there are common/);
});
