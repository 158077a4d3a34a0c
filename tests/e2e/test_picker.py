# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Friends picked, searched for, and a challenge sent to them."""

import kindora_e2e
from challenges import BOB, BREATH, JOE, SARAH, ChallengeTest

JOSH = "Josh the Whale"
INVITE = "Invite a Friend..."
TICKED = " (ticked)"
PROMPT = 'Passing on "Catch Your Breath"...'


class Picker(ChallengeTest):
    def setUp(self):
        super().setUp()
        self.complete(BREATH, "Kindora!")
        self.app.wait_still(self.app.wait_for("Search", role="text"))

    def press(self, name):
        self.app.click(self.app.wait_still(self.app.wait_for(name)))

    def search(self):
        """Puts the keyboard into the search bar."""
        self.app.click(self.app.wait_still(self.app.wait_for("Search", role="text")))
        self.app.wait_for("Cancel", role="push button")

    def friends(self):
        """The names of the friends that are listed, with a mark on those that are ticked."""
        rows = self.app.find_all(role="push button")
        known = (BOB, JOE, SARAH, JOSH)
        return sorted(row.name + (TICKED if row.has("checked") else "")
                      for row in rows if row.name in known)

    def wait_friends(self, *names):
        kindora_e2e.wait_until(
            lambda: self.friends() == sorted(names),
            lambda: f"the friends {names}, there are {self.friends()}",
        )

    def refuses_to_send(self):
        """A press on Send is followed by nothing: friends can still be ticked and unticked."""
        self.press("Send")
        self.press(SARAH)
        self.app.wait_for("1 Friend Selected", role="heading")
        self.press(SARAH)
        self.app.wait_for("Select Friends", role="heading")

    def test_names_the_challenge_above_the_title(self):
        self.app.wait_for(PROMPT)
        self.app.key("Escape")
        self.app.wait_gone(PROMPT)

    def test_ticks_and_unticks(self):
        self.refuses_to_send()
        self.press(BOB)
        self.app.wait_for("1 Friend Selected", role="heading")
        self.press(JOE)
        self.app.wait_for("2 Friends Selected", role="heading")
        self.press(BOB)
        self.app.wait_for("1 Friend Selected", role="heading")
        self.press(JOE)
        self.app.wait_for("Select Friends", role="heading")
        self.refuses_to_send()

    def test_a_search_without_text_shows_nobody(self):
        self.wait_friends(BOB, JOE, SARAH, JOSH)
        self.search()
        self.wait_friends()
        self.app.wait_for(INVITE)

    def test_a_search_shows_whose_name_contains_what_is_typed(self):
        self.search()
        self.app.type("THE s")
        self.wait_friends(SARAH)

    def test_ticks_survive_a_search(self):
        self.press(BOB)
        self.wait_friends(BOB + TICKED, JOE, SARAH, JOSH)
        self.search()
        self.wait_friends()
        self.app.wait_for("1 Friend Selected", role="heading")
        self.press("Cancel")
        self.wait_friends(BOB + TICKED, JOE, SARAH, JOSH)

    def test_one_may_tick_while_searching(self):
        self.search()
        self.app.type("sloth")
        self.wait_friends(SARAH)
        self.press(SARAH)
        self.app.wait_for("1 Friend Selected", role="heading")
        self.press("Cancel")
        self.wait_friends(BOB, JOE, SARAH + TICKED, JOSH)

    def test_escape_ends_the_search_and_not_the_picker(self):
        self.search()
        self.wait_friends()
        self.app.key("Escape")
        self.wait_friends(BOB, JOE, SARAH, JOSH)
        self.app.wait_for("Select Friends", role="heading")

    def test_sends_and_says_so(self):
        self.press(BOB)
        self.app.wait_for("1 Friend Selected", role="heading")
        self.press("Send")
        # While the card flies, nothing leaves the picker.
        self.app.key("Escape")
        self.app.key("alt+Left")
        self.app.click(self.app.find_all(role="page tab")[0])
        self.app.wait_for('Passed on "Catch Your Breath" to 1 friend!', role="alert")
        self.app.key("Escape")
        self.app.wait_for("You've passed this on!")
        self.app.wait_for("Catch Your Breath", role="heading")
        self.app.wait_gone(PROMPT)
        self.app.wait_gone(role="alert")

    def test_leaving_passes_nothing_on(self):
        self.press(BOB)
        self.app.wait_for("1 Friend Selected", role="heading")
        self.app.click(self.app.wait_for("Back", role="push button"))
        self.app.wait_for("You've completed this challenge!\nNow Kindora to a friend!")
        self.press("Kindora!")
        self.app.wait_for("Select Friends", role="heading")
        self.wait_friends(BOB, JOE, SARAH, JOSH)


if __name__ == "__main__":
    kindora_e2e.main()
