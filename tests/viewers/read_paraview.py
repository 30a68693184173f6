"""Opens a document with a reader of ParaView and stores what it shows.

    read_paraview.py READER DOCUMENT FILE.npz
"""

import sys

import numpy as np
from paraview import servermanager, simple
from vtkmodules.util.numpy_support import vtk_to_numpy


def open_document(reader, document):
    create = getattr(simple, reader)
    if reader == "XDMFReader":
        return create(FileNames=[document])
    return create(FileName=[document] if reader == "Xdmf3ReaderS" else document)


def first_grid(data):
    while data.IsA("vtkMultiBlockDataSet"):
        data = data.GetBlock(0)
    return data


def main():
    reader, document, file = sys.argv[1:]
    source = open_document(reader, document)
    source.UpdatePipelineInformation()
    times = [float(time) for time in source.TimestepValues]
    shown = {"times": np.array(times)}
    for step, time in enumerate(times):
        source.UpdatePipeline(time)
        grid = first_grid(servermanager.Fetch(source))
        shown["cells"] = grid.GetNumberOfCells()
        shown["nodes"] = grid.GetNumberOfPoints()
        attributes = grid.GetCellData()
        for i in range(attributes.GetNumberOfArrays()):
            values = attributes.GetArray(i)
            # A copy: the readers of XDMF 3 free their values at the next step.
            shown[f"{step}/{values.GetName()}"] = vtk_to_numpy(values).copy()
    np.savez(file, **shown)


if __name__ == "__main__":
    main()
