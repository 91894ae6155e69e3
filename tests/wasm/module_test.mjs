// The module haldgen.wasm by itself, as a page would use it.
//   node module_test.mjs MODULE NAMES OBJDUMP
// That its kernels have the published bits is told by haldgen-bits, which has the same objects.
import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import {readFileSync} from 'node:fs';
import test from 'node:test';

const [path, namesPath, objdump] = process.argv.slice(2);
const names = readFileSync(namesPath, 'utf8').trim().split('\n');
const module = new WebAssembly.Module(readFileSync(path));

const ok = 0, sizeError = -6, nullPointer = -8, flagError = -16;
const fwdByN = 1, invByN = 2, none = 8;

function started() {
  const library = new WebAssembly.Instance(module, {}).exports;
  library._initialize();
  return library;
}

const library = started();
const arrayTypes = {32: Float32Array, 64: Float64Array};

/// A copy of the numbers in the module's memory; views are made anew, since memory that grows
/// leaves the old ones empty.
class Memory {
  constructor(bits, numbers) {
    this.type = arrayTypes[bits];
    this.length = numbers.length;
    this.address = library.haldMalloc(this.type.BYTES_PER_ELEMENT * this.length);
    assert.notEqual(this.address, 0);
    this.view().set(numbers);
  }
  view() { return new this.type(library.memory.buffer, this.address, this.length); }
  free() { library.haldFree(this.address); }
}

/// Numbers in -1..1 by a linear congruence: the same in every run.
function drawn(count) {
  let state = 1n;
  return Array.from({length: count}, () => {
    state = (state * 6364136223846793005n + 1442695040888963407n) & 0xFFFFFFFFFFFFFFFFn;
    return Number(state >> 32n) / 2 ** 31 - 1;
  });
}

function largestError(actual, expected) {
  return Math.max(...actual.map((value, i) => Math.abs(value - expected[i])));
}

/// Calls `call(src, dst)` on drawn numbers and compares dst with `definition(src)`.
function expectValues(name, bits, count, outputs, call, definition) {
  const src = new Memory(bits, drawn(count));
  const dst = new Memory(bits, new Array(outputs).fill(0));
  assert.equal(call(src.address, dst.address), ok, name);
  const bound = 8 * Math.sqrt(count) * (bits === 32 ? 2 ** -24 : 2 ** -50);
  const error = largestError([...dst.view()], definition([...src.view()]));
  assert.ok(error < bound, `${name}: error ${error}`);
  src.free();
  dst.free();
}

/// Complex numbers as real and imaginary parts in turns.
function dft(x, sign) {
  const n = x.length / 2;
  const y = new Array(x.length).fill(0);
  for (let k = 0; k < n; ++k) {
    for (let j = 0; j < n; ++j) {
      const angle = sign * 2 * Math.PI * ((j * k) % n) / n;
      y[2 * k] += x[2 * j] * Math.cos(angle) - x[2 * j + 1] * Math.sin(angle);
      y[2 * k + 1] += x[2 * j] * Math.sin(angle) + x[2 * j + 1] * Math.cos(angle);
    }
  }
  return y;
}

test('exports the functions of the table, haldcore\'s and its memory, and imports nothing', () => {
  assert.deepEqual(WebAssembly.Module.imports(module), []);
  const others = ['_initialize', 'haldFree', 'haldGetEnabledCpuFeatures', 'haldMalloc', 'memory'];
  assert.deepEqual(WebAssembly.Module.exports(module).map((e) => e.name).sort(),
                   [...names, ...others].sort());
});

test('complex transforms are those of their definition', () => {
  for (const bits of [32, 64]) {
    for (let n = 2; n <= 64; ++n) {
      for (const [direction, sign] of [['Fwd', -1], ['Inv', 1]]) {
        const word = `haldgDFT${direction}_CToC_`;
        const definition = (x) => dft(x, sign);
        expectValues(`${word}${n}_${bits}fc`, bits, 2 * n, 2 * n,
                     (src, dst) => library[`${word}${n}_${bits}fc`](src, dst, none), definition);
        expectValues(`${word}${bits}fc at ${n}`, bits, 2 * n, 2 * n,
                     (src, dst) => library[`${word}${bits}fc`](src, dst, n, none), definition);
      }
    }
  }
});

test('the Hartley transform is the real part of the spectrum less its imaginary part', () => {
  for (const bits of [32, 64]) {
    for (let n = 2; n <= 64; ++n) {
      expectValues(`Hartley ${n}`, bits, n, n,
                   (src, dst) => library[`haldgHartley_${n}_${bits}f`](src, dst, invByN), (x) => {
                     const y = dft(x.flatMap((value) => [value, 0]), -1);
                     return x.map((_, k) => (y[2 * k] - y[2 * k + 1]) / n);
                   });
    }
  }
});

