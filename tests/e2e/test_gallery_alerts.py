# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""The gallery's alerts: every one opened, typed into, and answered by pointer and by keyboard."""

import kindora_e2e


class GalleryAlerts(kindora_e2e.AppTest):
    def setUp(self):
        super().setUp()
        self.app.click(self.app.wait_still(self.row("Alerts")))
        self.app.wait_for("Alerts", role="heading")
        self.app.wait_settled()

    def find_row(self, title):
        buttons = self.app.find_all(role="push button")
        return next((node for node in buttons if node.name.startswith(title + ", ")), None)

    def row(self, title):
        return kindora_e2e.wait_until(lambda: self.find_row(title), f"the row of {title}")

    def scroll_to(self, title):
        """Brings the row above the line at the bottom, and returns it."""
        app = self.app
        caption = app.geometry()[3] - 48
        way = 1
        seen = None

        def in_sight():
            nonlocal way, seen
            app.wait_settled()
            # Only rows near what is in sight are there.
            row = self.find_row(title)
            if row is not None:
                _, y, _, height = row.extents
                if 44 <= y and y + height <= caption:
                    return row
                way = 1 if y >= 44 else -1
            places = [node.extents for node in app.find_all(role="push button")]
            if places == seen:
                way = -way
            seen = places
            app.wheel((200, caption - 100), way if row else 3 * way)
            return None

        return kindora_e2e.wait_until(in_sight, f"the row of {title} is in sight")

    def open(self, title, button):
        """Chooses the row, and waits for the alert with the button."""
        self.app.click(self.scroll_to(title))
        return self.app.wait_still(self.app.wait_for(button, role="push button"))

    def press(self, button):
        self.app.click(self.app.wait_still(self.app.wait_for(button, role="push button")))

    def wait_outcome(self, text):
        self.app.wait_for(text, role="label")

    def wait_focus(self, name, role=None):
        kindora_e2e.wait_until(
            lambda: any(node.has("focused") for node in self.app.find_all(name, role)),
            lambda: f"{name} has the focus in\n{self.app.tree()}",
        )

    def focused(self):
        """The names of what has the focus and can be pressed or typed into."""
        roles = ("push button", "text", "password text")
        return [node.name for node in self.app.all_nodes()
                if node.role in roles and node.has("focused")]

    def wait_focus_on_row(self, title):
        kindora_e2e.wait_until(
            lambda: any(name.startswith(title + ", ") for name in self.focused()),
            lambda: f"the row of {title} has the focus, not {self.focused()}",
        )

    def typed(self, text):
        self.app.type(text)
        kindora_e2e.wait_until(
            lambda: any(node.text == text for node in self.app.find_all(role="text")),
            f"a field holds {text!r}",
        )

    # Alerts on a card.

    def test_one_action_is_pressed_with_the_pointer(self):
        self.open("One action", "OK")
        self.app.wait_for("Badge earned", role="alert")
        self.press("OK")
        self.wait_outcome("You chose OK.")
        self.app.wait_gone(role="alert")
        self.wait_focus_on_row("One action")

    def test_two_actions_stand_side_by_side(self):
        keep = self.open("Two actions", "Keep").extents
        delete = self.app.wait_for("Delete", role="push button").extents
        self.assertEqual((keep[2], delete[2]), (135, 135))
        self.assertEqual((delete[0], delete[1]), (keep[0] + 135, keep[1]))
        self.press("Delete")
        self.wait_outcome("You chose Delete.")

    def test_more_actions_and_chosen_layouts_stack(self):
        app = self.app
        for title, buttons in (
            ("Three actions", ["Save", "Save a copy", "Cancel"]),
            ("Two actions, stacked", ["Go on with it now", "Later"]),
            ("Five actions", ["Bob", "Carl", "Dora", "Emma", "Nobody"]),
        ):
            x, y, _, _ = self.open(title, buttons[0]).extents
            for index, button in enumerate(buttons):
                place = app.wait_for(button, role="push button").extents
                self.assertEqual(place, (x, y + 44 * index, 270, 44), button)
            self.press(buttons[-1])
            self.wait_outcome(f"You chose {buttons[-1]}.")
            app.wait_gone(role="alert")

    def test_a_row_that_is_too_long_scrolls_sideways(self):
        app = self.app
        x, y, width, height = self.open("Four actions in a row", "North").extents
        self.assertEqual(width, 90)
        app.drag([(x + 220, y + height / 2), (x + 40, y + height / 2)])
        west = app.wait_for("West", role="push button")
        kindora_e2e.wait_until(
            lambda: app.wait_still(west).extents[0] == x + 180, "the last button is in sight"
        )
        app.click(west)
        self.wait_outcome("You chose West.")

    def test_esc_does_nothing_without_a_cancel_action(self):
        app = self.app
        self.open("Four actions in a row", "North")
        app.key("Escape")
        for _ in range(4):
            app.key("Tab")
        self.wait_focus("West", role="push button")
        app.key("Return")
        self.wait_outcome("You chose West.")

    def test_esc_chooses_the_cancel_action(self):
        self.open("Two actions", "Keep")
        self.app.key("Escape")
        self.wait_outcome("You chose Keep.")
        self.wait_focus_on_row("Two actions")

    def test_keys_choose_and_the_focus_stays_inside_and_returns(self):
        app = self.app
        self.scroll_to("Three actions")
        for _ in range(30):
            if any(name.startswith("Three actions, ") for name in self.focused()):
                break
            app.key("Tab")
        app.key("Return")
        app.wait_still(app.wait_for("Save", role="push button"))
        inside = {"Save", "Save a copy", "Cancel"}
        seen = set()
        for _ in range(8):
            app.key("Tab")
            kindora_e2e.wait_until(
                lambda: self.focused() and set(self.focused()) <= inside,
                lambda: f"the focus stays inside the alert, not on {self.focused()}",
            )
            seen |= set(self.focused())
        self.assertEqual(seen, inside)
        for _ in range(3):
            if self.focused() == ["Save a copy"]:
                break
            app.key("Tab")
        self.wait_focus("Save a copy")
        app.key("space")
        self.wait_outcome("You chose Save a copy.")
        self.wait_focus_on_row("Three actions")

    def test_the_list_behind_takes_neither_presses_nor_the_wheel(self):
        app = self.app
        place = app.wait_still(self.row("One action")).extents
        self.open("Two actions", "Keep")
        self.assertIsNone(self.find_row("One action"))
        app.click((place[0] + 40, place[1] + 20))
        app.click((20, 22))  # the way back
        app.wheel((40, 700), 3)
        self.press("Keep")
        self.wait_outcome("You chose Keep.")
        app.wait_gone(role="alert")
        self.assertEqual(app.wait_still(self.row("One action")).extents, place)

    def test_a_button_waits_for_a_name_and_tells_what_was_typed(self):
        app = self.app
        self.open("Text fields", "OK")
        self.wait_focus("Name", role="text")
        self.press("OK")
        app.key("Tab")
        kindora_e2e.wait_until(
            lambda: any(node.has("focused") for node in app.find_all(role="password text")),
            "the second field has the focus",
        )
        app.key("shift+Tab")
        self.wait_focus("Name", role="text")
        self.typed("Ada")
        app.key("Tab")
        app.type("secret")
        self.press("OK")
        self.wait_outcome("You signed in as Ada with a password.")
        self.wait_focus_on_row("Text fields")

    def test_a_button_is_disabled_again_without_a_name(self):
        app = self.app
        self.open("Text fields", "OK")
        self.wait_focus("Name", role="text")
        self.typed("A")
        app.key("BackSpace")
        kindora_e2e.wait_until(
            lambda: app.find_all("Name", role="text")[0].text == "", "the field is empty"
        )
        self.press("OK")
        app.key("Escape")
        self.wait_outcome("You chose Cancel.")

    def test_content_stands_between_text_and_buttons(self):
        lovely = self.open("Content of its own", "Lovely").extents
        message = self.app.wait_for(
            "The picture and the bars are the program's own.", role="label").extents
        chart = self.app.wait_for("Kind deeds from Monday to Friday").extents
        self.assertGreater(chart[1], message[1] + message[3])
        self.assertEqual(chart[1] + chart[3], lovely[1])
        self.press("Lovely")
        self.wait_outcome("You chose Lovely.")

    def test_a_disabled_action_is_neither_pressed_nor_reached(self):
        app = self.app
        self.open("Disabled and destructive", "Archive")
        self.press("Archive")
        for _ in range(6):
            app.key("Tab")
            kindora_e2e.wait_until(
                lambda: self.focused() and set(self.focused()) <= {"Delete", "Cancel"},
                lambda: f"the focus leaves the disabled button out, not {self.focused()}",
            )
        self.press("Delete")
        self.wait_outcome("You chose Delete.")

    def test_a_veto_keeps_the_alert_open(self):
        self.open("Veto", "Not yet")
        self.press("Not yet")
        self.app.wait_for("Asked 1 time. Take the time you need.", role="label")
        self.press("Not yet")
        self.app.wait_for("Asked 2 times. Take the time you need.", role="label")
        self.press("Ready")
        self.wait_outcome("You chose Ready.")

    def test_a_long_text_scrolls_above_its_buttons_in_a_short_window(self):
        app = self.app
        app.resize_window(320, 480)
        kindora_e2e.wait_until(lambda: app.geometry()[2:] == (320, 480), "the window is short")
        x, y, _, height = self.open("Long text", "Sing").extents
        self.assertLessEqual(y + height, 480)
        title = app.wait_for("Forty presents", role="heading")
        before = title.extents
        app.wheel((160, 200), 3)
        kindora_e2e.wait_until(
            lambda: app.wait_still(title).extents[1] < before[1], "the text scrolls"
        )
        self.assertEqual(app.wait_for("Sing", role="push button").extents[:2], (x, y))
        self.press("Sing")
        self.wait_outcome("You chose Sing.")

    def test_attributed_texts_are_read_as_plain_ones(self):
        self.open("Attributed texts", "Thank you very much")
        self.app.wait_for("A warm welcome", role="heading")
        self.app.wait_for("Some words are bold, some are green, and some are large.")
        self.press("Thank you very much")
        self.wait_outcome("You chose Thank you very much.")

    # Legacy alerts.

    def test_legacy_buttons_are_pressed_and_esc_cancels(self):
        app = self.app
        self.open("Legacy, two buttons", "Send")
        app.wait_for("Send the challenge?", role="alert")
        self.assertIsNone(app.find("Alerts", role="list"))
        self.press("Send")
        self.wait_outcome("You chose Send.")
        self.wait_focus_on_row("Legacy, two buttons")
        self.open("Legacy, two buttons", "Send")
        app.key("Escape")
        self.wait_outcome("You chose Cancel.")

    def test_five_legacy_buttons_are_reached_with_tab(self):
        app = self.app
        self.open("Legacy, five buttons", "So-so")
        for _ in range(10):
            if self.focused() == ["So-so"]:
                break
            app.key("Tab")
        self.wait_focus("So-so")
        app.key("Return")
        self.wait_outcome("You chose So-so.")

    def test_a_login_is_typed(self):
        app = self.app
        self.open("Legacy, login fields", "Log in")
        self.wait_focus("Login", role="text")
        self.typed("ada")
        app.key("Tab")
        app.type("secret")
        self.press("Log in")
        self.wait_outcome("You logged in as ada with a password.")

    def test_three_in_a_queue_are_answered_one_after_the_other(self):
        app = self.app
        app.click(self.scroll_to("Three in a queue"))
        for title in ("Third", "Second", "First"):
            app.wait_still(app.wait_for(title, role="alert"))
            kindora_e2e.wait_until(
                lambda: len(app.find_all("Next", role="push button")) == 1, "one alert is left"
            )
            self.press("Next")
            app.wait_gone(title, role="alert")
        self.wait_outcome("First has gone.")
        self.wait_focus_on_row("Three in a queue")

    def test_the_lower_alert_comes_back(self):
        app = self.app
        self.open("One over another", "More")
        self.press("More")
        app.wait_for("Above", role="alert")
        app.wait_gone("Below", role="alert")
        self.press("Back")
        app.wait_for("Below", role="alert")
        app.wait_gone("Above", role="alert")
        self.press("Close")
        self.wait_outcome("You chose Close.")

    # The page's own.

    def test_a_declared_alert_asks_for_a_name(self):
        app = self.app
        self.open("Declared alert", "Call")
        self.wait_focus("Name of the pet", role="text")
        self.press("Call")
        self.typed("Rex")
        self.press("Call")
        self.wait_outcome("You called the pet Rex.")
        self.open("Declared alert", "Call")
        self.wait_focus("Name of the pet", role="text")
        app.key("Escape")
        self.wait_outcome("You chose Cancel.")


if __name__ == "__main__":
    kindora_e2e.main()
