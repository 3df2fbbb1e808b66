"""Radiators and valves out of the sample catalogues."""

import math
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import radsel
from support import CATALOGUES, VALVES

PANEL = radsel.Product("Valmorena", "Radiatori a piastra compatti", "Tipo 22")


def factor(water):
    """EN 442 on a pocket calculator: the spread counts four fifths, the exponent is 1.33."""

    def difference(supply, return_, room):
        spread = (supply - return_) / 1.25
        return spread / math.log((return_ + spread - room) / (return_ - room))

    mean = difference(water.supply, water.return_, water.room)
    return round((mean / difference(75, 65, 20)) ** 1.33, 3)


class CataloguesTest(unittest.TestCase):
    def setUp(self):
        radsel.use_folders(catalogues=CATALOGUES, valves=VALVES)

    def test_lists_lead_to_every_row_of_the_catalogue(self):
        self.assertEqual(
            radsel.list_makers(), ["Altovico", "Lindenbrück", "Thörlinger", "Valmorena"]
        )
        text = (CATALOGUES / "Valmorena" / "hk.tga").read_text("cp1252")
        records = [line.split(";") for line in text.splitlines()]
        products = radsel.list_products("Valmorena")
        self.assertEqual([product.name for product in products],
                         [record[2] for record in records if record[0] == "110"])
        self.assertIn(PANEL, products)

        in_mm = [row.length for row in radsel.list_rows(PANEL, height=(590, 610))]
        self.assertEqual(in_mm, [400, 500, 600, 700, 800, 900, 1000, 1100, 1200, 1400, 1600, 1800,
                                 2000, 2300, 2600, 3000])

    def test_outputs_follow_the_temperatures(self):
        for system in [(75, 65, 20), (70, 55, 24), (55, 45, 20), (45, 35, 18), (35, 28, 20)]:
            water = radsel.Temperatures(*system)
            with self.subTest(water):
                expected = factor(water)
                self.assertAlmostEqual(radsel.output_factor(water), expected, 9)
                rows = radsel.list_rows(PANEL, water)
                self.assertGreater(len(rows), 50)
                for row in rows:
                    self.assertEqual(row.output, math.floor(row.output_en442 * expected + 0.5))

    def test_the_nearest_radiator_is_found(self):
        # 1698 W a metre make 1868 W at 1100 mm and 925 W at 55/45/20 °C, nearer to 900 W than the
        # 841 W of 1000 mm; 6.3 l a metre.
        water = radsel.Temperatures(55, 45)
        chosen = radsel.find_radiator(PANEL, 900, water, height=(600, 600), length=(0, 1400))
        self.assertEqual(
            chosen,
            radsel.Radiator("C 22/600x1100", 600, 102, 1100, 1868, 925, 0, chosen.litres),
        )
        self.assertAlmostEqual(chosen.litres, 6.93)
        self.assertIn(chosen, radsel.list_rows(PANEL, water))
        stronger = radsel.find_radiator(PANEL, 900, water, height=(600, 600), min_output=926)
        self.assertEqual(stronger.type, "C 22/600x1200")

    def test_what_is_not_there_is_told(self):
        for product, told in [
            (radsel.Product("Nessuno", PANEL.kind, PANEL.name), 'il produttore "Nessuno"'),
            (radsel.Product(PANEL.maker, "Stufe", PANEL.name), 'la categoria "Stufe"'),
            (radsel.Product(PANEL.maker, PANEL.kind, "Tipo 99"), 'il prodotto "Tipo 99"'),
        ]:
            with self.subTest(told):
                with self.assertRaisesRegex(radsel.NothingFoundError, f"non ha {told}"):
                    radsel.find_radiator(product, 900)
                with self.assertRaisesRegex(radsel.NothingFoundError, f"non ha {told}"):
                    radsel.list_rows(product)
        with self.assertRaisesRegex(radsel.NothingFoundError, "più vicina è .C 22/900x400"):
            radsel.find_radiator(PANEL, 900, height=(2000, 2100))
        self.assertEqual(radsel.list_rows(PANEL, height=(2000, 2100)), [])
        for wrong in [(45, 55, 20), (55, 45, 50), (-5, -10, -20)]:
            self.assertRaises(ValueError, radsel.Temperatures, *wrong)
        self.assertRaises(ValueError, radsel.find_radiator, PANEL, math.nan)
        self.assertRaises(ValueError, radsel.find_radiator, radsel.Product("ä" * 128, "", ""), 900)
        for sizes in [600, (700, 600), (600,), (math.nan, 600), ("a", 600)]:
            with self.assertRaisesRegex(ValueError, "depth has to be the smallest and the largest"):
                radsel.list_rows(PANEL, depth=sizes)
        for ask in [lambda: radsel.find_radiator(PANEL, 900, (55, 45, 20)),
                    lambda: radsel.output_factor((55, 45, 20))]:
            self.assertRaisesRegex(ValueError, "has to be a radsel.Temperatures", ask)
        self.assertRaises(radsel.RadselError, radsel.use_folders, valves=VALVES / "nothing")

    def test_a_damaged_catalogue_is_told_with_file_and_line(self):
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder, "Rotto", "hk.tga")
            file.parent.mkdir()
            file.write_text("010;200410;Rotto;20240301\n100;10;Piastre\n110;1;Tipo 1\n700;1;T;M\n")
            radsel.use_folders(catalogues=folder)
            with self.assertRaises(radsel.RadselError) as damaged:
                radsel.list_products("Rotto")
        self.assertNotIsInstance(damaged.exception, radsel.NothingFoundError)
        self.assertEqual((damaged.exception.file, damaged.exception.line), (str(file), 4))
        self.assertIn(str(file), str(damaged.exception))

    def test_valves_have_the_kv_rows_of_their_file(self):
        self.assertEqual(radsel.list_valve_makers(), ["Fontespada", "Möhrental", "Ostervliet"])
        number = "020001011000000000010000000001000100"
        self.assertIn(number, [entry.number for entry in radsel.list_valves("Fontespada")])
        valve = radsel.fetch_valve("Fontespada", number)
        self.assertEqual((valve.name, valve.dn, valve.kvs, valve.pressure_max, valve.adjustable),
                         ("FT-S10-N", 10, 0.704, 600, True))
        # The row "N" comes one above the largest number.
        self.assertEqual(
            [(row.presetting, row.kv, row.kvs, row.xp) for row in valve.rows],
            [(7, 0.44, 0.704, 2), (6, 0.347, 0.519, 2), (5, 0.265, 0.372, 2),
             (4, 0.194, 0.257, 2), (3, 0.135, 0.169, 2), (2, 0.086, 0.103, 2),
             (1, 0.048, 0.056, 2)],
        )
        bypass = radsel.fetch_valve("Fontespada", "010001011500000000010000000097003300")
        self.assertTrue(bypass.bypass)
        for row in bypass.rows:
            self.assertAlmostEqual(row.kv, row.kv_bypass + row.kv_radiator, 6)
        for maker, key in [("Fontespada", "9" * 36), ("Nessuno", number), ("Fontespada", "12")]:
            with self.subTest(maker=maker, key=key):
                self.assertRaises(radsel.NothingFoundError, radsel.fetch_valve, maker, key)
        self.assertRaises(radsel.NothingFoundError, radsel.list_valves, "Nessuno")


class LibraryTest(unittest.TestCase):
    def test_a_library_that_is_missing_or_another_is_told(self):
        ask = (
            "import radsel\n"
            "try: radsel.list_makers()\n"
            "except radsel.NotInstalledError as error: print(error)"
        )
        for library in ["/nowhere/libradsel_c.so", os.__file__]:
            with self.subTest(library):
                told = subprocess.run(
                    [sys.executable, "-c", ask], capture_output=True, text=True, check=True,
                    env=os.environ | {"RADSEL_LIBRARY": library},
                )
                self.assertIn("RADSEL_LIBRARY", told.stdout)
                self.assertIn(library, told.stdout)


if __name__ == "__main__":
    unittest.main()
