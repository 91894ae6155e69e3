"""Pages of the catalogue, as Markdown."""

from __future__ import annotations

import json
import re
from dataclasses import dataclass
from pathlib import Path

from jinja2 import Environment, FileSystemLoader, StrictUndefined

import facts
import flow
from facts import Design, Family

_TEMPLATES = Environment(loader=FileSystemLoader(Path(__file__).parent / "templates"), undefined=StrictUndefined,
                         trim_blocks=True, lstrip_blocks=True)

_FORMULAS = {
    "complex": ("X[k] = s · Σ x[n] · exp(∓2πi·k·n/{n}),  k, n = 0 … {last};  − forward, + inverse"),
    "real": ("X[k] = s · Σ x[n] · exp(−2πi·k·n/{n}),  n = 0 … {last},  k = 0 … {half};  and back"),
    "hartley": "H[k] = s · Σ x[n] · (cos(2π·k·n/{n}) + sin(2π·k·n/{n})),  k, n = 0 … {last}",
    "wht": "Y[k] = s · Σ x[n] · (−1)^popcount(k & n),  k, n = 0 … {last}",
    "dct4": "y[k] = Σ x[n] · cos(π/{n}·(n + ½)·(k + ½)),  k, n = 0 … {last}",
}


@dataclass(frozen=True)
class Kernel:
    family: Family
    length: int
    type: str

    @property
    def page(self) -> str:
        return f"{self.family.slug}-{self.length}-{self.type}"

    @property
    def bits(self) -> int:
        return int(self.type[:2])

    @property
    def title(self) -> str:
        return f"{self.family.title}, {self.length:,} points, {self.bits} bit"

    def function(self, word: str) -> str:
        if self.family.slug == "dct4":
            return f"haldg{word}_{self.type}"
        return f"haldg{word}_{self.family.size_of(self.length)}_{self.type}"

    def published(self, word: str) -> str:
        """The name in the list of sums."""
        return f"{self.function(word)}/{self.length}" if self.family.slug == "dct4" else self.function(word)


def kernels() -> list[Kernel]:
    return [Kernel(f, length, type_) for f in facts.FAMILIES for length in f.lengths for type_ in f.types]


class Facts:
    """All figures of all kernels."""

    def __init__(self, build: Path) -> None:
        self.library = build / "libhaldgenp8.so"
        self._designs = facts.designs(build / "generate/haldgen-generate")
        self.errors = facts.errors(self.library)
        self.speeds = facts.speeds()
        self.flavours = facts.flavour_times()
        self.sums = facts.sums()

    def designs(self, kernel: Kernel) -> list[tuple[str, Design]]:
        """What is counted, and the graphs, with what to call them."""
        family = kernel.family
        if family.slug == "wht":
            return [("both ways", facts.hadamard_design(family.size_of(kernel.length)))]
        found = [(name.rpartition("-")[2] if "-" in name else "", self._designs[name, str(kernel.length), kernel.type])
                 for name in family.generated]
        part = self._designs.get(("dct4", f"fixed_{kernel.length}", kernel.type)) if family.slug == "dct4" else None
        return [("", part)] if part else found

    def parts(self, kernel: Kernel) -> list[tuple[str, Design]]:
        """Generated kernels that a planned transform runs, in this order."""
        if kernel.family.slug != "dct4" or kernel.length <= 32:
            return []
        radix, factors = facts.plans()[kernel.length]
        names = [f"fold_{factors[-1]}", *(f"inner_recombine_{f}" for f in factors[-2::-1]), f"recombine_{radix}"]
        return [(name, self._designs["dct4", name, kernel.type]) for name in names]

    def code(self, kernel: Kernel, word: str) -> facts.Code:
        if kernel.family.slug == "dct4":
            return facts.planned_code(self.library)
        return facts.implementation(self.library, kernel.function(word))


