"""Channel lists made up for the tests, in both variants of the file, and what their bytes hold."""

import itertools
import pathlib
import random
import re
import sys
import types

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "samples"))
import generate  # noqa: E402

SOURCES = ("cable", "satellite", "antenna", "analogue")  # in the order in which the tool lists them
LISTS = [(source, mode) for source in SOURCES for mode in ("tv", "radio")]
NUMBERS = (1, 2, 3, 7, 8, 20)
# In no order by name; one that sets store byte by byte, and one beyond ASCII that they do not.
WORDS = ("Morgen", "alpha", "Zebra", "Ähre", "delta", "Café")
# What a list in JSON calls the sources; it has no word of its own for analogue ones.
JSON_SOURCES = dict(zip(SOURCES, ("CABLE DIGITAL", "SATELLITE DIGITAL", "CABLE ANALOG", "OTHER")))


def written(write, *facts):
    """What one of the functions that write samples would write."""
    data = []
    write(types.SimpleNamespace(write_bytes=data.append), *facts)
    return data[0]


def stations(numbers=NUMBERS, lists=LISTS):
    """Stations as (source, mode, fields of their element) in the order in which a save writes them,
    for each list as many as there are numbers."""
    chance = random.Random(1)
    made = []
    for source, mode in sorted(lists, key=lambda each: each[0] != "analogue"):
        for place, number in enumerate(numbers):
            name = f"{WORDS[place % len(WORDS)]} {source} {mode}"
            name += f" {place}" if place >= len(WORDS) else ""
            kind = "hd" if mode == "tv" else "radio"
            made.append((source, mode, generate.station(chance, source, number, kind, name, len(made))))
    return made


def xml(made, line_end="\r\n", encoding="utf-8"):
    """A file that a save without an edit writes as it is, with such line ends and in UTF-8."""
    sections = [[fields for source, _, fields in made if (source == "analogue") == is_analogue]
                for is_analogue in (True, False)]
    return written(generate.write, "55XX0000", *sections, line_end).decode().encode(encoding)


def json_list(made):
    """The same of a file with channels in JSON: they stand in the order of their numbers."""
    made = sorted(made, key=lambda each: each[2]["prNum"])
    data = written(generate.write_json, [fields for _, _, fields in made])
    sources = (JSON_SOURCES[source].encode() for source, _, _ in made)
    return re.sub(rb'(?<="sourceIndex":")[^"]*', lambda _: next(sources), data)


EDITED = (b"prNum", b"vchName", b"isSkipped", b"isBlocked")
VARIANTS = {"xml": xml, "json": json_list}


def told(made, variant="xml"):
    """(source, mode, number, name, skipped) of the stations in the order in which the tool lists
    them. A list in JSON has stations of television only."""
    rows = [(source, mode, fields["prNum"] & generate.LAST_NUMBER,
             bytes.fromhex(fields["hexVchName"]).decode(), fields["isSkipped"] == 1)
            for source, mode, fields in made if variant == "xml" or mode == "tv"]
    return sorted(rows, key=lambda row: (LISTS.index(row[:2]), row[2]))


def items(data):
    return re.findall(rb"<ITEM>.*?</ITEM>\r?\n", data, re.DOTALL)


def fields(item):
    return dict(re.findall(rb"<(\w+)>([^<]*)</\1>", item))


def around(data):
    """What is not of stations."""
    return re.sub(rb"<ITEM>.*</ITEM>|\"channelList\":\[.*?\}\]", b"", data, flags=re.DOTALL)


def changes(before, after):
    """Which fields differ, of stations that keep their places: (place, name of the field)."""
    pairs = itertools.zip_longest(map(fields, items(before)), map(fields, items(after)), fillvalue={})
    return [(place, name.decode()) for place, (a, b) in enumerate(pairs)
            for name in sorted(a.keys() | b.keys()) if a.get(name) != b.get(name)]
