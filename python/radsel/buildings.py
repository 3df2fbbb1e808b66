"""A building sized and scheduled.

The workbench does it, a program of its own: it is started for each building, and the schedule that
it writes is read. It needs neither a screen nor the shared library.
"""

from __future__ import annotations

import os
import subprocess
import tempfile
from pathlib import Path
from typing import Any

from ._places import find_workbench
from ._schedule_file import read_schedule
from .errors import NotInstalledError, RadselError
from .folders import StrPath
from .schedule import Schedule

# The program ends with one of these when it has made a schedule, with the second where a file of a
# maker was damaged: the rooms that it concerns say so.
_OK, _DAMAGED_FILE = 0, 4


def size_building(
    building: StrPath,
    *,
    system: tuple[float, float] | None = None,
    catalogues: StrPath | None = None,
    valve_catalogues: StrPath | None = None,
    save: StrPath | None = None,
) -> Schedule:
    """Choose a radiator and its valves for every room of a building.

    ``building`` is a file in the form that `building-format.md` tells. ``system`` has the
    supply and the return temperature in °C; without it those of the building count. The two
    folders of catalogues have a sub-folder a maker; without them those count that the workbench
    itself would take. With ``save`` the building goes to that file with its radiators.

    A room without a fitting radiator, a valve that is not found and a damaged catalogue are no
    errors here: the schedule tells them. `RadselError` is raised where there is no schedule, as
    for a building that breaks a rule of its form, temperatures that are not plausible, or a
    folder of catalogues that is not there.
    """
    options = {
        "--building": building,
        "--system": None if system is None else _system(system),
        "--catalogues": catalogues,
        "--valve-catalogues": valve_catalogues,
        "--save": save,
    }
    with tempfile.TemporaryDirectory(prefix="radsel-") as folder:
        command = [find_workbench(), "--batch", f"--output={folder}"]
        for name, value in options.items():
            if value is not None:
                command.append(f"{name}={os.fspath(value)}")
        try:
            ended = subprocess.run(
                command, capture_output=True, encoding="utf-8", errors="replace", check=False
            )
        except OSError as error:
            raise NotInstalledError(f"the workbench cannot be started: {error}") from error
        schedule = Path(folder, "corpi-scaldanti.json")
        if ended.returncode not in (_OK, _DAMAGED_FILE) or not schedule.exists():
            raise RadselError(_reason(ended))
        return read_schedule(schedule)


def _system(temperatures: Any) -> str:
    try:
        supply, return_ = map(float, temperatures)
    except (TypeError, ValueError):
        raise ValueError(
            f"system has to be the supply and the return in °C, not {temperatures!r}"
        ) from None
    return f"{supply:.10g}/{return_:.10g}"


def _reason(ended: subprocess.CompletedProcess[str]) -> str:
    """What the program says of its end. Its toolkit may have said something before."""
    begin = "radsel_workbench: "
    said = [line for line in ended.stderr.splitlines() if line.startswith(begin)]
    if not said:
        return f"{ended.args[0]} ended with {ended.returncode}: {ended.stderr.strip()}"
    return "\n".join(line[len(begin):] for line in said)
