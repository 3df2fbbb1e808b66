"""What the tests of the Python package share: the samples of this tree."""

from pathlib import Path

TREE = Path(__file__).resolve().parents[2]
DATA = TREE / "data"
CATALOGUES = DATA / "catalogues"
VALVES = DATA / "valves"
VILLA = DATA / "buildings" / "villa-dei-tigli.json"
