import {load, scale} from 'haldgen';

const hald = await load();
const dft = hald.transform('dft', 16, {scale: scale.forwardByN});
for (let n = 0; n < 16; n += 4) dft.input[2 * n] = 1;  // a pulse every 4 samples

dft.run();

for (let k = 0; k < 16; ++k) {
  const re = dft.output[2 * k];
  if (re > 0.01) console.log(`bin ${String(k).padStart(2)}: ${re.toFixed(2)}`);
}
