// As much of the system interface of WebAssembly (WASI preview 1) as a program needs that reads files
// and prints: one folder of files in memory, standard output and error as a text.
const badFile = 8, notFound = 44, notSupported = 58;
const preopened = 3;

/// Runs a program with its arguments, the first of which is its name, and files by name. What it
/// returns has its exit status and what it printed.
export async function run(program, args, files) {
  let memory;
  const data = () => new DataView(memory.buffer);
  const bytes = (address, length) => new Uint8Array(memory.buffer, address, length);
  const put = (address, ...values) =>
      values.forEach((value, k) => data().setUint32(address + 4 * k, value, true));
  const pieces = (list, count) => Array.from({length: count}, (_, k) => bytes(
      data().getUint32(list + 8 * k, true), data().getUint32(list + 8 * k + 4, true)));
  const encoded = args.map((text) => new TextEncoder().encode(`${text}\0`));
  const decoder = new TextDecoder();
  const open = [];  // what is left to read of files
  const result = {status: 0, text: ''};

  const system = {  // what returns nothing returns 0, success
    args_sizes_get(count, size) {
      put(count, encoded.length);
      put(size, encoded.reduce((sum, one) => sum + one.length, 0));
    },
    args_get(pointers, place) {
      encoded.forEach((one, k) => {
        put(pointers + 4 * k, place);
        bytes(place, one.length).set(one);
        place += one.length;
      });
    },
    environ_sizes_get: (count, size) => { put(count, 0); put(size, 0); },
    environ_get() {}, fd_fdstat_set_flags() {}, fd_close() {},
    fd_prestat_get(file, place) {
      if (file !== preopened) return badFile;
      put(place, 0, 1);  // a folder with a name of one letter
    },
    fd_prestat_dir_name: (file, place) => bytes(place, 1).set(new TextEncoder().encode('/')),
    fd_fdstat_get(file, place) {
      put(place, file === preopened ? 3 : 4, 0, ~0, ~0, ~0, ~0);  // a folder or a file, all rights
    },
    path_open(folder, lookup, path, length, flags, rights, inherited, fdflags, place) {
      const name = decoder.decode(bytes(path, length));
      if (!Object.hasOwn(files, name)) return notFound;
      put(place, preopened + open.push(files[name]));
    },
    fd_read(file, list, count, place) {
      const k = file - preopened - 1;
      if (!(k in open)) return badFile;
      const before = open[k].length;
      for (const piece of pieces(list, count)) {
        piece.set(open[k].subarray(0, piece.length));
        open[k] = open[k].subarray(piece.length);
      }
      put(place, before - open[k].length);
    },
    path_readlink: () => notFound, fd_seek: () => notSupported,
    fd_write(file, list, count, place) {
      const parts = pieces(list, count);
      result.text += parts.map((piece) => decoder.decode(piece, {stream: true})).join('');
      put(place, parts.reduce((sum, piece) => sum + piece.length, 0));
    },
    proc_exit(status) {
      result.status = status;
      throw result;  // the only way out of the program
    },
  };
  const {instance} = await WebAssembly.instantiate(program, {wasi_snapshot_preview1: system});
  memory = instance.exports.memory;
  try {
    instance.exports._start();
  } catch (reason) {
    if (reason !== result) throw reason;
  }
  return result;
}
