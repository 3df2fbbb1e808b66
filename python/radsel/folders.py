"""Where the catalogues are."""

from __future__ import annotations

import os
from typing import Union

from . import _library
from .errors import RadselError

#: The path of a file or folder.
StrPath = Union[str, "os.PathLike[str]"]


def use_folders(*, catalogues: StrPath | None = None, valves: StrPath | None = None) -> None:
    """Read radiators and valves out of these folders, which have a sub-folder a maker.

    A folder that is left out stays what it was; in the beginning that is what the environment
    variables ``RADSEL_HKDIR`` and ``RADSEL_VEDIR`` say.
    """
    paths = {
        setting: os.fspath(folder)
        for setting, folder in (
            (_library.CATALOGUE_FOLDER, catalogues),
            (_library.VALVE_FOLDER, valves),
        )
        if folder is not None
    }
    for path in paths.values():
        if not os.path.isdir(path):
            raise RadselError(f"no folder: {path}", path)
    for setting, path in paths.items():
        _library.call("radsel_set_text", setting, _library.encode(path))
