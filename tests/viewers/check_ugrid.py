"""Opens NetCDF files that `export --ugrid` writes with a viewer and compares what it shows with values
computed from the results file.

    check_ugrid.py FOLDER_OF_EXECUTABLES paraview|qgis

The runs are those of check.py.
"""

import os
import pathlib
import sys
import tempfile

import numpy as np

from check import FLOOD, ROOT, SAMPLES, Results, run, run_study, same, take_sample

VECTORS = {"spec_discharge", "flow_velocity"}
NEED_WATER = {"water_surface", "flow_velocity", "flow_velocity_abs", "flow_curvature",
              "flow_radius"}
NEED_FLOOD = {"flood_arrival_time", "flood_maximum_velocity"}
# QGIS goes by the long names.
LONG_NAMES = {
    "elevation of the water surface": "water_surface",
    "water depth": "water_depth",
    "bottom elevation": "bottom_elevation",
    "square of the dimensionless Chezy friction coefficient": "friction_chezy",
    "specific discharge": "spec_discharge",
    "change of the bottom elevation": "delta_z",
    "flow velocity": "flow_velocity",
    "magnitude of the flow velocity": "flow_velocity_abs",
    "curvature of the flow": "flow_curvature",
    "radius of the flow": "flow_radius",
    "arrival time of the flood": "flood_arrival_time",
    "maximum water depth": "flood_maximum_depth",
    "maximum flow velocity": "flood_maximum_velocity",
    "maximum specific discharge": "flood_maximum_spec_discharge",
}


def expected(results, name, time):
    """As docs/export.md says: no number where a value has no meaning."""
    with np.errstate(all="ignore"):
        values = np.array(results.values(name, time, masked=False))
    dry = np.zeros(len(values), dtype=bool)
    if name in NEED_WATER:
        bed = results.datum("BottomEl", time)[:, 0]
        dry = results.dry_depth > results.datum("HydState", time)[:, 0] - bed
    if name in NEED_FLOOD:
        dry = results.values(FLOOD[0], time, masked=False) <= 0
    values[dry] = np.nan
    values[~np.isfinite(values)] = np.nan
    return values


def shown_by_paraview(file):
    """Cells, nodes, times and the values of each output at each time."""
    from paraview import servermanager, simple
    from vtkmodules.util.numpy_support import vtk_to_numpy

    if not hasattr(simple, "UGRIDReader"):
        simple.LoadPlugin(str(ROOT / "docs/paraview_ugrid.xml"), ns=vars(simple))
    source = simple.UGRIDReader(FileName=str(file))
    source.UpdatePipelineInformation()
    times = [float(time) for time in source.TimestepValues]
    steps = []
    for time in times:
        source.UpdatePipeline(time)
        grid = servermanager.Fetch(source)
        attributes = grid.GetCellData()
        arrays = [attributes.GetArray(i) for i in range(attributes.GetNumberOfArrays())]
        step = {values.GetName(): vtk_to_numpy(values).copy() for values in arrays}
        for name in VECTORS & {name[:-2] for name in step}:
            x, y = step.pop(name + "_x"), step.pop(name + "_y")
            step[name] = np.stack([x, y, np.where(np.isnan(x), np.nan, 0.0)], axis=1)
        steps.append(step)
    return grid.GetNumberOfCells(), grid.GetNumberOfPoints(), times, steps


def shown_by_qgis(file):
    """The same."""
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    from qgis.core import QgsApplication, QgsMeshLayer
    from read_qgis import QgsMeshDatasetIndex, values_of

    application = QgsApplication.instance() or QgsApplication([], False)
    application.initQgis()
    layer = QgsMeshLayer(str(file), "mesh", "mdal")  # owns the provider
    provider = layer.dataProvider()
    cells = provider.faceCount()
    times, steps = [], []
    for group in range(provider.datasetGroupCount()):
        metadata = provider.datasetGroupMetadata(group)
        if metadata.name() == "Bed Elevation":  # that of the nodes
            continue
        indices = [QgsMeshDatasetIndex(group, step) for step in range(provider.datasetCount(group))]
        times = [3600.0 * provider.datasetMetadata(index).time() for index in indices]
        steps = steps or [{} for _ in indices]
        for step, index in zip(steps, indices):
            values = values_of(provider, index, cells, metadata.isVector())
            if metadata.isVector():
                values[np.isnan(values[:, 0]), 2] = np.nan
            step[LONG_NAMES[metadata.name()]] = values
    return cells, provider.vertexCount(), times, steps


def check(title, folder, executables, show):
    run(executables / "export", "-r", "run_results.h5", "--ugrid", "run.nc", cwd=folder)
    results = Results(folder / "run_results.h5")
    cells, nodes, times, steps = show(folder / "run.nc")
    faults = []
    if (cells, nodes) != (results.cells, results.nodes):
        faults.append(f"{cells} cells and {nodes} nodes")
    if not np.allclose(times, results.times, rtol=0, atol=1e-6):
        faults.append(f"times {times} instead of {results.times}")
    for time, step in zip(results.times, steps):
        if set(step) != results.names:
            faults.append(f"outputs {sorted(step)} instead of {sorted(results.names)}")
        faults += [f"{name} at {time} s has other values" for name in set(step) & results.names
                   if not same(step[name], expected(results, name, time))]
    print(f"{title}: {len(times)} records of {cells} cells, {len(results.names)} outputs: "
          f"{'as computed' if not faults else 'FAULTS'}", flush=True)
    return [f"{title}: {fault}" for fault in faults]


def main():
    executables = pathlib.Path(sys.argv[1]).resolve()
    show = {"paraview": shown_by_paraview, "qgis": shown_by_qgis}[sys.argv[2]]
    faults = []
    with tempfile.TemporaryDirectory() as work:
        work = pathlib.Path(work)
        for study in sorted(path for path in (ROOT / "examples").iterdir() if path.is_dir()):
            run_study(study, executables, work / study.name)
            faults += check(f"examples/{study.name}", work / study.name, executables, show)
        for sample in SAMPLES:
            take_sample(sample, work / sample)
            faults += check(f"samples/{sample}", work / sample, executables, show)
    sys.exit("\n".join(faults) if faults else 0)


if __name__ == "__main__":
    main()
