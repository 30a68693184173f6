"""Breaches planted into a copy of the sources are found, each at its line."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SCRIPT = ROOT / "scripts" / "check-includes"


class CheckIncludes(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        shutil.copytree(ROOT / "src", self.root / "src")

    def check(self):
        return subprocess.run([sys.executable, SCRIPT, self.root], capture_output=True, text=True)

    def plant(self, file, text):
        """Adds the text to the end of a file, or makes the file; returns the number of its line."""
        path = self.root / "src" / file
        path.parent.mkdir(parents=True, exist_ok=True)
        before = path.read_text() if path.exists() else ""
        path.write_text(before + text + "\n")
        return before.count("\n") + 1

    def assertBreach(self, file, text, words):
        line = self.plant(file, text)
        result = self.check()
        self.assertEqual(result.returncode, 1, result.stdout)
        self.assertIn(f"src/{file}:{line}: ", result.stdout)
        self.assertIn(words, result.stdout)

    def test_the_tree_is_clean(self):
        result = self.check()
        self.assertEqual(result.stdout, "include rules: clean\n")
        self.assertEqual(result.returncode, 0)

    def test_quotes(self):
        self.assertBreach("common/check.cpp", '#include "model/Model.h"',
                          "src/common may not include model/Model.h")

    def test_angle_brackets(self):
        self.assertBreach("common/check.cpp", "#include <model/Model.h>",
                          "src/common may not include model/Model.h")

    def test_blanks_around_the_sign(self):
        self.assertBreach("jsv/Factory.cpp", '  #  include  "dataio/Factory.h"',
                          "src/jsv may not include dataio/Factory.h")

    def test_a_comment_before_the_sign(self):
        self.assertBreach("jsv/Factory.cpp", '/* why */ #include "dataio/Factory.h"',
                          "src/jsv may not include dataio/Factory.h")

    def test_a_path_that_climbs(self):
        self.assertBreach("jsv/Factory.cpp", '#include "../dataio/Factory.h"', "by its path below src")

    def test_a_name_from_a_macro(self):
        self.assertBreach("jsv/Factory.cpp", "#include FACTORY", "an include names its file")

    def test_a_file_that_is_not_there(self):
        self.assertBreach("jsv/Factory.cpp", '#include "Factory.h"', "there is no src/Factory.h")

    def test_a_folder_below_an_allowed_one(self):
        self.plant("common/inner/deep.h", "#pragma once")
        self.assertBreach("jsv/Factory.cpp", '#include "common/inner/deep.h"',
                          "src/jsv may not include common/inner/deep.h")

    def test_a_folder_without_a_rule(self):
        self.plant("weather/wind.h", "#pragma once")
        self.assertIn("src/weather:1: has no row", self.check().stdout)

    def test_a_rule_without_a_folder(self):
        shutil.rmtree(self.root / "src" / "main_jsv")
        self.assertIn("src/main_jsv:1: has a row in RULES", self.check().stdout)

    def test_a_file_of_another_kind(self):
        self.plant("common/check.inl", "")
        self.assertIn("src/common/check.inl:1: is no source", self.check().stdout)

    def test_a_circle(self):
        self.plant("common/check.h", '#include "dataio/Factory.h"')
        self.assertIn("in a circle: common -> dataio -> common", self.check().stdout)

    def test_a_long_circle(self):
        self.plant("catalogue/IDs.h", '#include "model/Model.h"')
        self.assertIn("in a circle: api -> catalogue -> model -> api", self.check().stdout)

    def test_the_driver_outside_its_executable(self):
        self.assertBreach("export/Csv.cpp", '#include "simulation/RHEOdomain.h"',
                          "src/export may not include simulation/RHEOdomain.h")

    def test_output_headers_in_kernels(self):
        self.assertBreach("simulation/kernels/global/update.h", "#include <iostream>",
                          "no input or output")

    def test_output_in_kernels_without_a_header(self):
        self.assertBreach("simulation/kernels/global/update.h",
                          'inline void tell() { std::printf("dry"); }', "no input or output")

    def test_output_named_in_a_comment_is_none(self):
        self.plant("simulation/kernels/global/update.h", "// once there was a printf(...) here")
        self.assertEqual(self.check().returncode, 0)

    def test_a_loop_over_a_set_in_the_driver(self):
        self.assertBreach("simulation/RHEOdomain.cpp",
                          "void walk(op_set set) { for (int n = 0; n < set->size; ++n) step(n); }",
                          "loops over sets stand in the backends")

    def test_the_prefix_of_messages(self):
        self.assertBreach("dataio/H5Base.cpp", 'const char* text = " -> opening";',
                          "only src/common/console knows the prefix")


if __name__ == "__main__":
    unittest.main()
