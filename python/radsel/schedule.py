"""What a building's schedule consists of."""

from __future__ import annotations

from dataclasses import dataclass
from enum import Enum

from .radiators import Product, Radiator
from .valves import Valve


class RoomStatus(Enum):
    """What became of a room. All but CHOSEN, OVERSIZED and COVERED leave it open."""

    #: Its radiators cover it, or miss it by no more than 10 %.
    CHOSEN = "chosen"
    #: They exceed what is required by more than the building allows.
    OVERSIZED = "oversized"
    #: Nothing is asked of radiators.
    COVERED = "covered"
    #: A radiator that stood there already is larger than its place allows.
    TOO_LARGE = "tooLarge"
    #: The product has no radiator that fits and is strong enough.
    UNFITTING = "unfitting"
    #: The radiators that stood there already give less.
    LACKING = "lacking"
    #: It has no radiator, in a building in which others have.
    MISSING = "missing"
    #: The catalogues do not know the product.
    UNKNOWN_PRODUCT = "unknownProduct"
    #: The maker's catalogue cannot be read.
    BAD_CATALOGUE = "badCatalogue"


@dataclass(frozen=True)
class WantedValve:
    """A valve that a building asks for by its key; ``note`` tells why it was not found."""

    maker: str
    number: str
    #: ``None``: it was not found.
    valve: Valve | None
    note: str = ""


@dataclass(frozen=True)
class PlacedRadiator:
    """A radiator of a room, with its valves. ``None``: no valve is wanted at that end."""

    product: Product
    radiator: Radiator
    supply_valve: WantedValve | None
    return_valve: WantedValve | None


@dataclass(frozen=True)
class Room:
    """A room of the schedule: outputs in watts, lengths in mm, the temperature in °C."""

    name: str
    status: RoomStatus
    temperature: float
    #: Heat demand.
    demand: float
    #: What heating other than radiators covers of it.
    covered: float
    #: What is left for radiators, at least 0.
    required: float
    #: The product that was wished for, or that of the first radiator.
    product: Product
    #: How large a radiator may be in the room's first place.
    height_max: float
    length_max: float
    radiators: tuple[PlacedRadiator, ...]
    #: Of a room for which none fits the one that comes nearest.
    nearest: Radiator | None
    #: What is missing or too much, in Italian; may be empty.
    note: str = ""

    @property
    def output(self) -> float:
        """What its radiators give at the temperatures of the system."""
        return sum(placed.radiator.output for placed in self.radiators)

    @property
    def is_open(self) -> bool:
        """Somebody still has to find a radiator for it."""
        return self.status not in (RoomStatus.CHOSEN, RoomStatus.OVERSIZED, RoomStatus.COVERED)


@dataclass(frozen=True)
class Totals:
    """Sums of a floor or of the building. A room counts once, every radiator with its output."""

    rooms: int
    chosen: int
    open: int
    radiators: int
    #: Watts, as in `Room`.
    demand: float
    required: float
    #: Watts at 75/65/20 °C, and at the temperatures of the system.
    output_en442: float
    output: float
    #: By how many per cent the output exceeds (+) or misses (-) what is required.
    deviation_percent: float
    litres: float


@dataclass(frozen=True)
class Floor:
    """A floor with its rooms, in the order of the building."""

    name: str
    rooms: tuple[Room, ...]
    totals: Totals


@dataclass(frozen=True)
class RadiatorOrder:
    """How many of one radiator are to be ordered; sizes in mm."""

    product: Product
    type: str
    height: float
    depth: float
    length: float
    sections: int
    count: int
    #: Empty for a size that is made to measure.
    order_number: str = ""


@dataclass(frozen=True)
class ValveOrder:
    """How many of one valve are to be ordered."""

    maker: str
    number: str
    #: Order number.
    name: str
    #: Nominal diameter.
    dn: float
    count: int


@dataclass(frozen=True)
class Schedule:
    """The radiators and valves of a building, as `size_building` gives them."""

    building: str
    #: Temperatures of the water in °C, for which the radiators were chosen.
    supply: float
    return_: float
    floors: tuple[Floor, ...]
    totals: Totals
    radiators: tuple[RadiatorOrder, ...]
    valves: tuple[ValveOrder, ...]
    #: How many valves are wanted besides and were not found.
    valves_missing: int = 0

    @property
    def rooms(self) -> tuple[Room, ...]:
        """The rooms of all floors."""
        return tuple(room for floor in self.floors for room in floor.rooms)
