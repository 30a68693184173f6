import unittest

import numpy as np

from support import picture  # noqa: F401  (makes the package known)

from rheoplot.figures import Box, map_panels, time_text


def corners(width, height, origin=0.0):
    return np.array([[origin, origin], [origin + width, origin + height]])


class FiguresTest(unittest.TestCase):
    def test_a_domain_is_true_to_shape(self):
        _, [panel] = map_panels(corners(300.0, 100.0))
        self.assertEqual(panel.axes.get_aspect(), 1.0)
        self.assertEqual(panel.axes.get_ylabel(), "y [m]")
        self.assertAlmostEqual(panel.box.width / panel.box.height, 3.0)

    def test_a_slender_domain_is_stretched_by_a_round_factor(self):
        _, [panel] = map_panels(corners(1000.0, 32.0))
        self.assertEqual(panel.axes.get_aspect(), 5.0)
        self.assertEqual(panel.axes.get_ylabel(), "y [m], stretched ×5")
        self.assertEqual(Box(corners(32.0, 1000.0), (8.0, 6.0)).stretch.tolist(), [5.0, 1.0])
        self.assertEqual(Box(corners(16000.0, 100.0), (8.0, 6.0)).stretch.tolist(), [1.0, 20.0])

    def test_the_stretch_can_be_given(self):
        self.assertEqual(Box(corners(1000.0, 32.0), (8.0, 6.0), 1.0).stretch.tolist(), [1.0, 1.0])

    def test_a_map_keeps_to_the_size_of_a_page(self):
        for shape in ((1.0, 1.0), (5000.0, 20.0), (20.0, 5000.0), (3.0, 7.0)):
            size = map_panels(corners(*shape))[0].get_size_inches()
            self.assertTrue(((size > 1.5) & (size < 10.0)).all(), (shape, size))

    def test_colour_bars_stand_beside_high_maps_and_lie_below_low_ones(self):
        self.assertTrue(Box(corners(2.0, 1.0), (8.0, 6.0)).upright)
        self.assertFalse(Box(corners(8.0, 1.0), (8.0, 6.0)).upright)

    def test_long_numbers_stand_where_they_have_no_room(self):
        self.assertTrue(Box(corners(20.0, 160.0, 2.6e6), (8.0, 6.0)).turned)
        self.assertFalse(Box(corners(160.0, 160.0, 2.6e6), (8.0, 6.0)).turned)

    def test_two_maps_stand_side_by_side_or_are_stacked(self):
        def places(shape):
            return [panel.axes.get_position() for panel in map_panels(corners(*shape), count=2)[1]]
        left, right = places((200.0, 200.0))
        self.assertLess(left.x1, right.x0)
        top, bottom = places((300.0, 100.0))
        self.assertGreater(top.y0, bottom.y1)

    def test_times_are_told_in_larger_units_too(self):
        self.assertEqual(time_text(0.0), "t = 0 s")
        self.assertEqual(time_text(0.7999999999999999), "t = 0.8 s")
        self.assertEqual(time_text(5400.0), "t = 5,400 s (1 h 30 min)")
        self.assertEqual(time_text(172800.0), "t = 172,800 s (2 d)")
        self.assertEqual(time_text(263.4), "t = 263.4 s (4 min 23 s)")
        self.assertEqual(time_text(7199.0), "t = 7,199 s (2 h)")


if __name__ == "__main__":
    unittest.main()
