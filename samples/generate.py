#!/usr/bin/env python3
"""Writes the sample channel lists beside it, or one large list for the benchmarks.

Every station is invented. The same bytes come out on every run and every version of
Python: the only source of chance is random.Random(seed).random(), whose sequence is fixed.
"""

import argparse
import base64
import json
import pathlib
import random

RADIO_BIT = 0x4000  # in prNum, above the 14 bits of the program number
LAST_NUMBER = 0x3FFF

# Invented broadcasters of one language, and what their TV and radio programmes are called.
CATALOGUE = [
    (["Alsterblick", "Föhrdeland", "Ährenfeld", "Österwald", "Kupfertal", "Morgenrand"],
     ["Kino", "Sport", "Doku", "Wissen", "Kinder", "Krimi", "Küche", "Süd"],
     ["Klassik", "Schlager", "Kultur", "Frühwelle"]),
    (["Harbourside", "Copperline", "Larkfield", "Northmere", "Tidewell", "Ninefold"],
     ["Movies", "Sport", "Nature", "Comedy", "Kids", "Drama", "Kitchen", "News"],
     ["Classical", "Talk", "Jazz", "Gold"]),
    (["Żurawka", "Świtaniec", "Wiślana", "Łąkowa", "Borowik"],
     ["Film", "Sport", "Dokument", "Bajki", "Podróże", "Seriale", "Kuchnia"],
     ["Muzyka", "Rozmowy", "Przeboje"]),
    (["Şafakyolu", "İncirli", "Çınaraltı", "Gökdere", "Zeytinlik"],
     ["Haber", "Spor", "Sinema", "Çocuk", "Müzik", "Belgesel", "Dizi"],
     ["Türkü", "Caz", "Sohbet"]),
    (["Снегирёвка", "Янтарный берег", "Полынья", "Рассветово", "Озёрный край"],
     ["Кино", "Спорт", "Новости", "Наука", "Детский", "Сериал", "Кухня"],
     ["Джаз", "Музыка", "Беседа"]),
    (["Mirabelline", "Élan Lointain", "Clairmarais", "Azuréole"],
     ["Cinéma", "Sport", "Découverte", "Jeunesse", "Info", "Séries"],
     ["Chanson", "Débats", "Classique"]),
    (["Lanternino", "Collinalta", "Àncora Blu", "Ventolina"],
     ["Cinema", "Sport", "Natura", "Bimbi", "Notizie", "Cucina"],
     ["Musica", "Opera", "Parole"]),
]

# kind: (service type of EN 300 468 or the set's own, end of the name, video stream type)
KINDS = {
    "sd": (1, "", 2),
    "sd-avc": (22, "", 27),
    "hd": (25, " HD", 27),
    "uhd": (31, " UHD", 36),
    "t2": (16, " HD", 36),
    "vod": (4, " VoD", 27),
    "vod-hd": (26, " VoD HD", 27),
    "data": (12, " Data", 2),
    "radio": (2, "", 2),
    "radio-aac": (10, "", 2),
}

# name: (sourceIndex, original_network_id, frequencies, usSatelliteHandle)
SOURCES = {
    "cable": (3, 65281, [114000 + 8000 * i for i in range(60)], 0),
    "satellite": (7, 65283, [10744 + 39 * i for i in range(48)], 3),
    "antenna": (1, 65285, [474000 + 8000 * i for i in range(24)], 0),
    "analogue": (2, 0, [175250 + 7000 * i for i in range(12)], 0),
}


class Names:
    """Hands out station names in a shuffled order, each once; a number follows when all are used."""

    def __init__(self, chance):
        self._pools = {False: self._shuffled(chance, 1), True: self._shuffled(chance, 2)}
        self._handed_out = {False: 0, True: 0}

    @staticmethod
    def _shuffled(chance, column):
        names = [brand + " " + word for row in CATALOGUE for brand in row[0] for word in row[column]]
        return sorted(names, key=lambda _: chance.random())

    def take(self, kind):
        radio = kind.startswith("radio")
        lap, index = divmod(self._handed_out[radio], len(self._pools[radio]))
        self._handed_out[radio] += 1
        name = self._pools[radio][index] + (" %d" % (lap + 1) if lap else "")
        return name + KINDS[kind][1]


def pick(chance, choices):
    return choices[int(chance.random() * len(choices))]


