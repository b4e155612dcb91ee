"""Small map documents with any names in them."""

import struct
import uuid

_END = 0xFFFFFFFE
_MAP = "E6BDAA76-4D35-11D0-98BE-00805F7CED21"
_GROUP = "EDAD6647-1810-11D1-86AE-0000F8751720"
_FEATURE = "E663A651-8AAD-11D0-BEC7-00805F7C4268"
_CLASS_NAME = "198846D0-CA42-11D1-AA7C-00C04FA33A15"
_WORKSPACE = "5A350011-E371-11D1-AA82-00C04FA33A15"
_RENDERER = "F3435801-5779-11D0-98BF-00805F7CED21"
_LEGEND = "167C5EA2-AF20-11D1-8817-080009EC732A"
_LEGEND_CLASS = "167C5EA3-AF20-11D1-8817-080009EC732A"
_MARKER = "7914E600-C892-11D0-8BB6-080009EE4E41"
_COLOR = "7EE9C496-D123-11D0-8383-080009B996CC"
_COORDINATES = "A6A87A80-1DD1-11B2-BF51-08002022F573"


def compound_file(stream):
    """A compound file with `stream` as its stream "Maps"."""
    stream = stream.ljust(4096, b"\0")
    sectors = -(-len(stream) // 512)
    fats = -(-(sectors + 2) // 127)
    links = [0xFFFFFFFD] * fats + [_END]
    links += [len(links) + i + 1 for i in range(sectors - 1)] + [_END]
    links += [0xFFFFFFFF] * (fats * 128 - len(links))
    header = bytearray(512)
    header[:8] = bytes.fromhex("D0CF11E0A1B11AE1")
    struct.pack_into("<HHHHH", header, 0x18, 0x3E, 3, 0xFFFE, 9, 6)
    struct.pack_into("<II", header, 0x2C, fats, fats)
    struct.pack_into("<IIIII", header, 0x38, 4096, _END, 0, _END, 0)
    struct.pack_into("<109I", header, 0x4C, *range(fats), *[0xFFFFFFFF] * (109 - fats))
    directory = b"".join(
        name.encode("utf-16-le").ljust(64, b"\0")
        + struct.pack("<H", 2 * len(name) + 2).ljust(52, b"\0")
        + struct.pack("<III", first, size, 0)
        for name, first, size in (("Root Entry", _END, 0), ("Maps", fats + 1, len(stream)))
    ).ljust(512, b"\0")
    padding = b"\0" * (sectors * 512 - len(stream))
    return bytes(header) + struct.pack(f"<{len(links)}I", *links) + directory + stream + padding


class Objects:
    """Persisted objects, numbered as they are made."""

    def __init__(self):
        self.number = 0

    def make(self, class_id, version, *parts):
        self.number += 1
        head = uuid.UUID(class_id).bytes_le + struct.pack("<HHH", self.number, 0, version)
        return head + b"".join(parts)


def wide(text):
    data = text.encode("utf-16-le", "surrogatepass")
    return struct.pack("<i", len(data)) + data


def narrow(text):
    data = text.encode("cp1251", "replace")
    return struct.pack("<i", len(data)) + data


def marker(objects, font):
    color = objects.make(_COLOR, 1, bytes(3), struct.pack("<3d", 50, 0, 0), bytes(2))
    return objects.make(
        _MARKER, 3, color, struct.pack("<i6d", 0x41, 0, 8, 0, 0, 0, 0),
        struct.pack("<IIH", 13, 0, 65535), wide(font), bytes(16 + 2 + 4 + 6))


def feature_layer(objects, name):
    """A layer whose every text is `name`."""
    class_name = objects.make(_CLASS_NAME, 1, wide(name), bytes(6), wide(name), wide(name),
                              struct.pack("<i", 1), bytes(6))
    workspace = objects.make(_WORKSPACE, 1, wide(name))
    symbol = marker(objects, name)
    item = objects.make(_LEGEND_CLASS, 2, marker(objects, name), wide(name), bytes(26))
    legend = objects.make(_LEGEND, 1, struct.pack("<i", 0), wide(name), struct.pack("<i", 1), item)
    renderer = objects.make(_RENDERER, 1, symbol, legend)
    wkt = f'GEOGCS["{name}",UNIT["Degree",0.0174532925199433]]'[:9998]
    return objects.make(_FEATURE, 1, wide(name), wide(name), struct.pack("<h", -1), bytes(4),
                        class_name, workspace, renderer, bytes(156), wide(""),
                        struct.pack("<2d", 50000, 0), objects.make(_COORDINATES, 1, narrow(wkt)))


def group(objects, name, members):
    return objects.make(_GROUP, 1, wide(name), struct.pack("<h", 1), bytes(20),
                        struct.pack("<i", members), bytes(8))


def document(name):
    """A map with a group of one layer, all texts `name`."""
    objects = Objects()
    layers = group(objects, name, 1) + feature_layer(objects, name)
    return compound_file(struct.pack("<I", 1) + objects.make(_MAP, 1, wide(name), layers))


def lossy_document():
    """A map whose only layer cannot be decoded."""
    objects = Objects()
    layer = objects.make(_FEATURE, 1, struct.pack("<i", 99999))
    return compound_file(struct.pack("<I", 1) + objects.make(_MAP, 1, wide("lossy"), layer))


def nested_groups_document(depth):
    objects = Objects()
    layers = b"".join(group(objects, "g", 1) for _ in range(depth))
    return compound_file(struct.pack("<I", 1) + objects.make(_MAP, 1, wide("deep"), layers))
