"""What the site says of kernels, read from where it is known: the generator, the built library, the
published results, sums and tables. Nothing is repeated here."""

from __future__ import annotations

import ctypes
import functools
import json
import re
import subprocess
import sys
from dataclasses import dataclass, field
from pathlib import Path
from typing import Any

import numpy as np

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench"))
from summary import Results, read as read_results  # noqa: E402


@dataclass(frozen=True)
class Family:
    """A family of the catalogue; its words are those of exported names, the measured ones first."""

    slug: str
    title: str
    generated: tuple[str, ...]  # families of the generator
    words: tuple[str, ...]
    measured: tuple[str, ...]  # words of the published results
    types: tuple[str, str]
    lengths: tuple[int, ...]
    page: str  # how kernels are made

    def size_of(self, length: int) -> int:
        """The number in names: the length, or the order."""
        return length.bit_length() - 1 if self.slug == "wht" else length


_ALL = tuple(range(2, 65))
FAMILIES = (
    Family("complex", "Complex DFT", ("complex",), ("DFTFwd_CToC", "DFTInv_CToC"),
           ("DFTFwd_CToC", "DFTInv_CToC"), ("32fc", "64fc"), _ALL, "complex.md"),
    Family("real", "Real DFT", ("real-forward", "real-inverse"),
           ("DFTFwd_RToCCS", "DFTFwd_RToPack", "DFTFwd_RToPerm",
            "DFTInv_CCSToR", "DFTInv_PackToR", "DFTInv_PermToR"),
           ("DFTFwd_RToCCS", "DFTInv_CCSToR"), ("32f", "64f"), _ALL, "real.md"),
    Family("hartley", "Hartley transform", ("hartley",), ("Hartley",), ("Hartley",),
           ("32f", "64f"), _ALL, "hartley.md"),
    Family("wht", "Walsh-Hadamard transform", (), ("WHT",), ("WHT",), ("32f", "64f"),
           tuple(2**order for order in range(1, 14)), "wht.md"),
    Family("dct4", "DCT-IV", ("dct4",), ("DCT4",), ("DCT4",), ("32f", "64f"),
           tuple(2**order for order in range(1, 17)), "dct4.md"),
)


# The generator.

@dataclass(frozen=True)
class Graph:
    """Nodes in order of definition: inputs by index, or sums of (node, power of i, constant)."""

    nodes: list[int | list[Any]]
    stages: list[str]
    outputs: list[tuple[int, int]]

    def terms(self, node: int) -> list[Any]:
        """None of an input."""
        entry = self.nodes[node]
        return [] if isinstance(entry, int) else entry[1:]


@dataclass(frozen=True)
class Design:
    additions: int
    multiplications: int
    depth: int
    algorithm: str = ""
    graph: Graph | None = None


def designs(generate: Path) -> dict[tuple[str, str, str], Design]:
    """By family of the generator, kernel and type."""
    text = subprocess.run([generate, "catalogue"], check=True, capture_output=True, text=True).stdout
    result = {}
    for line in text.splitlines():
        row = json.loads(line)
        graph = Graph(row["nodes"], row["stages"], row["outputs"]) if "nodes" in row else None
        result[row["family"], row["kernel"], row["type"]] = Design(
            row["additions"], row["multiplications"], row["depth"], row.get("algorithm", ""), graph)
    return result


def hadamard_design(order: int) -> Design:
    """The network of docs/wht.md, which is the same at every order."""
    length = 2**order
    nodes: list[int | list[Any]] = list(range(length))
    current = list(range(length))
    additions = 0
    for level in range(order):
        half = 2**level
        for i in range(length):
            if i & half:
                continue
            a, b = current[i], current[i + half]
            for sign, place in ((0, i), (2, i + half)):
                current[place] = len(nodes)
                nodes.append([level, [a, 0, 0], [b, sign, 0]])
                additions += 1
    stages = [f"level {level}" for level in range(order)]
    return Design(additions, 0, order, f"{order} levels of sums and differences",
                  Graph(nodes, stages, [(node, 0) for node in current]))


# The built library.

@dataclass
class Code:
    name: str
    size: int = 0
    frame: int = 0
    called: set[int] = field(default_factory=set)
    jumped_to: set[int] = field(default_factory=set)


