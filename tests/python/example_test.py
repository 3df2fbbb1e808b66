"""The example runs, and so does what the documentation shows."""

import contextlib
import importlib.util
import io
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from support import DATA, TREE

EXAMPLE = TREE / "examples" / "python" / "size_villa.py"

WITHOUT_MATPLOTLIB = """
import runpy, sys
sys.modules["matplotlib"] = None
sys.argv = sys.argv[1:]
runpy.run_path(sys.argv[0])
"""


def run(*arguments):
    ended = subprocess.run([sys.executable, *arguments], capture_output=True, text=True)
    if ended.returncode != 0:
        raise AssertionError(ended.stderr)
    return ended.stdout.splitlines()


class ExampleTest(unittest.TestCase):
    def test_it_sizes_the_villa(self):
        with tempfile.TemporaryDirectory() as folder:
            picture = Path(folder, "villa.svg")
            told = run(EXAMPLE, DATA, picture)
            if importlib.util.find_spec("matplotlib"):
                self.assertEqual(told[-1], f"Drawn: {picture}")
                self.assertIn("<svg", picture.read_text())
                told = run("-c", WITHOUT_MATPLOTLIB, EXAMPLE, DATA, picture)
        self.assertIn("matplotlib is not installed", told[-1])
        self.assertIn("55/45 °C: C 22/600x1100 gives 925 W", told)

    def test_it_says_where_it_looks_for_the_samples(self):
        with tempfile.TemporaryDirectory() as folder:
            ended = subprocess.run([sys.executable, EXAMPLE, folder], capture_output=True, text=True)
        self.assertEqual(ended.returncode, 1)
        self.assertRegex(ended.stderr, f"^No samples in {folder}\\. .*\n$")

    def test_the_page_shows_what_comes_out(self):
        page = (TREE / "docs" / "python.md").read_text("utf-8")
        code, output = re.search(r"```python\n(.*?)```\n\n    (.*?)\n", page, re.DOTALL).groups()
        with contextlib.redirect_stdout(io.StringIO()) as told:
            exec(code.replace("/usr/share/radsel", str(DATA)), {})
        self.assertEqual(told.getvalue().strip(), output)


if __name__ == "__main__":
    unittest.main()
