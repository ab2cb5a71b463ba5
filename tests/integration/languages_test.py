# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The translations: that they are complete, and which of them is chosen."""

import configparser
import json
import pathlib
import plistlib
import re
import subprocess
import tempfile
import unittest
from xml.etree import ElementTree

import desktop
import session

RESOURCES = session.SOURCE / "resources"
FOLDERS = sorted(folder.name.removesuffix(".lproj") for folder in RESOURCES.glob("*.lproj"))
LANGUAGES = [language for language in FOLDERS if language != "en"]
MARK = re.compile(r"&(\w)")
IN_BRACKETS = re.compile(r"\(&[A-Z0-9]\)(?=[:：…]?$)")
XML_LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"


def messages(path):
    """Returns a file's translations by context, source and comment."""
    found = {}
    for context in ElementTree.parse(path).iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"),
                   message.findtext("comment", ""))
            found[key] = message.find("translation")
    return found


def table(language):
    return plistlib.loads((RESOURCES / f"{language}.lproj/InfoPlist.strings").read_bytes())


def place_holders(text):
    return sorted(re.findall(r"%(?:\d|@|n|L\d)", text))


class Translations(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        """Extracts the texts from the current sources."""
        with tempfile.TemporaryDirectory() as folder:
            fresh = pathlib.Path(folder) / "fresh.lproj"
            fresh.mkdir()
            subprocess.run([RESOURCES / "update-translations", folder], check=True)
            cls.texts = {file.stem: set(messages(file)) for file in fresh.glob("*.ts")}

    def for_each(self, check):
        """Calls check for each translation, with its language, its key, and its element."""
        for language in LANGUAGES:
            for name in self.texts:
                path = RESOURCES / f"{language}.lproj/{name}.ts"
                for key, translation in messages(path).items():
                    with self.subTest(language=language, source=key[1]):
                        check(language, key[1], translation)

    def test_the_six_languages_are_there(self):
        self.assertEqual(FOLDERS, ["de", "en", "es", "fr", "ja", "zh-Hans"])
        self.assertEqual(set(self.texts), {"QVTblt", "tdsg-driver"})
        self.assertGreater(len(self.texts["QVTblt"]), 100)
        self.assertGreater(len(self.texts["tdsg-driver"]), 35)

    def test_each_has_all_texts_of_the_sources_and_no_others(self):
        for language in LANGUAGES:
            for name, texts in self.texts.items():
                with self.subTest(language=language, name=name):
                    path = RESOURCES / f"{language}.lproj/{name}.ts"
                    self.assertEqual(set(messages(path)), texts)

    def test_each_text_is_translated(self):
        def check(_, __, translation):
            self.assertIsNone(translation.get("type"))
            self.assertTrue((translation.text or "").strip())
        self.for_each(check)

    def test_place_holders_line_ends_and_dots_agree(self):
        def check(_, source, translation):
            text = translation.text
            self.assertEqual(place_holders(source), place_holders(text))
            self.assertEqual(source.count("\n"), text.count("\n"))
            self.assertEqual(source.endswith("…"), text.endswith("…"))
            self.assertEqual(source.endswith(":"), text.endswith((":", "：")))
            self.assertEqual(text, text.strip())
        self.for_each(check)

    def test_what_has_a_letter_for_the_keyboard_has_one_in_each_language(self):
        found = []

        def check(language, source, translation):
            letters = MARK.findall(translation.text)
            self.assertEqual(len(letters), len(MARK.findall(source)))
            found.extend(letters)
            if letters and language in ("ja", "zh-Hans"):
                # Their characters are not on the keyboard, so the mnemonic follows the text.
                self.assertRegex(translation.text, IN_BRACKETS)
        self.for_each(check)
        self.assertGreater(len(found), 20 * len(LANGUAGES))

    def test_each_string_table_has_all_keys(self):
        english = table("en")
        sources = "".join(file.read_text() for folder in ("QVTblt", "hosts")
                          for file in (session.SOURCE / folder).rglob("*.cpp"))
        used = set(re.findall(r'localized\("(\w+)"\)', sources)) | set(re.findall(
            r'localizedString\(\s*QStringLiteral\("(\w+)"\)', sources))
        self.assertEqual(used, set(english))
        for language in LANGUAGES:
            with self.subTest(language):
                strings = table(language)
                self.assertEqual(strings.keys(), english.keys())
                for key, text in strings.items():
                    self.assertTrue(text.strip(), key)
                    self.assertEqual(place_holders(text), place_holders(english[key]), key)

    def test_no_text_of_a_language_is_that_of_another(self):
        """All other tests would accept a file in the wrong folder."""
        for name in self.texts:
            found = [{key: translation.text for key, translation in
                      messages(RESOURCES / f"{language}.lproj/{name}.ts").items()}
                     for language in LANGUAGES]
            for i, one in enumerate(found):
                for other in found[:i]:
                    same = [text for key, text in one.items() if other[key] == text]
                    self.assertLess(len(same), len(one) / 8, same)

    def test_all_are_built(self):
        share = session.STAGE / "share"
        for language in LANGUAGES:
            for file in ("qvtblt/{}.lproj/QVTblt.qm", "qvtblt/{}.lproj/InfoPlist.strings",
                         "tdsg-driver/{}.lproj/tdsg-driver.qm"):
                path = share / file.format(language)
                self.assertTrue(path.is_file(), path)
                self.assertGreater(path.stat().st_size, 500, path)


class Entries(unittest.TestCase):
    """The texts in menus, System Settings and software centres."""

    LOCALES = {language.replace("zh-Hans", "zh_CN") for language in LANGUAGES}
    FOLDER = session.SOURCE / "packaging/desktop"
    MODULE = session.SOURCE / "hosts/systemsettings/kcm_qvtblt.json"

    @staticmethod
    def titles():
        """Returns the panel's name in each language."""
        return {language.replace("zh-Hans", "zh_CN"): translation.text for language in LANGUAGES
                for key, translation in messages(RESOURCES / f"{language}.lproj/QVTblt.ts").items()
                if key[1] == "Quorvia Tablet"}

    def check(self, texts):
        """Checks that each key has all locales, in pairs of key and locale."""
        self.assertTrue(texts)
        for key in {key for key, _ in texts}:
            self.assertEqual({locale for name, locale in texts if name == key}, self.LOCALES, key)

    @staticmethod
    def by_locale(keys):
        return [match.groups() for match in map(re.compile(r"(.+)\[(\w+)\]").fullmatch, keys)
                if match]

    def test_desktop_entries(self):
        for file in self.FOLDER.glob("*.desktop"):
            with self.subTest(file.name):
                entry = configparser.RawConfigParser(delimiters="=")
                entry.optionxform = str
                entry.read(file)
                keys = entry["Desktop Entry"]
                translated = self.by_locale(keys)
                self.check(translated)
                self.assertEqual({key for key, _ in translated}, keys.keys() & {
                    "Name", "GenericName", "Comment", "Keywords"})
                if file.name == "org.quorvia.qvtblt.desktop":
                    self.assertEqual({locale: keys[f"Name[{locale}]"] for locale in self.LOCALES},
                                     self.titles())

    def test_module_of_system_settings(self):
        module = json.loads(self.MODULE.read_text())
        self.check(self.by_locale(module["KPlugin"]))
        self.check(self.by_locale(module))
        self.assertEqual({locale: module["KPlugin"][f"Name[{locale}]"] for locale in self.LOCALES},
                         self.titles())

    def test_metadata(self):
        for file in self.FOLDER.glob("*.metainfo.xml.in"):
            with self.subTest(file.name):
                root = ElementTree.parse(file).getroot()
                texts = [(element.tag, element.get(XML_LANGUAGE)) for element in root.iter()
                         if element.tag in ("name", "summary", "p")]
                self.check([text for text in texts if text[1]])
                if root.findtext("id") == "org.quorvia.qvtblt":
                    self.assertEqual({element.get(XML_LANGUAGE): element.text
                                      for element in root.findall("name")}, {
                                          None: "Quorvia Tablet", **self.titles()})


class Choice(desktop.Desktop):
    """The language that is chosen for a list of preferred languages."""

    NO_DEVICE = {"en": "No tablet was found", "de": "Kein Tablett gefunden",
                 "es": "No se ha encontrado ninguna tableta", "fr": "Aucune tablette trouvée",
                 "ja": "タブレットが見つかりません", "zh-Hans": "未找到数位板"}

    def start_panel(self, languages):
        self.env["LANGUAGE"] = languages
        return self.start([session.BIN / "qvtblt"])

    def text(self, language, source):
        """Returns a text of the panel in a language."""
        if language == "en":
            return source
        return next(translation.text for key, translation in messages(
            RESOURCES / f"{language}.lproj/QVTblt.ts").items() if key[1] == source)

    HELP = ("Is the tablet connected? Is its driver running? The settings appear here as soon "
            "as both are available.")

    def test_follows_the_list_of_preferences_with_all_its_texts(self):
        self.start_driver("none")
        for languages, wanted in (
                ("pt:fr:en", "fr"), ("es_MX", "es"), ("en_GB:de", "en"), ("xx", "en"),
                ("zh_CN", "zh-Hans"), ("zh_SG", "zh-Hans"),
                # Users of the other script get it only if they ask for it.
                ("zh_TW", "en"), ("zh_TW:zh_CN", "zh-Hans")):
            with self.subTest(languages):
                panel = self.start_panel(languages)
                # The first is from the string table, the others are Qt's translations.
                self.find("qvtblt", self.NO_DEVICE[wanted], "label")
                self.find("qvtblt", self.text(wanted, self.HELP), "label")
                title = self.text(wanted, "Quorvia Tablet")
                self.find("qvtblt", title)
                panel.terminate()
                panel.wait(timeout=session.PATIENCE)

    # From the dialog for choosing an application's file, which is Qt's.
    QT_TEXTS = {"en": "Parent Directory", "fr": "Dossier parent", "zh-Hans": "父目录"}

    def test_qts_own_texts_are_in_the_language_of_the_panel(self):
        self.start_driver()
        # There is a Polish translation of Qt, but none of the panel.
        for languages, wanted in (("pl:fr", "fr"), ("pl:zh_SG:en", "zh-Hans"), ("pl", "en")):
            with self.subTest(languages):
                panel = self.start_panel(languages)
                keys = self.text(wanted, "Express key 1")
                self.click(self.find("qvtblt", keys, "combo box"))
                item = self.find("qvtblt", self.text(wanted, "Open an application…"), "list item")
                self.click(item)
                self.find("qvtblt", self.text(wanted, "Choose an application"))
                other = self.text(wanted, "&Other File…").replace("&", "")
                self.click(self.find("qvtblt", other, "push button"))
                self.find("qvtblt", self.QT_TEXTS[wanted])
                panel.kill()
                panel.wait(timeout=session.PATIENCE)

    def test_the_simulated_tablet_follows_it_too(self):
        for languages, title, button in (
                ("pt:fr:en", "Tablette virtuelle : Quorvia Draft S", "Bouton haut du stylet"),
                ("zh_SG", "虚拟数位板：Quorvia Draft S", "笔的上键"),
                ("en:de", "Virtual tablet: Quorvia Draft S", "Upper pen button")):
            with self.subTest(languages):
                self.env["LANGUAGE"] = languages
                driver = self.start_driver("--window")
                self.find("tdsg-driver", title.replace(" :", "\u00a0:"))
                self.find("tdsg-driver", button, "push button")
                self.stop_driver(driver)

    def test_the_simulated_tablets_keys_stay_at_their_side(self):
        self.start_driver("--window", "-reverse")  # as in a right-to-left language
        surface = self.find("tdsg-driver", "Surface")
        self.assertLess(self.find("tdsg-driver", "Key 1", "push button")["x"], surface["x"])
        label = self.find("tdsg-driver", "Tablet:", "label")
        self.assertGreater(label["x"], surface["x"] + surface["width"] / 2)


if __name__ == "__main__":
    unittest.main()
