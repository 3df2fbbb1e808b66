#!/usr/bin/env python3
"""Sizes the sample building for two heating systems and plots what its rooms get.

size_villa.py [DATA [PICTURE]]: DATA is the folder of samples, /usr/share/radsel if it is left out;
PICTURE is the file that is drawn, villa.svg if it is left out. Editors that know such cells as
below run it step by step, like a notebook.
"""

# %% Where everything is
import math
import sys
from pathlib import Path

import radsel

data = Path(sys.argv[1] if len(sys.argv) > 1 else "/usr/share/radsel")
picture = sys.argv[2] if len(sys.argv) > 2 else "villa.svg"

if not (data / "catalogues").is_dir():
    sys.exit(f"No samples in {data}. Name their folder: size_villa.py <prefix>/share/radsel")

radsel.use_folders(catalogues=data / "catalogues", valves=data / "valves")

# %% What the catalogues offer
for maker in radsel.list_makers():
    print(f"{maker}: {len(radsel.list_products(maker))} products")

# %% One radiator, at ever lower temperatures of the water
panel = radsel.Product("Valmorena", "Radiatori a piastra compatti", "Tipo 22")
for system in [(75, 65), (55, 45), (45, 35)]:
    water = radsel.Temperatures(*system, room=20)
    chosen = radsel.find_radiator(panel, 900, water, height=(600, 600))
    print(f"{water.supply}/{water.return_} °C: {chosen.type} gives {chosen.output:.0f} W")

# %% The whole building, as it was planned and for a heat pump
schedules = {
    f"{supply}/{return_}": radsel.size_building(
        data / "buildings" / "villa-dei-tigli.json",
        system=(supply, return_),
        catalogues=data / "catalogues",
        valve_catalogues=data / "valves",
    )
    for supply, return_ in [(70, 55), (55, 45)]
}
for name, schedule in schedules.items():
    totals = schedule.totals
    print(f"{name}: {totals.output:.0f} of {totals.required:.0f} W, {totals.open} rooms are open")
    for room in schedule.rooms:
        if room.is_open:
            print(f"    {room.name}: {room.note}")

# %% How the supply valves of the ground floor are set, to take 100 mbar each
schedule = schedules["70/55"]
for room in schedule.floors[0].rooms:
    for placed in room.radiators:
        wanted = placed.supply_valve
        if wanted is None or wanted.valve is None:
            continue
        # A litre of water carries 1.163 Wh per kelvin; kv is the flow in m³/h at one bar.
        flow = placed.radiator.output / (1.163 * (schedule.supply - schedule.return_)) / 1000
        kv = flow / math.sqrt(0.1)
        row = min(wanted.valve.rows, key=lambda row: abs(row.kv - kv))
        print(f"{room.name}: {wanted.valve.name}, kv {kv:.3f}: presetting {row.presetting:g}")

# %% What the rooms need against what they get
try:
    from matplotlib.figure import Figure
except ImportError:
    print("No picture: matplotlib is not installed (on Debian: python3-matplotlib).")
else:
    rooms = schedule.rooms
    places = range(len(rooms))
    figure = Figure(figsize=(10, 5), layout="constrained")
    axes = figure.subplots()
    required = [room.required for room in rooms]
    axes.bar(places, required, width=0.8, color="lightgrey", label="required")
    for offset, (name, sized) in zip((-0.2, 0.2), schedules.items()):
        outputs = [room.output for room in sized.rooms]
        axes.bar([place + offset for place in places], outputs, width=0.3, label=f"at {name} °C")
    axes.set_xticks(places, [room.name for room in rooms], rotation=45, ha="right")
    axes.set_ylabel("W")
    axes.set_title(schedule.building)
    axes.legend()
    figure.savefig(picture)
    print(f"Drawn: {picture}")
