// Serves the page: node serve.mjs [BUILD] [PORT]
// The package lies below haldgen/, haldgen-bits and the published sums below bits/.
import {createServer} from 'node:http';
import {readFile} from 'node:fs/promises';
import {extname, join, normalize} from 'node:path';
import {fileURLToPath, pathToFileURL} from 'node:url';

const here = fileURLToPath(new URL('.', import.meta.url));
const types = {'.html': 'text/html; charset=utf-8', '.mjs': 'text/javascript',
  '.wasm': 'application/wasm'};

/// A server of the page with a build's package, not yet listening.
export function pageServer(build) {
  return createServer(async (request, response) => {
    const {pathname} = new URL(request.url, 'http://localhost');
    const path = normalize(decodeURIComponent(pathname)).slice(1) || 'index.html';
    const [folder, ...rest] = path.split('/');
    const places = {haldgen: join(build, 'web'), bits: join(build, 'bits')};
    const file = Object.hasOwn(places, folder) ? join(places[folder], ...rest) : join(here, path);
    try {
      const content = await readFile(file);
      response.writeHead(200, {'content-type': types[extname(file)] ?? 'application/octet-stream'});
      response.end(content);
    } catch {
      response.writeHead(404).end();
    }
  });
}

if (import.meta.url === pathToFileURL(process.argv[1]).href) {
  const [build = join(here, '../../build/wasm'), port = '8000'] = process.argv.slice(2);
  pageServer(build).listen(Number(port), 'localhost', () => console.log(`http://localhost:${port}/`));
}
