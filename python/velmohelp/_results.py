"""What requests return: the library's tables, number for number."""

from __future__ import annotations

from dataclasses import dataclass
from enum import IntEnum
from typing import Generic, Optional, TypeVar

Code = TypeVar("Code", bound=IntEnum)


class InitReturnCode(IntEnum):
    """What an initialisation returns."""

    SUCCESS = 0
    INVALID_ARGUMENT = 1
    MISSING_HELP_MAP = 2
    INVALID_HELP_MAP = 3
    MISSING_ONLINE_URL_PREFIX = 4
    INVALID_ONLINE_URL_PREFIX = 5
    MISSING_CONFIG = 6
    INVALID_CONFIG = 7


class DisplayPageReturnCode(IntEnum):
    """What a page display returns."""

    SUCCESS = 0
    HELP_APP_LAUNCH_FAILURE = 1
    BROWSER_LAUNCH_FAILURE = 2
    INVALID_ARGUMENT = 3
    MISSING_CONFIG = 4
    INVALID_CONFIG = 5
    INVALID_INITIALIZATION = 6
    PAGEID_DOES_NOT_EXIST = 7
    INVALID_ONLINE_URL_PREFIX = 8
    NOT_ALLOWED_ONLINE = 9
    NOT_ONLINE = 10
    UNEXPECTED_RESULT = 11


class OpenUrlReturnCode(IntEnum):
    """What opening a URL returns."""

    SUCCESS = 0
    BROWSER_LAUNCH_FAILURE = 1
    HELP_APP_LAUNCH_FAILURE = 2
    INVALID_ARGUMENT = 3
    MISSING_CONFIG = 4
    INVALID_CONFIG = 5
    INVALID_INITIALIZATION = 6
    UNEXPECTED_RESULT = 7


class SearchReturnCode(IntEnum):
    """What a search returns."""

    SUCCESS = 0
    LAUNCH_FAILURE = 1
    INVALID_ARGUMENT = 3
    MISSING_CONFIG = 4
    INVALID_CONFIG = 5
    NO_LOCAL_PAGE = 6
    NO_ONLINE_PAGE = 7
    NO_CONFIG_NAME = 8


class OnlineStatusReturnCode(IntEnum):
    """What the query of the online status returns."""

    ONLINE = 0
    OFFLINE = 1
    NOT_INITIALIZED = 2


class Target(IntEnum):
    """Where a request would show something."""

    NONE = 0
    VIEWER = 1
    BROWSER = 2


@dataclass(frozen=True)
class Found(Generic[Code]):
    """What a request would do now, without doing it."""

    result: Code
    target: Target
    #: What would be shown; None when there is no URL.
    url: Optional[str]
