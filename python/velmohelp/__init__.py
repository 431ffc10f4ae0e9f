"""Shows the help page that belongs to a place in an application.

    import velmohelp

    client = velmohelp.Client("Sketch", "en_US", host="/opt/sketch/bin/sketch")
    result = client.display("drawing-lines")
    if result is not velmohelp.DisplayPageReturnCode.SUCCESS:
        print("no help:", result.name)

Pure Python over the shared library libvelmohelp.so.1. A request never raises
for what it finds on the machine: it returns a code. Only a wrong argument
raises, TypeError or ValueError.
"""

from ._async_client import AsyncClient
from ._client import Client, choose_locale, version
from ._request import Request
from ._results import (
    DisplayPageReturnCode,
    Found,
    InitReturnCode,
    OnlineStatusReturnCode,
    OpenUrlReturnCode,
    SearchReturnCode,
    Target,
)

__all__ = [
    "AsyncClient",
    "Client",
    "DisplayPageReturnCode",
    "Found",
    "InitReturnCode",
    "OnlineStatusReturnCode",
    "OpenUrlReturnCode",
    "Request",
    "SearchReturnCode",
    "Target",
    "choose_locale",
    "version",
]
