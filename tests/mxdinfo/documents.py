"""Small map documents, most of them with any names in them. MAKE_DOCUMENTS is set by CMake."""

import functools
import os
import subprocess


@functools.cache
def made(*arguments):
    """The document that make_documents writes."""
    return subprocess.run([os.environ["MAKE_DOCUMENTS"], *arguments], capture_output=True,
                          check=True).stdout


def document(name):
    """A map with a group of one layer, all texts `name`."""
    return made("named", name.encode("utf-16-le", "surrogatepass").hex())
