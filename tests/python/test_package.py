"""The wheel, as one who installs it meets it, and the Python that the documents show."""

import base64
import doctest
import hashlib
import os
import pathlib
import re
import subprocess
import sys
import zipfile

import haldgen

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = os.environ["HALDGEN_BUILD"]


def test_wheel(tmp_path):
    sys.path.append(str(ROOT / "python"))
    import backend

    with zipfile.ZipFile(tmp_path / backend.pack(BUILD, tmp_path)) as wheel:
        wheel.extractall(tmp_path / "site")
        (record,) = [name for name in wheel.namelist() if name.endswith("RECORD")]
        lines = wheel.read(record).decode().splitlines()
        assert sorted(line.split(",")[0] for line in lines) == sorted(wheel.namelist())
        for name, digest, size in (line.split(",") for line in lines[:-1]):
            content = wheel.read(name)
            assert int(size) == len(content)
            found = base64.urlsafe_b64encode(hashlib.sha256(content).digest()).decode().rstrip("=")
            assert digest == "sha256=" + found
    program = """
import sys
sys.path.insert(0, sys.argv[1])
import haldgen
print(haldgen.__version__, haldgen.vector_bits())
print(haldgen.fft(range(16)).tobytes().hex())
maps = [line.split()[-1] for line in open("/proc/self/maps") if "libhald" in line]
assert maps and all(name.startswith(sys.argv[1]) for name in maps), maps
"""
    # Another folder, and no environment: the package finds its libraries by itself.
    printed = subprocess.run(
        [sys.executable, "-I", "-c", program, tmp_path / "site"],
        cwd="/",
        env={},
        check=True,
        capture_output=True,
        text=True,
    ).stdout.split()
    assert printed[:2] == [haldgen.__version__, str(haldgen.vector_bits())]
    assert printed[2] == haldgen.fft(range(16)).tobytes().hex()


def test_version():
    declared = re.search(r"project\(haldgen VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1]
    assert haldgen.__version__ == declared


def test_document():
    """Sessions of the interpreter say what they show; other Python runs."""
    name = "docs/python.md"
    blocks = re.findall(r"^```python\n(.*?)^```", (ROOT / name).read_text(), re.DOTALL | re.MULTILINE)
    assert blocks
    names = {}
    for block in blocks:
        if ">>>" not in block:
            exec(compile(block, name, "exec"), names)
            continue
        session = doctest.DocTestParser().get_doctest(block, names, name, name, 0)
        names = session.globs
        assert doctest.DocTestRunner().run(session, clear_globs=False).failed == 0


def test_docstring():
    assert doctest.testmod(haldgen).failed == 0
