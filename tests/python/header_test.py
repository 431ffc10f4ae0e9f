"""The package says what the headers say. Called with the repository's folder."""

import ctypes
import os
import re
import sys
import unittest

SOURCE = sys.argv.pop(1)
sys.path.insert(0, os.path.join(SOURCE, "python"))

import velmohelp  # noqa: E402
from velmohelp import _library  # noqa: E402

# The headers' table, the prefix of its names, and the package's.
TABLES = [
    ("InitReturnCode", "kInit", velmohelp.InitReturnCode),
    ("DisplayPageReturnCode", "kDisplay", velmohelp.DisplayPageReturnCode),
    ("OpenUrlReturnCode", "kOpenUrl", velmohelp.OpenUrlReturnCode),
    ("SearchReturnCode", "kSearch", velmohelp.SearchReturnCode),
    ("OnlineStatusReturnCode", "kOnlineStatus",
     velmohelp.OnlineStatusReturnCode),
    ("VelmoHelpTarget", "kTarget", velmohelp.Target),
]

TYPES = {
    "void": None,
    "int": ctypes.c_int,
    "uint32_t": ctypes.c_uint32,
    "const char*": ctypes.c_char_p,
    "char locale[6]": ctypes.c_char_p,
    "uint32_t*": ctypes.POINTER(ctypes.c_uint32),
    "char**": ctypes.POINTER(ctypes.c_void_p),
    "void*": ctypes.c_void_p,
}


def header(name):
    path = os.path.join(SOURCE, "include/velmohelp", name)
    with open(path, encoding="utf-8") as file:
        return re.sub(r"/\*.*?\*/", "", file.read(), flags=re.DOTALL)


def table(name):
    """A table's names and numbers."""
    text = header("velmohelp.h") + header("embed.h")
    body = re.search(rf"enum {name} {{(.*?)}}", text, re.DOTALL).group(1)
    return dict(re.findall(r"(\w+) = (\d+)", body))


def as_constant(name):
    return re.sub(r"(?<!^)(?=[A-Z])", "_", name).upper()


def argument_type(text):
    text = " ".join(text.split())
    return TYPES[text if text.endswith("]") else re.sub(r" ?\w+$", "", text)]


def prototypes():
    """What embed.h declares: result and argument types by name."""
    found = {}
    for result, name, arguments in re.findall(
            r"VELMOHELP_API\s+([\w ]+?\*?)\s+velmohelp_(\w+)\(([^)]*)\)",
            header("embed.h")):
        types = [] if arguments == "void" else [
            argument_type(argument) for argument in arguments.split(",")]
        found[name] = (TYPES[result], *types)
    return found


class Headers(unittest.TestCase):
    def test_the_tables_are_the_headers(self):
        for name, prefix, codes in TABLES:
            with self.subTest(name):
                self.assertEqual(
                    {code.name: code.value for code in codes},
                    {as_constant(constant.removeprefix(prefix)): int(number)
                     for constant, number in table(name).items()})

    def test_the_signatures_are_the_header_s(self):
        self.assertEqual(_library._SIGNATURES, prototypes())


if __name__ == "__main__":
    unittest.main()
