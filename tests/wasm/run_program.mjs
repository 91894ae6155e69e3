// Runs a WebAssembly program of the command line: node run_program.mjs PROGRAM ARGUMENT...
// It may read the whole file system under the names that are usual.
import {readFile} from 'node:fs/promises';
import {WASI} from 'node:wasi';

const [program, ...args] = process.argv.slice(2);
const wasi = new WASI({version: 'preview1', args: [program, ...args], preopens: {'/': '/'}});
const module = await WebAssembly.compile(await readFile(program));
const instance = await WebAssembly.instantiate(module, {wasi_snapshot_preview1: wasi.wasiImport});
process.exitCode = wasi.start(instance) ?? 0;
