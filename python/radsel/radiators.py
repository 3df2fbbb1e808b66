"""Makers, products, and the radiator that gives what a room needs."""

from __future__ import annotations

from ctypes import byref, c_double
from dataclasses import dataclass
from typing import Any, Optional

from . import _library

#: From and to, in mm; the ends belong to it.
Range = Optional[tuple[float, float]]


@dataclass(frozen=True)
class Temperatures:
    """Design temperatures in °C: of the water that comes and goes, and of the room."""

    supply: float
    return_: float
    room: float = 20.0

    def __post_init__(self) -> None:
        if not self.supply > self.return_ > max(self.room, 0.0):
            raise ValueError(
                "the supply has to be above the return, and that above 0 and above the room: "
                f"{self.supply:g}/{self.return_:g}/{self.room:g} °C"
            )


#: The standard conditions of EN 442, at which catalogues state outputs.
EN_442 = Temperatures(75.0, 65.0, 20.0)


@dataclass(frozen=True)
class Product:
    """A product of a catalogue. Names count exactly, case and blanks included."""

    #: Name of the maker's folder.
    maker: str
    kind: str
    name: str


@dataclass(frozen=True)
class Radiator:
    """A product in one size."""

    type: str
    #: mm
    height: float
    depth: float
    length: float
    #: Of the whole radiator in whole watts, at 75/65/20 °C and at the design temperatures.
    output_en442: float
    output: float
    #: Number of sections; 0 for a radiator that is not made of such.
    sections: int
    #: Water content.
    litres: float


def list_makers() -> list[str]:
    """The makers of radiators in the folder of catalogues."""
    return _library.list_texts("radsel_list_makers")


def list_products(maker: str) -> list[Product]:
    """What a maker has, in the order of his catalogue."""
    name = _library.encode(maker)
    return [
        Product(maker, kind, product)
        for kind in _library.list_texts("radsel_list_kinds", name)
        for product in _library.list_texts("radsel_list_products", name, _library.encode(kind))
    ]


def list_rows(
    product: Product,
    temperatures: Temperatures = EN_442,
    *,
    output: float = 1000.0,
    height: Range = None,
    depth: Range = None,
    length: Range = None,
) -> list[Radiator]:
    """The sizes of a product with their outputs, at most 2000, in the order of the catalogue.

    Sizes that are built to measure are those around the ``output`` in watts, and the first and the
    last. The ranges are those of `find_radiator`.
    """
    request = _request(product, output, temperatures, height, depth, length)
    every = height is None and depth is None and length is None
    return [_radiator(row.name, row.data) for row in _library.list_rows(request, every)]


def find_radiator(
    product: Product,
    output: float,
    temperatures: Temperatures = EN_442,
    *,
    height: Range = None,
    depth: Range = None,
    length: Range = None,
    min_output: float | None = None,
) -> Radiator:
    """The size of a product whose output at the temperatures is nearest to the one in watts.

    Nearest does not mean enough: look at the ``output`` of what you get. With a ``min_output``
    a size that is weaker gives way to the next one in the catalogue, which is not always the
    nearest of the strong ones, and where none comes after it, it stays.

    Ranges are in mm, and a range that is left out is open. Heights may be up to 10 mm beyond
    theirs. A series of sizes that ends below the range of lengths keeps its longest one, unless
    it is the product's last series.

    `NothingFoundError` tells that the catalogues do not know the product or that no size fits.
    """
    request = _request(product, output, temperatures, height, depth, length)
    if min_output is not None:
        request.min_output = min_output
    _library.call("radsel_find_radiator", byref(request))
    return _radiator(request.type_name, request.chosen)


def output_factor(temperatures: Temperatures) -> float:
    """By what an output at 75/65/20 °C is multiplied to have that at the temperatures.

    It is rounded to 0.001. The exponent is 1.33 for every radiator.
    """
    _require("temperatures", temperatures, Temperatures)
    factor = c_double()
    _library.call(
        "radsel_output_factor",
        temperatures.supply,
        temperatures.return_,
        temperatures.room,
        byref(factor),
    )
    return factor.value


def _request(
    product: Product,
    output: float,
    temperatures: Temperatures,
    height: Range,
    depth: Range,
    length: Range,
) -> _library.RequestRecord:
    _require("product", product, Product)
    _require("temperatures", temperatures, Temperatures)
    if not output > 0:
        raise ValueError(f"an output above 0 W is needed, not {output}")
    request = _library.new_record(_library.RequestRecord)
    request.maker = _library.encode_field(product.maker)
    request.kind = _library.encode_field(product.kind)
    request.product = _library.encode_field(product.name)
    request.output = output
    request.supply_temperature = temperatures.supply
    request.return_temperature = temperatures.return_
    request.room_temperature = temperatures.room
    if height is not None:
        request.min_height, request.max_height = _ends("height", height)
    if depth is not None:
        request.min_depth, request.max_depth = _ends("depth", depth)
    if length is not None:
        request.min_length, request.max_length = _ends("length", length)
    return request


def _require(name: str, value: object, kind: type) -> None:
    if not isinstance(value, kind):
        raise ValueError(f"{name} has to be a radsel.{kind.__name__}, not {value!r}")


def _ends(name: str, ends: Any) -> tuple[float, float]:
    """The ends of a range. One number, and a range that begins above its end, are mistakes that
    would look as if no size fitted."""
    try:
        smallest, largest = map(float, ends)
        if smallest <= largest:
            return smallest, largest
    except (TypeError, ValueError):
        pass
    raise ValueError(f"{name} has to be the smallest and the largest in mm, not {ends!r}")


def _radiator(name: bytes, data: _library.RadiatorRecord) -> Radiator:
    return Radiator(
        type=_library.decode(name),
        height=data.height,
        depth=data.depth,
        length=data.length,
        output_en442=data.output_en442,
        output=data.output,
        sections=int(data.sections),
        litres=data.water,
    )
