"""Adds a document to a mesh in QGIS and stores what it shows.

    read_qgis.py MESH.2dm DOCUMENT FILE.npz
"""

import os
import sys

import numpy as np

os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")

from qgis.core import QgsApplication, QgsMeshDatasetIndex, QgsMeshLayer  # noqa: E402


def values_of(provider, index, cells, is_vector):
    block = provider.datasetValues(index, 0, cells)
    if not is_vector:
        return np.array([block.value(i).scalar() for i in range(cells)])
    # A third component, which QGIS does not know, as in the other viewers.
    return np.array([(block.value(i).x(), block.value(i).y(), 0.0) for i in range(cells)])


def main():
    mesh, document, file = sys.argv[1:]
    application = QgsApplication([], False)
    application.initQgis()
    layer = QgsMeshLayer(mesh, "mesh", "mdal")
    provider = layer.dataProvider()
    before = provider.datasetGroupCount()
    if not layer.addDatasets(document):
        sys.exit(f"QGIS refuses {document}")
    cells = provider.faceCount()
    shown = {"cells": cells, "nodes": provider.vertexCount()}
    for group in range(before, provider.datasetGroupCount()):
        metadata = provider.datasetGroupMetadata(group)
        steps = range(provider.datasetCount(group))
        indices = [QgsMeshDatasetIndex(group, step) for step in steps]
        # QGIS takes the numbers for hours, unless the settings of the layer say seconds.
        shown["times"] = np.array([provider.datasetMetadata(i).time() for i in indices])
        for step, index in enumerate(indices):
            shown[f"{step}/{metadata.name()}"] = values_of(provider, index, cells,
                                                           metadata.isVector())
    np.savez(file, **shown)
    application.exitQgis()


if __name__ == "__main__":
    main()
