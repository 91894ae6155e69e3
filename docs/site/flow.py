"""The graph of a kernel as a picture: whole if it is small, else its blocks."""

from __future__ import annotations

import functools
from collections import defaultdict
from dataclasses import dataclass
from html import escape

import numpy as np
from scipy.sparse import coo_array
from scipy.sparse.csgraph import connected_components

from facts import Graph

LARGEST_WHOLE = 150  # sums
MOST_BLOCKS = 40
_SHADES = {0: "#60a5fa", 2: "#f87171", 1: "#e879c9", 3: "#e879c9"}
_CONSTANT = "#f5a524"
_LEGEND = (("add", _SHADES[0]), ("subtract", _SHADES[2]), ("times ±i", _SHADES[1]), ("times a constant", _CONSTANT))
_FONT = "font-family='Roboto,DejaVu Sans,Helvetica,Arial,sans-serif'"


def _order(layers: list[list[int]], above: dict[int, list[int]], below: dict[int, list[int]]) -> dict[int, float]:
    """Places within layers between 0 and 1, by the mean of the neighbours, in a few sweeps."""
    place = {n: (i + 0.5) / len(layer) for layer in layers for i, n in enumerate(layer)}
    for sweep in range(8):
        forwards = sweep % 2 == 0
        for layer in layers[1:] if forwards else layers[-2::-1]:
            near = above if forwards else below

            def mean(n: int) -> float:
                return sum(place[m] for m in near[n]) / len(near[n]) if near[n] else place[n]

            layer.sort(key=mean)
            place.update({n: (i + 0.5) / len(layer) for i, n in enumerate(layer)})
    return place


def _card(width: float, height: float, title: str, body: list[str], colours: frozenset[str]) -> str:
    text = [f"<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 {width:.0f} {height:.0f}' {_FONT} role='img'>",
            f"<title>{escape(title)}</title>",
            f"<rect width='{width:.0f}' height='{height:.0f}' rx='12' fill='#0f172a'/>",
            f"<text x='24' y='34' font-size='17' font-weight='bold' fill='#e2e8f0'>{escape(title)}</text>"]
    x = width - 24
    for name, colour in reversed(_LEGEND):
        if colour in colours:
            text.append(f"<text x='{x:.0f}' y='34' font-size='13' fill='{colour}' text-anchor='end'>{name}</text>")
            x -= 7.6 * len(name) + 16
    return "\n".join(text + body + ["</svg>\n"])


def _curve(x0: float, y0: float, x1: float, y1: float, colour: str, width: float, hint: str = "") -> str:
    middle = (x0 + x1) / 2
    hint = f"<title>{escape(hint)}</title>" if hint else ""
    return (f"<path d='M{x0:.1f} {y0:.1f}C{middle:.1f} {y0:.1f} {middle:.1f} {y1:.1f} {x1:.1f} {y1:.1f}' "
            f"fill='none' stroke='{colour}' stroke-width='{width:.1f}'>{hint}</path>")


def whole(graph: Graph, title: str, names: tuple[list[str], list[str]]) -> str:
    """Every sum is a dot, every term a line. Names of inputs by index, and of outputs."""
    level: dict[int, int] = {}
    above: dict[int, list[int]] = defaultdict(list)
    below: dict[int, list[int]] = defaultdict(list)
    for i, node in enumerate(graph.nodes):
        terms = [] if isinstance(node, int) else [t[0] for t in node[1:] if t[0] >= 0]
        level[i] = 1 + max((level[n] for n in terms), default=-1)
        for n in terms:
            above[i].append(n)
            below[n].append(i)
    last = max(level.values()) + 1
    ends = {len(graph.nodes) + k: (node, turn, k) for k, (node, turn) in enumerate(graph.outputs)}
    for end, (node, _, _) in ends.items():
        level[end] = last
        above[end].append(node)
        below[node].append(end)
    layers: list[list[int]] = [[] for _ in range(last + 1)]
    for n in sorted(level):
        layers[level[n]].append(n)
    place = _order(layers, above, below)
    rows = max(map(len, layers))
    height = 70 + max(200, 25 * rows)
    width = max(620, 170 + 115 * last)
    x = {n: 80 + (width - 170) * level[n] / last for n in level}
    y = {n: 56 + (height - 70) * place[n] for n in level}
    lines, dots = [], []
    for i, node in enumerate(graph.nodes):
        if isinstance(node, int):
            dots.append(f"<circle cx='{x[i]:.1f}' cy='{y[i]:.1f}' r='5' fill='#e2e8f0'/>"
                        f"<text x='{x[i] - 11:.1f}' y='{y[i] + 4:.1f}' font-size='12' fill='#e2e8f0' "
                        f"text-anchor='end'>{names[0][node]}</text>")
            continue
        dots.append(f"<circle cx='{x[i]:.1f}' cy='{y[i]:.1f}' r='3.2' fill='#94a3b8'/>")
        for n, turn, constant in node[1:]:
            if n >= 0:
                hint = ("+", "+i", "−", "−i")[turn] + (f" {constant}" if constant else "")
                lines.append(_curve(x[n], y[n], x[i], y[i], _CONSTANT if constant else _SHADES[turn],
                                    1.6 if constant else 1.1, hint))
    shades = {_CONSTANT if t[2] else _SHADES[t[1]] for n in graph.nodes if not isinstance(n, int) for t in n[1:]}
    colours = frozenset(shades | {_SHADES[turn] for _, turn in graph.outputs})
    for end, (node, turn, k) in ends.items():
        if node >= 0:
            lines.append(_curve(x[node], y[node], x[end], y[end], _SHADES[turn], 1.1))
        dots.append(f"<circle cx='{x[end]:.1f}' cy='{y[end]:.1f}' r='5' fill='#e2e8f0'/>"
                    f"<text x='{x[end] + 11:.1f}' y='{y[end] + 4:.1f}' font-size='12' fill='#e2e8f0'>{names[1][k]}</text>")
    return _card(width, height, title, lines + dots, colours)


