"""Radiator valves and their kv tables."""

from __future__ import annotations

from ctypes import byref, c_float
from dataclasses import dataclass

from . import _library


@dataclass(frozen=True)
class ValveEntry:
    """A valve in the list of its maker; `fetch_valve` gives the rest of it."""

    #: The key: name of the maker's folder, and the ident of the article, 36 digits.
    maker: str
    number: str
    #: The name that people read.
    name: str


@dataclass(frozen=True)
class KvRow:
    """What a valve lets through at one presetting.

    ``kv`` and ``kvs`` are m³/h, ``xp`` is the proportional band in kelvins. Of a bypass valve
    ``kv`` is the sum of ``kv_bypass`` and ``kv_radiator``, and ``radiator_percent`` the share
    of the latter in whole per cent; of any other these three are 0.
    """

    presetting: float
    kv: float
    kvs: float
    xp: float
    kv_bypass: float
    kv_radiator: float
    radiator_percent: float


@dataclass(frozen=True)
class Valve:
    """A valve with its kv table. ``maker`` and ``number`` are its key."""

    maker: str
    number: str
    #: Order number; empty where the catalogue has none.
    name: str
    main_group: str
    group: str
    #: 1 to 11, as the page on valve files lists them; 11 is a lockshield valve, say.
    kind: int
    #: Part of the water goes past the radiator.
    bypass: bool
    #: It can be preset.
    adjustable: bool
    #: Nominal diameter.
    dn: float
    #: m³/h
    kvs: float
    #: mbar
    pressure_max: float
    #: At most 50.
    rows: tuple[KvRow, ...]


def list_valve_makers() -> list[str]:
    """The makers of valves in the folder of valves."""
    return _library.list_texts("radsel_list_valve_makers")


def list_valves(maker: str) -> list[ValveEntry]:
    """What a maker has, in the order of his file."""
    return [
        ValveEntry(maker, _library.decode(record.number), _library.decode(record.name))
        for record in _library.list_valves(maker)
    ]


def fetch_valve(maker: str, number: str) -> Valve:
    """The valve of a key; `NothingFoundError` if there is none.

    A maker's file is read once in the life of the process.
    """
    record = _library.new_record(_library.ValveRecord)
    record.maker = _library.encode_field(maker)
    record.number = _library.encode_field(number)
    _library.call("radsel_fetch_valves", byref(record), None)
    return Valve(
        maker=maker,
        number=number,
        name=_library.decode(record.name),
        main_group=_library.decode(record.main_group),
        group=_library.decode(record.group),
        kind=record.kind,
        bypass=record.type == 1,
        adjustable=record.presettable != 0,
        dn=record.nominal_diameter,
        kvs=_decimal(record.kvs),
        pressure_max=_decimal(record.max_pressure),
        rows=tuple(_row(record, index) for index in range(record.row_count)),
    )


def _row(record: _library.ValveRecord, index: int) -> KvRow:
    return KvRow(
        presetting=_decimal(record.presetting[index]),
        kv=_decimal(record.kv[index]),
        kvs=_decimal(record.row_kvs[index]),
        xp=_decimal(record.proportional_band[index]),
        kv_bypass=_decimal(record.bypass_kv[index]),
        kv_radiator=_decimal(record.radiator_kv[index]),
        radiator_percent=_decimal(record.radiator_share[index]),
    )


def _decimal(value: float) -> float:
    """The decimal that the catalogue states: records keep it in single precision, where 0.44 is
    0.4399999976."""
    texts = (f"{value:.{digits}g}" for digits in range(1, 10))
    return next(float(text) for text in texts if c_float(float(text)).value == value)
