"""Where the two things lie that this package stands on: the shared library and the workbench."""

from __future__ import annotations

import os
import shutil
import sysconfig
from collections.abc import Iterator
from pathlib import Path

from .errors import NotInstalledError

LIBRARY = "libradsel_c.so.1"
WORKBENCH = "radsel_workbench"

_PACKAGE = Path(__file__).resolve().parent

# Installed, the package lies in lib/python3/dist-packages below the folder that has all the rest.
_PREFIX = (_PACKAGE / "../../../..").resolve()


def _asked_for(variable: str) -> Path | None:
    """The file that an environment variable names; one that is empty counts as not set."""
    value = os.environ.get(variable)
    if not value:
        return None
    file = Path(value)
    if not file.is_file():
        raise NotInstalledError(f"{variable} names no file: {value}")
    return file


def library_candidates() -> Iterator[str]:
    """Paths of the library to try in turn; the last is a bare name for the system's loader."""
    asked = _asked_for("RADSEL_LIBRARY")
    if asked:
        yield str(asked.resolve())
        return
    folders = [_PACKAGE, _PREFIX / "lib"]
    multiarch = sysconfig.get_config_var("MULTIARCH")
    if multiarch:
        folders.append(_PREFIX / "lib" / multiarch)
    for folder in folders:
        if (folder / LIBRARY).is_file():
            yield str(folder / LIBRARY)
    yield LIBRARY


def find_workbench() -> str:
    """The path of the workbench's program."""
    asked = _asked_for("RADSEL_WORKBENCH")
    if asked:
        return str(asked.resolve())
    beside = _PREFIX / "bin" / WORKBENCH
    found = str(beside) if beside.is_file() else shutil.which(WORKBENCH)
    if not found:
        raise NotInstalledError(
            f"{WORKBENCH} was not found, neither as {beside} nor in PATH. Install the workbench, "
            "or name its program in the environment variable RADSEL_WORKBENCH."
        )
    return found
