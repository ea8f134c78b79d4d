#!/usr/bin/env python3
"""Writes the lists that are measured into a folder, unless they are there and newer than what makes them.

Besides those of samples/generate.py there are lists in the shape of those that sets write: satellites and
their transponders, all with attributes, take a third of the bytes; channels have all their members. Every
station is invented, and the same bytes come out on every run.
"""

import argparse
import itertools
import json
import pathlib
import random
import sys

here = pathlib.Path(__file__).resolve().parent
samples = here.parent / "samples"
sys.dont_write_bytecode = True
sys.path.insert(0, str(samples))
import generate  # noqa: E402

SOURCES = ["cable", "satellite", "antenna"]
SATELLITES = 48  # and as many places for more
TRANSPONDERS_A_STATION = 2  # makes the tables a third of the file
TRANSPONDERS_A_TABLE = 500
TABLES_A_SET = 100

# What a channel has besides the members that samples/generate.py gives it.
MORE_OF_A_CHANNEL = {
    "cellID": 0, "pcrPid": 401, "regionId": 0, "homeTP": False, "primaryCh": False, "isDVBI": False,
    "videoPid": 16785, "validLCN": False, "isFVP": False, "setIdHandle": 0, "astraMfCh": False,
    "optrBlocked": False, "coderate": 1, "serviceIdentifier": 0, "dvbss2": 0, "solveNeed": False,
    "LCNPriority": 0, "userDualmonoType": 0, "audioPid": 402, "ipChannel": False,
    "userCustomize": False, "discarded": False, "orgPhysicalNum": 0, "disableUpdate": False,
    "adultChannel": 0, "audioSetbyUser": False, "fineTuned": False, "conflictNumber": 0,
    "subtitleSetbyUser": False, "rfIpChannel": False, "isMultipleLCN": False, "numUnSel": False,
    "stillPicture": False, "usedChName": False, "altChannel": False, "ac3AudioType": False,
    "isOtherBroadcast": False,
}


def field(name, value):
    return '<%s type="0">%s</%s>' % (name, value, name)


def element(name, lines):
    return ["<%s>" % name, *lines, "</%s>" % name]


def satellite_record(index):
    named = [field("SatelliteName", index)] if index % 7 != 2 else []
    return element("idx%d" % index, named + [field(name, value) for name, value in {
        "Angle": index * 3 % 180, "AnglePrec": index % 10, "DirEastWest": index % 2, "GoToAngle": 65,
        "GoToAnglePrec": 1, "GoToDirEastWest": 1, "FactoryDefault": 1, "LNBIndex": 0,
        "TPStartIndex": 65535, "TPEndIndex": 65535, "TPCount": 0, "TpListLoaded": 0, "DeleteFlag": 0,
        "Reserved": 0, "ReservedForFuture": 0}.items()])


def transponder(index):
    return element("TPRecord%d" % index, [field(name, value) for name, value in {
        "TransponderId": index, "Frequency": 10700 + index * 19 % 2050, "Polarisation": index % 4,
        "SymbolRate": 27500 if index % 3 else 22000, "TransmissionSystem": index % 2,
        "HomeTp": int(index == 0)}.items()])


def satellite_tables(stations):
    slots = element("SatSlotStatusTable", [field("slot%d" % i, 255 if i < 6 else 0) for i in range(8)])
    navigation = element("NavIndex", [field("idx%d" % i, i if i < SATELLITES else 0) for i in range(64)])
    head = element("SatHdrInfo", [field("MagicNo", 0), *slots, field("Reserved", 0),
                                  field("CurrEndIndex", SATELLITES - 1), *navigation])
    records = element("SatRecordInfo", itertools.chain.from_iterable(
        satellite_record(i) for i in range(SATELLITES)))
    left = stations * TRANSPONDERS_A_STATION
    tables = []
    while left > 0:
        count = min(left, TRANSPONDERS_A_TABLE)
        left -= count
        transponders = itertools.chain.from_iterable(transponder(i) for i in range(count))
        number = len(tables) % TABLES_A_SET  # a reader bounds how many names there may be
        tables.append(element("tbl%d" % number, element(
            "TPList", [field("TPListTotalCount", count), *transponders])))
    sets = [tables[i:i + TABLES_A_SET] for i in range(0, len(tables), TABLES_A_SET)]
    return element("SatelliteDB", [
        *element("SATDBInfo", head + records),
        *itertools.chain.from_iterable(
            element("SettingIDDBInfo", element("SettingIDInfo", itertools.chain(*each)))
            for each in sets)])


def plain(path, count):
    generate.large(path, count, "\r\n")


