"""What goes wrong."""

from __future__ import annotations


class RadselError(Exception):
    """Something that was asked for could not be done; the text says what and why.

    Where a file is at fault, ``file`` is its path and ``line`` the number of the line, counted
    from 1; both are ``None`` where they are not known. The text names them as well. Most of
    what the library and the workbench tell is Italian, for their users to read.
    """

    def __init__(self, text: str, file: str | None = None, line: int | None = None) -> None:
        super().__init__(text)
        self.file = file
        self.line = line


class NothingFoundError(RadselError):
    """The catalogues have no such maker, kind, product or valve, or no radiator fits. The text
    says which names there are, or what came nearest."""


class NotInstalledError(RadselError):
    """The shared library or the workbench is not where this package looks for it."""
