/** Modules of the package: 16 common lengths of the complex DFT in f32, or all of a family. */
export type ModuleName = 'common' | 'complex' | 'real' | 'hartley' | 'wht' | 'dct4';
export declare const modules: readonly ModuleName[];

/** dft: complex; rdft: real; wht: Walsh-Hadamard. */
export type Kind = 'dft' | 'rdft' | 'hartley' | 'wht' | 'dct4';
export type FloatType = 'f32' | 'f64';
export type View<T extends FloatType> = T extends 'f64' ? Float64Array : Float32Array;
/** Half spectra: of all bins with both parts; without the parts that are zero, in two orders. */
export type Packing = 'ccs' | 'pack' | 'perm';

/** What divides by the number of points. The DCT-IV is never scaled. */
export declare const scale: {
  readonly forwardByN: 1;
  readonly inverseByN: 2;
  readonly bySqrtN: 4;
  readonly none: 8;
};
export type Scale = 1 | 2 | 4 | 8;

/** Everything that goes wrong, with a text that says what there is instead. */
export declare class HaldgenError extends Error {
  /** The library's status, if it comes from there. */
  readonly status?: number;
}

/** Where a module comes from: by default, its file beside haldgen.mjs. */
export type Source = string | URL | BufferSource | WebAssembly.Module;

/** Compiles a module; `new Haldgen(module)` starts it, in an AudioWorklet, say. */
export declare function compile(name?: ModuleName, source?: Source): Promise<WebAssembly.Module>;
/** Compiles and starts a module: 'common' by default. */
export declare function load(name?: ModuleName, source?: Source): Promise<Haldgen>;

/** Floats in the memory of a module. Memory that is freed may be given out again. */
export declare class Block<T extends FloatType = 'f32'> {
  private constructor();
  readonly type: T;
  /** In bytes, for the functions in `Haldgen.exports`; 0 after free(). */
  readonly address: number;
  readonly length: number;
  /** Take it anew after anything has been allocated: memory that grows leaves old views empty. */
  readonly view: View<T>;
  free(): void;
}

export interface LengthOptions {
  /** 'f32' by default. */
  type?: FloatType;
  inverse?: boolean;
  /** Of half spectra: 'ccs' by default. */
  packing?: Packing;
}

export interface TransformOptions<T extends FloatType = FloatType> extends LengthOptions {
  type?: T;
  /** `scale.none` by default. */
  scale?: Scale;
  /** Transforms in a call of run(), one behind the other: 1 by default. */
  count?: number;
  /** Elements from the start of a transform's input to that of the next: less than a transform's where
   * they overlap. */
  hop?: number;
  /** Arrays of the caller, so that transforms can share them; both may be the same. */
  source?: Block<T>;
  destination?: Block<T>;
}

/** A transform with its arrays: allocated once, called many times. */
export declare class Transform<T extends FloatType = 'f32'> {
  private constructor();
  readonly kind: Kind;
  /** Points. */
  readonly length: number;
  readonly type: T;
  readonly count: number;
  readonly source: Block<T>;
  readonly destination: Block<T>;
  /** The view of source: complex elements as real and imaginary part in turns. */
  readonly input: View<T>;
  readonly output: View<T>;
  /** Transforms input to output. Allocates nothing. */
  run(): void;
  /** Frees what it has allocated. */
  free(): void;
}

/** A started module. */
export declare class Haldgen {
  constructor(module: WebAssembly.Module);
  /** The functions of haldgen.h by name. */
  readonly exports: WebAssembly.Exports;
  readonly memory: WebAssembly.Memory;
  allocate<T extends FloatType>(type: T, length: number): Block<T>;
  /** Lengths in points, of the DCT-IV the powers of two; empty if the module lacks the kind. */
  lengths(kind: Kind, options?: LengthOptions): number[];
  transform<T extends FloatType = 'f32'>(kind: Kind, length: number, options?: TransformOptions<T>): Transform<T>;
}
