"""The recipes of CONTRIBUTING.md name all sources in which their examples stand, and no others."""

import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]

# What stands in each source that takes part in the example of a recipe.
EXAMPLES = {
    "A kernel": r"\bHydFriction\b|\bkernel_HYDRAULICS_Friction\b|kernels/hydraulics/friction\.h|inline void friction\(",
    "An output": r"\bfriction_chezy\b",
    "A boundary of the flow": r"\bOutflowFree\b|\"free_outflow\"|\bfreeOutflow\b",
    "A bed load formula": r"\bPowerLaw\b|\"power_law\"|\bpowerLawBedload\b",
}


def named_by(recipe):
    text = (ROOT / "CONTRIBUTING.md").read_text()
    section = re.search(rf"^### {recipe} \(.*?(?=^##)", text, re.M | re.S).group(0)
    return sorted(re.findall(r"`(src/[^`]+\.(?:h|cpp))`", section))


def holding(pattern):
    sources = [p for p in (ROOT / "src").rglob("*") if p.suffix in (".h", ".cpp")]
    return sorted(str(p.relative_to(ROOT)) for p in sources if re.search(pattern, p.read_text()))


class Recipes(unittest.TestCase):
    def test_each_names_all_places(self):
        for recipe, pattern in EXAMPLES.items():
            with self.subTest(recipe=recipe):
                self.assertEqual(named_by(recipe), holding(pattern))


if __name__ == "__main__":
    unittest.main()
