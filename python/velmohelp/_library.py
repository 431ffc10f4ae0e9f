"""The shared library's C functions, for one caller at a time."""

from __future__ import annotations

import ctypes
import threading
from typing import Any, NamedTuple, Optional

try:
    # A program that ships the library has loaded it by its path before: the
    # dynamic linker then gives the same one for this name.
    _c = ctypes.CDLL("libvelmohelp.so.1")
except OSError as error:
    raise ImportError(f"velmohelp cannot load its library: {error}") from error

#: The library's state is process-wide and has no lock of its own. Whoever makes
#: several calls that belong together holds it all the while.
lock = threading.RLock()

_TEXT = ctypes.c_char_p
_NUMBER = ctypes.c_uint32
_KIND = ctypes.POINTER(ctypes.c_uint32)
_URL = ctypes.POINTER(ctypes.c_void_p)
_SIGNATURES: dict[str, tuple[Any, ...]] = {
    "version": (_NUMBER,),
    "set_host": (_NUMBER, _TEXT),
    "initialise": (_NUMBER, _TEXT, _TEXT),
    "choose_locale": (_NUMBER, _TEXT, _TEXT, _TEXT),
    "display": (_NUMBER, _TEXT),
    "open_url": (_NUMBER, _TEXT),
    "search": (_NUMBER, _TEXT, _TEXT, _TEXT),
    "online_status": (_NUMBER,),
    "find_display": (_NUMBER, _TEXT, _KIND, _URL),
    "find_url": (_NUMBER, _TEXT, _KIND, _URL),
    "find_search": (_NUMBER, _TEXT, _TEXT, _TEXT, _KIND, _URL),
    "set_activation_token": (_NUMBER, _TEXT),
    "start_display": (ctypes.c_int, _TEXT),
    "start_url": (ctypes.c_int, _TEXT),
    "start_search": (ctypes.c_int, _TEXT, _TEXT, _TEXT),
    "finish": (_NUMBER, ctypes.c_int),
    "free": (None, ctypes.c_void_p),
}


def _declare() -> None:
    for name, (result, *arguments) in _SIGNATURES.items():
        function = getattr(_c, "velmohelp_" + name)
        function.restype = result
        function.argtypes = arguments


_declare()


def as_text(value: str, name: str) -> bytes:
    """The library's form of a text; raises for what it would misread."""
    if not isinstance(value, str):
        raise TypeError(f"{name} must be str, not {type(value).__name__}")
    if "\0" in value:
        raise ValueError(f"{name} has a NUL character in it")
    return value.encode()


def call(name: str, *arguments: object) -> int:
    """Calls velmohelp_<name>."""
    with lock:
        return int(getattr(_c, "velmohelp_" + name)(*arguments))


class Finding(NamedTuple):
    result: int
    kind: int
    url: Optional[str]


def find(name: str, *texts: bytes) -> Finding:
    """Calls velmohelp_find_<name>."""
    kind = ctypes.c_uint32()
    url = ctypes.c_void_p()
    result = call("find_" + name, *texts, ctypes.byref(kind), ctypes.byref(url))
    try:
        return Finding(result, kind.value, _text_at(url))
    finally:
        _c.velmohelp_free(url)


def _text_at(memory: ctypes.c_void_p) -> Optional[str]:
    if memory.value is None:
        return None
    # A map may hold bytes that are not valid UTF-8.
    return ctypes.string_at(memory.value).decode("utf-8", "surrogateescape")
