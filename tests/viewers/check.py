"""Opens exported documents with a viewer and compares what it shows with values computed here from
the results file.

    check.py FOLDER_OF_EXECUTABLES paraview|qgis

Each study of examples/ is run for a few records; samples with all outputs and with a moving bed are
taken as they are. A reader that crashes must not end the check, so each opens a document in a
process of its own: read_paraview.py, read_qgis.py.
"""

import json
import pathlib
import shutil
import subprocess
import sys
import tempfile

import h5py
import numpy as np

ROOT = pathlib.Path(__file__).resolve().parents[2]
SAMPLES = ["full_model", "mor_grass", "dam_dry"]
RECORDS = 4
READERS = {"paraview": ["XDMFReader", "Xdmf3ReaderS", "Xdmf3ReaderT"], "qgis": ["QGIS"]}
UNKNOWN_TO_QGIS = {"flow_velocity", "flow_velocity_abs", "flow_radius"}  # as formulas
FLOOD = ["flood_arrival_time", "flood_maximum_depth", "flood_maximum_velocity",
         "flood_maximum_spec_discharge"]
PARTS = {"water_surface", "bottom_elevation", "friction_chezy", "spec_discharge", "delta_z",
         "water_depth", "flow_velocity", "flow_velocity_abs", "flow_curvature", "flow_radius"}


class Results:
    """What the results file says of each output, by the formulas of docs/export.md."""

    def __init__(self, file):
        self.file = h5py.File(file, "r")
        state = self.file["RESULTS/CellsAll/HydState"]
        self.positions = {float(state[key].attrs["t"]): key for key in state}
        self.times = sorted(time for time in self.positions if time >= 0)
        self.cells = self.file["CellsAll/Topology"].shape[0]
        self.nodes = self.file["NodesAll/Coordnts"].shape[0]
        self.dry_depth = self.file["Parameters/MinWaterDepth"][0]
        asked = json.loads(self.file[".config/simulation"][0])["SIMULATION"]["OUTPUT"]
        self.names = {name for name in asked if name in PARTS}
        if "RESULTS/CellsAll/FloodVar" in self.file:
            self.names |= set(FLOOD)

    def datum(self, name, time):
        path = f"RESULTS/CellsAll/{name}"
        return self.file[f"{path}/{self.positions[time]}" if path in self.file
                         else f"CellsAll/{name}"][:]

    def values(self, name, time, masked):
        if name in FLOOD:
            return self.file["RESULTS/CellsAll/FloodVar/0000000"][:, FLOOD.index(name)]
        surface, qx, qy = self.datum("HydState", time).T
        if name == "water_surface":
            return surface
        if name == "spec_discharge":
            return np.stack([qx, qy, 0 * qx], axis=1)
        if name == "friction_chezy":
            return self.datum("ChezyCoe", time)[:, 0]
        if name == "flow_curvature":
            return self.datum("FlowCurv", time)[:, 0]
        if name == "flow_radius":
            return 1.0 / self.datum("FlowCurv", time)[:, 0]
        bed = self.datum("BottomEl", time)[:, 0]
        if name == "bottom_elevation":
            return bed
        if name == "delta_z":
            return bed - self.datum("BottomEl", self.times[0])[:, 0]
        depth = surface - bed
        if masked:
            dry = self.dry_depth > depth
            depth, qx, qy = (np.where(dry, 0, depth), np.where(dry, 0, qx), np.where(dry, 0, qy))
        if name == "water_depth":
            return depth
        divisor = np.where(depth == 0, 1, depth) if masked else depth
        u, v = qx / divisor, qy / divisor
        return np.hypot(u, v) if name == "flow_velocity_abs" else np.stack([u, v, 0 * qx], axis=1)


def run(*command, cwd):
    done = subprocess.run([str(part) for part in command], cwd=cwd, capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))} ended with {done.returncode}:\n"
                 f"{done.stdout[-2000:]}{done.stderr[-2000:]}")


def run_study(study, executables, folder):
    """Runs a study of examples/ for a few records."""
    shutil.copytree(study, folder)
    command = json.loads((folder / "command.json").read_text())
    time = command["SIMULATION"]["TIME"]
    time["end"] = time["start"] + (RECORDS - 1) * time["out"]
    (folder / "command.json").write_text(json.dumps(command))
    run(executables / "setup", "-f", "study.json", "-o", "run.h5", cwd=folder)
    run(executables / "simulation", "-f", "command.json", "-r", "run.h5", "-o", "run.h5",
        cwd=folder)


