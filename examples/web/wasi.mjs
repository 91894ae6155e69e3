// As much of the system interface of WebAssembly (WASI preview 1) as a program needs that reads files
// and prints: one folder of files in memory, standard output and error as a text.
const ok = 0, badFile = 8, notFound = 44, notSupported = 58;
const preopened = 3;

class Exit {
  constructor(status) { this.status = status; }
}

/// Runs a program with its arguments, the first of which is its name, and files by name.
export async function run(program, args, files) {
  const {instance, printed} = await started(program, args, files);
  try {
    instance.exports._start();
  } catch (exit) {
    if (!(exit instanceof Exit)) throw exit;
    return {status: exit.status, text: printed.join('')};
  }
  return {status: 0, text: printed.join('')};
}

async function started(program, args, files) {
  let memory;
  const data = () => new DataView(memory.buffer);
  const bytes = (address, length) => new Uint8Array(memory.buffer, address, length);
  const encoded = args.map((text) => new TextEncoder().encode(`${text}\0`));
  const decoder = new TextDecoder();
  const printed = [];
  const open = new Map();  // from number of a file to what is read and how far

  const pieces = (list, count) => Array.from({length: count}, (_, k) => bytes(
      data().getUint32(list + 8 * k, true), data().getUint32(list + 8 * k + 4, true)));
  const text = (address, length) => decoder.decode(bytes(address, length));
  const put = (address, value) => data().setUint32(address, value, true);

  const system = {
    args_sizes_get(count, size) {
      put(count, encoded.length);
      put(size, encoded.reduce((sum, one) => sum + one.length, 0));
      return ok;
    },
    args_get(pointers, place) {
      encoded.forEach((one, k) => {
        put(pointers + 4 * k, place);
        bytes(place, one.length).set(one);
        place += one.length;
      });
      return ok;
    },
    environ_sizes_get(count, size) {
      put(count, 0);
      put(size, 0);
      return ok;
    },
    environ_get: () => ok,
    fd_prestat_get(file, place) {
      if (file !== preopened) return badFile;
      put(place, 0);      // a folder
      put(place + 4, 1);  // with a name of one letter
      return ok;
    },
    fd_prestat_dir_name(file, place) {
      bytes(place, 1)[0] = '/'.charCodeAt(0);
      return ok;
    },
    fd_fdstat_get(file, place) {
      if (file > preopened && !open.has(file)) return badFile;
      bytes(place, 24).fill(0);
      bytes(place, 1)[0] = file < preopened ? 2 : file === preopened ? 3 : 4;  // terminal, folder, file
      bytes(place + 8, 16).fill(0xff);                                        // all rights
      return ok;
    },
    fd_fdstat_set_flags: () => ok,
    path_open(folder, lookup, path, length, flags, rights, inherited, fdflags, place) {
      const name = text(path, length);
      if (!Object.hasOwn(files, name)) return notFound;
      const file = preopened + 1 + open.size;
      open.set(file, {content: files[name], at: 0});
      put(place, file);
      return ok;
    },
    path_readlink: () => notFound,
    fd_read(file, list, count, place) {
      const source = open.get(file);
      if (source === undefined) return badFile;
      const before = source.at;
      for (const piece of pieces(list, count)) {
        const part = source.content.subarray(source.at, source.at + piece.length);
        piece.set(part);
        source.at += part.length;
      }
      put(place, source.at - before);
      return ok;
    },
    fd_seek(file, offset, whence, place) {
      const source = open.get(file);
      if (source === undefined) return notSupported;
      source.at = [0, source.at, source.content.length][whence] + Number(offset);
      data().setBigUint64(place, BigInt(source.at), true);
      return ok;
    },
    fd_write(file, list, count, place) {
      if (file !== 1 && file !== 2) return badFile;
      let written = 0;
      for (const piece of pieces(list, count)) {
        printed.push(decoder.decode(piece, {stream: true}));
        written += piece.length;
      }
      put(place, written);
      return ok;
    },
    fd_close: () => ok,
    proc_exit(status) { throw new Exit(status); },
  };
  const {instance} = await WebAssembly.instantiate(program, {wasi_snapshot_preview1: system});
  memory = instance.exports.memory;
  return {instance, printed};
}
