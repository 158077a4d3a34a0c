# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""The invitation of a friend, typed with keys as on a desktop."""

import kindora_e2e
from challenges import BREATH, ChallengeTest

INVITED = "Ann (Invited)"


class Invite(ChallengeTest):
    def setUp(self):
        super().setUp()
        self.open(BREATH)
        self.app.click(self.app.wait_still(self.app.wait_for("Complete", role="push button")))
        self.app.wait_for("Congrats!")
        self.choose("Kindora!")
        self.app.click(self.app.wait_still(self.app.wait_for("Sarah the Sloth")))
        self.app.wait_for("1 Friend Selected", role="heading")
        self.app.click(self.app.wait_still(self.app.wait_for("Invite a Friend...")))
        self.app.wait_still(self.app.wait_for("Invite a Friend", role="heading"))
        self.wait_focus("Name")

    def wait_focus(self, field):
        kindora_e2e.wait_until(
            lambda: self.app.wait_for(field, role="text").has("focused"), f"{field} has the focus"
        )

    def wait_text(self, field, text):
        kindora_e2e.wait_until(
            lambda: self.app.wait_for(field, role="text").text == text, f"{field} holds {text!r}"
        )

    def go_to_number(self):
        self.app.key("Return")
        self.wait_focus("Phone Number")

    def test_lays_the_number_out_as_it_is_typed(self):
        self.go_to_number()
        for key, text in zip(
            "4155552671",
            ("4", "41", "415", "415-5", "415-55", "415-555", "415-5552", "(415) 555-26",
             "(415) 555-267", "(415) 555-2671"),
        ):
            self.app.type(key)
            self.wait_text("Phone Number", text)

    def test_edits_in_the_middle_keep_the_caret_behind_its_digit(self):
        self.go_to_number()
        self.app.type("4155552671")
        self.wait_text("Phone Number", "(415) 555-2671")
        for _ in range(4):
            self.app.key("Left")
        self.app.key("BackSpace")  # the dash: nothing but the caret moves
        self.app.key("BackSpace")
        self.wait_text("Phone Number", "(415) 552-671")
        self.app.type("5")
        self.wait_text("Phone Number", "(415) 555-2671")
        self.app.key("Home")
        self.app.key("Right")
        self.app.key("Delete")
        kindora_e2e.wait_until(
            lambda: self.digits() == "155552671", "the forward delete takes the 4 away"
        )

    def digits(self):
        text = self.app.wait_for("Phone Number", role="text").text
        return "".join(character for character in text if character.isdigit())

    def test_a_letter_in_a_number_is_dropped(self):
        self.go_to_number()
        self.app.type("415x5")
        self.wait_text("Phone Number", "415-5")

    def test_invites_and_comes_back_with_the_ticks(self):
        app = self.app
        app.type("Ann")
        self.go_to_number()
        app.type("4155552671")
        app.key("Return")
        self.wait_focus("Message")
        app.type("Hi")
        app.click(app.wait_for("Send", role="push button"))
        app.wait_for("Invitation sent!")
        app.wait_gone("Invitation sent!")
        app.wait_for("1 Friend Selected", role="heading")
        app.wait_for(INVITED, role="push button")
        self.assertTrue(app.wait_for("Sarah the Sloth", role="push button").has("checked"))

    def test_the_names_first_letter_alone_does_not_enable_send(self):
        app = self.app
        self.go_to_number()
        app.type("4155552671")
        app.key("Return")
        self.wait_focus("Message")
        app.type("Hi")
        app.click(app.wait_for("Name", role="text"))
        self.wait_focus("Name")
        app.type("A")
        self.wait_text("Name", "A")
        app.click(app.wait_for("Send", role="push button"))
        self.assertIsNone(app.find("Invitation sent!"))
        app.type("l")
        self.wait_text("Name", "Al")
        app.click(app.wait_for("Send", role="push button"))
        app.wait_for("Invitation sent!")


if __name__ == "__main__":
    kindora_e2e.main()
