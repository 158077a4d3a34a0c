# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""The app starts, shows its first screen, and leaves without a word or a trace."""

import kindora_e2e


class Launch(kindora_e2e.AppTest):
    def test_the_window_fills_a_phones_screen(self):
        self.assertEqual(self.app.title, "Kindora")
        self.assertEqual(
            self.app.geometry(), (0, 0, kindora_e2e.WIDTH, kindora_e2e.HEIGHT)
        )

    def test_the_first_screen_is_the_list_of_challenges(self):
        self.assertTrue(self.app.wait_for("Challenges", role="page tab").has("selected"))
        self.assertFalse(self.app.wait_for("Badges", role="page tab").has("selected"))
        for sender in ("Bob the Astronaut", "Joe in the Red Shirt", "Sarah the Sloth"):
            self.app.wait_for(sender)

    def test_no_file_is_left_behind(self):
        self.app.wait_for("Challenges", role="page tab")
        self.assertEqual(self.app.close(), 0)
        self.assertEqual(self.app.left_behind(), [])

    def test_a_second_start_shows_the_same_list(self):
        self.app.wait_for("Sarah the Sloth")
        first = [node.name for node in self.app.find_all(role="push button")]
        self.app.key("ctrl+shift+k")
        self.app.wait_for("Horace the Smiley")
        self.assertEqual(self.app.close(), 0)
        again = self.start_app()
        again.wait_for("Sarah the Sloth")
        self.assertIsNone(again.find("Horace the Smiley"))
        self.assertEqual([node.name for node in again.find_all(role="push button")], first)


if __name__ == "__main__":
    kindora_e2e.main()
