// The overview of the catalogue: colours the lengths by the figure that is chosen.
(function () {
  'use strict';
  const overview = document.querySelector('.hg-overview');
  if (!overview) return;
  const cells = [...overview.querySelectorAll('.hg-grid a')];
  const legend = overview.querySelector('.hg-legend');

  function hue(share) {  // 0 is good, green; 1 is bad, orange
    return `hsla(${150 - 125 * share}, 65%, 50%, .55)`;
  }

  function colour(button) {
    const {figure, unit} = button.dataset;
    const value = (cell) => (cell.dataset[figure] === '' ? NaN : Number(cell.dataset[figure]));
    const sorted = cells.map(value).filter((v) => !Number.isNaN(v)).sort((a, b) => a - b);
    for (const cell of cells) {
      const v = value(cell);
      // Ranks, so that a few large figures leave colours to the others.
      cell.style.background = Number.isNaN(v) ? '' : hue(sorted.filter((w) => w < v).length / Math.max(1, sorted.length - 1));
      cell.title = Number.isNaN(v) ? 'not measured' : `${cell.dataset[figure]} ${unit}`;
    }
    legend.innerHTML = `${sorted[0]} <i style="background:linear-gradient(90deg,${hue(0)},${hue(0.5)},${hue(1)})"></i>` +
      ` ${sorted[sorted.length - 1]} ${unit}; colours by rank, no colour: not measured`;
    for (const other of overview.querySelectorAll('button')) other.classList.toggle('hg-here', other === button);
  }

  for (const button of overview.querySelectorAll('button')) button.addEventListener('click', () => colour(button));
  colour(overview.querySelector('button'));
})();
