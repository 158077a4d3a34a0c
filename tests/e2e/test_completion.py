# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""A challenge in progress completed with all its ceremony, or deleted."""

import kindora_e2e
from challenges import BOB, BREATH, COMPLIMENT, JOE, SARAH, ChallengeTest

SENT = "Josh the Whale sent you this challenge."
QUESTION = "Would you like to pass this challenge on to a friend?"
DELETION = 'Reject "Catch Your Breath"?'


class Completion(ChallengeTest):
    def setUp(self):
        super().setUp()
        self.open(BREATH)
        self.app.wait_still(self.app.wait_for(SENT))

    def press(self, name):
        self.app.click(self.app.wait_still(self.app.wait_for(name, role="push button")))

    def wait_list(self, *rows):
        self.app.wait_for("Challenges", role="heading")
        self.wait_rows(*rows)

    def choose_in_alert(self, action):
        """Presses the alert's own button: the page below may have one of the same name."""
        alert = self.app.wait_still(self.app.wait_for(role="alert"))
        _, top, _, height = alert.extents
        inside = [
            button
            for button in self.app.find_all(action, role="push button")
            if top < button.extents[1] < top + height
        ]
        self.app.click(inside[-1])
        self.app.wait_gone(role="alert")

    def test_the_button_becomes_a_finished_mark(self):
        self.press("Complete")
        self.app.wait_for("Completed", role="push button")
        self.app.wait_gone("Delete", role="push button")
        self.app.wait_gone("Back", role="push button")
        self.app.wait_for("Congrats!", role="alert")
        self.app.wait_for(QUESTION)
        self.choose("Later")

    def test_later_leads_back_to_the_list_with_one_badge_more(self):
        self.press("Complete")
        self.app.wait_for("Congrats!", role="alert")
        self.choose("Later")
        self.wait_list(BOB, JOE, SARAH, COMPLIMENT)
        self.app.wait_for("Badges, 1", role="page tab")

    def test_escape_means_later(self):
        self.press("Complete")
        self.app.wait_still(self.app.wait_for("Congrats!", role="alert"))
        self.app.key("Escape")
        self.wait_list(BOB, JOE, SARAH, COMPLIMENT)

    def test_kindora_leads_to_the_picker_above_the_badge(self):
        self.press("Complete")
        self.app.wait_for("Congrats!", role="alert")
        self.choose("Kindora!")
        self.app.wait_still(self.app.wait_for("Search", role="text"))
        self.app.key("Escape")
        self.app.wait_still(self.app.wait_for("Get a breath of fresh air!"))
        self.app.wait_gone("Send", role="push button")
        self.app.key("Escape")
        self.app.wait_for("Badges", role="heading")
        self.app.wait_for("Catch Your Breath", role="push button")
        self.app.click(self.app.wait_for("Challenges", role="page tab"))
        self.wait_list(BOB, JOE, SARAH, COMPLIMENT)

    def test_nothing_leaves_the_ceremony(self):
        # The keys come right after the press, before the app does anything else.
        self.press("Complete")
        self.app.key("Escape")
        self.app.key("alt+Left")
        self.app.drag([(3, 600), (200, 600)])
        self.app.click((195 + 97, 844 - 24))
        self.app.wait_for("Congrats!", role="alert")
        self.app.wait_for(QUESTION)
        self.choose("Later")
        self.wait_list(BOB, JOE, SARAH, COMPLIMENT)

    def test_the_tabs_can_be_pressed_again_afterwards(self):
        self.press("Complete")
        self.app.wait_for("Congrats!", role="alert")
        self.choose("Later")
        self.wait_list(BOB, JOE, SARAH, COMPLIMENT)
        self.show_badges()
        self.app.wait_for("Catch Your Breath", role="push button")
        self.app.wait_for("Badges", role="page tab")

    def test_deleting_takes_it_off_the_list(self):
        self.press("Delete")
        self.app.wait_for(DELETION, role="alert")
        self.app.wait_for("Josh the Whale will be so disappointed.")
        self.choose_in_alert("Reject")
        self.wait_list(BOB, JOE, SARAH, COMPLIMENT)
        self.app.wait_for("Badges", role="page tab")

    def test_never_mind_keeps_it(self):
        self.press("Delete")
        self.app.wait_for(DELETION, role="alert")
        self.choose_in_alert("Never Mind")
        self.app.wait_for(SENT)
        self.app.key("Escape")
        self.wait_list(BOB, JOE, SARAH, BREATH, COMPLIMENT)


if __name__ == "__main__":
    kindora_e2e.main()
