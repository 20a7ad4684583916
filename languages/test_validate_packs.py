#!/usr/bin/env python3
"""Each rule of validate_packs.py refuses a pack that breaks it, and a sound pack passes."""

import codecs
import unittest

import builtin_texts
import build_pack
import validate_packs

BUILTIN = {
    101: "Page :\\r\\n%%URL%%\\r\\n%%WORD%%",
    102: "%s has %d words\\nand more",
    103: "Copyright && &Credits",
    104: "RGB: ",
    105: "https://www.trelvix.example/",
    106: "screenshot.jpg",
    114: "English (default)",
    262: None,
}

SOUND = """# A comment

101:Seite:\\r\\n%%URL%%\\r\\n%%WORD%%
102:%s hat %d Wörter\\nund mehr
103:Rechte && &Dank
104:RGB\xa0: 
105:https://www.trelvix.example/
106:screenshot.jpg
114:Deutsch
262:Leiste umschalten
"""

KNOWN_FILES = {"GERMAN", "ENGLISH"}


def problems_of(source, language="GERMAN"):
    return problems_of_bytes(build_pack.pack_bytes(source.encode("utf-8")), language)


def problems_of_bytes(pack, language="GERMAN"):
    return validate_packs.problems_of_pack(language, pack, BUILTIN, KNOWN_FILES)


class PackOfTheRightForm(unittest.TestCase):
    def setUp(self):
        self.pack = build_pack.pack_bytes(SOUND.encode("utf-8"))

    def test_is_accepted(self):
        self.assertEqual(problems_of_bytes(self.pack), [])

    def test_has_a_mark_and_windows_line_ends(self):
        self.assertEqual(build_pack.pack_bytes("1:ä\n2:b\n".encode("utf-8")), b"\xff\xfe" + "1:ä\r\n2:b\r\n".encode("utf-16-le"))

    def test_needs_its_mark(self):
        self.assertIn("has no UTF-16 mark", problems_of_bytes(self.pack[2:]))

    def test_must_not_be_utf_8(self):
        self.assertIn("has no UTF-16 mark", problems_of_bytes(codecs.BOM_UTF8 + SOUND.encode("utf-8")))

    def test_must_not_be_cut_in_a_character(self):
        self.assertIn("is no UTF-16: truncated data at byte", " ".join(problems_of_bytes(self.pack[:-1])))

    def test_must_not_hold_half_a_pair(self):
        self.assertIn("is no UTF-16", " ".join(problems_of_bytes(self.pack + b"\x00\xd8\r\x00\n\x00")))

    def test_needs_windows_line_ends(self):
        text = codecs.BOM_UTF16_LE + SOUND.encode("utf-16-le")
        self.assertIn("does not end with a line end", problems_of_bytes(text))

    def test_must_not_mix_line_ends(self):
        mixed = self.pack.replace("\r\n104".encode("utf-16-le"), "\n104".encode("utf-16-le"))
        self.assertIn("line 5 holds a control character", problems_of_bytes(mixed))

    def test_needs_a_final_line_end(self):
        self.assertIn("does not end with a line end", problems_of_bytes(self.pack[:-4]))

    def test_must_not_hold_a_tab_or_nul(self):
        self.assertIn("line 8 holds a control character", problems_of(SOUND.replace("screenshot", "screen\tshot")))
        self.assertIn("line 8 holds a control character", problems_of(SOUND.replace("screenshot", "screen\0shot")))

    def test_may_have_lines_that_just_fit_the_buffer_of_the_reader(self):
        fitting = validate_packs.LONGEST_LINE - len("262:") - len("\r\n")
        self.assertEqual(problems_of(SOUND.replace("Leiste umschalten", "x" * fitting)), [])
        self.assertIn("line 10 is too long", problems_of(SOUND.replace("Leiste umschalten", "x" * (fitting + 1))))

    def test_needs_a_name_that_the_toolbar_looks_for(self):
        self.assertIn("has a name that the toolbar does not look for", problems_of(SOUND, "BAVARIAN"))


