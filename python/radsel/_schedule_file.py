"""Reads the workbench's schedule in its JSON form."""

from __future__ import annotations

import json
import re
from dataclasses import fields
from pathlib import Path
from typing import Any, TypeVar

from .errors import RadselError
from .radiators import Product, Radiator
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
from .valves import KvRow, Valve

_VERSION = 1

_Json = dict[str, Any]
_Record = TypeVar("_Record")

# The names of all other fields are those of the records, in another spelling.
_OTHER_NAMES = {"dn": "DN", "output_en442": "outputEN442"}


def read_schedule(file: Path) -> Schedule:
    """The schedule of a file that the workbench has just written."""
    root = json.loads(file.read_text(encoding="utf-8"))
    if root["version"] != _VERSION:
        raise RadselError(
            f"the workbench writes schedules of version {root['version']}; "
            f"this package reads version {_VERSION}"
        )
    return _record(
        Schedule,
        root,
        supply=root["system"]["supply"],
        return_=root["system"]["return"],
        floors=tuple(map(_floor, root["floors"])),
        totals=_record(Totals, root["totals"]),
        radiators=tuple(
            _record(RadiatorOrder, item, product=_product(item)) for item in root["radiators"]
        ),
        valves=tuple(_record(ValveOrder, item) for item in root["valves"]),
    )


def _record(record: type[_Record], value: _Json, **given: Any) -> _Record:
    """A record whose fields, but for those that are given, stand in the file. What the file leaves
    out has a default in the record."""
    for field in fields(record):
        name = _OTHER_NAMES.get(field.name) or _camel_case(field.name)
        if field.name not in given and name in value:
            given[field.name] = value[name]
    return record(**given)


def _camel_case(name: str) -> str:
    return re.sub("_(.)", lambda match: match[1].upper(), name)


def _floor(value: _Json) -> Floor:
    rooms = tuple(map(_room, value["rooms"]))
    return Floor(value["name"], rooms, _record(Totals, value["totals"]))


def _room(value: _Json) -> Room:
    placed = [value] if "radiator" in value else []
    placed += value.get("furtherRadiators", [])
    return _record(
        Room,
        value,
        status=RoomStatus(value["status"]),
        product=_product(value),
        radiators=tuple(map(_placed_radiator, placed)),
        nearest=_record(Radiator, value["nearest"]) if "nearest" in value else None,
    )


def _placed_radiator(value: _Json) -> PlacedRadiator:
    valves = value.get("valves", {})
    return PlacedRadiator(
        _product(value),
        _record(Radiator, value["radiator"]),
        *(_wanted_valve(valves[end]) if end in valves else None for end in ("supply", "return")),
    )


def _product(value: _Json) -> Product:
    return Product(value["maker"], value["kind"], value["product"])


def _wanted_valve(value: _Json) -> WantedValve:
    valve = None
    if value["status"] == "found":
        valve = _record(Valve, value, rows=tuple(_record(KvRow, row) for row in value["rows"]))
    return _record(WantedValve, value, valve=valve)
