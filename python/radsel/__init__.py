"""Radiators and valves for the rooms of a building, out of makers' catalogues.

>>> import radsel
>>> radsel.use_folders(catalogues="/usr/share/radsel/catalogues")
>>> panel = radsel.Product("Valmorena", "Radiatori a piastra compatti", "Tipo 22")
>>> water = radsel.Temperatures(supply=55, return_=45, room=20)
>>> radsel.find_radiator(panel, 900, water, height=(600, 600)).type
'C 22/600x1100'

Outputs are watts, lengths millimetres, temperatures degrees Celsius, kv values m³/h, pressures
mbar and water contents litres. Folders and makers are those of the whole process. Any thread
may call; one call runs at a time.
"""

from .buildings import size_building
from .errors import NothingFoundError, NotInstalledError, RadselError
from .folders import use_folders
from .radiators import (
    EN_442,
    Product,
    Radiator,
    Temperatures,
    find_radiator,
    list_makers,
    list_products,
    list_rows,
    output_factor,
)
from .schedule import (
    Floor,
    PlacedRadiator,
    RadiatorOrder,
    Room,
    RoomStatus,
    Schedule,
    Totals,
    ValveOrder,
    WantedValve,
)
from .valves import KvRow, Valve, ValveEntry, fetch_valve, list_valve_makers, list_valves

__all__ = [
    "EN_442",
    "Floor",
    "KvRow",
    "NothingFoundError",
    "NotInstalledError",
    "PlacedRadiator",
    "Product",
    "Radiator",
    "RadiatorOrder",
    "RadselError",
    "Room",
    "RoomStatus",
    "Schedule",
    "Temperatures",
    "Totals",
    "Valve",
    "ValveEntry",
    "ValveOrder",
    "WantedValve",
    "fetch_valve",
    "find_radiator",
    "list_makers",
    "list_products",
    "list_rows",
    "list_valve_makers",
    "list_valves",
    "output_factor",
    "size_building",
    "use_folders",
]
