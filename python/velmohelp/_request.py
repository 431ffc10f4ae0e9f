"""A request that has begun, for event loops that watch a descriptor."""

from __future__ import annotations

import os
import select
from typing import Generic, Optional, Type

from . import _library
from ._results import Code


class Request(Generic[Code]):
    """Becomes readable when the result is there.

    finish() gives the result; cancel() gives up on it, and so does the end of
    a with block and of the object itself.
    """

    def __init__(self, descriptor: int, codes: Type[Code]) -> None:
        self._descriptor: Optional[int] = descriptor
        self._codes = codes

    def fileno(self) -> int:
        """The descriptor to watch; ValueError after finish() and cancel()."""
        if self._descriptor is None:
            raise ValueError("The request is finished or cancelled")
        return self._descriptor

    def finish(self) -> Code:
        """The result. Waits when it is not there yet."""
        descriptor = self.fileno()
        # Other threads may use the library in the meantime.
        waiting = select.poll()
        waiting.register(descriptor, select.POLLIN)
        waiting.poll()
        self._descriptor = None
        return self._codes(_library.call("finish", descriptor))

    def cancel(self) -> None:
        """Ends the work, unless the result is there. May be called twice."""
        if self._descriptor is not None:
            os.close(self._descriptor)
            self._descriptor = None

    def __enter__(self) -> Request[Code]:
        return self

    def __exit__(self, *_: object) -> None:
        self.cancel()

    def __del__(self) -> None:
        self.cancel()
