"""The C interface of radsel as ctypes sees it: records, functions, results."""

from __future__ import annotations

import ctypes
import functools
from collections.abc import Callable
from ctypes import POINTER, byref, c_char, c_char_p, c_double, c_float, c_int, c_size_t, c_void_p
from typing import Any, ClassVar, TypeVar

from ._places import LIBRARY, library_candidates
from .errors import NothingFoundError, NotInstalledError, RadselError

# RADSEL_C_VERSION of the header that the declarations below are taken from.
VERSION = 1

CATALOGUE_FOLDER = 1
VALVE_FOLDER = 2

_NOTHING = -1
_TEXT = 256
_MAX_KV = 50

# What is no UTF-8 in a catalogue comes through unharmed and goes back as the same bytes.
_ENCODING = ("utf-8", "surrogateescape")

_Text = c_char * _TEXT
_KvTable = c_float * _MAX_KV


class RadiatorRecord(ctypes.Structure):
    """radsel_radiator"""

    _fields_ = [
        ("height", c_double),
        ("depth", c_double),
        ("length", c_double),
        ("output_en442", c_double),
        ("output", c_double),
        ("sections", c_double),
        ("form", c_int),
        ("unused", c_int),
        ("exponent", c_double),
        ("water", c_double),
    ]


class SizedRecord(ctypes.Structure):
    """A record that begins with its size. The class names the function that fills it with its
    defaults, and the one that gets it out of a list if there is such a list."""

    init: ClassVar[str]
    getter: ClassVar[str]


class RowRecord(SizedRecord):
    """radsel_row"""

    init = "radsel_row_init"
    getter = "radsel_rows_get"
    _fields_ = [("size", c_size_t), ("name", _Text), ("data", RadiatorRecord)]


class RequestRecord(SizedRecord):
    """radsel_request"""

    init = "radsel_request_init"
    _fields_ = [
        ("size", c_size_t),
        ("maker", _Text),
        ("kind", _Text),
        ("product", _Text),
        ("output", c_double),
        ("min_output", c_double),
        ("max_output", c_double),
        ("tolerance", c_double),
        ("min_length", c_double),
        ("max_length", c_double),
        ("min_height", c_double),
        ("max_height", c_double),
        ("min_depth", c_double),
        ("max_depth", c_double),
        ("supply_temperature", c_double),
        ("return_temperature", c_double),
        ("room_temperature", c_double),
        ("factor", c_double),
        ("room", _Text),
        ("room_demand", c_double),
        ("room_covered", c_double),
        ("reread", c_int),
        ("unused", c_int),
        ("type_name", _Text),
        ("chosen", RadiatorRecord),
    ]


class ValveRecord(SizedRecord):
    """radsel_valve"""

    init = "radsel_valve_init"
    getter = "radsel_valves_get"
    _fields_ = [
        ("size", c_size_t),
        ("maker", _Text),
        ("number", _Text),
        ("name", _Text),
        ("main_group", _Text),
        ("group", _Text),
        ("note", _Text),
        ("nominal_diameter", c_double),
        ("presettable", c_int),
        ("kind", c_int),
        ("type", c_int),
        ("row_count", c_int),
        ("kvs", c_float),
        ("max_pressure", c_float),
        ("value5", c_float),
        ("value6", c_float),
        ("proportional_band", _KvTable),
        ("bypass_kv", _KvTable),
        ("radiator_kv", _KvTable),
        ("radiator_share", _KvTable),
        ("kv", _KvTable),
        ("row_kvs", _KvTable),
        ("presetting", _KvTable),
    ]


_Record = TypeVar("_Record", bound=SizedRecord)
_Item = TypeVar("_Item")

# Result and arguments of each function that is used. Lists are opaque: a pointer is all they show.
_FUNCTIONS: dict[str, tuple[Any, ...]] = {
    "radsel_c_version": (c_int,),
    "radsel_last_error": (c_char_p,),
    "radsel_last_error_file": (c_char_p,),
    "radsel_last_error_line": (c_int,),
    "radsel_set_text": (c_int, c_int, c_char_p),
    "radsel_request_init": (None, POINTER(RequestRecord), c_size_t),
    "radsel_row_init": (None, POINTER(RowRecord), c_size_t),
    "radsel_valve_init": (None, POINTER(ValveRecord), c_size_t),
    "radsel_output_factor": (c_int, c_double, c_double, c_double, POINTER(c_double)),
    "radsel_find_radiator": (c_int, POINTER(RequestRecord)),
    "radsel_list_makers": (c_int, POINTER(c_void_p)),
    "radsel_list_kinds": (c_int, c_char_p, POINTER(c_void_p)),
    "radsel_list_products": (c_int, c_char_p, c_char_p, POINTER(c_void_p)),
    "radsel_list_valve_makers": (c_int, POINTER(c_void_p)),
    "radsel_list_count": (c_size_t, c_void_p),
    "radsel_list_text": (c_char_p, c_void_p, c_size_t),
    "radsel_list_free": (None, c_void_p),
    "radsel_list_rows": (c_int, POINTER(RequestRecord), c_int, POINTER(c_void_p)),
    "radsel_rows_count": (c_size_t, c_void_p),
    "radsel_rows_get": (c_int, c_void_p, c_size_t, POINTER(RowRecord)),
    "radsel_rows_free": (None, c_void_p),
    "radsel_list_valves": (c_int, c_char_p, POINTER(c_void_p)),
    "radsel_valves_count": (c_size_t, c_void_p),
    "radsel_valves_get": (c_int, c_void_p, c_size_t, POINTER(ValveRecord)),
    "radsel_valves_free": (None, c_void_p),
    "radsel_fetch_valves": (c_int, POINTER(ValveRecord), POINTER(ValveRecord)),
}


