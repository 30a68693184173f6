import types
import unittest

import numpy as np
from support import basin, colours, opened, picture

from rheoplot.arrows import Arrows
from rheoplot.figures import map_panels
from rheoplot.maps import Map, map_of, outline, still, title_of
from rheoplot.outputs import masked, outputs
from rheoplot.results import BED, STATE
from rheoplot.scales import scale_of


def options(**changes):
    return types.SimpleNamespace(**{"stretch": None, "range": None, "arrows": None, "mesh": False,
                                    **changes})


class MapsTest(unittest.TestCase):
    def setUp(self):
        self.results = opened(self, basin())
        self.records = self.results.records((STATE, BED))

    def draw(self, name, position, **changes):
        _, drawn = map_of(self.results, outputs()[name], self.records, options(**changes))
        drawn.show(self.records[position], "")
        return drawn

    def test_what_is_drawn_is_what_is_stored(self):
        drawn = self.draw("water_depth", 2)
        values = drawn.field.get_array()
        np.testing.assert_array_equal(values.filled(-1.0),
                                      masked(outputs()["water_depth"], self.records[2]).filled(-1.0))
        np.testing.assert_array_equal(values.mask, ~self.records[2].wet)
        triangle = drawn.field.get_paths()[5].vertices[:3]
        np.testing.assert_array_equal(triangle, self.results.nodes[self.results.cells[5]])

    def test_dry_cells_have_no_colour(self):
        drawn = self.draw("water_depth", 0)
        drawn.field.update_scalarmappable()
        opacity = drawn.field.get_facecolors()[:, 3]
        np.testing.assert_array_equal(opacity > 0.0, self.records[0].wet)

    def test_the_colours_hold_for_all_records(self):
        deepest = max(record.depth[record.wet].max() for record in self.records)
        self.assertEqual(self.draw("water_depth", 4).field.norm.vmax, deepest)

    def test_covered_cells_are_grey(self):
        _, [panel] = map_panels(self.results.nodes)
        output = outputs()["water_depth"]
        covered = np.arange(144) < 10
        scale = scale_of(output, [masked(output, self.records[4])])
        drawn = Map(panel, self.results, output, scale, covered=covered)
        drawn.show(self.records[4], "")
        self.assertTrue(drawn.field.get_array().mask[:10].all())
        self.assertIn(10, [len(one.get_paths()) for one in panel.axes.collections])

    def test_the_outline_are_the_sides_of_the_domain(self):
        lines = np.array([path.vertices for path in outline(self.results).get_paths()])
        self.assertEqual(len(lines), 2 * (12 + 6))
        self.assertEqual(np.hypot(*(lines[:, 1] - lines[:, 0]).T).sum(), 36.0)

    def test_arrows_are_those_of_the_flow_in_wet_cells(self):
        arrows = self.draw("flow_velocity", 2).arrows
        u = np.ma.array(arrows.quiver.U, mask=arrows.quiver.Umask)
        wet = self.records[2].wet[arrows.cells]
        np.testing.assert_array_equal(u.mask, ~wet)
        np.testing.assert_array_equal(u[wet], outputs()["flow_velocity"].vectors(self.records[2])[arrows.cells, 0][wet])

    def test_arrows_come_with_vectors_or_when_asked_for(self):
        self.assertIsInstance(self.draw("spec_discharge", 1).arrows, Arrows)
        self.assertIsInstance(self.draw("water_depth", 1, arrows=True).arrows, Arrows)
        self.assertIsNone(self.draw("water_depth", 1).arrows)
        self.assertIsNone(self.draw("spec_discharge", 1, arrows=False).arrows)

    def test_arrows_of_the_discharge_stand_on_maps_of_it(self):
        arrows = self.draw("spec_discharge", 2).arrows
        wet = self.records[2].wet[arrows.cells]
        np.testing.assert_array_equal(arrows.quiver.V[wet],
                                      self.records[2].state[arrows.cells, 2][wet])

    def test_a_picture_has_its_size_and_is_not_blank(self):
        for name in outputs():
            if name in ("water_depth", "flow_velocity", "bottom_elevation"):
                path = picture(f"{name}.png")
                still(self.results, outputs()[name], self.records[4], options(unfinished=path))
                size, count = colours(path)
                self.assertEqual(size, (1530, 776))
                self.assertGreater(count, 100)

    def test_the_mesh_is_drawn_when_asked_for(self):
        counts = []
        for mesh in (False, True):
            still(self.results, outputs()["bottom_elevation"], self.records[4],
                  options(unfinished=picture("mesh.png"), mesh=mesh))
            counts.append(colours(picture("mesh.png"))[1])
        self.assertGreater(counts[1], counts[0])

    def test_the_title_tells_study_quantity_and_time(self):
        self.assertEqual(title_of(self.results, outputs()["water_depth"], self.records[2]),
                         "basin: water depth\nt = 2 s")


if __name__ == "__main__":
    unittest.main()