def take_sample(sample, folder):
    """The stored results of a sample, with one output more: the data of all are there."""
    folder.mkdir()
    shutil.copy(ROOT / "tests/samples" / sample / "expected_results.h5", folder / "run_results.h5")
    with h5py.File(folder / "run_results.h5", "r+") as file:
        command = json.loads(file[".config/simulation"][0])
        command["SIMULATION"]["OUTPUT"].append("flow_velocity_abs")
        file[".config/simulation"][0] = json.dumps(command)


def read(reader, document):
    """What a reader shows: times, cells, nodes and the values of each attribute at each time."""
    shown = document.with_suffix(f".{reader}.npz")
    script, first = (("read_qgis.py", document.with_name("run.2dm")) if reader == "QGIS"
                     else ("read_paraview.py", reader))
    done = subprocess.run([sys.executable, ROOT / "tests/viewers" / script, first, document, shown],
                          capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"{reader} failed for {document} ({done.returncode}):\n{done.stderr[-3000:]}")
    return np.load(shown)


def shown_by(reader, names, masked):
    """The outputs that a reader knows how to show."""
    if masked or reader == "XDMFReader":
        return names
    # The readers of XDMF 3 know neither columns of datasets nor functions.
    return names - UNKNOWN_TO_QGIS if reader == "QGIS" else set()


def same(shown, expected):
    """Values agree to the last bits; where the depth is 0, viewers may show any of inf and nan."""
    if shown.shape != expected.shape:
        return False
    finite = np.isfinite(expected) & np.isfinite(shown)
    return (np.allclose(shown[finite], expected[finite], rtol=1e-12, atol=1e-14)
            and np.array_equal(np.isfinite(expected), np.isfinite(shown)))


def compare(results, shown, names, masked):
    """What is wrong, as a list of lines."""
    faults = []
    if not np.allclose(shown["times"], results.times, rtol=0, atol=1e-6):
        faults.append(f"times {shown['times']} instead of {results.times}")
        return faults
    if (int(shown["cells"]), int(shown["nodes"])) != (results.cells, results.nodes):
        faults.append(f"{shown['cells']} cells and {shown['nodes']} nodes instead of "
                      f"{results.cells} and {results.nodes}")
    for step, time in enumerate(results.times):
        prefix = f"{step}/"
        found = {key[len(prefix):] for key in shown.files if key.startswith(prefix)}
        if found != names:
            faults.append(f"attributes {sorted(found)} at {time} s instead of {sorted(names)}")
        for name in found & names:
            with np.errstate(all="ignore"):
                expected = results.values(name, time, masked)
            if not same(shown[prefix + name], expected):
                faults.append(f"{name} at {time} s has other values")
    return faults


def check(title, folder, executables, viewer):
    run(executables / "export", "-r", "run_results.h5", "-o", "run.xdmf", "-m", "dry.h5", "--mesh",
        "run.2dm", cwd=folder)
    moved = folder.with_name(folder.name + "_moved")
    folder.rename(moved)  # documents name their data relative to themselves
    results = Results(moved / "run_results.h5")
    faults = []
    for reader in READERS[viewer]:
        for document, masked in [("run.xdmf", False), ("dry.xdmf", True)]:
            names = shown_by(reader, results.names, masked)
            found = compare(results, read(reader, moved / document), names, masked)
            faults += [f"{title}: {reader}, {document}: {line}" for line in found]
    print(f"{title}: {len(results.times)} records of {results.cells} cells, "
          f"{len(results.names)} outputs: {'as computed' if not faults else 'FAULTS'}", flush=True)
    return faults


def main():
    executables = pathlib.Path(sys.argv[1]).resolve()
    viewer = sys.argv[2]
    faults = []
    with tempfile.TemporaryDirectory() as work:
        work = pathlib.Path(work)
        for study in sorted(path for path in (ROOT / "examples").iterdir() if path.is_dir()):
            folder = work / study.name
            run_study(study, executables, folder)
            faults += check(f"examples/{study.name}", folder, executables, viewer)
        for sample in SAMPLES:
            folder = work / sample
            take_sample(sample, folder)
            faults += check(f"samples/{sample}", folder, executables, viewer)
    sys.exit("\n".join(faults) if faults else 0)


if __name__ == "__main__":
    main()
