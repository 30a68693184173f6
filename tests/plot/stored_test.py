"""Damaged files end with a message, in the words of plot, and never with a traceback."""
import os
import pathlib
import tempfile
import unittest

import h5py
import numpy as np
from support import FOLDER, basin, changed, plot, sample

STATE = "RESULTS/CellsAll/HydState/0000004"
MAP, FLOOD, LINES = ("map", "--arrows", "--mesh"), ("flood",), ("hydrographs",)
PARTS = {"CellsAll": MAP, "CellsAll/Topology": MAP, "CellsAll/BottomEl": FLOOD,
         "NodesAll/Coordnts": MAP, "RESULTS": FLOOD, "RESULTS/CellsAll/HydState": MAP, STATE: MAP,
         "RESULTS/CellsAll/FloodVar/0000000": FLOOD, "RESULTS/NodeStrg/StateVar": LINES,
         "RESULTS/NodeStrg/StateVar/0000003": LINES, "NodeStrg/StrNames": LINES,
         "Parameters/MinWaterDepth": FLOOD, ".config": MAP, ".config/model": LINES,
         ".config/simulation": FLOOD}


def put(value):
    """Replaces a thing in a file by a dataset, with the time of a record."""
    def change(file, path):
        attributes = dict(file[path].attrs)
        del file[path]
        file[path] = value
        file[path].attrs.update(attributes)
    return change


def cut(file, path):
    """Keeps the first row."""
    if isinstance(file[path], h5py.Dataset):
        put(file[path][:1])(file, path)


def forget(file, path):
    """Removes what is attached."""
    for name in list(file[path].attrs):
        del file[path].attrs[name]


def lead_nowhere(file, path):
    del file[path]
    file[path] = h5py.SoftLink("/nowhere")


def empty(file, path):
    del file[path]
    file.create_group(path)


DAMAGES = {"is missing": lambda file, path: file.__delitem__(path), "is a group": empty,
           "leads nowhere": lead_nowhere, "is a text": put("water"), "is a number": put(1.0),
           "is empty": put(np.zeros((0, 3))), "is no number": put(np.full((144, 3), np.nan)),
           "is huge": put(np.full((144, 10), 2**62)), "is negative": put(np.full((91, 3), -5)),
           "has one row": cut, "has no time": forget}


class DamagedFilesTest(unittest.TestCase):
    def setUp(self):
        self.picture = pathlib.Path(tempfile.mkdtemp(dir=FOLDER)) / "no.png"

    def draw(self, path, command, *options):
        """Draws what it can; all that must not happen is a traceback, or half a picture."""
        status, out, err = plot(command, path, *options, "-o", self.picture)
        if status == 0:
            self.assertEqual(os.listdir(self.picture.parent), ["no.png"])
            self.picture.unlink()
        else:
            self.assertEqual((status, out), (1, ""))
            self.assertTrue(err.startswith("plot: ") and err.count("\n") == 1, err)
            self.assertEqual(os.listdir(self.picture.parent), [])

    def test_whatever_is_damaged_a_message_says_so(self):
        for part, command in PARTS.items():
            for name, damage in DAMAGES.items():
                with self.subTest(f"{part} {name}"):
                    self.draw(changed(basin(), lambda file: damage(file, part)), *command)

    def test_documents_may_hold_anything(self):
        for text in ("", "{", "[]", "7", '{"SETUP": 7}', '{"SETUP": {"DOMAIN": {"name": [1]}}}',
                     '{"SIMULATION": {"TIME": [], "OUTPUT": 3}}', '{"SIMULATION": null}',
                     '{"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {"GEOMETRY": {"STRINGDEF": 3}}}}}'):
            def write(file, text=text):
                del file["NodeStrg"]
                for name in ("model", "simulation"):
                    file[".config/" + name][0] = text
            with self.subTest(text):
                self.draw(changed(basin(), write), *FLOOD)
                self.draw(changed(basin(), write), *LINES)

    def test_truncated_files_are_refused(self):
        whole = basin().read_bytes()
        path = FOLDER / "cut_results.h5"
        for length in range(0, len(whole), len(whole) // 16):
            path.write_bytes(whole[:length])
            status, _, err = plot("map", path, "-o", self.picture)
            self.assertEqual(status, 1)
            self.assertIn("cannot be read as an HDF5 file", err)

    def test_what_is_wrong_is_said(self):
        for part, damage, text in (
                (STATE, "has one row", f"{STATE} in .* cannot be read: it has 1 rows of 3 numbers "
                 "instead of 144 rows of 3"),
                ("CellsAll/Topology", "is huge", "a cell names a node that it does not hold"),
                ("NodesAll/Coordnts", "is no number", "its nodes span no area"),
                ("Parameters/MinWaterDepth", "is a group", "Parameters/MinWaterDepth in .* cannot"),
                (".config/model", "is a text", r"\.config/model in .* is damaged: Expecting")):
            path = changed(basin(), lambda file: DAMAGES[damage](file, part))
            status, _, err = plot("map", path, "-o", self.picture)
            self.assertEqual(status, 1)
            self.assertRegex(err, text)

    def test_a_mesh_of_one_cell_is_no_damage(self):
        self.assertEqual(plot("map", sample("one_cell"), "-o", self.picture)[0], 0)


if __name__ == "__main__":
    unittest.main()
