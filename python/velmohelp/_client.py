"""Help for one product in one locale."""

from __future__ import annotations

import ctypes
import os
from typing import Optional, Type, Union

from . import _library
from ._library import as_text, call, find, lock
from ._request import Request
from ._results import (
    Code,
    DisplayPageReturnCode,
    Found,
    InitReturnCode,
    OnlineStatusReturnCode,
    OpenUrlReturnCode,
    SearchReturnCode,
    Target,
)

Path = Union[str, "os.PathLike[str]"]

_LOCALE_SIZE = 6


def version() -> int:
    """The library's version, one byte per part: 0x10500 is 1.5.0."""
    return call("version")


def choose_locale(
    product: str, preferred: Optional[str] = None, *, host: Optional[Path] = None
) -> Optional[str]:
    """The best of the product's locales; None when it has none.

    preferred is a list such as LANGUAGE has, "de_AT:de:en"; without it, what
    the environment says.
    """
    wanted = _preferred() if preferred is None else preferred
    texts = (as_text(product, "product"), as_text(wanted, "preferred"))
    host_text = _as_host(host)
    locale = ctypes.create_string_buffer(_LOCALE_SIZE)
    with lock:
        call("set_host", host_text)
        found = call("choose_locale", *texts, locale) == 0
    return locale.value.decode("utf-8", "replace") if found else None


def _preferred() -> str:
    """What the person prefers, looked up in gettext's order."""
    names = ("LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG")
    return next((os.environ[name] for name in names if os.environ.get(name)), "")


def _as_host(host: Optional[Path]) -> Optional[bytes]:
    if host is None:
        return None
    path = os.fspath(host)
    as_text(path, "host")
    if not os.path.isabs(path):
        raise ValueError(f"host must be an absolute path, not {path!r}")
    return os.fsencode(path)


def _as_name(value: str, name: str) -> bytes:
    text = as_text(value, name)
    if not text.strip(b" "):
        raise ValueError(f"{name} is empty")
    return text


def _as_token(token: Optional[str]) -> Optional[bytes]:
    return None if token is None else as_text(token, "activation_token")


class Client:
    """Help for one product in one locale.

    host is the executable whose resources hold the configuration, for a program
    that runs in an interpreter; without it, the interpreter's own.

    The library has one state for the whole process. Each request therefore
    makes this client's product the current one first, which reads nothing again
    while it already is: several clients can be used in turn.

    Every call but the start_ ones blocks until its work is done. Calls of
    several threads wait for each other.
    """

    def __init__(
        self, product: str, locale: str, host: Optional[Path] = None
    ) -> None:
        self._product = _as_name(product, "product")
        self._locale = _as_name(locale, "locale")
        self._host = _as_host(host)

    def initialise(self) -> InitReturnCode:
        """Reads the configuration. Every request does that first when it is
        needed; this call says what is wrong with it."""
        with lock:
            call("set_host", self._host)
            return InitReturnCode(
                call("initialise", self._product, self._locale)
            )

    def display(
        self, page_id: str, *, activation_token: Optional[str] = None
    ) -> DisplayPageReturnCode:
        """Shows the page of an id, or the home page when there is none."""
        return self._request(
            DisplayPageReturnCode,
            activation_token,
            "display",
            as_text(page_id, "page_id"),
        )

    def open_url(
        self, url: str, *, activation_token: Optional[str] = None
    ) -> OpenUrlReturnCode:
        """Opens a URL that begins with http://, https:// or file://."""
        return self._request(
            OpenUrlReturnCode, activation_token, "open_url", as_text(url, "url")
        )

    def search(
        self, text: str, *, activation_token: Optional[str] = None
    ) -> SearchReturnCode:
        """Searches the product's help."""
        return self._request(
            SearchReturnCode, activation_token, "search", *self._search(text)
        )

    def online_status(self) -> OnlineStatusReturnCode:
        """Whether online help can be used; uses the network each time."""
        with lock:
            self.initialise()
            return OnlineStatusReturnCode(call("online_status"))

    def find_display(self, page_id: str) -> Found[DisplayPageReturnCode]:
        """What display() would do now."""
        return self._find(
            DisplayPageReturnCode, "display", as_text(page_id, "page_id")
        )

    def find_url(self, url: str) -> Found[OpenUrlReturnCode]:
        """What open_url() would do now."""
        return self._find(OpenUrlReturnCode, "url", as_text(url, "url"))

    def find_search(self, text: str) -> Found[SearchReturnCode]:
        """What search() would do now."""
        return self._find(SearchReturnCode, "search", *self._search(text))

    def start_display(
        self, page_id: str, *, activation_token: Optional[str] = None
    ) -> Optional[Request[DisplayPageReturnCode]]:
        """Begins display(); None when it cannot be begun."""
        return self._start(
            DisplayPageReturnCode,
            activation_token,
            "display",
            as_text(page_id, "page_id"),
        )

    def start_url(
        self, url: str, *, activation_token: Optional[str] = None
    ) -> Optional[Request[OpenUrlReturnCode]]:
        """Begins open_url(); None when it cannot be begun."""
        return self._start(
            OpenUrlReturnCode, activation_token, "url", as_text(url, "url")
        )

    def start_search(
        self, text: str, *, activation_token: Optional[str] = None
    ) -> Optional[Request[SearchReturnCode]]:
        """Begins search(); None when it cannot be begun."""
        return self._start(
            SearchReturnCode, activation_token, "search", *self._search(text)
        )

    def _search(self, text: str) -> tuple[bytes, bytes, bytes]:
        return self._product, self._locale, as_text(text, "text")

    def _request(
        self, codes: Type[Code], token: Optional[str], name: str, *texts: bytes
    ) -> Code:
        return codes(self._call(token, name, *texts))

    def _start(
        self, codes: Type[Code], token: Optional[str], name: str, *texts: bytes
    ) -> Optional[Request[Code]]:
        descriptor = self._call(token, "start_" + name, *texts)
        return None if descriptor < 0 else Request(descriptor, codes)

    def _call(self, token: Optional[str], name: str, *texts: bytes) -> int:
        token_text = _as_token(token)
        with lock:
            if call("set_activation_token", token_text) != 0:
                raise ValueError("activation_token is too long")
            self.initialise()
            return call(name, *texts)

    def _find(
        self, codes: Type[Code], name: str, *texts: bytes
    ) -> Found[Code]:
        with lock:
            self.initialise()
            result, kind, url = find(name, *texts)
        return Found(codes(result), Target(kind), url)
