from editor_test import EditorTest


class Languages(EditorTest):
    """The editor in the language that its environment asks for."""

    def test_speaks_the_language_that_is_asked_for(self):
        self.session.environment["LANGUAGE"] = "de_AT:en"
        self.start_editor(self.animation())
        menus = [menu.get_name() for menu in self.editor.nodes("menu item")]
        self.assertIn("Datei", menus)
        self.assertTrue(self.editor.node("label", "Breite:"))
        # What is typed and saved knows no language.
        self.assertEqual(self.editor.node("text", "Breite:").get_text(0, -1), "80")
