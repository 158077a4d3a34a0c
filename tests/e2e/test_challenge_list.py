# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""The challenge list, as its user meets it."""

import kindora_e2e
from challenges import BOB, BREATH, COMPLIMENT, JOE, NONE_IN_PROGRESS, SARAH, ChallengeTest


class ChallengeList(ChallengeTest):
    def test_opens_with_the_seed_challenges_and_shows_only_the_senders_of_new_ones(self):
        self.wait_rows(BOB, JOE, SARAH, BREATH, COMPLIMENT)
        self.assertIsNotNone(self.app.find("New Challenges", role="heading"))
        self.assertIsNotNone(self.app.find("In Progress", role="heading"))
        for hidden in ("Cup o' Coffee", "Buy a coffee for someone!", "Smile Challenge"):
            self.assertIsNone(self.app.find(hidden, showing=False), hidden)

    def test_three_shakes_deliver_and_the_fourth_does_nothing(self):
        delivered = []
        for sender in ("Horace the Smiley", "Sally the Eye", "Jane the Cactus"):
            self.shake()
            self.app.wait_for(f"New challenge from {sender}!", role="alert")
            delivered.insert(0, sender)
            # The row is on top already, under the announcement, which closes by itself.
            self.wait_rows(*delivered, BOB, JOE, SARAH, BREATH, COMPLIMENT)
            self.app.wait_gone(role="alert")
        badges = self.app.wait_for("Badges", role="page tab").centre
        self.shake()
        self.shake()
        # An announcement would keep this press from the tab.
        self.app.click(badges)
        self.app.wait_for("Badges", role="heading")
        self.app.click(self.app.wait_for("Challenges", role="page tab"))
        self.app.wait_for("Challenges", role="heading")
        self.wait_rows(*delivered, BOB, JOE, SARAH, BREATH, COMPLIMENT)

    def test_a_shake_of_the_window_delivers_too(self):
        self.app.shake_window()
        self.app.wait_for("New challenge from Horace the Smiley!", role="alert")
        self.app.wait_gone(role="alert")

    def test_an_announcement_cannot_be_closed_by_hand(self):
        self.shake()
        alert = self.app.wait_for("New challenge from Horace the Smiley!", role="alert")
        self.app.key("Escape")
        self.app.click((195, 700))
        self.assertTrue(alert.showing)
        self.app.wait_gone(role="alert")

    def test_a_shake_elsewhere_is_not_heard(self):
        self.app.click(self.app.wait_for("Badges", role="page tab"))
        self.app.wait_for("No badges yet.\nComplete or create a challenge to earn one!")
        self.shake()
        self.app.click(self.app.wait_for("Challenges", role="page tab"))
        self.app.wait_for(BOB)
        self.wait_rows(BOB, JOE, SARAH, BREATH, COMPLIMENT)
        self.assertIsNone(self.app.find(role="alert"))

    def test_swiped_rejection_asks_and_never_mind_keeps_the_row(self):
        self.app.click(self.swipe_open(COMPLIMENT))
        self.app.wait_for('Reject "Compliment Challenge"?', role="alert")
        self.app.wait_for("Your Boss will be so disappointed.")
        self.choose("Never Mind")
        self.wait_rows(BOB, JOE, SARAH, BREATH, COMPLIMENT)
        self.app.wait_gone("Reject", role="push button")

    def test_swiped_rejection_removes_the_row_and_the_last_leaves_a_message(self):
        for row, left in ((COMPLIMENT, [BREATH]), (BREATH, [NONE_IN_PROGRESS])):
            self.app.click(self.swipe_open(row))
            alert = self.app.wait_still(self.app.wait_for(role="alert"))
            buttons = self.app.find_all("Reject", role="push button")
            inside = [b for b in buttons if b.extents[1] < alert.extents[1] + alert.extents[3]
                      and b.extents[1] > alert.extents[1]]
            self.app.click(min(inside, key=lambda b: b.extents[0]))
            self.wait_rows(BOB, JOE, SARAH, *left)

    def test_a_new_row_cannot_be_swiped(self):
        x, y = self.app.wait_still(self.app.wait_for(BOB)).centre
        self.app.drag([(x + 100, y), (x - 60, y)])
        self.pass_tab()
        self.assertIsNone(self.app.find("Reject", role="push button"))
        self.wait_rows(BOB, JOE, SARAH, BREATH, COMPLIMENT)
        # A row that had been swiped open would only be closed by a press.
        self.open(BOB)
        self.app.wait_for(f"{BOB} challenged you!")

    def test_a_row_is_rejected_by_the_delete_key(self):
        row = self.app.wait_for(COMPLIMENT)
        for _ in range(12):
            if row.has("focused"):
                break
            self.pass_tab()
        self.assertTrue(row.has("focused"))
        self.app.key("Delete")
        self.app.wait_for('Reject "Compliment Challenge"?', role="alert")
        self.app.key("Escape")
        self.app.wait_gone(role="alert")
        self.wait_rows(BOB, JOE, SARAH, BREATH, COMPLIMENT)

    def test_restarting_brings_the_seed_challenges_back(self):
        self.shake()
        self.app.wait_for(role="alert")
        self.app.wait_gone(role="alert")
        again = self.start_app()
        again.wait_for(BOB)
        self.assertIsNone(again.find("Horace the Smiley"))
        self.assertEqual(again.close(), 0)


if __name__ == "__main__":
    kindora_e2e.main()