def as_stored(name):
    """The text of vchName: sets that meet a foreign first letter store one character a byte of UTF-8."""
    return name if ord(name[0]) <= 0xBF else name.encode("utf-8").decode("latin-1")


def station(chance, source, number, kind, name, index):
    """The fields of one ITEM, in the order in which a set writes them; index is unique in the source."""
    source_index, network, frequencies, satellite = SOURCES[source]
    service_type, _, stream = KINDS[kind]
    radio = kind.startswith("radio")
    digital = source != "analogue"
    multiplex = int(chance.random() * len(frequencies)) if digital else index % len(frequencies)
    length = len(name.encode("utf-8"))
    return {
        "prNum": number | RADIO_BIT if radio else number,
        "minorNum": 0 if radio else number,
        "original_network_id": network,
        "transport_id": 257 + multiplex if digital else 0,
        "network_id": network,
        "service_id": (4096 + 3 * index) % 65536 if digital else 0,
        "physicalNum": multiplex + 1,
        "sourceIndex": source_index,
        "serviceType": service_type,
        "special_data": 442400000 + 64 * multiplex,
        "frequency": frequencies[multiplex],
        "nitVersion": pick(chance, [0, 4, 9]) if digital else 0,
        "mapType": 1,
        "mapAttr": 0,
        "isInvisable": 1 if kind == "data" else 0,
        "isBlocked": 1 if chance.random() < 0.02 else 0,
        "isSkipped": 1 if chance.random() < 0.05 else 0,
        "isNumUnSel": 1 if kind == "data" else 0,
        "isDeleted": 0,
        "chNameByte": 0,
        "isDisabled": 0,
        "hexVchName": name.encode("utf-8").hex(),
        "notConvertedLengthOfVchName": length,
        "vchName": as_stored(name),
        "lengthOfVchName": length,
        "hSettingIDHandle": 0,
        "usSatelliteHandle": satellite,
        "isUserSelCHNo": 0,
        "logoIndex": 0,
        "videoStreamType": stream,
    }


def block(chance, names, source, first, count, kinds, step=lambda: 1, start_index=0):
    """count stations of the given kinds, numbered from first on; step gives the next distance."""
    stations, number = [], first
    for index in range(start_index, start_index + count):
        kind = pick(chance, kinds)
        stations.append(station(chance, source, number, kind, names.take(kind), index))
        number += step()
    return stations


def blocks(chance, names, source, rows, step=lambda: 1):
    stations = []
    for first, count, kinds in rows:
        stations += block(chance, names, source, first, count, kinds, step, len(stations))
    return stations


def satellite_database():
    """The stretch that holds the dish set-up; nothing in it belongs to a station."""
    lines = ["<SatelliteDB>", "<SATDBInfo>", "<SatRecordInfo>"]
    for index, (angle, tenths) in enumerate([(11, 4), (17, 8), (33, 1)]):
        lines += ["<idx%d>" % index, '<SatelliteName type="0">%d</SatelliteName>' % index,
                  '<Angle type="0">%d</Angle>' % angle, '<AnglePrec type="0">%d</AnglePrec>' % tenths,
                  '<DirEastWest type="0">1</DirEastWest>', '<LNBIndex type="0">0</LNBIndex>',
                  "</idx%d>" % index]
    lines += ["</SatRecordInfo>", "</SATDBInfo>", "<TPList>"]
    for index, frequency in enumerate(SOURCES["satellite"][2][:12]):
        lines += ["<TPRecord%d>" % index, '<Frequency type="0">%d</Frequency>' % frequency,
                  '<Polarisation type="0">%d</Polarisation>' % (index % 2),
                  '<SymbolRate type="0">27500</SymbolRate>', "</TPRecord%d>" % index]
    return lines + ["</TPList>", "</SatelliteDB>"]


