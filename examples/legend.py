"""Prints the legend of a map document: legend.py LIBRARY FILE"""

import ctypes
import sys


class Library:
    """The exported functions, without their prefix. Handles and texts are plain addresses."""

    # The functions used here that return numbers. Other sizes may be int32_t or double.
    NUMBERS = {
        "mxd_load": ctypes.c_int,
        "obj_get_repeat": ctypes.c_int,
        "color_get_rgb": ctypes.c_int,
        "maps_get_size": ctypes.c_int64,
        "layers_get_size": ctypes.c_int64,
        "legend_group_get_size": ctypes.c_int64,
    }

    def __init__(self, path):
        self.dll = ctypes.CDLL(path)

    def __getattr__(self, name):
        function = getattr(self.dll, "vq_mxd_" + name)
        function.restype = self.NUMBERS.get(name, ctypes.c_void_p)
        return lambda handle, *more: function(ctypes.c_void_p(handle), *more)

    def create(self):
        self.dll.vq_mxd_mxd_create.restype = ctypes.c_void_p
        return self.dll.vq_mxd_mxd_create()

    @staticmethod
    def text(address):
        """The NUL-terminated UTF-16 text at the address."""
        units = b""
        while (unit := ctypes.string_at(address + len(units), 2)) != b"\0\0":
            units += unit
        return units.decode("utf-16-le", "replace")

    def items(self, kind, handle):
        """The items of a list or legend group."""
        size = getattr(self, kind + "_get_size")(handle)
        return [getattr(self, kind + "_get")(handle, ctypes.c_int32(i)) for i in range(size)]


def legend_groups(lib, renderer):
    if simple := lib.renderer_cast_simple_renderer(renderer):
        return [lib.simple_renderer_get_legend_group(simple)]
    if unique := lib.renderer_cast_unique_value_renderer(renderer):
        return [
            lib.unique_value_renderer_get_main_leg_grp(unique),
            lib.unique_value_renderer_get_other_leg_grp(unique),
        ]
    if breaks := lib.renderer_cast_class_breaks_renderer(renderer):
        return [lib.class_breaks_renderer_get_main_leg_grp(breaks)]
    return []


def describe(lib, symbol):
    if not symbol:
        return "no symbol"
    words = [ctypes.string_at(lib.obj_get_type_str(symbol)).decode("ascii")]
    fill = lib.symbol_cast_simple_fill(symbol)
    if color := lib.simple_fill_symbol_get_color(fill) if fill else None:
        rgb = (ctypes.c_uint8 * 3)()
        lib.color_get_rgb(color, *(ctypes.byref(rgb, i) for i in range(3)))
        words.append("#" + bytes(rgb).hex())
    return " ".join(words)


def print_map(lib, handle):
    print(" ", lib.text(lib.map_get_name(handle)))
    for layer in lib.items("layers", lib.map_get_layers(handle)):
        print("   ", lib.text(lib.layer_get_layer_name(layer)))
        feature = lib.layer_cast_feature_layer(layer)
        renderer = lib.feature_layer_get_renderer(feature) if feature else None
        for group in legend_groups(lib, renderer):
            for item in lib.items("legend_group", group):
                label = lib.text(lib.legend_class_get_label(item))
                print(f"      {label}: {describe(lib, lib.legend_class_get_symbol(item))}")


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: legend.py LIBRARY FILE")
    library, path = sys.argv[1:]
    # Bytes of a path that are not UTF-8 become surrogates, as the library expects them.
    sys.stdout.reconfigure(errors="surrogateescape")
    lib = Library(library)
    document = lib.create()
    if not lib.mxd_load(document, path.encode("utf-16-le", "surrogatepass") + b"\0\0"):
        sys.exit(f"{path}: not readable as a map document")
    print(path)
    for handle in lib.items("maps", lib.mxd_get_maps(document)):
        if not lib.obj_get_repeat(handle):
            print_map(lib, handle)
    lib.mxd_destroy(document)


if __name__ == "__main__":
    main()
