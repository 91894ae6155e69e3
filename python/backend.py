"""Builds the wheel, for pip (PEP 517) and for script/wheel; needs CMake, a compiler and NumPy's headers.

The release build of the project is used, with what it is configured to build besides, and left in
build/release, so a second wheel takes seconds.
"""

import base64
import hashlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import zipfile

ROOT = pathlib.Path(__file__).resolve().parent.parent


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    """Builds what is missing and packs it. Settings: jobs, how many processes compile."""
    jobs = (config_settings or {}).get("jobs", str(os.cpu_count()))
    # pip hides the interpreter's packages from what it runs, NumPy's headers among them.
    environment = {name: value for name, value in os.environ.items() if name != "PYTHONPATH"}
    options = ["-DHALDGEN_BUILD_PYTHON=ON", "-DHALDGEN_FLAVOURS=ON", f"-DPython_EXECUTABLE={sys.executable}"]
    build = ["cmake", "--build", "--preset", "release", "--target", "haldgen_python", "--parallel", jobs]
    for command in ([ROOT / "script/configure", "release", *options], build):
        subprocess.run(command, cwd=ROOT, env=environment, stdout=sys.stderr, check=True)
    return pack(ROOT / "build/release", wheel_directory)


def build_sdist(sdist_directory, config_settings=None):
    raise NotImplementedError("haldgen has no source distribution: build wheels from its repository")


def pack(build, wheel_directory):
    """Packs the package of a build directory into a wheel, and returns the name of that."""
    with tempfile.TemporaryDirectory() as scratch:
        tree = pathlib.Path(scratch)
        subprocess.run(
            ["cmake", "--install", build, "--component", "python_wheel", "--prefix", tree, "--strip"],
            stdout=subprocess.DEVNULL,
            check=True,
        )
        (info,) = tree.glob("*.dist-info")
        tag = next(
            line.split()[1] for line in (info / "WHEEL").read_text().splitlines() if line.startswith("Tag:")
        )
        wheel = pathlib.Path(wheel_directory) / f"{info.stem}-{tag}.whl"
        write_wheel(tree, info.name, wheel)
        return wheel.name


def write_wheel(tree, info, wheel):
    """Writes the files of a tree and their checksums, with no trace of when they were made."""
    record = ""
    temporary = wheel.with_suffix(".part")
    with zipfile.ZipFile(temporary, "w", zipfile.ZIP_DEFLATED) as archive:

        def add(name, content, mode):
            entry = zipfile.ZipInfo(name)
            entry.external_attr = mode << 16
            entry.compress_type = zipfile.ZIP_DEFLATED
            archive.writestr(entry, content)

        for path in sorted(file for file in tree.rglob("*") if file.is_file()):
            name, content = path.relative_to(tree).as_posix(), path.read_bytes()
            digest = base64.urlsafe_b64encode(hashlib.sha256(content).digest()).rstrip(b"=").decode()
            record += f"{name},sha256={digest},{len(content)}\n"
            add(name, content, 0o100755 if os.access(path, os.X_OK) else 0o100644)
        add(f"{info}/RECORD", record + f"{info}/RECORD,,\n", 0o100644)
    shutil.move(temporary, wheel)


if __name__ == "__main__":
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    print(folder / build_wheel(folder))
