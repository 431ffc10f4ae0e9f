"""Checked, never run: the types that a caller gets."""

import asyncio
from typing import Optional

import velmohelp

client = velmohelp.Client("Sketch", "en_US")
displayed: velmohelp.DisplayPageReturnCode = client.display("drawing-lines")
opened: velmohelp.OpenUrlReturnCode = client.open_url("https://localhost/")
searched: velmohelp.SearchReturnCode = client.search("lines")
found: velmohelp.Found[velmohelp.DisplayPageReturnCode] = client.find_display("x")
url: Optional[str] = found.url
started: Optional[velmohelp.Request[velmohelp.SearchReturnCode]] = (
    client.start_search("lines"))
locale: Optional[str] = velmohelp.choose_locale("Sketch", host="/opt/sketch")


async def show() -> velmohelp.DisplayPageReturnCode:
    return await velmohelp.AsyncClient("Sketch", "en_US").display("x")


result: velmohelp.DisplayPageReturnCode = asyncio.run(show())