class EntriesOfPack(unittest.TestCase):
    def assert_refused(self, sound, damaged, problem):
        self.assertIn(sound, SOUND)
        self.assertEqual(problems_of(SOUND.replace(sound, damaged)), [problem])

    def test_must_have_a_number_in_front(self):
        self.assert_refused("# A comment", "A remark", "line 1 is neither an entry nor a comment")
        self.assert_refused("# A comment", " 101:indented", "line 1 is neither an entry nor a comment")
        self.assert_refused("# A comment", "101", "line 1 is neither an entry nor a comment")

    def test_must_be_known(self):
        self.assert_refused("# A comment", "999:Unbekannt", "999 is no text of the toolbar")

    def test_must_be_there(self):
        self.assert_refused("106:screenshot.jpg\n", "", "106 is missing")
        self.assert_refused("262:Leiste umschalten\n", "", "262 is missing")

    def test_must_not_be_there_twice(self):
        self.assert_refused("# A comment", "114:Deutsch", "114 is there 2 times")

    def test_must_not_be_empty(self):
        self.assert_refused("262:Leiste umschalten", "262:", "262 is empty")
        self.assert_refused("262:Leiste umschalten", "262:  ", "262 is empty")

    def test_must_keep_the_markers(self):
        problem = "101 has not the markers ['%%URL%%', '%%WORD%%']"
        self.assert_refused("%%URL%%", "%%ADRESSE%%", problem)
        self.assert_refused("\\r\\n%%WORD%%", "\\r\\nWort", problem)

    def test_must_keep_the_order_of_the_markers(self):
        self.assert_refused(
            "%%URL%%\\r\\n%%WORD%%", "%%WORD%%\\r\\n%%URL%%", "101 has not the markers ['%%URL%%', '%%WORD%%']"
        )

    def test_must_keep_what_is_formatted_and_its_order(self):
        problem = "102 has not the markers ['%s', '%d']"
        self.assert_refused("%s hat %d Wörter", "%d Wörter hat %s", problem)
        self.assert_refused("%s hat", "%s %s hat", problem)
        self.assert_refused("%s hat", "%S hat", problem)

    def test_must_keep_the_line_ends(self):
        self.assert_refused("Wörter\\nund", "Wörter und", "102 has not the line ends ['\\\\n']")
        self.assert_refused("Wörter\\nund", "Wörter\\r\\nund", "102 has not the line ends ['\\\\n']")

    def test_must_not_have_other_escapes(self):
        self.assert_refused("Leiste", "C:\\Leiste", "262 has a backslash that starts no line end or tab")

    def test_must_keep_the_ampersands(self):
        problem = "103 has not the ampersands ['&&', '&']"
        self.assert_refused("&& &Dank", "&& Dank", problem)
        self.assert_refused("&& &Dank", "& &Dank", problem)

    def test_must_keep_the_blanks_at_the_end(self):
        self.assert_refused(
            "RGB\xa0: \n", "RGB\xa0:\n", "104 has not the blanks of the built-in text at its start or end"
        )

    def test_must_keep_addresses_and_file_names(self):
        self.assert_refused("example/\n", "example/de/\n", "105 is another address or file name than the built-in one")
        self.assert_refused("screenshot.jpg", "bild.jpg", "106 is another address or file name than the built-in one")

    def test_must_name_the_language_in_itself(self):
        self.assert_refused("114:Deutsch", "114:German", "114 is not the language's own name")

    def test_of_the_english_pack_are_the_built_in_ones(self):
        english = "".join(f"{number}:{text or 'Own'}\n" for number, text in BUILTIN.items())
        self.assertEqual(problems_of(english, "ENGLISH"), [])
        self.assertEqual(problems_of(english.replace("words", "wrds"), "ENGLISH"), ["102 differs from the built-in English"])


class BuiltinTexts(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.texts = builtin_texts.read_builtin_texts(validate_packs.ROOT / "resources")

    def test_hold_the_string_table(self):
        self.assertEqual(self.texts[140], "OK")
        self.assertEqual(self.texts[108], "RGB: ")

    def test_are_joined_from_their_pieces(self):
        self.assertEqual(self.texts[127], "\\r\\n\\r\\n--------------\\r\\nGenerated by www.trelvix.example")

    def test_have_plain_quotes(self):
        self.assertIn('Click "Yes" to go', self.texts[166])

    def test_hold_the_menu_commands(self):
        self.assertEqual(self.texts[208], "About Trelvix ...")
        self.assertEqual(self.texts[33010], "Detached")

    def test_leave_three_texts_to_the_packs(self):
        self.assertEqual([number for number, text in self.texts.items() if text is None], [262, 263, 264])


class KnownFiles(unittest.TestCase):
    def test_are_all_in_the_table_of_the_toolbar(self):
        table = (validate_packs.ROOT / "settings" / "LanguageTable.cpp").read_text(encoding="utf-8")
        files = validate_packs.read_known_files(table)
        self.assertEqual(len(files), 53)
        self.assertLessEqual(validate_packs.LANGUAGE_NAMES.keys(), files)


if __name__ == "__main__":
    unittest.main()
