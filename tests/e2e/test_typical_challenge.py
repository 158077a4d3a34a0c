# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""A challenge's whole life: delivered, scratched free, accepted, completed, and passed on."""

import kindora_e2e
from challenges import ACCEPTED, ChallengeTest

SENDER = "Horace the Smiley"


class TypicalChallenge(ChallengeTest):
    def test_from_the_shake_to_the_friends(self):
        app = self.app
        before = self.rows()
        self.shake()
        app.wait_for(f"New challenge from {SENDER}!")
        app.wait_gone(f"New challenge from {SENDER}!")
        self.assertEqual(self.rows(), [SENDER, *before])

        self.open(SENDER)
        self.reveal()
        title = self.challenge_title()
        app.click(app.wait_still(app.wait_for("Accept", role="push button")))
        app.wait_for(ACCEPTED)
        app.wait_gone(ACCEPTED)
        row = app.wait_still(app.wait_for(f"{title}, From: {SENDER}"))
        self.assertEqual(self.rows()[-1], row.name)

        app.click(row)
        app.click(app.wait_still(app.wait_for("Complete", role="push button")))
        app.wait_for("Badges, 1", role="page tab")
        app.wait_for("Congrats!")
        self.choose("Kindora!")

        app.wait_for("Select Friends", role="heading")
        app.wait_for(f'Passing on "{title}"...')
        for name in ("Bob the Astronaut", SENDER):
            app.click(app.wait_still(app.wait_for(name, role="push button")))
        app.wait_for("2 Friends Selected", role="heading")
        app.click(app.wait_for("Send", role="push button"))
        passed_on = f'Passed on "{title}" to 2 friends!'
        app.wait_for(passed_on)
        app.wait_gone(passed_on)
        app.wait_still(app.wait_for("You've passed this on!"))
        app.click(app.wait_still(app.wait_for("Back", role="push button")))
        app.wait_still(app.wait_for(title, role="push button"))
        app.wait_for("Badges", role="page tab")
        app.click(app.wait_for("Challenges", role="page tab"))
        app.wait_for("New Challenges")
        self.assertEqual(self.rows(), before)

    def challenge_title(self):
        """What the revealed challenge is called: the label right above its description."""
        # It is told as an alert while it is announced.
        labels = [
            node
            for role in ("label", "alert")
            for node in self.app.find_all(role=role)
            if node.extents[1] > 100
        ]
        return min(labels, key=lambda node: node.extents[1]).name


if __name__ == "__main__":
    kindora_e2e.main()