test('Walsh-Hadamard transforms, with and without a work area', () => {
  const definition = (x) => {
    const y = [...x];
    for (let half = 1; half < y.length; half *= 2) {
      for (let i = 0; i < y.length; ++i) {
        if (i & half) continue;
        [y[i], y[i + half]] = [y[i] + y[i + half], y[i] - y[i + half]];
      }
    }
    return y.map((value) => value / x.length);
  };
  for (const bits of [32, 64]) {
    for (let order = 1; order <= 13; ++order) {
      const size = new Memory(32, [0]);
      assert.equal(library[`haldgWHTGetBufferSize_${bits}f`](order, size.address), ok);
      const bytes = new Uint32Array(library.memory.buffer, size.address, 1)[0];
      const area = library.haldMalloc(bytes);
      const expected = (name, buffer) =>
          expectValues(name, bits, 2 ** order, 2 ** order,
                       (src, dst) => library[`haldgWHT_${order}_${bits}f`](src, dst, fwdByN, buffer),
                       definition);
      expected(`WHT ${order}`, 0);
      if (area !== 0) expected(`WHT ${order} with a work area`, area);
      library.haldFree(area);
      size.free();
    }
  }
});

test('the DCT-IV, set up in both ways', () => {
  // In quarters of half a period, of which eight are a whole one.
  const definition = (x) => x.map((_, k) => x.reduce((sum, value, j) => {
    const quarters = ((2 * j + 1) * (2 * k + 1)) % (8 * x.length);
    return sum + value * Math.cos(Math.PI / (4 * x.length) * quarters);
  }, 0));
  for (const bits of [32, 64]) {
    for (let n = 2; n <= 512; n *= 2) {
      const place = new Memory(32, [0]);
      const word = () => new Uint32Array(library.memory.buffer, place.address, 1)[0];
      assert.equal(library[`haldgDCT4GetSize_${bits}f`](n, place.address), ok);
      const buffer = library.haldMalloc(word());
      const transform = (name) =>
          expectValues(name, bits, n, n, (src, dst) => library[`haldgDCT4_${bits}f`](src, dst, word()),
                       definition);
      assert.equal(library[`haldgDCT4Init_${bits}f`](place.address, n, buffer), ok);
      transform(`DCT-IV ${n} in a buffer`);
      assert.equal(library[`haldgDCT4InitAlloc_${bits}f`](place.address, n), ok);
      transform(`DCT-IV ${n} allocated`);
      assert.equal(library[`haldgDCT4Free_${bits}f`](word()), ok);
      library.haldFree(buffer);
      place.free();
    }
  }
});

test('failures are statuses', () => {
  const memory = new Memory(64, new Array(128).fill(0));
  const {address} = memory;
  assert.equal(library.haldgDFTFwd_CToC_8_32fc(0, address, none), nullPointer);
  assert.equal(library.haldgDFTFwd_CToC_8_32fc(address, 0, none), nullPointer);
  assert.equal(library.haldgDFTFwd_CToC_8_32fc(address, address, 3), flagError);
  assert.equal(library.haldgDFTFwd_CToC_32fc(address, address, 65, none), sizeError);
  memory.free();
});

test('memory grows by the allocator and by the caller, who may do both', () => {
  const own = started();
  assert.equal(own.haldMalloc(0), 0);
  assert.equal(own.haldMalloc(-1), 0);
  const before = own.memory.buffer.byteLength;
  const blocks = [];
  for (let i = 0; i < 4; ++i) {
    const block = own.haldMalloc(16 << 20);
    assert.notEqual(block, 0);
    assert.equal(block % 64, 0);
    const first = own.memory.grow(16) * 65536;  // the caller's own pages
    new Uint8Array(own.memory.buffer, first, 16 * 65536).fill(0xA5);
    blocks.push([block, first]);
  }
  assert.ok(own.memory.buffer.byteLength >= before + 4 * (17 << 20));
  for (const [block] of blocks) new Uint8Array(own.memory.buffer, block, 16 << 20).fill(0);
  for (const [block, first] of blocks) {
    assert.ok(new Uint8Array(own.memory.buffer, first, 16 * 65536).every((byte) => byte === 0xA5));
    own.haldFree(block);
  }
});

test('no instruction multiplies and adds in one rounding', () => {
  const listing = execFileSync(objdump, ['-d', '--no-show-raw-insn', path],
                               {encoding: 'utf8', maxBuffer: 2 ** 30});
  assert.ok((listing.match(/f64x2\.mul/g) ?? []).length > 1000);
  assert.equal(listing.match(/relaxed|madd|nmadd|qfma|qfms/), null);
});