@dataclass
class _Block:
    stage: str
    sums: list[int]
    count: int = 1  # equal blocks that were joined


def _blocks(graph: Graph, parts: int) -> list[_Block]:
    """Sums of a stage, its name cut to so many parts, that share operands."""
    stage = {i: ", ".join(graph.stages[n[0]].split(", ")[:parts])
             for i, n in enumerate(graph.nodes) if not isinstance(n, int) and len(n) > 1}
    leader = {i: i for i in stage}

    def find(i: int) -> int:
        while leader[i] != i:
            leader[i] = leader[leader[i]]
            i = leader[i]
        return i

    first_user: dict[tuple[str, int], int] = {}
    for i, name in stage.items():
        for n, *_ in graph.terms(i):
            if stage.get(n) == name:
                leader[find(n)] = find(i)
            elif n >= 0:
                leader[find(first_user.setdefault((name, n), i))] = find(i)
    found: dict[int, _Block] = {}
    for i, name in stage.items():
        found.setdefault(find(i), _Block(name, [])).sums.append(i)
    return _joined(graph, _acyclic(graph, list(found.values())))


def _edges(graph: Graph, blocks: list[_Block]) -> dict[tuple[int, int], int]:
    """Values that go from block to block."""
    owner = {i: b for b, block in enumerate(blocks) for i in block.sums}
    values = {(owner[n], owner[i], n) for i in owner for n, *_ in graph.terms(i)
              if n in owner and owner[n] != owner[i]}
    edges: dict[tuple[int, int], int] = defaultdict(int)
    for a, b, _ in values:
        edges[a, b] += 1
    return edges


def _levels(edges: dict[tuple[int, int], int], count: int) -> list[int]:
    """The longest way to each block."""
    above: dict[int, list[int]] = defaultdict(list)
    for a, b in edges:
        above[b].append(a)

    @functools.cache
    def level(b: int) -> int:
        return 1 + max(map(level, above[b]), default=-1)

    return [level(b) for b in range(count)]


def _acyclic(graph: Graph, blocks: list[_Block]) -> list[_Block]:
    """Blocks that need one another are one."""
    edges = _edges(graph, blocks)
    ends = np.array(list(edges) or [(0, 0)]).T
    matrix = coo_array((np.ones(ends.shape[1]), (ends[0], ends[1])), shape=(len(blocks),) * 2)
    _, circles = connected_components(matrix, connection="strong")
    result: dict[int, _Block] = {}
    for block, circle in zip(blocks, circles):
        one = result.setdefault(circle, _Block("", []))
        if block.stage not in one.stage.split(" & "):
            one.stage += (" & " if one.stage else "") + block.stage
        one.sums += block.sums
    return list(result.values())


def _joined(graph: Graph, blocks: list[_Block]) -> list[_Block]:
    """Many small blocks of a stage, such as twiddles, are one if nothing leads from one to another."""
    rows: dict[tuple[str, int], list[_Block]] = defaultdict(list)
    for block, level in zip(blocks, _levels(_edges(graph, blocks), len(blocks))):
        rows[block.stage, level].append(block)
    result = []
    for (stage, _), row in rows.items():
        sums = sum(len(b.sums) for b in row)
        if len(row) > 20 or (len(row) > 2 and sums <= 3 * len(row)):
            result.append(_Block(stage, sorted(i for b in row for i in b.sums), len(row)))
        else:
            result += row
    return result


