import unittest

import numpy as np
from support import basin, changed, colours, opened, picture, plot

from rheoplot.floods import Summary
from rheoplot.outputs import masked, outputs
from rheoplot.results import BED, FLOOD, STATE


def untracked(file):
    del file["RESULTS/CellsAll/FloodVar"]


class FloodsTest(unittest.TestCase):
    def test_records_stand_in_for_tracked_data(self):
        results = opened(self, changed(basin(), untracked))
        records = results.records((STATE, BED))
        summary = Summary(results, records)
        arrival = masked(outputs()["flood_arrival_time"], summary)
        deepest = masked(outputs()["flood_maximum_depth"], summary)
        for cell in range(144):
            wet = [record for record in records if record.wet[cell]]
            if wet:
                self.assertEqual(arrival[cell], wet[0].time)
                self.assertEqual(deepest[cell], max(record.depth[cell] for record in wet))
            else:
                self.assertIs(deepest[cell], np.ma.masked)
        self.assertLess(deepest.count(), 144)

    def test_records_come_near_to_what_was_tracked(self):
        results = opened(self, basin())
        summary = Summary(results, results.records((STATE, BED))[1:])
        tracked = results.tracked().array(FLOOD)
        self.assertTrue((summary.values[:, 1] <= tracked[:, 1]).all())
        reached = ~np.isnan(summary.values[:, 0])
        self.assertTrue((tracked[reached, 0] <= summary.values[reached, 0]).all())

    def test_the_picture_tells_how_it_was_found(self):
        status, out, _ = plot("flood", basin(), "-o", picture("flood.png"))
        self.assertEqual((status, out),
                         (0, picture("flood.png") + ": basin: flood, tracked in every step\n"))
        self.assertEqual(colours(picture("flood.png"))[0], (1380, 1454))
        self.assertGreater(colours(picture("flood.png"))[1], 100)
        _, out, _ = plot("flood", changed(basin(), untracked), "-o", picture("flood2.png"))
        self.assertIn("found from 5 records", out)

    def test_a_continued_run_counts_from_its_start(self):
        def restart(file):
            untracked(file)
            text = file[".config/simulation"][0].decode().replace('"start":0.0', '"start":2.0')
            file[".config/simulation"][0] = text
        _, out, _ = plot("flood", changed(basin(), restart), "-o", picture("flood3.png"))
        self.assertIn("found from 3 records", out)


if __name__ == "__main__":
    unittest.main()
