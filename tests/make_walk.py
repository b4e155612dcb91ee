"""Writes the C source of a walk that calls every exported getter and cast: make_walk.py EXPORTS HEADER OUTPUT"""

import re
import sys

# Functions that make, load, save and free a document belong to the program that walks it.
NOT_WALKED = ("mxd_create", "mxd_destroy", "mxd_load", "mxd_save_xml")
# Items are also requested before the first and after the last index, except from getters that do not check.
BEYOND = {"maps_get": (0, 0), "line_symbols_get": (0, 1)}

exports, header, output = sys.argv[1:]
with open(exports, encoding="ascii") as lines:
    listed = re.findall(r"^(.+?) vq_mxd_(\w+)\((.*)\)$", lines.read(), re.MULTILINE)
with open(header, encoding="ascii") as text:
    objects = re.findall(r"^VQ_MXD_OBJECT\(vq_mxd_(\w+)\)", text.read(), re.MULTILINE)


def handle_kind(handle: str) -> str | None:
    """map for const vq_mxd_map*; none for texts and numbers."""
    match = re.fullmatch(r"const vq_mxd_(?!char\*)(\w+)\*", handle)
    return match and match[1]


def visit(result: str, name: str, arguments: str) -> str:
    """The statement that calls the function and visits its result."""
    call = f"vq_mxd_{name}({arguments})"
    label = re.sub(r"^\w+?_(?:get_(?=\w)|(?=cast_)|get$)", "", name) or "item"
    if kind := handle_kind(result):
        return f'{"VISIT_CAST" if "_cast_" in name else "VISIT_HANDLE"}("{label}", {kind}, {call})'
    macro = {"const char*": "VISIT_TEXT", "const vq_mxd_char*": "VISIT_UNITS"}.get(result, "VISIT_NUMBER")
    return f'{macro}("{label}", {call})'


statements: dict[str, list[str]] = {}
null_casts = []
for result, name, parameters in listed:
    if name in NOT_WALKED:
        continue
    handle, _, others = parameters.partition(", ")
    kind = handle_kind(handle)
    if kind and not others:
        statement = visit(result, name, "handle")
    elif others == "int32_t":
        before, after = BEYOND.get(name, (1, 1))
        end = f"(int32_t)vq_mxd_{kind}_get_size(handle) + {after}"
        statement = f'VISIT_EACH({-before}, {end}, {visit(result, name, "handle, index")})'
    elif others == "uint8_t*, uint8_t*, uint8_t*":
        statement = visit(result, name, "handle, w->bytes, w->bytes + 1, w->bytes + 2")
        statement += ';\n  VISIT_EACH(0, 3, VISIT_NUMBER("byte", w->bytes[index]))'
    else:
        sys.exit(f"{name}: no rule for the parameters ({parameters})")
    if "_cast_" in name:
        null_casts.append(visit(result, name, "NULL"))
    statements.setdefault(kind, []).append(statement)
# What a cast returns has been visited under its base class.
for kind in set(objects) - {"obj", *(handle_kind(result) for result, name, _ in listed if "_cast_" in name)}:
    statements[kind].insert(0, "walk_obj(w, VQ_MXD_OBJ(handle))")

with open(output, "w", encoding="ascii") as text:
    text.write('#include "walk_support.h"\n\n')
    for kind in statements:
        text.write(f"static void walk_{kind}(walk* w, const vq_mxd_{kind}* handle);\n")
    for kind, body in statements.items():
        text.write(f"\nstatic void walk_{kind}(walk* w, const vq_mxd_{kind}* handle) {{\n")
        text.writelines(f"  {statement};\n" for statement in body)
        text.write("}\n")
    text.write("\nvoid walk_document(const vq_mxd_mxd* document, walk_visitor visitor, void* context) {\n")
    text.write("  walk start = {visitor, context, 0, {0}};\n  walk* w = &start;\n")
    text.writelines(f"  {statement};\n" for statement in null_casts)
    text.write("  walk_mxd(w, document);\n}\n")
