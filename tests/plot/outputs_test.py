import math
import unittest

import h5py
import numpy as np
from support import basin, changed, opened, sample

from rheoplot.outputs import STYLES, available, masked, outputs, present_name
from rheoplot.results import BED, STATE

RECORD = 3


def formulas(state, bed, first_bed, chezy, curvature, flood):
    """The values of all outputs in a cell, written down one by one."""
    h = state[0] - bed
    u, v = (0.0, 0.0) if 0.001 > h else (state[1] / h, state[2] / h)
    return {
        "water_surface": state[0], "water_depth": h, "bottom_elevation": bed,
        "delta_z": bed - first_bed, "friction_chezy": chezy,
        "spec_discharge": math.hypot(state[1], state[2]),
        "spec_discharge_x": state[1], "spec_discharge_y": state[2],
        "flow_velocity": math.hypot(u, v), "flow_velocity_abs": math.hypot(u, v),
        "flow_velocity_x": u, "flow_velocity_y": v,
        "flow_curvature": curvature, "flow_radius": 1.0 / curvature if curvature else math.inf,
        "flood_arrival_time": flood[0], "flood_maximum_depth": flood[1],
        "flood_maximum_velocity": flood[2], "flood_maximum_spec_discharge": flood[3]}


class OutputsTest(unittest.TestCase):
    def test_values_are_those_of_the_stored_data(self):
        results = opened(self, sample("full_model"))
        record = results.records((STATE, BED))[RECORD]
        with h5py.File(sample("full_model")) as file:
            data = [file[f"RESULTS/CellsAll/{path}"][()] for path in (
                f"HydState/{RECORD:07d}", f"BottomEl/{RECORD:07d}", "BottomEl/0000000",
                f"ChezyCoe/{RECORD:07d}", f"FlowCurv/{RECORD:07d}", "FloodVar/0000000")]
        state, bed, first_bed, chezy, curvature, flood = data
        expected = [formulas(*values) for values in zip(
            state, bed[:, 0], first_bed[:, 0], chezy[:, 0], curvature[:, 0], flood)]
        self.assertEqual(set(expected[0]), set(outputs()))
        for name, output in outputs().items():
            with self.subTest(name):
                shown = masked(output, results.tracked() if output.tracked else record)
                computed = np.ma.masked_invalid([cell[name] for cell in expected])
                computed.mask |= np.ma.getmaskarray(shown)
                self.assertGreater(shown.count(), 0)
                self.assertEqual(shown.count(), computed.count())
                np.testing.assert_array_max_ulp(shown.compressed(), computed.compressed(), 4)

    def test_cells_up_to_the_minimum_depth_are_masked(self):
        def flood(file):
            state = file["RESULTS/CellsAll/HydState/0000004"]
            bed = file["CellsAll/BottomEl"][:, 0]
            state[:4, 0] = bed[:4] + [0.0, 0.0078125, 0.01, 0.015625]
        path = changed(basin(), flood)
        with h5py.File(path, "a") as file:
            file["Parameters/MinWaterDepth"][...] = 0.0078125
        record = opened(self, path).records((STATE, BED))[4]
        for name in ("water_depth", "water_surface", "flow_velocity", "spec_discharge_x"):
            mask = np.ma.getmaskarray(masked(outputs()[name], record))
            self.assertEqual(mask[:4].tolist(), [True, True, False, False], name)

    def test_the_bed_is_shown_where_it_is_dry_too(self):
        record = opened(self, basin()).records((STATE, BED))[0]
        self.assertFalse(record.wet.all())
        self.assertEqual(masked(outputs()["bottom_elevation"], record).count(), 144)
        self.assertEqual(masked(outputs()["water_depth"], record).count(), record.wet.sum())

    def test_tracked_values_are_masked_where_no_water_has_been(self):
        results = opened(self, basin())
        values = masked(outputs()["flood_arrival_time"], results.tracked())
        centres = results.nodes[results.cells].mean(axis=1)
        block = (abs(centres - (9.0, 3.0)) < 1.0).all(axis=1)
        self.assertEqual(block.sum(), 8)
        np.testing.assert_array_equal(np.ma.getmaskarray(values), block)

    def test_tracked_values_are_masked_up_to_the_minimum_depth(self):
        def fill(file):
            flood = file["RESULTS/CellsAll/FloodVar/0000000"]
            flood[:4, 1] = [0.0, 0.01, np.nextafter(0.01, 1.0), 0.02]
        results = opened(self, changed(basin(), fill))
        for name, output in outputs().items():
            if output.tracked:
                mask = np.ma.getmaskarray(masked(output, results.tracked()))
                self.assertEqual(mask[:4].tolist(), [True, True, False, False], name)

    def test_a_change_is_against_the_first_valid_record(self):
        def invalidate(file):
            for path in ("HydState", "BottomEl"):
                file[f"RESULTS/CellsAll/{path}/0000000"].attrs["t"] = [-1.0]
        results = opened(self, changed(sample("full_model"), invalidate))
        first, *_, last = results.records((STATE, BED))
        np.testing.assert_array_equal(outputs()["delta_z"].values(last), last.bed - first.bed)
        self.assertEqual(first.position, 1)

    def test_former_names_are_known(self):
        self.assertEqual(present_name("flow_velocity.x"), "flow_velocity_x")
        self.assertEqual(present_name("flood_tracking.max_depth"), "flood_maximum_depth")
        self.assertEqual(present_name("water_depth"), "water_depth")
        self.assertEqual(present_name("nothing"), "nothing")

    def test_each_style_is_one_of_an_output(self):
        self.assertLessEqual(set(STYLES), set(outputs()))

    def test_what_no_step_has_computed_yet_is_masked(self):
        records = opened(self, basin()).records((STATE, BED, "CellsAll/ChezyCoe"))
        self.assertEqual(masked(outputs()["friction_chezy"], records[0]).count(), 0)
        self.assertEqual(masked(outputs()["friction_chezy"], records[1]).count(),
                         records[1].wet.sum())

    def test_a_straight_flow_has_no_radius(self):
        def straighten(file):
            file["RESULTS/CellsAll/FlowCurv/0000004"][0] = 0.0
        results = opened(self, changed(sample("full_model"), straighten))
        values = masked(outputs()["flow_radius"], results.records((STATE, BED))[4])
        self.assertIs(values[0], np.ma.masked)

    def test_what_is_available_follows_from_the_data(self):
        self.assertEqual(available(opened(self, sample("full_model"))), list(outputs()))
        names = available(opened(self, basin()))
        self.assertIn("flood_maximum_depth", names)
        self.assertIn("friction_chezy", names)
        self.assertNotIn("delta_z", names)
        self.assertNotIn("flow_curvature", names)


if __name__ == "__main__":
    unittest.main()
