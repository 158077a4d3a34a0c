# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Ways to and fro between the screens."""

import kindora_e2e
from challenges import BOB, BREATH, COMPLIMENT, JOE, SARAH, ChallengeTest


class Navigation(ChallengeTest):
    def in_progress(self):
        self.open(BREATH)
        self.app.wait_still(self.app.wait_for("Josh the Whale sent you this challenge."))

    def back_to_list(self):
        self.app.wait_for("Challenges", role="heading")
        self.wait_rows(BOB, JOE, SARAH, BREATH, COMPLIMENT)

    def test_back_by_the_arrow(self):
        self.in_progress()
        self.app.click(self.app.wait_for("Back", role="push button"))
        self.back_to_list()

    def test_back_by_escape(self):
        self.in_progress()
        self.app.key("Escape")
        self.back_to_list()

    def test_back_by_alt_left(self):
        self.in_progress()
        self.app.key("alt+Left")
        self.back_to_list()

    def test_back_by_a_swipe_from_the_edge(self):
        self.in_progress()
        self.app.drag([(3, 600), (330, 600)])
        self.back_to_list()

    def test_a_swipe_that_turns_back_stays(self):
        self.in_progress()
        self.app.drag([(3, 600), (100, 600), (20, 600)])
        self.app.wait_still(self.app.wait_for("Josh the Whale sent you this challenge."))
        self.assertIsNotNone(self.app.find("Catch Your Breath", role="heading"))

    def test_the_selected_tab_goes_back_to_its_root(self):
        self.in_progress()
        self.app.click(self.app.wait_for("Challenges", role="page tab"))
        self.back_to_list()

    def test_a_tab_keeps_its_screen(self):
        self.in_progress()
        self.app.click(self.app.wait_for("Badges", role="page tab"))
        self.app.wait_gone("Josh the Whale sent you this challenge.")
        self.app.click(self.app.wait_for("Challenges", role="page tab"))
        self.app.wait_for("Josh the Whale sent you this challenge.")

    def test_return_opens_the_row_that_has_the_focus(self):
        row = self.app.wait_for(BREATH)
        for _ in range(12):
            if row.has("focused"):
                break
            self.pass_tab()
        self.app.key("Return")
        self.app.wait_for("Josh the Whale sent you this challenge.")

    def test_nothing_is_cut_on_a_small_screen(self):
        self.app.resize_window(320, 480)
        self.open(BOB)
        accept = self.app.wait_still(self.reveal())
        x, y, width, height = accept.extents
        self.assertLessEqual(x + width, 320)
        self.assertLessEqual(y + height, 480 - 49)


if __name__ == "__main__":
    kindora_e2e.main()
