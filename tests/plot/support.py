"""What the tests share: a small study, samples, changed copies of results files."""
import atexit
import functools
import io
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
from contextlib import redirect_stderr, redirect_stdout

ROOT = pathlib.Path(__file__).resolve().parents[2]
SAMPLES = ROOT / "tests/samples"
PLOT = ROOT / "scripts/plot"
sys.path.insert(0, str(ROOT / "scripts"))
sys.dont_write_bytecode = True
os.environ["MPLBACKEND"] = "module://missing"  # pictures come about without any window

import h5py  # noqa: E402
from PIL import Image  # noqa: E402
from rheoplot import app, results  # noqa: E402

# Water in the west breaks out over dry ground, on which a block of 5 m stays dry.
STUDY = {"SETUP": {"DOMAIN": {"name": "basin", "RHEOPLANE_2D": {
    "GEOMETRY": {
        "RECTANGLE": {"length": 12.0, "width": 6.0, "cells": [12, 6]},
        "BED": [{"box": [8, 2, 10, 4], "elevation": 5.0}],
        "STRINGDEF": [{"name": "middle", "from": [6, 0], "to": [6, 6]},
                      {"name": "outlet", "from": [12, 0], "to": [12, 6]}]},
    "HYDRAULICS": {
        "PARAMETER": {"cfl": 0.5, "minimum_water_depth": 0.01},
        "FRICTION": {"type": "manning", "value": 0.03},
        "INITIAL": {"water_level": "dry", "ZONES": [{"box": [0, 0, 5, 6], "water_level": 1.0}]},
        "BOUNDARY": [{"string": "outlet", "type": "normal_depth", "slope": 0.01}],
        "FLOOD": {"track": "all"}}}}}}

COMMAND = {"SIMULATION": {
    "TIME": {"start": 0.0, "end": 4.0, "out": 1.0},
    "TIMESTEP": {"init": 0.02, "minimum": 0.0001},
    "OUTPUT": ["water_depth", "flow_velocity", "friction_chezy", "ns_hyd_discharge"]}}

_folder = tempfile.TemporaryDirectory()
atexit.register(_folder.cleanup)
FOLDER = pathlib.Path(_folder.name)


@functools.cache
def basin():
    """The results of the small study: records at 0, 1, 2, 3, 4 s."""
    for name, document in (("study.json", STUDY), ("command.json", COMMAND)):
        (FOLDER / name).write_text(json.dumps(document))
    _run("SETUP_EXE", "-f", "study.json", "-o", "run.h5")
    _run("SIMULATION_EXE", "-f", "command.json", "-r", "run.h5", "-o", "run.h5")
    return FOLDER / "run_results.h5"


def _run(program, *arguments):
    done = subprocess.run([os.environ[program], *arguments], cwd=FOLDER, capture_output=True,
                          text=True, check=False)
    if done.returncode != 0:
        raise RuntimeError(f"{arguments}: {done.stdout}{done.stderr}")


def sample(name):
    return SAMPLES / name / "expected_results.h5"


def changed(path, change):
    """A copy of a results file that a function has changed."""
    copy = pathlib.Path(tempfile.mkdtemp(dir=FOLDER)) / "copy_results.h5"
    shutil.copyfile(path, copy)
    with h5py.File(copy, "a") as file:
        change(file)
    return copy


def opened(test, path):
    """A results file that is open until the test ends."""
    return test.enterContext(results.Results(str(path)))


def picture(name):
    return str(FOLDER / name)


def plot(*arguments):
    """Runs a command; returns the exit status, standard output and standard error."""
    out, err = io.StringIO(), io.StringIO()
    with redirect_stdout(out), redirect_stderr(err):
        try:
            status = app.main([str(argument) for argument in arguments])
        except SystemExit as end:
            status = end.code
    return status, out.getvalue(), err.getvalue()


def colours(path):
    """The size of a picture and the number of its colours."""
    with Image.open(path) as image:
        return image.size, len(image.convert("RGB").getcolors(2**24))
