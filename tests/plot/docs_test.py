"""The pages do what they say."""
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import unittest

import h5py
from support import FOLDER, ROOT, basin, colours, opened, plot

from rheoplot.outputs import outputs
from rheoplot.results import BED, STATE

PLOT_PAGE = (ROOT / "docs/plot.md").read_text()


class DocsTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp(dir=FOLDER)
        shutil.copyfile(basin(), os.path.join(self.folder, "run_results.h5"))

    def test_the_commands_draw(self):
        commands = re.findall(r"^scripts/plot (.*)$", PLOT_PAGE, re.MULTILINE)
        self.assertEqual(len(commands), 5)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(self.folder)
        for command in commands:
            with self.subTest(command):
                self.assertEqual(plot(*shlex.split(command))[0], 0)
                self.assertGreater(colours(command.split()[-1])[1], 20)

    def test_the_outputs_are_those_of_the_program(self):
        rows = re.findall(r"^\| `([a-z_]+)` \| (.*) \| (.*) \|$", PLOT_PAGE, re.MULTILINE)
        known = [(output.name, output.title, output.unit) for output in outputs().values()]
        self.assertEqual([row for row in rows if row[0] in outputs()], known)

    def test_the_options_are_those_of_the_program(self):
        helps = "".join(plot(command, "--help")[1]
                        for command in ("map", "animate", "hydrographs", "flood"))
        options = set(re.findall(r"--[a-z-]+", helps)) - {"--help"}
        table = PLOT_PAGE[PLOT_PAGE.index("| Option |"):PLOT_PAGE.index("## Outputs")]
        self.assertEqual(options, set(re.findall(r"--[a-z-]+", re.sub(r"\|-+", "|", table))))

    def test_the_lines_of_python_print_the_depths(self):
        page = (ROOT / "docs/results.md").read_text()
        program = page[page.index("import h5py"):page.index("```\n\nA record")]
        done = subprocess.run([sys.executable, "-c", program], cwd=self.folder, text=True,
                              capture_output=True, check=True)
        results = opened(self, basin())
        expected = [f"{record.time:g} s: 144 cells, 91 nodes, deepest {record.depth.max():.6g} m"
                    for record in results.records((STATE, BED))]
        self.assertEqual(done.stdout.splitlines(), expected)

    def test_names_of_strings_are_where_the_page_says(self):
        with h5py.File(basin()) as file:
            self.assertEqual(list(file["NodeStrg/StrNames"]), [b"middle", b"outlet"])


if __name__ == "__main__":
    unittest.main()