def _listed(names: list[str]) -> str:
    """As many as a box has room for; parts of a bin are the bin."""
    bins = list(dict.fromkeys(name.split(" ")[-1] if "[" in name else name for name in names))
    for shown in range(len(bins), 0, -1):
        text = " ".join(bins) if shown == len(bins) else f"{' '.join(bins[:shown])} … {bins[-1]}"
        if len(text) <= 24:
            break
    return text


def folded(graph: Graph, title: str, names: tuple[list[str], list[str]]) -> str:
    """Boxes are blocks of a stage, lines the values between them."""
    finest = max(name.count(", ") + 1 for name in graph.stages)
    for parts in range(finest, 0, -1):
        blocks = _blocks(graph, parts)
        if len(blocks) <= MOST_BLOCKS:
            break
    edges = _edges(graph, blocks)
    above: dict[int, list[int]] = defaultdict(list)
    below: dict[int, list[int]] = defaultdict(list)
    for a, b in edges:
        above[b].append(a)
        below[a].append(b)
    level = dict(enumerate(_levels(edges, len(blocks))))
    layers: list[list[int]] = [[] for _ in range(1 + max(level.values()))]
    for b in level:
        layers[level[b]].append(b)
    place = _order(layers, above, below)
    box_width, box_height = 178, 50
    rows = max(map(len, layers))
    height = 70 + max(2, rows) * (box_height + 12)
    width = max(620, 48 + len(layers) * box_width + (len(layers) - 1) * 90)
    step = (width - 48 - box_width) / max(1, len(layers) - 1)
    x = {b: 24 + step * level[b] if len(layers) > 1 else (width - box_width) / 2 for b in level}
    y = {b: 56 + (height - 70) * place[b] for b in level}
    body = []
    most = max(edges.values(), default=1)
    for (a, b), count in sorted(edges.items()):
        body.append(_curve(x[a] + box_width, y[a], x[b], y[b], "#60a5fa", 0.8 + 5 * count / max(most, 12),
                           f"{count} values").replace("<path ", "<path stroke-opacity='.55' "))
    outputs: dict[int, list[str]] = defaultdict(list)
    for k, (node, _) in enumerate(graph.outputs):
        outputs[node].append(names[1][k])
    for b, block in enumerate(blocks):
        used = {n for i in block.sums for n, *_ in graph.terms(i) if n >= 0}
        inputs = [names[0][graph.nodes[n]] for n in sorted(used) if isinstance(graph.nodes[n], int)]
        made = [name for i in block.sums for name in outputs[i]]
        name = block.stage.split(", ")[-1] or "sums and products"
        if " & " in block.stage:
            name = block.stage.split(" & ")[0].split(", ")[-1] + " …"
        detail = _listed(inputs) if inputs else _listed(made) if made else f"{len(block.sums)} sums"
        arrow = "from " if inputs else "to " if made else ""
        label = f"{name} ×{block.count}" if block.count > 1 else name
        top = y[b] - box_height / 2
        hint = (f"{block.stage}: {len(block.sums)} sums"
                + (f"; from {' '.join(inputs)}" if inputs else "") + (f"; to {' '.join(made)}" if made else ""))
        body.append(f"<g><title>{escape(hint)}</title>"
                    f"<rect x='{x[b]:.1f}' y='{top:.1f}' width='{box_width}' height='{box_height}' rx='7' "
                    f"fill='#1e293b' stroke='{_CONSTANT if 'twiddle' in label or 'product' in label else '#60a5fa'}'/>"
                    f"<text x='{x[b] + box_width / 2:.1f}' y='{top + 21:.1f}' font-size='13' fill='#e2e8f0' "
                    f"text-anchor='middle'>{escape(label[:27])}</text>"
                    f"<text x='{x[b] + box_width / 2:.1f}' y='{top + 39:.1f}' font-size='11' fill='#94a3b8' "
                    f"text-anchor='middle'>{escape(arrow + detail)}</text></g>")
    return _card(width, height, title, body, frozenset())


def is_whole(graph: Graph) -> bool:
    return sum(not isinstance(n, int) for n in graph.nodes) <= LARGEST_WHOLE


def picture(graph: Graph, title: str, names: tuple[list[str], list[str]]) -> str:
    return whole(graph, title, names) if is_whole(graph) else folded(graph, title, names)
