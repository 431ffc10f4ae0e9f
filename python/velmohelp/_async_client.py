"""The client for asyncio: no call blocks the loop."""

from __future__ import annotations

import asyncio
from typing import Callable, Optional

from ._client import Client, Path
from ._request import Request
from ._results import (
    Code,
    DisplayPageReturnCode,
    Found,
    InitReturnCode,
    OnlineStatusReturnCode,
    OpenUrlReturnCode,
    SearchReturnCode,
)


class AsyncClient:
    """A Client whose calls are awaited.

    Cancelling a display, an opening or a search ends its work.
    """

    def __init__(
        self, product: str, locale: str, host: Optional[Path] = None
    ) -> None:
        self._client = Client(product, locale, host)

    async def initialise(self) -> InitReturnCode:
        """As Client.initialise."""
        return await asyncio.to_thread(self._client.initialise)

    async def display(
        self, page_id: str, *, activation_token: Optional[str] = None
    ) -> DisplayPageReturnCode:
        """As Client.display."""
        return await _result(
            lambda: self._client.start_display(
                page_id, activation_token=activation_token
            ),
            DisplayPageReturnCode.HELP_APP_LAUNCH_FAILURE,
        )

    async def open_url(
        self, url: str, *, activation_token: Optional[str] = None
    ) -> OpenUrlReturnCode:
        """As Client.open_url."""
        return await _result(
            lambda: self._client.start_url(
                url, activation_token=activation_token
            ),
            OpenUrlReturnCode.BROWSER_LAUNCH_FAILURE,
        )

    async def search(
        self, text: str, *, activation_token: Optional[str] = None
    ) -> SearchReturnCode:
        """As Client.search."""
        return await _result(
            lambda: self._client.start_search(
                text, activation_token=activation_token
            ),
            SearchReturnCode.LAUNCH_FAILURE,
        )

    async def online_status(self) -> OnlineStatusReturnCode:
        """As Client.online_status."""
        return await asyncio.to_thread(self._client.online_status)

    async def find_display(self, page_id: str) -> Found[DisplayPageReturnCode]:
        """As Client.find_display."""
        return await asyncio.to_thread(self._client.find_display, page_id)

    async def find_url(self, url: str) -> Found[OpenUrlReturnCode]:
        """As Client.find_url."""
        return await asyncio.to_thread(self._client.find_url, url)

    async def find_search(self, text: str) -> Found[SearchReturnCode]:
        """As Client.find_search."""
        return await asyncio.to_thread(self._client.find_search, text)


async def _result(
    begin: Callable[[], Optional[Request[Code]]], failure: Code
) -> Code:
    """The request's result, or failure when it cannot be begun."""
    # In a thread, because an initialisation before it may use the network. A
    # request that begins after its task was cancelled is dropped, and so ends.
    request = await asyncio.to_thread(begin)
    if request is None:
        return failure
    with request:
        await _readable(request.fileno())
        return request.finish()


async def _readable(descriptor: int) -> None:
    loop = asyncio.get_running_loop()
    ready = asyncio.Event()
    loop.add_reader(descriptor, ready.set)
    try:
        await ready.wait()
    finally:
        loop.remove_reader(descriptor)