def write(path, model, analogue, digital, line_end):
    lines = ['<?xml version="1.0" encoding="UTF-8"?>', "", "<TLLDATA>", "<ModelInfo>",
             '<ModelName type="0">%s</ModelName>' % model, '<CloneVersion type="1">',
             '<MajorVersion>100</MajorVersion>', '<MinorVersion>000</MinorVersion>',
             '<SatelliteDBVersion>400</SatelliteDBVersion>', "</CloneVersion>",
             '<DTVInfo type="0">DTV_DVB</DTVInfo>',
             '<BroadcastCountrySetting type="0">DEU</BroadcastCountrySetting>',
             '<country type="0">EU</country>', "</ModelInfo>"]
    lines += satellite_database() + ["<CHANNEL>"]
    for section, stations in (("ATV", analogue), ("DTV", digital)):
        lines.append("<%s>" % section)
        for fields in stations:
            lines.append("<ITEM>")
            lines += ["<%s>%s</%s>" % (key, value, key) for key, value in fields.items()]
            lines.append("</ITEM>")
        lines.append("</%s>" % section)
    lines += ["</CHANNEL>", "</TLLDATA>", ""]
    path.write_bytes(line_end.join(lines).encode("utf-8"))


def channel(fields, hd):
    """A station as the sets write it that keep their list as JSON: other names, real booleans."""
    name = bytes.fromhex(fields["hexVchName"])
    return {
        "disabled": False,
        "videoStreamType": fields["videoStreamType"],
        "specialData": fields["special_data"],
        "sourceIndex": "SATELLITE DIGITAL",
        "audioDesc": False,
        "signalLossDay": 0,
        "userSelCHNo": False,
        "altPhysicalNum": 0,
        "userSubtitleLangCode": 0,
        "virtualChannel": False,
        "majorNumber": fields["prNum"],
        "physicalNumber": fields["physicalNum"],
        "skipped": fields["isSkipped"] == 1,
        "minorNumber": 0,
        "transSystem": "DVBS",
        "deleted": False,
        "conflict": False,
        "factoryDefault": True,
        "Invisible": fields["isInvisable"] == 1,
        "networkId": fields["network_id"],
        "locked": fields["isBlocked"] == 1,
        "satelliteId": "3192",
        "hdStatus": hd,
        "chNameByte": False,
        "chNameBase64": base64.b64encode(name.ljust(40, b"\0")).decode("ascii"),
        "nitVersion": fields["nitVersion"],
        "frequency": fields["frequency"],
        "channelName": name.decode("utf-8"),
        "mapType": "CUSTOMIZED",
        "programNum": fields["service_id"],
        "userEditChNumber": False,
        "bandwidth": "BW_8M",
        "userAudio": 8191,
        "SVCID": fields["service_id"],
        "TSID": fields["transport_id"],
        "ONID": fields["original_network_id"],
        "scrambled": fields["serviceType"] in (4, 26),
        "tpId": "3192%d" % fields["frequency"],
        "serviceType": fields["serviceType"],
        "userSubtitle": 8191,
        "profileV2": 0,
    }


def write_json(path, stations):
    """The variant of the file that keeps the list as JSON, in the order found, not of the numbers."""
    whole = {
        "modelInfo": {"country": "DEU"},
        "settingIdList": [{"opId": 2, "settingId": [0, -1, 18446744073709551615]}],
        "channelList": [channel(fields, int(fields["serviceType"] in (25, 31))) for fields in stations],
        "satelliteList": [{"satelliteId": "3192", "satelliteName": "Example 19.2E", "angle": 19.2}],
        "lcnStoreObj": {"lcnOn": False, "providers": None},
    }
    text = json.dumps(whole, ensure_ascii=False, separators=(",", ":"))
    text = text.replace("&", "&amp;").replace("<", "\\u003c").replace(">", "\\u003e")
    lines = ['<?xml version="1.0"?>', "<TLLDATA>", "\t<ModelInfo>",
             '\t\t<ModelName type="0">75VV44444XX</ModelName>', '\t\t<DTVInfo type="0">DTV_DVB</DTVInfo>',
             '\t\t<country type="0">EU</country>', "\t</ModelInfo>", "\t<CHANNEL>",
             '\t\t<iepg>{"favoriteChList":[]}</iepg>',
             "\t\t<legacybroadcast>%s</legacybroadcast>" % text, "\t</CHANNEL>", "</TLLDATA>", ""]
    path.write_bytes("\n".join(lines).encode("utf-8"))


def cable(path):
    """Sorted, numbered without collisions, no empty field: saving it unchanged gives the same bytes."""
    chance = random.Random(4101)
    digital = blocks(chance, Names(chance), "cable", [
        (1, 110, ["hd"]), (120, 170, ["sd", "sd", "sd-avc"]), (300, 12, ["uhd"]),
        (800, 22, ["vod", "vod-hd"]), (900, 16, ["data"]),
        (1, 70, ["radio", "radio", "radio", "radio-aac"])])
    write(path, "55XX0000", [], digital, "\r\n")