@functools.cache
def library() -> ctypes.PyDLL:
    """The library, opened at the first call; `NotInstalledError` if it is not there or too old.

    Its calls hold Python's lock: the library takes one call at a time in the whole process, and
    so no thread has to wait for another by other means.
    """
    opened = _open()
    for name, (result, *arguments) in _FUNCTIONS.items():
        try:
            function = getattr(opened, name)
        except AttributeError:
            raise NotInstalledError(f"{opened._name} has no function {name}: too old") from None
        function.restype = result
        function.argtypes = arguments
    if opened.radsel_c_version() < VERSION:
        raise NotInstalledError(
            f"{opened._name} has version {opened.radsel_c_version()} of the C interface; "
            f"this package needs {VERSION}"
        )
    return opened


def _open() -> ctypes.PyDLL:
    reasons = []
    for candidate in library_candidates():
        try:
            return ctypes.PyDLL(candidate)
        except OSError as error:
            reasons.append(str(error))
    raise NotInstalledError(
        f"{LIBRARY}, the library of radsel, cannot be loaded: {'; '.join(reasons)}. Install the "
        "package radsel, or name the file in the environment variable RADSEL_LIBRARY."
    )


def call(name: str, *arguments: Any) -> int:
    """Calls a function that gives a result below 0 where it fails, and then raises the reason."""
    result: int = getattr(library(), name)(*arguments)
    if result < 0:
        raise _failure(name, result)
    return result


def _failure(name: str, result: int) -> RadselError:
    text = decode(library().radsel_last_error()) or f"{name} gives {result}"
    file = decode(library().radsel_last_error_file()) or None
    line = library().radsel_last_error_line() or None
    kind = NothingFoundError if result == _NOTHING else RadselError
    return kind(text, file, line)


def encode(text: str) -> bytes:
    """A text as an argument, which a NUL would end too soon."""
    if "\0" in text:
        raise ValueError(f"a text with a NUL: {text!r}")
    return text.encode(*_ENCODING)


def encode_field(text: str) -> bytes:
    """A text for a field of a record."""
    encoded = encode(text)
    if len(encoded) >= _TEXT:
        raise ValueError(f"a text of more than {_TEXT - 1} bytes: {text!r}")
    return encoded


def decode(text: bytes) -> str:
    """A text of the library."""
    return text.decode(*_ENCODING)


def new_record(kind: type[_Record]) -> _Record:
    """A record with its defaults."""
    record = kind()
    getattr(library(), kind.init)(byref(record), ctypes.sizeof(record))
    return record


def list_texts(lister: str, *arguments: Any) -> list[str]:
    """What a function of the library lists as texts."""

    def text(texts: c_void_p, index: int) -> str:
        return decode(library().radsel_list_text(texts, index))

    return _read_list("radsel_list", lister, arguments, text)


def list_rows(request: RequestRecord, every: bool) -> list[RowRecord]:
    """The rows of the request's product: those in its ranges, or every one."""
    arguments = (byref(request), every)
    return _read_list("radsel_rows", "radsel_list_rows", arguments, _getter(RowRecord))


def list_valves(maker: str) -> list[ValveRecord]:
    """The valves of a maker, with their keys and names."""
    arguments = (encode(maker),)
    return _read_list("radsel_valves", "radsel_list_valves", arguments, _getter(ValveRecord))


def _getter(kind: type[_Record]) -> Callable[[c_void_p, int], _Record]:
    def get(records: c_void_p, index: int) -> _Record:
        record = new_record(kind)
        call(kind.getter, records, index, byref(record))
        return record

    return get


def _read_list(
    functions: str,
    lister: str,
    arguments: tuple[Any, ...],
    item: Callable[[c_void_p, int], _Item],
) -> list[_Item]:
    """Everything in a list that ``lister`` makes and that the ``functions`` count and free."""
    handle = c_void_p()
    call(lister, *arguments, byref(handle))
    try:
        count = getattr(library(), f"{functions}_count")(handle)
        return [item(handle, index) for index in range(count)]
    finally:
        getattr(library(), f"{functions}_free")(handle)