def _names(family: str, direction: str, length: int) -> tuple[list[str], list[str]]:
    """Names of the inputs of a graph by index, and of its outputs."""
    samples = [f"x[{n}]" for n in range(length)]
    if family != "real":
        letter = {"complex": "X", "hartley": "H", "wht": "Y", "dct4": "y"}[family]
        return samples, [f"{letter}[{k}]" for k in range(length)]
    middle = [f"{part} X[{k}]" for k in range(1, (length + 1) // 2) for part in ("re", "im")]
    spectrum = ["X[0]", *middle, *([f"X[{length // 2}]"] if length % 2 == 0 else [])]
    return (spectrum, samples) if direction == "inverse" else (samples, spectrum)


def pictures(kernel: Kernel, known: Facts) -> list[tuple[str, str]]:
    """File names and pictures of its graphs; of long Walsh-Hadamard transforms that of 32 points."""
    result = []
    for name, part in known.parts(kernel):
        assert part.graph
        title = f"{part.algorithm}, {kernel.type}"
        inputs = [f"in {i}" for i in range(len(part.graph.nodes))]
        result.append((f"dct4-{name}-{kernel.type}.svg",
                       flow.picture(part.graph, title, (inputs, [f"out {i}" for i in range(len(part.graph.outputs))]))))
    for direction, design in known.designs(kernel):
        graph, length = design.graph, kernel.length
        if kernel.family.slug == "wht" and length > 32:
            graph, length = facts.hadamard_design(5).graph, 32
        if graph is None:
            continue
        shown = f"{length} points" if length != kernel.length else f"{kernel.length} points, {kernel.type}"
        title = f"{kernel.family.title}, {shown}" + (f", {direction}" if len(known.designs(kernel)) > 1 else "")
        names = _names(kernel.family.slug, direction, length)
        draw = flow.whole if kernel.family.slug == "wht" else flow.picture
        result.append((f"{kernel.page}{'-' + direction if direction == 'inverse' else ''}.svg", draw(graph, title, names)))
    return result


# Words.

def _opening(algorithm: str, length: int) -> str:
    """The outermost step of a recipe."""
    bare = algorithm.removesuffix(", transposed")
    tail = " Run backwards: with all edges of the graph reversed." if bare != algorithm else ""
    if re.match(r"\d+ Bluestein", bare):
        text = f"A chirp transform (Bluestein): {length} is prime, and the transform becomes a cyclic convolution of a convenient length."
    elif re.match(r"\d+r|rader", bare):
        text = (f"Rader's way: {length} is prime, so the powers of a primitive root order all other indices in a circle, and the "
                f"transform is a cyclic convolution of length {length - 1}.")
    elif bare.startswith("PFA(") or re.match(r"\(.*( \. ).*\)$", bare) and _top(bare) == ".":
        text = f"Prime factors (Good): {length} is a product of coprime numbers, so its columns and rows need no factors between them."
    elif bare.startswith("CT(") or _top(bare) == "x":
        text = f"Cooley and Tukey: {length} in columns and rows, with twiddle factors between them."
    elif bare.startswith("halves("):
        text = "Sums and differences of samples half a length apart; the sums give the even bins, the differences the odd ones."
    elif bare.startswith("Q4("):
        text = "Even bins by a transform of half the length, the odd ones by two of a quarter."
    elif bare.startswith("classes(") or bare.startswith("coprime"):
        text = "By residue classes of the index."
    else:
        text = f"One block, written out: {length} points in one piece."
    return text + tail


def _top(recipe: str) -> str:
    """The operator of the outermost parentheses."""
    depth = 0
    for i, c in enumerate(recipe):
        depth += {"(": 1, ")": -1}.get(c, 0)
        if depth == 1 and recipe[i:i + 3] in (" . ", " x "):
            return recipe[i + 1]
    return ""


def _glossary(page: str, recipes: list[str]) -> list[tuple[str, str]]:
    """The rows of the notation that these recipes use."""
    rows = []
    for cell, tokens, meaning in facts.notation(page):
        for token in tokens:
            head = re.split(r"[(\d]| a", token)[0] or token
            pattern = {"(a . b)": r" \. ", "(a x b)": r" x ", "a || b": r"\|\|", "rader 23 from 1": r" from \d"}.get(token) or (
                r"(?<![\w'])" + re.escape(token) + r"(?![\w'])" if head == token
                else r"\d+r literal" if "literal" in token else r"\d+r\((?!.*literal)" if token.startswith("13r") else re.escape(head))
            if any(re.search(pattern, recipe) for recipe in recipes):
                rows.append((cell, meaning))
                break
    return rows


def _calls(kernel: Kernel) -> list[tuple[str, str, str]]:
    """Label, language and code of the forward call; of the DCT-IV with its state."""
    n, slug = kernel.length, kernel.family.slug
    real = "float" if kernel.bits == 32 else "double"
    element = f"Cplx{kernel.bits}" if slug == "complex" else real
    function, js = kernel.function(kernel.family.words[0]), f"f{kernel.bits}"
    arrays = f"{element} x[{n}], X[{n}];\n" if slug != "real" else f"{real} x[{n}], X[HALDGEN_CCS_SIZE({n})];\n"
    numpy = {"complex": f"complex{2 * kernel.bits}"}.get(slug, f"float{kernel.bits}")
    cpp_type = f"std::complex<{real}>" if slug == "complex" else real
    cpp_arrays = f"std::array<{cpp_type}, {n}> x{{}}" + ("" if slug == "real" else ", X") + ";\n"
    python, cpp, c = {
        "complex": ("haldgen.fft(x)", "haldgen::dft(x, X);", f"{arrays}{function}(x, X, haldScaleNone);"),
        "real": ("haldgen.rfft(x)", "const auto X = haldgen::real_dft(x);  // X[k] is bin k",
                 f"{arrays}{function}(x, X, haldScaleNone);"),
        "hartley": ("haldgen.hartley(x)", "haldgen::hartley(x, X);", f"{arrays}{function}(x, X, haldScaleNone);"),
        "wht": ("haldgen.wht(x)", "haldgen::wht(x, X);", f"{arrays}{function}(x, X, haldScaleNone, NULL);"),
        "dct4": ("haldgen.dct4(x)  # twice the C function, as SciPy has it",
                 f"haldgen::dct4<{real}> transform({n});  // once\ntransform(x, X);",
                 f"{arrays}Dct4State* state;\nhaldgDCT4InitAlloc_{kernel.type}(&state, {n});  /* once */\n"
                 f"haldgDCT4_{kernel.type}(x, X, state);\nhaldgDCT4Free_{kernel.type}(state);"),
    }[slug]
    if slug == "wht" and n >= 256:
        cpp = f"static haldgen::wht_work<{real}, {n}> work;\nhaldgen::wht(x, X, work);"
        c = (f"{arrays}_Alignas(16) uint8_t work[{_work_bytes(kernel)}];  /* haldgWHTGetBufferSize_{kernel.type} */\n"
             f"{function}(x, X, haldScaleNone, work);")
    kind = {"complex": "dft", "real": "rdft"}.get(slug, slug)
    return [
        ("C", "c", "#include <haldgen.h>\n" + ("#include <stddef.h>\n" if "NULL" in c else "") + f"\n{c}"),
        ("C++", "cpp", f"#include <haldgen.hpp>\n\n{cpp_arrays}{cpp}"),
        ("Python", "python", f"import haldgen\nimport numpy as np\n\nx = np.zeros({n}, np.{numpy})  # or any shape (..., {n})\nX = {python}"),
        ("JavaScript", "js", f"import {{load}} from 'haldgen';\n\nconst hald = await load('{slug}');\n"
         f"const transform = hald.transform('{kind}', {n}, {{type: '{js}'}});\n"
         "transform.input.set(x);\ntransform.run();  // and read transform.output"),
    ]


def _work_bytes(kernel: Kernel) -> int:
    row = next(line for line in (facts.ROOT / "docs/wht.md").read_text().splitlines()
               if re.match(rf"\| {kernel.family.size_of(kernel.length)} \| [\d+ ]+ \| \d+ \|", line))
    return int(row.split("|")[3 if kernel.bits == 32 else 5])


# Pages.

def _chips(kernel: Kernel) -> list[tuple[str, str, bool]]:
    """Page, text, and whether it is the one that is shown: families, types, neighbours."""
    family = kernel.family
    links = []
    for other in facts.FAMILIES:
        nearest = min(other.lengths, key=lambda n: abs(n - kernel.length))
        type_ = other.types[family.types.index(kernel.type)]
        links.append((Kernel(other, nearest, type_).page, other.title.removesuffix(" transform"), other is family))
    links += [(Kernel(family, kernel.length, t).page, f"{t[:2]} bit", t == kernel.type) for t in family.types]
    here = family.lengths.index(kernel.length)
    for step, arrow in ((-1, "←"), (1, "→")):
        if 0 <= here + step < len(family.lengths):
            length = family.lengths[here + step]
            links.append((Kernel(family, length, kernel.type).page, f"{arrow} {length:,}", False))
    return [*links, ("index", "all kernels", False)]


def _nanoseconds(value: float) -> str:
    return f"{value:,.0f}" if value >= 1000 else f"{value:.1f}" if value >= 100 else f"{value:.2f}"


def _bars(speed: facts.Speed) -> list[tuple[str, str, str, str]]:
    """Name, style, width in per cent and figure. Bars of the slowest are cut, so that the others can be told apart."""
    times = speed.nanoseconds
    most = min(max(times.values()), 8 * times["haldgen"])
    return [(facts.PEERS.get(name, name), "hg-ours" if name == "haldgen" else "hg-cut" if time > most else "",
             f"{100 * min(1, time / most):.1f}", _nanoseconds(time))
            for name, time in sorted(times.items(), key=lambda item: item[1])]


def _cards(kernel: Kernel, known: Facts) -> list[tuple[str, str, str]]:
    family, word = kernel.family, kernel.family.measured[0]
    design = known.designs(kernel)[0][1]
    speed = known.speeds.get((word, kernel.type, kernel.length))
    peer = speed.best_peer if speed else None
    error = known.errors[word, kernel.type, kernel.length]
    code = known.code(kernel, word)
    paths = {"complex": "both paths: aligned and not", "wht": "both paths: aligned and not",
             "dct4": "for all lengths and both types"}.get(family.slug, "one path for any alignment")
    stack = "bytes that a call takes at most"
    if family.slug == "dct4":
        stack = f"bytes, largest frame; a state has {facts.state_bytes(known.library, kernel.length, kernel.type):,}"
    return [
        ("time, hot", f"{_nanoseconds(speed.nanoseconds['haldgen'])} ns" if speed else "not measured",
         f"{speed.ratio(peer):.2f} times that of {facts.PEERS[peer]}" if speed and peer else ""),
        ("arithmetic", f"{design.additions:,} + {design.multiplications:,}",
         "additions + multiplications, without the scale"),
        ("depth", str(design.depth), "operations in a chain"),
        ("error, L2", f"{error.l2:.2f} ε", f"largest {error.largest_text}"),
        ("code", f"{code.size:,} B", f"bytes, {paths}"),
        ("stack", f"{code.frame:,} B", stack),
    ]


def kernel_page(kernel: Kernel, known: Facts) -> str:
    family = kernel.family
    designs, parts = known.designs(kernel), known.parts(kernel)
    drawn = [design.graph for _, design in designs + parts if design.graph]
    whole = [family.slug == "wht" or flow.is_whole(graph) for graph in drawn]
    radix, factors = facts.plans()[kernel.length] if parts else (0, [])
    measured = [(kernel.function(word), known.speeds.get((word, kernel.type, kernel.length))) for word in family.measured]
    return _TEMPLATES.get_template("kernel.md.j2").render(
        kernel=kernel, family=family, slug=family.slug, order=family.size_of(kernel.length), chips=_chips(kernel),
        formula=_FORMULAS[family.slug].format(n=kernel.length, last=kernel.length - 1, half=kernel.length // 2),
        cards=_cards(kernel, known), calls=_calls(kernel), designs=designs, parts=parts, radix=radix,
        fold=" × ".join(map(str, factors)), number="{:,}".format,
        opening=lambda recipe: _opening(recipe, kernel.length),
        notation=_glossary("real.md" if family.slug == "hartley" else family.page, [d.algorithm for _, d in designs]),
        pictures=[name for name, _ in pictures(kernel, known)], any_whole=any(whole), any_folded=not all(whole),
        speeds=[(function, speed, _bars(speed)) for function, speed in measured if speed],
        flavours=[(kernel.function(word), known.flavours.get((word, kernel.type, kernel.length), {}))
                  for word in family.measured],
        errors=[(kernel.function(word), known.errors[word, kernel.type, kernel.length]) for word in family.measured],
        functions=[(kernel.function(word), known.code(kernel, word), known.sums[kernel.published(word)])
                   for word in family.words])


def _figures(kernel: Kernel, known: Facts) -> dict[str, str]:
    """What the overview colours by; empty where nothing is measured, or all lengths have the same."""
    word = kernel.family.measured[0]
    speed = known.speeds.get((word, kernel.type, kernel.length))
    design = known.designs(kernel)[0][1]
    return {
        "ns": f"{speed.nanoseconds['haldgen']:g}" if speed else "",
        "ratio": f"{speed.ratio(speed.best_peer):.2f}" if speed and speed.best_peer else "",
        "error": f"{known.errors[word, kernel.type, kernel.length].l2:.2f}",
        "bytes": "" if kernel.family.slug == "dct4" else str(known.code(kernel, word).size),
        "operations": str(design.additions + design.multiplications),
    }


def overview(known: Facts) -> str:
    grids = [(f"{family.title}, {type_[:2]} bit",
              [(kernel, _figures(kernel, known)) for kernel in (Kernel(family, n, type_) for n in family.lengths)])
             for family in facts.FAMILIES for type_ in family.types]
    return _TEMPLATES.get_template("overview.md.j2").render(grids=grids)


def calls(language: str) -> str:
    """A source file of all calls in a language, each a function of its own; Python and JavaScript call them, too.
    The first value of all transforms is the sum of what they are given, that of a DCT-IV a weighted one."""
    label, arguments = {"c": ("C", "(void)"), "cpp": ("C++", "()"), "py": ("Python", "()"),
                        "mjs": ("JavaScript", "(x)")}[language]
    headers, functions = set(), []
    for number, kernel in enumerate(kernels()):
        text = next(code for name, _, code in _calls(kernel) if name == label)
        headers |= set(re.findall(r"^(?:#include|import) .*", text, re.M))
        body = re.sub(r"(?:#include|import) .*\n+", "", text)
        head = f"call_{number}{arguments}"
        if language == "py":
            functions.append(f"def {head}:\n    " + body.replace("\n", "\n    ") + f"\n\ncall_{number}()\n")
        elif language == "mjs":
            n, parts = kernel.length, 2 if kernel.family.slug == "complex" else 1
            weight = f"Math.cos(Math.PI / {n} * (i + 0.5) / 2)" if kernel.family.slug == "dct4" else "1"
            functions.append(f"async function {head} {{\n{body}\nreturn transform.output[0];\n}}\n{{\n"
                             f"const x = Array.from({{length: {parts * n}}}, (_, i) => 1 + i % 7);\n"
                             f"const first = x.reduce((sum, value, i) => sum + (i % {parts} ? 0 : value * {weight}), 0);\n"
                             f"const got = await call_{number}(x);\n"
                             f"if (!(Math.abs(got - first) <= 1e-5 * 4 * {n})) throw new Error(`{kernel.page}: ${{got}}`);\n}}\n")
        else:
            functions.append(f"void {head};\nvoid {head} {{\n{body}\n}}\n")
    return "\n".join([*sorted(headers), *functions])


def manifest(known: Facts) -> str:
    """What a check of the built site must find on each page."""
    return json.dumps({k.page: [k.function(w) for w in k.family.words] + [known.sums[k.published(w)] for w in k.family.words]
                       for k in kernels()})
