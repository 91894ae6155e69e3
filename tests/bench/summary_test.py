"""The screen of bench/summary.py, on tables whose means are known."""

import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "bench"))
import summary  # noqa: E402

HEAD = """# processor: P
# cores: 2
# date: 2026-01-02
# load at start: 0.00
# load at end: {load}
# subject: own
# variant: old
# peer: a b
# narrow_peer: n
# baseline: plain
# calibration: null_call vector_add
mode\tstatistic\tfamily\ttype\tlength\town\told\ta\tb\tplain\tn\tnull_call\tvector_add
"""
# Ratios to the fastest: 2 and 8 of the first two, mean 4; half of the third; a quarter of the loop.
ROWS = [
    "hot median DFTFwd_CToC 32fc 8 40 10 20 90 - 80 4 0.5", "hot median DFTFwd_CToC 32fc 12 80 20 90 10 - 40 4 0.5",
    "hot median DFTFwd_CToC 64fc 8 10 10 20 - - 5 4 0.5", "hot median WHT 32f 16 12 12 - - 48 - 4 0.25",
    "ring median DFTFwd_CToC 32fc 8 30 10 10 10 - 10 4 0.5", "hot minimum DFTFwd_CToC 32fc 8 7 7 7 7 - 7 4 0.5",
]


def screen(load="1.31", **chosen):
    with tempfile.TemporaryDirectory() as folder:
        path = Path(folder) / "results.tsv"
        path.write_text(HEAD.format(load=load) + "\n".join(ROWS).replace(" ", "\t") + "\n")
        defaults = {"counts": {("complex", "32fc", 8): (32, 0)}, "lengths": set(), "statistic": "median", "mode": None}
        return summary.screen(summary.read(path), **(defaults | chosen))


lines = screen()
assert "BUSY" in lines[1] and "BUSY" not in screen("1.29")[1], lines[1]
assert [line.split() for line in lines[3:]] == [
    "family type lengths hot: /best faster worst /n /old /bound ring".split(),
    "DFTFwd_CToC 32fc 8..12 4.000 0 of 2 8.00 at 12 (b) 1.000 4.000 5.000 3.000".split(),  # bound: 4 + 32 / 4 * 0.5
    "DFTFwd_CToC 64fc 8..8 0.500 1 of 1 0.50 at 8 (a) 2.000 1.000 - -".split(),
    "WHT 32f 16..16 0.250 1 of 1 0.25 at 16 (plain) - 1.000 1.500 -".split(),  # bound: 4 + 64 / 4 * 0.25
], lines
assert max(map(len, lines)) <= 100, lines
assert screen(lengths={12})[-1].split()[3] == "8.000"
assert screen(mode="ring")[-1].split()[3] == "3.000"
assert screen(statistic="minimum")[-1].split()[3] == "1.000"
assert summary.lengths_of("8,16,20-22") == {8, 16, 20, 21, 22}
