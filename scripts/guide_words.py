"""What the guide takes from elsewhere: the program's texts, the names of keys, entries of .po files.

A page names the program's texts in English, word for word, in <b>, and the keys in <kbd>, also where
it is translated; put_names() sets the language's own words in their places. Used by check-guide and
guide-translations.
"""

import html
import json
import re
import xml.etree.ElementTree as ElementTree

SOURCE_LANGUAGE = "en"
MENU_ARROW = " › "
BOLD = re.compile(r"<b(?:\s+data-id=\"([^\"]*)\")?>(.*?)</b>", re.DOTALL)
KEY = re.compile(r"<kbd(?:\s+data-id=\"([^\"]*)\")?>([^<]*)</kbd>")


def one_line(text):
    """With each run of ordinary spaces and line ends as one space."""
    return re.sub("[ \t\n]+", " ", text).strip(" ")


def plain(text):
    """A text of the program as a page names it."""
    return text.replace("&", "").rstrip(": \u00a0")


class Words:
    """The program's texts in every language, by id."""

    def __init__(self, root):
        self.texts = {}  # language: id: forms
        for path in sorted((root / "translations").glob("quillet_*.ts")):
            forms = {}
            for message in ElementTree.parse(path).iter("message"):
                translation = message.find("translation")
                texts = translation.findall("numerusform") or [translation]
                forms[message.get("id")] = [text.text or "" for text in texts]
            self.texts[path.stem.split("_")[1]] = forms
        self.ids = {}  # English name: where it stands
        for name, forms in self.texts[SOURCE_LANGUAGE].items():
            for place, form in enumerate(forms):
                self.ids.setdefault(plain(form), []).append((name, place))
        keys = root / "translations" / "guide" / "keys.json"
        self.keys = json.loads(keys.read_text(encoding="utf-8")) if keys.is_file() else {}

    def languages(self):
        """Those beside English, in order."""
        return sorted(set(self.texts) - {SOURCE_LANGUAGE})

    def all_names(self, language):
        return {plain(form) for forms in self.texts[language].values() for form in forms}

    def form(self, name, place, language):
        forms = self.texts[language].get(name, [""])
        return forms[min(place, len(forms) - 1)] or self.texts[SOURCE_LANGUAGE][name][place]

    def meant(self, path, ids):
        """The names on a path "Menu › Item", each with where it stands in the texts: [(name, [(id, form)])].
        Several texts may be called so: one of the ids is meant then, or, on a path, a menu's text."""
        names = path.split(MENU_ARROW)
        found = []
        for name in names:
            places = self.ids.get(name, [])
            menus = [place for place in places if len(names) > 1 and place[0].startswith("kMenu")]
            found.append((name, [place for place in places if place[0] in ids] or menus or places))
        return found

    def in_language(self, places, language):
        """What the language calls the texts at these places."""
        return sorted({plain(self.form(name, place, language)) for name, place in places})

    def is_name(self, path):
        """Whether all on it are texts of the program."""
        return all(places for _, places in self.meant(one_line(html.unescape(path)), ()))

    def mnemonic(self, name, language):
        """The letter that leads to the control with Alt; none when it has none."""
        for form in self.texts[language].get(name, []):
            found = re.search(r"&(\w)", form)
            if found:
                return found.group(1).upper()
        return None

    def put_names(self, page, language):
        """The page with the language's names in place of the English ones."""
        def bold(found):
            ids, inside = found.groups()
            parts = [self.in_language(places, language)[:1] for _, places in
                     self.meant(one_line(html.unescape(inside)), (ids or "").split())]
            if not all(parts):
                return found.group(0)
            return "<b>%s</b>" % html.escape(MENU_ARROW.join(part[0] for part in parts), quote=False)

        def key(found):
            name, label = found.groups()
            label = self.mnemonic(name, language) if name else self.keys.get(language, {}).get(label, label)
            return "<kbd>%s</kbd>" % (label or found.group(2))

        return KEY.sub(key, BOLD.sub(bold, page))


def unquoted(lines):
    """What a string of a .po file stands for."""
    text = "".join(line[line.index('"') + 1:-1] for line in lines)
    return re.sub(r"\\(.)", lambda found: {"n": "\n", "t": "\t"}.get(found.group(1), found.group(1)), text)


def without_ids(text):
    return re.sub(r"\s+data-id=\"[^\"]*\"", "", text)


class Entry:
    """One text of a .po file: the English one and its translation, empty when there is none to use."""

    def __init__(self, block):
        lines = [line for line in block.split("\n") if line and not line.startswith("#~")]
        self.is_fuzzy = any(line.startswith("#,") and "fuzzy" in line for line in lines)
        strings = [line for line in lines if not line.startswith("#")]
        start = next((place for place, line in enumerate(strings) if line.startswith("msgstr")), len(strings))
        self.source = unquoted(strings[:start])
        self.draft = unquoted(strings[start:])  # of another text when it is fuzzy
        self.translation = "" if self.is_fuzzy else self.draft
        self.previous = unquoted([line for line in lines if line.startswith("#|")])

    def with_its_ids(self):
        """The translation with the data-id that the English text has, also when that has changed in nothing
        else; empty when there is none."""
        if self.is_fuzzy and without_ids(self.source) != without_ids(self.previous):
            return ""
        text = without_ids(self.draft)
        for element in (found.group(0) for kind in (BOLD, KEY) for found in kind.finditer(self.source)):
            text = text.replace(without_ids(element), element, 1)
        return text


def read_entries(path):
    """The entries of a .po file in order, without its heading."""
    blocks = path.read_text(encoding="utf-8").split("\n\n")
    return [entry for entry in map(Entry, blocks) if entry.source]
