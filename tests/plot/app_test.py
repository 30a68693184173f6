import os
import pathlib
import subprocess
import tempfile
import unittest
from unittest import mock

from support import FOLDER, PLOT, basin, changed, colours, picture, plot, sample

from rheoplot import outputs, quantities


class AppTest(unittest.TestCase):
    def refused(self, text, *arguments):
        """Runs what has to fail with this text, and without a picture."""
        path = pathlib.Path(tempfile.mkdtemp(dir=FOLDER)) / "no.png"
        status, out, err = plot(*arguments, "-o", path)
        self.assertEqual((status, out), (1, ""))
        self.assertIn(text, err)
        self.assertFalse(path.exists())

    def test_a_map_tells_what_it_shows(self):
        path = picture("map.png")
        for time, text in (("0", "0"), ("2", "2"), ("first", "0"), ("last", "4")):
            status, out, err = plot("map", basin(), "-o", path, "--time", time)
            self.assertEqual((status, err), (0, ""))
            self.assertEqual(out, f"{path}: basin: water depth, t = {text} s\n")

    def test_every_output_of_a_full_model_can_be_drawn(self):
        for name, text in (("delta_z", "change of the bottom"), ("flow_radius", "radius of the flow"),
                           ("friction_chezy", "Chezy friction coefficient"),
                           ("flood_arrival_time", "arrival time of the flood, over the whole run")):
            status, out, _ = plot("map", sample("full_model"), "--output", name, "--mesh", "-o",
                                  picture("full.png"))
            self.assertEqual(status, 0)
            self.assertIn(text, out)
            self.assertGreater(colours(picture("full.png"))[1], 20)

    def test_pages_can_be_written_too(self):
        for ending, begin in (("pdf", b"%PDF"), ("svg", b"<?xml")):
            self.assertEqual(plot("map", basin(), "-o", picture("page." + ending))[0], 0)
            self.assertTrue(pathlib.Path(picture("page." + ending)).read_bytes().startswith(begin))

    def test_a_time_without_a_record_is_refused(self):
        self.refused("no record at 2.5 s, the nearest is at 2 s; valid times [s]: 0, 1, 2, 3, 4",
                     "map", basin(), "--time", "2.5")

    def test_an_unknown_output_is_refused_with_those_that_are_there(self):
        self.refused("there is no output depth; to be shown: water_surface, water_depth, bottom",
                     "map", basin(), "--output", "depth")
        self.refused("flow_curvature needs CellsAll/FlowCurv, which is not in", "map", basin(),
                     "--output", "flow_curvature")
        self.refused("ns_hyd_discharge is drawn by plot hydrographs", "map", basin(), "--output",
                     "ns_hyd_discharge")
        self.refused("the bed does not move in this study", "map", basin(), "--output", "delta_z")

    def test_former_names_are_taken_with_a_note(self):
        status, out, err = plot("map", basin(), "--output", "flow_velocity.x", "-o",
                                picture("former.png"))
        self.assertEqual(status, 0)
        self.assertIn("flow velocity, x-component", out)
        self.assertEqual(err, "plot: note: flow_velocity.x is called flow_velocity_x now; the next "
                         "release knows the new name only\n")

    def test_without_the_table_of_quantities_it_says_how_to_get_it(self):
        quantities.outputs.cache_clear()
        outputs.outputs.cache_clear()
        with mock.patch.dict(os.environ, RHEOMARK_QUANTITIES="/nowhere/quantities.json"):
            self.refused("the table of quantities is missing (/nowhere/quantities.json): build the "
                         "program first, with make", "map", basin())

    def test_tracked_values_have_no_time(self):
        for option in (["--time", "2"], ["--arrows"]):
            self.refused("flood_maximum_depth is of the whole run: leave --time and --arrows "
                         "out", "map", basin(), "--output", "flood_maximum_depth", *option)
        status, _, err = plot("animate", basin(), "--output", "flood_maximum_depth", "-o",
                              picture("no.gif"))
        self.assertEqual(status, 1)
        self.assertIn("does not change with time: draw it with plot map", err)

    def test_a_file_that_is_not_there_is_told(self):
        self.refused("plot: there is no file nothing.h5", "map", "nothing.h5")

    def test_a_run_file_is_no_results_file(self):
        self.refused("is no results file: it has no RESULTS; give the file that simulation has "
                     "written, whose name ends in _results.h5", "map", basin().parent / "run.h5")

    def test_a_file_that_is_not_hdf5_is_told(self):
        path = FOLDER / "text.h5"
        path.write_text("water")
        self.refused("text.h5 cannot be read as an HDF5 file: file signature not found", "map",
                     path)

    def test_a_truncated_file_is_told(self):
        path = FOLDER / "short.h5"
        path.write_bytes(basin().read_bytes()[:4000])
        self.refused("short.h5 cannot be read as an HDF5 file: truncated file", "flood", path)

    def test_one_record_gives_maps_and_a_flood(self):
        def keep_first(file):
            del file["RESULTS/CellsAll/FloodVar"]
            for k in range(1, 5):
                file[f"RESULTS/CellsAll/HydState/{k:07d}"].attrs["t"] = [-1.0]
        path = changed(basin(), keep_first)
        self.assertEqual(plot("map", path, "-o", picture("one.png"))[0], 0)
        self.assertIn("found from 1 records", plot("flood", path, "-o", picture("one.png"))[1])
        status, _, err = plot("animate", path, "-o", picture("one.gif"))
        self.assertEqual(status, 1)
        self.assertIn("has 1 valid record for this; an animation takes two or more", err)

    def test_tracked_data_alone_give_a_flood(self):
        def keep_tracked(file):
            del file["RESULTS/CellsAll/HydState"], file["RESULTS/CellsAll/ChezyCoe"]
            del file["RESULTS/NodeStrg"]
        path = changed(basin(), keep_tracked)
        self.assertEqual(plot("flood", path, "-o", picture("alone.png"))[0], 0)
        self.refused("water_depth needs CellsAll/HydState, which is not in", "map", path)

    def test_a_file_without_valid_records_is_told(self):
        def invalidate(file):
            for record in file["RESULTS/CellsAll/HydState"].values():
                record.attrs["t"] = [-1.0]
            del file["RESULTS/CellsAll/FloodVar"]
        path = changed(basin(), invalidate)
        self.refused("has no valid record with CellsAll/HydState and CellsAll/BottomEl", "map",
                     path)
        self.refused("has no valid record of CellsAll/HydState", "flood", path)

    def test_a_journal_beside_the_results_is_told(self):
        path = changed(basin(), lambda file: None)
        path.with_name("copy_results.h5.rheomark-journal").write_bytes(b"")
        status, _, err = plot("map", path, "-o", picture("journal.png"))
        self.assertEqual(status, 0)
        self.assertIn(f"export -r {path} --list", err)

    def test_pictures_need_a_folder_and_a_known_ending(self):
        for path, text in ((picture("map.h5"), "has to end in .png or .pdf or .svg"),
                           ("/nowhere/map.png", "there is no folder /nowhere")):
            status, _, err = plot("map", basin(), "-o", path)
            self.assertEqual(status, 1)
            self.assertIn(text, err)
        os.mkdir(picture("folder.png"))
        status, _, err = plot("map", basin(), "-o", picture("folder.png"))
        self.assertEqual(status, 1)
        self.assertIn("folder.png is a folder or a device: give another name", err)

    def test_wrong_options_end_with_status_1(self):
        for options in (["--range", "2", "1"], ["--stretch", "0"], ["--time", "noon"],
                        ["--tim", "1"]):
            self.refused("plot", "map", basin(), *options)
        self.assertEqual(plot("animate", basin(), "-o", picture("a.gif"), "--every", "0")[0], 1)
        self.assertEqual(plot()[0], 1)

    def test_help_lists_the_outputs(self):
        status, out, _ = plot("map", "--help")
        self.assertEqual(status, 0)
        self.assertIn("flood_arrival_time            arrival time of the flood [s]", out)


class ScriptTest(unittest.TestCase):
    def run_script(self, *arguments, **environment):
        return subprocess.run([PLOT, *arguments], capture_output=True, text=True, check=False,
                              env={**os.environ, "PYTHONDONTWRITEBYTECODE": "1", **environment})

    def test_the_script_draws(self):
        path = picture("script.png")
        done = self.run_script("map", basin(), "-o", path)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertGreater(colours(path)[1], 20)

    def test_a_missing_module_is_told_with_its_package(self):
        folder = FOLDER / "modules"
        folder.mkdir()
        (folder / "h5py.py").write_text("raise ModuleNotFoundError('gone', name='h5py')")
        done = self.run_script("map", basin(), "-o", picture("m.png"), PYTHONPATH=str(folder))
        self.assertEqual(done.returncode, 1)
        self.assertIn("the Python module h5py is missing: install the Debian package python3-h5py",
                      done.stderr)


if __name__ == "__main__":
    unittest.main()
