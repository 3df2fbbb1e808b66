"""A building, sized by the workbench and read into records."""

import json
import os
import subprocess
import tempfile
import unittest
from pathlib import Path
from unittest import mock

import radsel
from support import CATALOGUES, VALVES, VILLA


def size(building=VILLA, **options):
    return radsel.size_building(
        building, catalogues=CATALOGUES, valve_catalogues=VALVES, **options
    )


class BuildingsTest(unittest.TestCase):
    def test_schedule_is_that_of_the_batch_run(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run(
                [os.environ["RADSEL_WORKBENCH"], "--batch", "--system", "55/45"]
                + ["--building", VILLA, "--output", folder]
                + ["--catalogues", CATALOGUES, "--valve-catalogues", VALVES],
                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            )
            written = json.loads(Path(folder, "corpi-scaldanti.json").read_text("utf-8"))
        schedule = size(system=(55, 45))

        self.assertEqual((schedule.supply, schedule.return_), (55, 45))
        self.assertEqual(schedule.totals.open, written["totals"]["open"])
        self.assertEqual(schedule.totals.output_en442, written["totals"]["outputEN442"])
        self.assertEqual([order.count for order in schedule.radiators],
                         [order["count"] for order in written["radiators"]])
        rooms = [room for floor in written["floors"] for room in floor["rooms"]]
        self.assertEqual(len(schedule.rooms), len(rooms))
        for room, expected in zip(schedule.rooms, rooms):
            with self.subTest(room.name):
                self.assertEqual(room.name, expected["name"])
                self.assertEqual(room.status.value, expected["status"])
                self.assertEqual(room.output, expected.get("radiator", {}).get("output", 0))
                self.assertEqual(room.note, expected.get("note", ""))
                self.assertEqual(room.nearest is not None, "nearest" in expected)
                for placed in room.radiators:
                    for end in ("supply", "return"):
                        valve = getattr(placed, end + "_valve")
                        self.assertEqual(
                            valve and valve.number,
                            expected.get("valves", {}).get(end, {}).get("number"),
                        )

    def test_valve_of_a_room_is_that_of_the_catalogue(self):
        radsel.use_folders(valves=VALVES)
        wanted = [
            valve
            for room in size().rooms
            for placed in room.radiators
            for valve in (placed.supply_valve, placed.return_valve)
            if valve
        ]
        found = [valve for valve in wanted if valve.valve]
        self.assertGreater(len(found), 20)
        for valve in found:
            self.assertEqual(valve.valve, radsel.fetch_valve(valve.maker, valve.number))
        for valve in wanted:
            self.assertNotEqual(bool(valve.valve), bool(valve.note))

    def test_sized_building_is_saved_and_sized_again(self):
        with tempfile.TemporaryDirectory() as folder:
            saved = Path(folder, "sized.json")
            first = size(system=(75, 65), save=saved)
            again = size(saved, system=(75, 65))
        self.assertEqual(again.totals, first.totals)

    def test_what_is_refused_is_told(self):
        with self.assertRaisesRegex(radsel.RadselError, "^--system: .*110 °C"):
            size(system=(120, 100))
        self.assertRaisesRegex(ValueError, "the supply and the return", size, system=55)
        with self.assertRaisesRegex(radsel.RadselError, "nessuno.json"):
            size("nessuno.json")
        with mock.patch.dict(os.environ, RADSEL_WORKBENCH="", PATH=""):
            with self.assertRaisesRegex(radsel.NotInstalledError, "RADSEL_WORKBENCH"):
                size()
        with mock.patch.dict(os.environ, RADSEL_WORKBENCH=str(VILLA)):
            with self.assertRaisesRegex(radsel.NotInstalledError, VILLA.name):
                size()


if __name__ == "__main__":
    unittest.main()
