# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""The grid of badges and a badge's page."""

import kindora_e2e
from challenges import BREATH, COMPLIMENT, ChallengeTest

EMPTY = "No badges yet.\nComplete or create a challenge to earn one!"
BREATH_BADGE = "Catch Your Breath"
COMPLIMENT_BADGE = "Compliment Challenge"


class Badges(ChallengeTest):
    def badge(self, name):
        return self.app.wait_still(self.app.wait_for(name, role="push button"))

    def earn(self, *rows):
        for row in rows:
            self.complete(row, "Later")
            self.app.wait_for("Challenges", role="heading")
            self.app.wait_gone(row)
        self.show_badges()

    def test_says_that_there_are_none(self):
        self.show_badges()
        self.app.wait_for(EMPTY)

    def test_a_completed_challenge_is_a_badge_and_the_latest_is_the_first(self):
        self.earn(BREATH, COMPLIMENT)
        first, second = self.badge(COMPLIMENT_BADGE), self.badge(BREATH_BADGE)
        self.assertIsNone(self.app.find(EMPTY))
        # Three a row on 390 points.
        self.assertEqual(first.extents[2:], (113, 140))
        self.assertEqual(first.extents[0], 10)
        self.assertEqual(second.extents[1], first.extents[1])
        self.assertGreater(second.extents[0], first.extents[0] + 113)

    def test_the_bubble_goes_when_the_grid_appears(self):
        self.complete(BREATH, "Later")
        self.app.wait_for("Badges, 1", role="page tab")
        self.show_badges()
        self.app.wait_for("Badges", role="page tab")

    def test_a_badge_opens_its_page(self):
        self.earn(BREATH)
        self.app.click(self.badge(BREATH_BADGE))
        self.app.wait_for(BREATH_BADGE, role="heading")
        self.app.wait_for("Get a breath of fresh air!")
        self.app.wait_for("You've completed this challenge!\nNow Kindora to a friend!")
        self.app.click(self.badge("Kindora!"))
        self.app.wait_for("Select Friends", role="heading")

    def test_return_opens_the_badge_that_has_the_focus(self):
        self.earn(BREATH)
        badge = self.badge(BREATH_BADGE)
        for _ in range(12):
            if badge.has("focused"):
                break
            self.pass_tab()
        self.app.key("Return")
        self.app.wait_for("Get a breath of fresh air!")

    def test_a_fling_ends_in_the_plain_grid(self):
        self.earn(BREATH, COMPLIMENT)
        before = [self.badge(name).extents for name in (COMPLIMENT_BADGE, BREATH_BADGE)]
        for start, end in ((500, 250), (300, 600)):
            self.app.drag([(195, start), (195, end)], step=20, pace=0.002)
        kindora_e2e.wait_until(
            lambda: [
                self.app.wait_for(name, role="push button").extents
                for name in (COMPLIMENT_BADGE, BREATH_BADGE)
            ]
            == before,
            "the badges stand where they stood",
        )

    def test_badges_follow_the_width_of_the_window(self):
        self.earn(BREATH)
        self.badge(BREATH_BADGE)
        self.app.resize_window(320, 600)
        kindora_e2e.wait_until(
            lambda: self.app.wait_for(BREATH_BADGE, role="push button").extents[2:] == (90, 140),
            "the badge is 90 points wide",
        )
        self.app.click(self.badge(BREATH_BADGE))
        self.app.wait_for("Get a breath of fresh air!")


if __name__ == "__main__":
    kindora_e2e.main()
