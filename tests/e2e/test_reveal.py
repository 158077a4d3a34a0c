# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""A new challenge scratched free, accepted or rejected."""

import kindora_e2e
from challenges import ACCEPTED, BOB, BREATH, COMPLIMENT, JOE, SARAH, ChallengeTest

COFFEE = "Cup o' Coffee"
COFFEE_ROW = COFFEE + ", From: " + BOB
TEXTS = (COFFEE, "Buy a coffee for someone!", "Accept", "Reject")


class Reveal(ChallengeTest):
    def setUp(self):
        super().setUp()
        self.open(BOB)
        self.app.wait_still(self.app.wait_for(f"{BOB} challenged you!"))

    def scratch_by_finger(self):
        """Rubs over the card to and fro, line by line."""
        top, bottom = self.card()
        for y in range(top + 20, bottom, 30):
            self.app.drag([(345, y), (45, y)])

    def card(self):
        """Top and bottom of the card, which stands above the button named for scratching."""
        button = self.app.wait_still(self.app.wait_for("Scratch the cover away"))
        bottom = button.extents[1] - 12
        return bottom - 320, bottom

    def back_to_list(self):
        self.app.wait_for("Challenges", role="heading")

    def test_a_covered_challenge_is_not_in_the_accessibility_tree(self):
        for text in TEXTS:
            self.assertIsNone(self.app.find(text), text)

    def test_a_finger_scratches_the_challenge_free(self):
        top, bottom = self.card()
        before = self.app.pixel(195, (top + bottom) // 2)
        self.scratch_by_finger()
        for text in TEXTS:
            self.app.wait_for(text)
        self.app.wait_gone("Scratch the cover away")
        self.assertNotEqual(self.app.pixel(195, (top + bottom) // 2), before)

    def test_a_finger_that_leaves_the_button_scratches_nothing(self):
        self.app.press(self.app.wait_still(self.app.wait_for("Scratch the cover away")))
        self.app.move((195, 720))
        self.app.release()
        # The first scratch would have closed this way.
        self.app.click(self.app.wait_for("Back", role="push button"))
        self.back_to_list()

    def test_accepting_moves_it_to_the_end_of_those_in_progress(self):
        self.app.click(self.app.wait_still(self.reveal()))
        self.app.wait_for(ACCEPTED, role="alert")
        self.app.wait_for(
            "This challenge is now in progress. Come back when you've completed it.")
        self.app.key("Escape")
        self.back_to_list()
        self.wait_rows(JOE, SARAH, BREATH, COMPLIMENT, COFFEE_ROW)

    def test_rejecting_takes_it_off_the_list(self):
        self.reveal()
        self.app.click(self.app.wait_still(self.app.wait_for("Reject", role="push button")))
        self.app.wait_for(f'Reject "{COFFEE}"?', role="alert")
        self.app.wait_for(f"{BOB} will be so disappointed.")
        alert = self.app.wait_still(self.app.wait_for(role="alert"))
        inside = [b for b in self.app.find_all("Reject", role="push button")
                  if alert.extents[1] < b.extents[1] < alert.extents[1] + alert.extents[3]]
        self.app.click(inside[-1])
        self.back_to_list()
        self.wait_rows(JOE, SARAH, BREATH, COMPLIMENT)

    def test_never_mind_leaves_the_challenge_to_decide_on(self):
        self.reveal()
        self.app.click(self.app.wait_still(self.app.wait_for("Reject", role="push button")))
        self.choose("Never Mind")
        for text in TEXTS:
            self.assertIsNotNone(self.app.find(text), text)

    def test_going_back_before_the_first_scratch_changes_nothing(self):
        self.app.click(self.app.wait_for("Back", role="push button"))
        self.back_to_list()
        self.wait_rows(BOB, JOE, SARAH, BREATH, COMPLIMENT)

    def test_every_way_back_is_closed_from_the_first_scratch_on(self):
        _, bottom = self.card()
        self.app.click((195, bottom - 150))
        self.app.wait_gone("Back", role="push button")
        self.app.key("Escape")
        self.app.key("alt+Left")
        self.app.drag([(3, 600), (300, 600)])
        self.app.click(self.app.wait_for("Challenges", role="page tab"))
        # Takes longer than any way back would have taken, and works nowhere else.
        self.reveal()
        self.assertIsNotNone(self.app.find(f"{BOB} challenged you!"))
        self.assertIsNone(self.app.find("Challenges", role="heading"))

    def test_a_shake_is_not_heard_here(self):
        back = self.app.wait_for("Back", role="push button").centre
        self.shake()
        # An announcement would keep this press from the button.
        self.app.click(back)
        self.back_to_list()
        self.wait_rows(BOB, JOE, SARAH, BREATH, COMPLIMENT)


if __name__ == "__main__":
    kindora_e2e.main()
