import unittest

import h5py
import numpy as np
from support import basin, changed, colours, opened, picture, plot, sample

from rheoplot.results import STRINGS
from rheoplot.series import states


class SeriesTest(unittest.TestCase):
    def test_states_are_those_of_the_records(self):
        results = opened(self, basin())
        values = states(results, results.records([STRINGS]))
        self.assertEqual(values.shape, (5, 2, 10))
        with h5py.File(basin()) as file:
            for k in range(1, 5):
                np.testing.assert_array_equal(values[k],
                                              file[f"RESULTS/NodeStrg/StateVar/{k:07d}"])

    def test_what_no_step_has_computed_is_missing_and_not_zero(self):
        results = opened(self, basin())
        values = states(results, results.records([STRINGS]))
        self.assertTrue(np.isnan(values[0]).all())
        self.assertEqual(values[1, 1, 1], 0.0)  # dry so far: nothing flows

    def test_all_strings_or_some_are_drawn(self):
        sizes = set()
        for names in ([], ["--string", "outlet"]):
            status, out, err = plot("hydrographs", basin(), "-o", picture("q.png"), *names)
            self.assertEqual((status, err), (0, ""))
            size, count = colours(picture("q.png"))
            self.assertGreater(count, 20)
            sizes.add(size)
        self.assertEqual(sizes, {(1200, 630)})

    def test_sediment_has_a_panel_of_its_own(self):
        status, _, _ = plot("hydrographs", sample("mor_mpm"), "-o", picture("qs.png"))
        self.assertEqual(status, 0)
        self.assertEqual(colours(picture("qs.png"))[0], (1200, 1110))

    def test_an_unknown_string_is_refused_with_those_that_are_there(self):
        status, _, err = plot("hydrographs", basin(), "-o", picture("q.png"), "--string", "inlet")
        self.assertEqual(status, 1)
        self.assertEqual(err, 'plot: there is no nodestring "inlet"; there are: middle, outlet\n')

    def test_without_states_of_strings_the_way_to_them_is_told(self):
        status, _, err = plot("hydrographs", sample("dam_dry"), "-o", picture("q.png"))
        self.assertEqual(status, 1)
        self.assertIn('ask for "ns_hyd_discharge" in SIMULATION/OUTPUT', err)

    def test_one_record_is_no_hydrograph(self):
        def keep_first(file):
            for k in range(1, 5):
                file[f"RESULTS/NodeStrg/StateVar/{k:07d}"].attrs["t"] = [-1.0]
        status, _, err = plot("hydrographs", changed(basin(), keep_first), "-o", picture("q.png"))
        self.assertEqual(status, 1)
        self.assertIn("has 1 valid record with states of nodestrings", err)


if __name__ == "__main__":
    unittest.main()