@functools.cache
def code(library: Path) -> dict[int, Code]:
    """Size and frame of each function, as tests/built/disassembly.cc counts it, and whom it calls; by
    address, as hidden functions share names."""
    symbols = subprocess.run(["nm", "-S", library], check=True, capture_output=True, text=True).stdout
    sizes = {int(p[0], 16): int(p[1], 16) for p in map(str.split, symbols.splitlines()) if len(p) == 4}
    listing = subprocess.run(["objdump", "-d", "--no-show-raw-insn", library], check=True,
                             capture_output=True, text=True).stdout
    functions: dict[int, Code] = {}
    current = Code("")
    for line in listing.splitlines():
        if line.endswith(">:"):
            address = int(line.split()[0], 16)
            current = functions[address] = Code(line[line.index("<") + 1:-2], sizes.get(address, 0))
            continue
        _, _, instruction = line.partition(":\t")
        if instruction.startswith("push"):
            current.frame += 8
        elif instruction.endswith(",%rsp"):
            match = re.match(r"(sub|add|and)\w* +\$(0x[0-9a-f]+),", instruction)
            if match:
                number = int(match[2], 16)
                number -= 1 << 64 if number >> 63 else 0
                current.frame += max(0, number if match[1] == "sub" else -number)
        elif instruction.startswith(("call", "j")):
            match = re.search(r"([0-9a-f]+) <([^@>+]+)(?:\+0x([0-9a-f]+))?>", instruction)
            if match and match[2] != current.name:
                callees = current.called if instruction.startswith("call") else current.jumped_to
                callees.add(int(match[1], 16) - int(match[3] or "0", 16))
    return functions


@functools.cache
def _starts(library: Path) -> dict[str, int]:
    return {function.name: address for address, function in code(library).items()}


def implementation(library: Path, name: str) -> Code:
    """An exported function with all that it calls by name: bytes of all, frames of the deepest chain."""
    functions = code(library)
    start = _starts(library)[f"haldgImpl_{name.removeprefix('haldg')}"]
    seen: set[int] = set()

    def depth(address: int) -> int:
        seen.add(address)
        function = functions[address]
        below = [function.frame + 8 + depth(a) for a in function.called if a in functions and a not in seen]
        # A jump comes when the frame is given back.
        instead = [depth(a) for a in function.jumped_to if a in functions and a not in seen]
        return max([function.frame, *below, *instead])

    frame = depth(start)
    return Code(name, sum(functions[a].size for a in seen), frame)


def planned_code(library: Path) -> Code:
    """All of the DCT-IV, which its lengths share; the frame is the largest."""
    functions = [f for f in code(library).values() if "4dct4" in f.name or "haldgImpl_DCT4" in f.name]
    return Code("DCT4", sum(f.size for f in functions), max(f.frame for f in functions))


def state_bytes(library: Path, length: int, type_: str) -> int:
    size = ctypes.c_int32()
    query = ctypes.CDLL(str(library))[f"haldgDCT4GetSize_{type_}"]
    if query(length, ctypes.byref(size)) != 0:
        raise ValueError(f"no DCT-IV of {length} points")
    return size.value


# Errors.

@dataclass(frozen=True)
class Error:
    """In units of epsilon, but `largest_absolute`."""

    l2: float
    worst_call: float
    largest: float | None = None
    largest_absolute: float | None = None

    @property
    def largest_text(self) -> str:
        return f"{self.largest:.2f} ε" if self.largest is not None else f"{self.largest_absolute:.1e}"


def _rows(lines: list[str]) -> list[list[str]]:
    cells = [[c.strip() for c in line.strip().strip("|").split("|")] for line in lines if line.startswith("|")]
    return [row for row in cells if row[0].isdigit()]


def errors(library: Path) -> dict[tuple[str, str, int], Error]:
    """By word, type and length: the tables of the documents, and the Walsh-Hadamard transform."""
    result = {}
    text = (ROOT / "docs/accuracy.md").read_text()
    words = {"accuracy": ("DFTFwd_CToC", "DFTInv_CToC"), "real-accuracy": ("DFTFwd_RToCCS", "DFTInv_CCSToR"),
             "hartley-accuracy": ("Hartley",)}
    for table, names in words.items():
        body = text.split(f"<!-- table {table} -->")[1].split(f"<!-- end of table {table} -->")[0]
        for section in body.split("### ")[1:]:
            lines = section.splitlines()
            for row in _rows(lines):
                for i, word in enumerate(names):
                    l2, worst, largest = map(float, row[1 + 5 * i:4 + 5 * i])
                    result[word, lines[0].strip(), int(row[0])] = Error(l2, worst, largest)
    section = (ROOT / "docs/dct4.md").read_text().split("## Accuracy")[1].split("\n## ")[0]
    for row in _rows(section.splitlines()):
        for type_, cells in (("32f", row[1:5]), ("64f", row[5:9])):
            l2, worst, _, largest = map(float, cells)
            result["DCT4", type_, int(row[0])] = Error(l2, worst, largest_absolute=largest)
    return result | _hadamard_errors(library)


