# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""What the scenarios of the challenge screens have in common."""

import kindora_e2e

BOB = "Bob the Astronaut"
JOE = "Joe in the Red Shirt"
SARAH = "Sarah the Sloth"
BREATH = "Catch Your Breath, From: Josh the Whale"
COMPLIMENT = "Compliment Challenge, From: Your Boss"
NO_NEW = "No New Challenges"
NONE_IN_PROGRESS = "No Challenges in Progress"
ACCEPTED = "Challenge accepted!"


class ChallengeTest(kindora_e2e.AppTest):
    """A test that begins at the challenge list."""

    def setUp(self):
        super().setUp()
        self.app.wait_for(BOB)

    def rows(self):
        """The names of the list's rows and placeholders, from top to bottom."""
        nodes = [
            node
            for role in ("push button", "label")
            for node in self.app.find_all(role=role)
            if node.extents[2] == 390 and node.extents[3] >= 60
        ]
        return [node.name for node in sorted(nodes, key=lambda node: node.extents[1])]

    def wait_rows(self, *names):
        kindora_e2e.wait_until(lambda: self.rows() == list(names), f"the rows {names}")

    def shake(self):
        self.app.key("ctrl+shift+k")

    def focused(self):
        """Where the keyboard is."""
        return [node.name for node in self.app.find_all() if node.has("focused")]

    def pass_tab(self):
        """Presses Tab and waits until the keyboard has gone on: then the app has heard of all that
        was done before."""
        before = self.focused()
        self.app.key("Tab")
        kindora_e2e.wait_until(
            lambda: self.focused() not in ([], before), f"Tab moves the keyboard from {before}"
        )

    def open(self, row):
        """Opens a row's screen and waits until it stands still."""
        self.app.click(self.app.wait_still(self.app.wait_for(row)))
        self.app.wait_gone("Challenges", role="heading")

    def reveal(self):
        """Scratches the cover away by its button, until the user can decide."""
        self.app.click(self.app.wait_still(self.app.wait_for("Scratch the cover away")))
        return self.app.wait_for("Accept")

    def choose(self, action):
        """Answers the alert."""
        self.app.click(self.app.wait_still(self.app.wait_for(action, role="push button")))
        self.app.wait_gone(role="alert")

    def swipe_open(self, row):
        x, y = self.app.wait_still(self.app.wait_for(row)).centre
        self.app.drag([(x + 100, y), (x - 60, y)])
        return self.app.wait_still(self.app.wait_for("Reject", role="push button"))

    def complete(self, row, answer):
        """Completes the challenge of a row in progress, and answers whether to pass it on."""
        self.open(row)
        self.app.click(self.app.wait_still(self.app.wait_for("Complete", role="push button")))
        self.app.wait_for("Congrats!", role="alert")
        self.choose(answer)

    def show_badges(self):
        """Goes to the second tab, whatever its bubble says."""
        tabs = self.app.find_all(role="page tab")
        self.app.click(next(tab for tab in tabs if tab.name.startswith("Badges")))
        self.app.wait_for("Badges", role="heading")
