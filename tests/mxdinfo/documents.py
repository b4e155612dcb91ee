"""Small map documents, most of them with any names in them. MAKE_DOCUMENTS is set by CMake."""

import functools
import os
import subprocess


@functools.cache
def made(*arguments):
    """The document that make_documents writes."""
    return subprocess.run([os.environ["MAKE_DOCUMENTS"], *arguments], capture_output=True,
                          check=True).stdout


def document(name, *data, hidden=b""):
    """A map with a group of one layer, all texts `name`. The data is workspace, dataset and feature
    dataset; the hidden bytes follow the map."""
    texts = [name, *(data or (name, name, ""))]
    return made("named", *(text.encode("utf-16-le", "surrogatepass").hex() for text in texts),
                hidden.hex())