def _hadamard_errors(library: Path) -> dict[tuple[str, str, int], Error]:
    """200 inputs uniform in [-1, 1), scale 1, against 80-bit arithmetic."""
    functions = ctypes.CDLL(str(library))
    result = {}
    for type_, dtype in (("32f", np.float32), ("64f", np.float64)):
        for order in range(1, 14):
            x = np.random.default_rng(order).uniform(-1, 1, (200, 2**order)).astype(dtype)
            y = np.empty_like(x)
            work = np.zeros(1 << 17, np.uint8)
            transform = functions[f"haldgWHT_{order}_{type_}"]
            for source, destination in zip(x, y):
                transform(ctypes.c_void_p(source.ctypes.data), ctypes.c_void_p(destination.ctypes.data), 8,
                          ctypes.c_void_p(work.ctypes.data + -work.ctypes.data % 16))
            exact = x.astype(np.longdouble)
            for level in range(order):
                pairs = exact.reshape(200, -1, 2, 2**level)
                exact = np.stack((pairs[:, :, 0] + pairs[:, :, 1], pairs[:, :, 0] - pairs[:, :, 1]), 2).reshape(200, -1)
            square, norm = ((y - exact) ** 2).sum(1), (exact**2).sum(1)
            largest = np.abs(y - exact).max(1) / np.sqrt((exact**2).mean(1))
            epsilon = float(np.finfo(x.dtype).eps)
            result["WHT", type_, 2**order] = Error(
                float(np.sqrt(square.sum() / norm.sum())) / epsilon,
                float(np.sqrt((square / norm).max())) / epsilon, float(largest.max()) / epsilon)
    return result


# Speed.

@dataclass(frozen=True)
class Run:
    """What a published table says of the machine."""

    results: Results
    path: str

    @property
    def busy(self) -> bool:
        return self.results.busy

    @property
    def where(self) -> str:
        head = self.results.head
        return f"{head['processor']}, {head['cores']} cores, {self.results.state}, measured by {head['date']}"

    @property
    def caption(self) -> str:
        return self.where + "; baseline build, 128-bit vectors"


@dataclass(frozen=True)
class Speed:
    run: Run
    nanoseconds: dict[str, float]  # by contestant, "haldgen" first

    @property
    def best_peer(self) -> str | None:
        """The fastest at full vector width."""
        peers = [p for p in PEERS if p in self.nanoseconds and p != "fftw128"]
        return min(peers, key=lambda peer: self.nanoseconds[peer]) if peers else None

    def ratio(self, peer: str) -> float:
        return self.nanoseconds["haldgen"] / self.nanoseconds[peer]


# Contestants of the tables, and what to call them.
PEERS = {"fftw": "FFTW", "kissfft": "kissfft", "av_tx": "av_tx", "fftw128": "FFTW, 128 bits",
         "plain": "plain loop", "plain_fixed": "plain loop, fixed length"}


# One run of the baseline and its flavours.
FLAVOURS = ROOT / "docs/results/flavours.tsv"
BATCHES = ROOT / "docs/results/batches.tsv"


def speeds(mode: str = "hot") -> dict[tuple[str, str, int], Speed]:
    """Medians by word, type and length."""
    result = {}
    for path in sorted(set((ROOT / "docs/results").glob("*.tsv")) - {FLAVOURS}):
        results = read_results(path)
        run = Run(results, str(path.relative_to(ROOT / "docs")))
        for row in results.rows:
            if (row.mode, row.statistic) == (mode, "median"):
                times = {name: row.times[name] for name in ("haldgen", *PEERS) if name in row.times}
                result[row.family, row.type, row.length] = Speed(run, times)
    return result


def flavour_times() -> dict[tuple[str, str, int], dict[str, tuple[float, float]]]:
    """Nanoseconds in each flavour, and over the baseline's in the same run; by word, type and length."""
    results = read_results(FLAVOURS)
    return {(row.family, row.type, row.length):
            {name: (row.times[name], row.times[name] / row.times["haldgen"]) for name in results.named("variant")}
            for row in results.rows if (row.mode, row.statistic) == ("hot", "median")}


# Promises and words.

def sums() -> dict[str, str]:
    """Published checksums by function."""
    lines = (ROOT / "bits/published.tsv").read_text().splitlines()[1:]
    return dict(line.split("\t")[:2] for line in lines)


def notation(page: str) -> list[tuple[str, list[str], str]]:
    """Rows of the tables of a document that explain recipes: first cell, tokens in it, and meaning."""
    result = []
    for line in (ROOT / "docs" / page).read_text().replace("\\|", "|").splitlines():
        match = re.fullmatch(r"\| ((?:`[^`]+`[ ,.]*)+) \| (.*) \|", line)
        if match and not re.match(r"`[a-z_0-9]+/`", match[1]):
            tokens = re.findall(r"`([^`]+)`", match[1])
            if ".." in match[1]:  # powers of two in between
                tokens += [str(2**k) for k in range(3, 6)]
            result.append((match[1], tokens, match[2]))
    return result


def plans() -> dict[int, tuple[int, list[int]]]:
    """Of the DCT-IV, by length: the radix, and the factors of the fold, the last of them a kernel."""
    rows = {line.split("|")[1].strip(): [c.strip() for c in line.split("|")[2:-1]]
            for line in (ROOT / "docs/dct4.md").read_text().splitlines() if re.match(r"\| [Nrm] \| \d+ ", line)}
    return {int(n): (int(r), [int(f) for f in m.split(" x ")]) for n, r, m in zip(rows["N"], rows["r"], rows["m"])}
