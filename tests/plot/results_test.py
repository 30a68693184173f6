import json
import os
import subprocess
import unittest

import h5py
import numpy as np
from support import basin, changed, opened, sample

from rheoplot.results import BED, FLOOD, STATE, Results, at_time, listed
from rheoplot.stored import Fault

CHEZY = "CellsAll/ChezyCoe"


def times(results, paths):
    return [record.time for record in results.records(paths)]


class ResultsTest(unittest.TestCase):
    def test_the_mesh_is_that_of_the_study(self):
        results = opened(self, basin())
        self.assertEqual(results.nodes.shape, (13 * 7, 2))
        self.assertEqual(results.nodes.max(axis=0).tolist(), [12.0, 6.0])
        self.assertEqual(results.cells.shape, (12 * 6 * 2, 3))
        self.assertEqual(set(results.cells.ravel()), set(range(13 * 7)))

    def test_names_and_settings_come_from_the_archived_documents(self):
        results = opened(self, basin())
        self.assertEqual(results.name, "basin")
        self.assertEqual(results.string_names(), ["middle", "outlet"])
        self.assertEqual(results.minimum_depth, 0.01)
        self.assertIn("ns_hyd_discharge", results.wanted)
        self.assertEqual(results.start, 0.0)
        self.assertEqual(opened(self, sample("rerun_continue")).start, 2.0)

    def test_without_documents_the_file_and_the_study_give_the_names(self):
        def remove(file):
            del file[".config/model"], file["NodeStrg"]
        results = opened(self, changed(basin(), remove))
        self.assertEqual(results.name, "copy")
        self.assertEqual(results.string_names(), [])
        results = opened(self, changed(basin(), lambda file: file.__delitem__("NodeStrg")))
        self.assertEqual(results.string_names(), ["middle", "outlet"])

    def test_records_hold_what_is_stored(self):
        results = opened(self, basin())
        record = results.records((STATE, BED))[3]
        with h5py.File(basin()) as file:
            stored = file["RESULTS/CellsAll/HydState/0000003"][()]
            bed = file["CellsAll/BottomEl"][:, 0]
        np.testing.assert_array_equal(record.state, stored)
        np.testing.assert_array_equal(record.bed, bed)
        np.testing.assert_array_equal(record.depth, stored[:, 0] - bed)
        np.testing.assert_array_equal(record.wet, stored[:, 0] - bed > 0.01)

    def test_a_bed_that_moves_is_that_of_the_record(self):
        results = opened(self, sample("mor_mpm"))
        with h5py.File(sample("mor_mpm")) as file:
            stored = file["RESULTS/CellsAll/BottomEl/0000002"][:, 0]
        np.testing.assert_array_equal(results.records((STATE, BED))[2].bed, stored)

    def test_a_mesh_of_one_cell_is_read(self):
        results = opened(self, sample("one_cell"))
        self.assertEqual(results.cells.tolist(), [[0, 1, 2]])
        self.assertEqual(results.records((STATE, BED))[0].depth.tolist(), [0.75])

    def test_records_that_are_no_longer_valid_are_left_out(self):
        def invalidate(file):
            for position in (3, 4):
                file[f"RESULTS/CellsAll/HydState/{position:07d}"].attrs["t"] = [-1.0]
        results = opened(self, changed(basin(), invalidate))
        self.assertEqual(times(results, (STATE, BED)), [0.0, 1.0, 2.0])
        self.assertEqual(times(results, (CHEZY,)), [0.0, 1.0, 2.0])

    def test_records_need_all_their_data_and_a_time(self):
        def damage(file):
            del file["RESULTS/CellsAll/BottomEl/0000001"]
            del file["RESULTS/CellsAll/HydState/0000003"].attrs["t"]
        results = opened(self, changed(sample("mor_mpm"), damage))
        self.assertEqual(times(results, (STATE, BED)), [0.0, 4.0])

    def test_data_left_over_from_another_run_do_not_count(self):
        def overwrite(file):
            file["RESULTS/CellsAll/HydState/0000004"].attrs["t"] = [3.5]
        results = opened(self, changed(basin(), overwrite))
        self.assertEqual(times(results, (STATE, CHEZY)), [0.0, 1.0, 2.0, 3.0])

    def test_tracked_data_are_no_records(self):
        results = opened(self, basin())
        self.assertIsNone(results.tracked().time)
        self.assertEqual(results.tracked().array(FLOOD).shape, (144, 4))
        self.assertIsNone(opened(self, sample("mor_mpm")).tracked())

    def test_a_name_without_a_record_is_passed_over(self):
        def write(file):
            file["RESULTS/CellsAll/HydState/0000005"] = h5py.SoftLink("/nowhere")
        results = opened(self, changed(basin(), write))
        self.assertEqual(times(results, (STATE, BED)), [0.0, 1.0, 2.0, 3.0, 4.0])

    def test_a_record_that_cannot_be_read_is_named(self):
        results = opened(self, basin())
        with self.assertRaisesRegex(Fault, "RESULTS/CellsAll/HydState/0000007 in .* cannot be read: "
                                    "object '0000007' doesn't exist; if a run is writing it"):
            results.array(STATE, 7)

    def test_valid_records_are_those_of_export(self):
        def damage(file):
            state, bed = (file[f"RESULTS/CellsAll/{name}"] for name in ("HydState", "BottomEl"))
            state["0000001"].attrs["t"] = bed["0000001"].attrs["t"] = [4.0]  # of two, the later
            state["0000002"].attrs["t"] = bed["0000002"].attrs["t"] = [-7.0]
            bed["0000003"].attrs["t"] = [3.5]
            state["0000005"] = h5py.SoftLink("/nowhere")
            file.create_group("RESULTS/CellsAll/HydState/0000006")
        path = changed(sample("full_model"), damage)
        done = subprocess.run([os.environ["EXPORT_EXE"], "-r", path, "--json", "--list"], text=True,
                              capture_output=True, check=True)
        known = [(record["time"], record["position"])
                 for record in json.loads(done.stdout)["records"]]
        found = [(record.time, record.position) for record in opened(self, path).records()]
        self.assertEqual(found, known)
        self.assertEqual(found, [(0.0, 0), (4.0, 4)])

    def test_what_is_missing_is_named(self):
        path = changed(basin(), lambda file: file.__delitem__("CellsAll/Topology"))
        with self.assertRaisesRegex(Fault, "no results file: it has no CellsAll/Topology"):
            Results(str(path))


class TimesTest(unittest.TestCase):
    def setUp(self):
        self.records = opened(self, sample("time_out_tenth")).records((STATE, BED))

    def test_a_time_is_met_though_tenths_do_not_add_up(self):
        self.assertNotEqual(self.records[8].time, 0.8)
        self.assertEqual(at_time(self.records, 0.8).position, 8)
        self.assertEqual(at_time(self.records, "first").position, 0)
        self.assertEqual(at_time(self.records, "last").position, len(self.records) - 1)

    def test_another_time_is_refused_with_those_that_are_there(self):
        with self.assertRaises(Fault) as caught:
            at_time(self.records, 0.84)
        self.assertIn("no record at 0.84 s, the nearest is at 0.8 s; valid times [s]: 0, 0.1, 0.2",
                      str(caught.exception))

    def test_the_middle_of_a_long_list_is_left_out(self):
        self.assertEqual(listed(self.records * 8).count(", "), 40)
        self.assertIn(" ..., ", listed(self.records * 8))


if __name__ == "__main__":
    unittest.main()
