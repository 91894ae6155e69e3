// A live spectrum by an AudioWorklet, and the check of the published bits by a worker.
import {compile, load} from './haldgen/haldgen.mjs';

const element = (id) => document.getElementById(id);
const module = await compile();
const lengths = (await load('common', module)).lengths('dft');
for (const n of lengths) element('length').add(new Option(n, n, n === 64, n === 64));

let stop = () => {};

function draw(levels, rate, points) {
  const canvas = element('spectrum');
  const context = canvas.getContext('2d');
  const width = canvas.width / levels.length;
  context.clearRect(0, 0, canvas.width, canvas.height);
  context.fillStyle = '#5ad1a0';
  levels.forEach((level, k) => {
    const height = Math.max(0, 1 + Math.log10(level + 1e-9) / 4) * canvas.height;
    context.fillRect(k * width + 1, canvas.height - height, width - 2, height);
  });
  const highest = levels.indexOf(Math.max(...levels));
  element('peak').value = `highest at ${Math.round(highest * rate / points)} Hz, bin ${highest} of ${points}`;
}

/// A node that shows what goes through it; `context` is live or offline.
export async function spectrumNode(context, points) {
  await context.audioWorklet.addModule('worklet.mjs');
  const node = new AudioWorkletNode(context, 'haldgen-spectrum', {processorOptions: {module, points}});
  node.port.onmessage = ({data}) => draw([...data], context.sampleRate, points);
  return node;
}

/// Renders a tone without a loudspeaker: what the page shows first.
export async function showTone(frequency, points) {
  const context = new OfflineAudioContext(1, 9600, 48000);
  const tone = new OscillatorNode(context, {frequency});
  tone.connect(await spectrumNode(context, points)).connect(context.destination);
  tone.start();
  await context.startRendering();
}

async function play(makeSource) {
  stop();
  const context = new AudioContext();
  stop = () => context.close();
  try {
    const source = await makeSource(context);
    const node = await spectrumNode(context, Number(element('length').value));
    source.connect(node).connect(context.destination);
    source.start();
  } catch (error) {
    element('peak').value = String(error);
  }
}

function sweep(context) {
  const tone = new OscillatorNode(context, {type: 'sawtooth', frequency: 200});
  tone.frequency.exponentialRampToValueAtTime(8000, context.currentTime + 10);
  const quiet = new GainNode(context, {gain: 0.2});
  tone.connect(quiet);
  return {connect: (node) => quiet.connect(node), start: () => tone.start()};
}

let playing = sweep;
const start = (source) => play(playing = source);
element('synthetic').onclick = () => start(sweep);
element('recording').onchange = async ({target}) => {
  const bytes = await target.files[0].arrayBuffer();
  start(async (context) => {
    const buffer = await context.decodeAudioData(bytes.slice(0));
    return new AudioBufferSourceNode(context, {buffer, loop: true});
  });
};
element('length').onchange = () => start(playing);
element('stop').onclick = () => { stop(); stop = () => {}; };

element('check').onclick = () => {
  element('check').disabled = true;
  element('bits').value = 'Running …';
  const worker = new Worker('bits_worker.mjs', {type: 'module'});
  const finish = (text) => {
    element('bits').value = text;
    element('check').disabled = false;
    worker.terminate();
  };
  worker.onmessage = ({data}) => finish(data);
  worker.onerror = (event) => finish(`The check does not run: ${event.message}`);
};

await showTone(3000, 64);
