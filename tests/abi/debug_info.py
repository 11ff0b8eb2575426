"""Reads from an object file's debug information what the class dump leaves out: fields, and overloads by signature."""

import re
import subprocess

ENTRY = re.compile(r" <(\d+)><([0-9a-f]+)>: Abbrev Number: \d+ \((DW_TAG_\w+)\)")
ATTRIBUTE = re.compile(r"    <[0-9a-f]+>\s+(DW_AT_\w+)\s*:\s*(.*)")
NESTING = ("DW_TAG_namespace", "DW_TAG_class_type", "DW_TAG_structure_type")
PREFIXES = {"DW_TAG_pointer_type": "*", "DW_TAG_reference_type": "&", "DW_TAG_rvalue_reference_type": "&&"}


class Entry:
    def __init__(self, tag, parent):
        self.tag = tag
        self.parent = parent
        self.attributes = {}
        self.children = []

    def name(self):
        return self.attributes.get("DW_AT_name", "").rsplit("): ", 1)[-1]

    def number(self, attribute):
        return int(self.attributes.get(attribute, "0").split()[0])

    def reference(self, attribute):
        found = re.match(r"<0x([0-9a-f]+)>", self.attributes.get(attribute, ""))
        return found and found.group(1)

    def path(self):
        outer = self.parent.path() if self.parent is not None and self.parent.tag in NESTING else ""
        return f"{outer}::{self.name()}" if outer else self.name()


def read_entries(object_file):
    lines = subprocess.run(["readelf", "--debug-dump=info", object_file], capture_output=True, text=True).stdout
    entries, open_entries, entry = {}, [], None
    for line in lines.splitlines():
        if found := ENTRY.match(line):
            depth = int(found.group(1))
            del open_entries[depth:]
            entry = Entry(found.group(3), open_entries[-1] if open_entries else None)
            if entry.parent is not None:
                entry.parent.children.append(entry)
            entries[found.group(2)] = entry
            open_entries.append(entry)
        elif entry is not None and (found := ATTRIBUTE.match(line)):
            entry.attributes[found.group(1)] = found.group(2).strip()
    return entries


def type_text(entries, entry):
    """How the type of a field reads; templates without their default arguments."""
    inner = entries.get(entry.reference("DW_AT_type") or "")
    if entry.tag in PREFIXES:
        return (type_text(entries, inner) if inner else "void") + PREFIXES[entry.tag]
    if entry.tag == "DW_TAG_const_type":
        return "const " + (type_text(entries, inner) if inner else "void")
    if entry.tag == "DW_TAG_array_type":
        sizes = [c.number("DW_AT_upper_bound") + 1 for c in entry.children if c.tag == "DW_TAG_subrange_type"]
        return type_text(entries, inner) + "".join(f"[{size}]" for size in sizes)
    return shortened(entry.path())


def shortened(name):
    name = with_short_strings(name)
    while (shorter := re.sub(r", std::(allocator|default_delete|less)<[^<>]*(<[^<>]*>)?[^<>]*>", "", name)) != name:
        name = shorter
    return name.replace(" >", ">")


def with_short_strings(text):
    return re.sub(r"std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> ?>", "std::string",
                  text)


class ClassInfo:
    """Fields as (offset, type, name); virtual operations as slot -> linkage name."""

    def __init__(self):
        self.fields = []
        self.slots = {}


def read_classes(object_file):
    entries = read_entries(object_file)
    classes = {}
    for entry in entries.values():
        if entry.tag in ("DW_TAG_class_type", "DW_TAG_structure_type") and "DW_AT_byte_size" in entry.attributes:
            classes[entry.path()] = read_class(entries, entry)
    return classes


def read_class(entries, entry):
    info = ClassInfo()
    for child in entry.children:
        if child.tag == "DW_TAG_member" and "DW_AT_data_member_location" in child.attributes and (
                "DW_AT_artificial" not in child.attributes):
            field_type = type_text(entries, entries[child.reference("DW_AT_type")])
            info.fields.append((child.number("DW_AT_data_member_location"), field_type, child.name()))
        elif found := re.search(r"DW_OP_constu: (\d+)", child.attributes.get("DW_AT_vtable_elem_location", "")):
            linkage_name = child.attributes.get("DW_AT_linkage_name", "").rsplit("): ", 1)[-1]
            info.slots[int(found.group(1))] = linkage_name
    return info