def real_shaped(path, count):
    """Numbered without collisions as long as there are numbers for that, up to 60,000 stations."""
    chance = random.Random(4201)
    names = generate.Names(chance)
    sources = ["cable"] if count <= 15000 else SOURCES
    sections = {}
    for place, source in enumerate(sources):
        share = count // len(sources) + (place < count % len(sources))
        television = share * 8 // 10
        step = max(1, -(-television // generate.LAST_NUMBER))  # so many stations have one number
        numbers = [1 + i // step for i in range(television)]
        numbers += [1 + i // step for i in range(share - television)]
        kinds = ["sd", "sd-avc", "hd", "hd", "uhd", "vod", "data"]
        sections[source] = []
        for index, number in enumerate(numbers):
            kind = generate.pick(chance, kinds if index < television else ["radio", "radio-aac"])
            sections[source].append(
                generate.station(chance, source, number, kind, names.take(kind), index))
    tables = generate.satellite_database
    generate.satellite_database = lambda: satellite_tables(count)
    generate.write(path, "42XX555X-ZZ", [], sum(sections.values(), []), "\r\n")
    generate.satellite_database = tables


def television(path, count):
    """All in one table of a window."""
    chance = random.Random(4203)
    stations = generate.blocks(chance, generate.Names(chance), "cable", [
        (1, count, ["sd", "sd-avc", "hd", "hd", "uhd"])])
    generate.write(path, "55XX0000", [], stations, "\r\n")


def channels(path, count):
    generate.legacy(path, count)


def service(fields):
    return {"svcNameLeng": 0, "optrChBlock": False, "hdLcn": 0, "lcnValue": fields["prNum"] & 0x3FFF,
            "visibilFlag": True, "serviceId": fields["service_id"], "tpIndex": fields["physicalNum"],
            "scramble": False, "serviceType": fields["serviceType"], "svcNameBase64": "", "svcName": ""}


def satellite_with_transponders(index, count):
    return {
        "tpListLoad": count > 0, "angleToGo": "65.65E",
        "TransponderList": [{
            "networkId": 0, "nitVersion": 0, "dvbsS2": i % 2, "factoryDefault": True,
            "polarization": ["Vertical", "Horizontal", "Left", "Right"][i % 4], "ONID": 0,
            "codeRate": 3, "satelliteId": str(3500 + index), "symbolRate": 27500,
            "frequency": 10700 + 19 * i, "homeTp": False, "channelIdx": i, "TSID": 0}
            for i in range(count)],
        "satelliteName": "EXAMPLE %d.0W" % index, "factoryDefault": True, "deleteFlag": False,
        "satelliteId": str(3500 + index), "satLocation": "%d.0W" % index}


def real_channels(path, count):
    chance = random.Random(4202)
    television = count * 8 // 10
    stations = generate.blocks(chance, generate.Names(chance), "satellite", [
        (1, television, ["sd", "sd", "sd-avc", "hd", "hd"]),
        (1, count - television, ["radio", "radio", "radio-aac"])])
    for fields in stations[7::13]:
        fields["prNum"] = 0  # of a channel that was deleted
    stations.sort(key=lambda fields: fields["frequency"])
    entries = []
    for fields in stations:
        entry = generate.channel(fields, int(fields["serviceType"] == 25))
        entry.update(MORE_OF_A_CHANNEL)
        entry["prev_tsId"], entry["prev_onId"] = entry["TSID"], entry["ONID"]
        entry["deleted"] = fields["prNum"] == 0
        entries.append(entry)
    whole = {
        "modelInfo": {"country": "Exampleland"}, "bouquetList": [],
        "settingIdList": [{"LNBPower": True, "satelliteId": "3500", "LNBFrequency1": 9750,
                           "LNBFrequency2": 10600, "LNBName": "Universal"}],
        "channelList": entries,
        "motorPositionObj": {"lastPosition": 0},
        "lcnStoreObj": {"serviceInfoList": [service(fields) for fields in stations[:count // 4]],
                        "tuningInfoList": []},
        "satelliteList": [satellite_with_transponders(i, count // 10 if i in (0, 5) else 0)
                          for i in range(50)],
        "homeTpList": [],
    }
    text = json.dumps(whole, ensure_ascii=False, separators=(",", ":")).replace("&", "&amp;")
    lines = ['<?xml version="1.0"?>', "<TLLDATA>", "\t<ModelInfo>",
             '\t\t<ModelName type="0">65XX77777XX</ModelName>', '\t\t<DTVInfo type="0">DTV_DVB</DTVInfo>',
             '\t\t<country type="0">EU</country>', "\t</ModelInfo>", "\t<CHANNEL>",
             '\t\t<iepg>{"favoriteChList":[],"modelInfo":{"country":"EXA"}}</iepg>',
             "\t\t<legacybroadcast>%s</legacybroadcast>" % text, "\t</CHANNEL>", "</TLLDATA>", ""]
    path.write_bytes("\n".join(lines).encode("utf-8"))


LISTS = [
    ("plain", plain, [1000, 10000, 100000]),
    ("real", real_shaped, [424, 1000, 10000, 50000, 300000]),
    ("tv", television, [1000, 10000]),
    ("json", channels, [10000]),
    ("real-json", real_channels, [1254]),
]


def main():
    parser = argparse.ArgumentParser(description="Writes the lists that are measured.")
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--most", type=int, metavar="N", help="only lists of so many stations at most")
    options = parser.parse_args()
    options.folder.mkdir(parents=True, exist_ok=True)
    newest = max(source.stat().st_mtime for source in (pathlib.Path(__file__), samples / "generate.py"))
    for name, make, sizes in LISTS:
        for size in sizes:
            path = options.folder / ("%s-%d.tll" % (name, size))
            is_there = path.exists() and path.stat().st_mtime >= newest
            if not is_there and (options.most is None or size <= options.most):
                unfinished = path.with_suffix(".new")
                make(unfinished, size)
                unfinished.replace(path)


if __name__ == "__main__":
    main()
