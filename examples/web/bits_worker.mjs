// Runs haldgen-bits on the published sums and tells the page what it says.
import {run} from './wasi.mjs';

const fetched = async (path) => {
  const response = await fetch(path);
  if (!response.ok) throw new Error(`${path} answers ${response.status}`);
  return new Uint8Array(await response.arrayBuffer());
};
try {
  const [program, published] =
      await Promise.all([fetched('bits/haldgen-bits.wasm'), fetched('bits/published.tsv')]);
  const {status, text} = await run(program, ['haldgen-bits', 'compare', '/published.tsv'],
                                   {'published.tsv': published});
  postMessage(`${text}exit status ${status}`);
} catch (error) {
  postMessage(String(error));
}
