import unittest

import numpy as np

from support import picture  # noqa: F401  (makes the package known)

from rheoplot.outputs import outputs
from rheoplot.scales import scale_of


def fields(*values):
    return (np.ma.masked_invalid(field) for field in values)


def ends(name, *values):
    scale = scale_of(outputs()[name], fields(*values))
    return scale.norm.vmin, scale.norm.vmax


class ScalesTest(unittest.TestCase):
    def test_all_records_and_no_dry_cells_count(self):
        self.assertEqual(ends("water_surface", [1.0, 2.0, np.nan], [np.nan, 3.0, 2.0]), (1.0, 3.0))

    def test_depths_begin_at_zero(self):
        self.assertEqual(ends("water_depth", [1.0, 2.0]), (0.0, 2.0))

    def test_changes_are_centred_at_zero(self):
        self.assertEqual(ends("delta_z", [-0.5, 0.25]), (-0.5, 0.5))
        self.assertEqual(ends("delta_z", [0.0, 0.0]), (-0.005, 0.005))

    def test_rounding_is_not_coloured(self):
        low, high = ends("water_surface", [1.0, 1.0 + 1e-15])
        self.assertEqual((low, round(high, 12)), (0.5, 1.5))

    def test_nothing_wet_gives_a_scale_too(self):
        self.assertEqual(ends("water_depth", [np.nan, np.nan]), (0.0, 0.01))

    def test_a_few_fast_cells_leave_colours_to_the_others(self):
        values = np.append(np.linspace(0.0, 1.0, 1000), 20.0)
        scale = scale_of(outputs()["flow_velocity"], fields(values))
        self.assertAlmostEqual(scale.norm.vmax, 1.0, delta=0.01)
        self.assertEqual(scale.extend, "max")
        self.assertEqual(scale.label, "flow velocity [m/s], up to 20")
        self.assertEqual(ends("water_depth", values), (0.0, 20.0))
        self.assertEqual(ends("flow_velocity", values[:-1]), (0.0, 1.0))

    def test_ends_can_be_given(self):
        scale = scale_of(outputs()["water_surface"], fields([1.0, 4.0]), (2.0, 3.0))
        self.assertEqual((scale.norm.vmin, scale.norm.vmax, scale.extend), (2.0, 3.0, "both"))
        self.assertEqual(scale.label, "elevation of the water surface [m], from 1, up to 4")

    def test_arrival_times_come_in_round_steps(self):
        scale = scale_of(outputs()["flood_arrival_time"], fields([3.0, 57.0]))
        self.assertEqual(scale.norm.boundaries.tolist(), list(range(0, 61, 5)))


if __name__ == "__main__":
    unittest.main()