def satellite(path):
    """Gaps and collisions in the numbers; some names as hexadecimal bytes only; LF line ends."""
    chance = random.Random(4102)
    digital = blocks(chance, Names(chance), "satellite", [
        (1, 45, ["hd"]), (60, 55, ["sd", "sd-avc", "hd"]), (200, 6, ["uhd"]), (900, 8, ["data"]),
        (1, 36, ["radio", "radio-aac"])],
        step=lambda: pick(chance, [0] + [1] * 14 + [2, 4, 9]))
    for fields in digital[3::9]:
        first_byte = int(fields["hexVchName"][:2], 16)
        if fields["vchName"].isascii() or first_byte > 0xBF:
            fields["vchName"] = " "  # what a set writes for a name that it keeps in hexVchName
    write(path, "65YY1111", [], digital, "\n")


def antenna(path):
    """Analogue stations before the digital ones."""
    chance = random.Random(4103)
    names = Names(chance)
    analogue = blocks(chance, names, "analogue", [(1, 12, ["sd"])])
    digital = blocks(chance, names, "antenna", [
        (1, 20, ["t2"]), (21, 4, ["uhd"]), (30, 8, ["sd"]), (1, 16, ["radio", "radio-aac"])])
    write(path, "43ZZ2222", analogue, digital, "\r\n")


def legacy(path, count=180):
    """A JSON list in the order of the transponders; some channels without a number."""
    chance = random.Random(4105)
    television = min(count * 8 // 10, LAST_NUMBER)
    stations = blocks(chance, Names(chance), "satellite", [
        (1, television, ["sd", "sd-avc", "hd", "hd", "uhd"]),
        (1, count - television, ["radio", "radio-aac"])])
    for fields in stations[7::23]:
        fields["prNum"] = 0
    write_json(path, sorted(stations, key=lambda fields: fields["frequency"]))


def large(path, count, line_end):
    """count stations in the order in which they are saved; all in one source while they fit."""
    chance = random.Random(4104)
    names = Names(chance)
    sources = ["cable"] if count <= 15000 else ["analogue", "cable", "satellite", "antenna"]
    sections = {source: [] for source in sources}
    for place, source in enumerate(sources):
        share = count // len(sources) + (place < count % len(sources))
        television = min(share * 8 // 10, LAST_NUMBER)
        if share - television > LAST_NUMBER:
            raise SystemExit("generate.py: %d stations have no numbers of their own" % count)
        sections[source] = blocks(chance, names, source, [
            (1, television, ["sd", "sd-avc", "hd", "hd", "uhd", "vod", "data"]),
            (1, share - television, ["radio", "radio-aac"])])
    analogue = sections.pop("analogue", [])
    write(path, "77WW3333", analogue, sum(sections.values(), []), line_end)


def main():
    parser = argparse.ArgumentParser(description="Writes the sample channel lists.")
    parser.add_argument("--into", type=pathlib.Path, default=pathlib.Path(__file__).resolve().parent,
                        metavar="FOLDER", help="where the samples go (this script's folder)")
    parser.add_argument("--stations", type=int, metavar="N",
                        help="write one list of N stations to --output instead of the samples")
    parser.add_argument("--output", type=pathlib.Path, metavar="FILE")
    parser.add_argument("--json", action="store_true", help="write the list of N stations as JSON")
    parser.add_argument("--line-end", choices=["crlf", "lf"], default="crlf",
                        help="of the list of N stations")
    options = parser.parse_args()
    if (options.stations is None) != (options.output is None):
        parser.error("--stations and --output go together")
    if options.stations is not None:
        if options.stations < 1:
            parser.error("--stations takes a number from 1 on")
        if options.json:
            legacy(options.output, options.stations)
            return
        large(options.output, options.stations, "\r\n" if options.line_end == "crlf" else "\n")
        return
    cable(options.into / "cable.tll")
    satellite(options.into / "satellite.tll")
    antenna(options.into / "antenna.tll")
    legacy(options.into / "satellite-json.tll")


if __name__ == "__main__":
    main()
