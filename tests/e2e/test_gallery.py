# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""The gallery of the general components: every page opened, tried and left."""

import kindora_e2e

SCRATCH = "Scratch-off"
CURVES = "Curves"
GRID = "Springy grid"
PHONE = "Phone numbers"


class Gallery(kindora_e2e.AppTest):
    def setUp(self):
        super().setUp()
        self.app.wait_for("Gallery", role="heading")

    def row(self, page):
        return kindora_e2e.wait_until(
            lambda: next(
                (
                    node
                    for node in self.app.find_all(role="push button")
                    if node.name.startswith(page + ", ")
                ),
                None,
            ),
            f"the row of {page}",
        )

    def open(self, page):
        self.app.click(self.app.wait_still(self.row(page)))
        self.app.wait_for(page, role="heading")
        self.app.wait_settled()

    def back(self):
        self.app.key("Escape")
        self.app.wait_for("Gallery", role="heading")

    def wait_focus(self, name):
        kindora_e2e.wait_until(
            lambda: any(node.has("focused") for node in self.app.find_all(name)),
            f"{name} has the focus",
        )

    def tab_to(self, name):
        """Goes on with Tab until the thing has the focus."""
        for _ in range(30):
            if any(node.has("focused") for node in self.app.find_all(name)):
                return
            self.app.key("Tab")
        self.fail(f"Tab does not reach {name}\n{self.app.tree()}")

    def test_every_page_opens_and_goes_back(self):
        for page in (SCRATCH, CURVES, GRID, PHONE):
            self.open(page)
            self.back()

    def test_rows_open_with_the_keyboard(self):
        self.app.wait_still(self.row(GRID))
        for _ in range(30):
            if self.row(GRID).has("focused"):
                break
            self.app.key("Tab")
        self.app.key("Return")
        self.app.wait_for(GRID, role="heading")

    # The cover.

    def test_a_rub_marks_cells_and_starting_anew_takes_the_marks_away(self):
        app = self.app
        self.open(SCRATCH)
        app.wait_for("0 % gone, 0 of 36 cells marked")
        x, y, width, height = app.wait_still(app.wait_for("Cover")).extents
        app.drag([(x + 40, y + height / 2), (x + width - 40, y + height / 2 + 20)])
        app.wait_gone("0 % gone, 0 of 36 cells marked")
        app.click(app.wait_for("Start anew", role="push button"))
        app.wait_for("0 % gone, 0 of 36 cells marked")

    def test_the_button_scratches_everything_away(self):
        self.open(SCRATCH)
        self.tab_to("Scratch away")
        self.app.key("Return")
        self.app.wait_for("100 % gone, 36 of 36 cells marked")

    def test_the_radius_makes_another_grid(self):
        self.open(SCRATCH)
        self.tab_to("Radius")
        self.app.key("Right")
        self.app.wait_for("Radius 55 px")
        self.app.wait_for("0 % gone, 0 of 25 cells marked")

    def test_the_grid_is_drawn_over_the_picture_until_it_is_switched_off(self):
        app = self.app
        self.open(SCRATCH)
        x, y, width, _ = app.wait_still(app.wait_for("Cover")).extents
        line = (x + round(width / 6), y + 100)
        switch = app.wait_for("Show the grid")
        self.assertTrue(switch.has("checked"))
        with_grid = app.pixel(*line)
        app.click(switch)
        kindora_e2e.wait_until(lambda: app.pixel(*line) != with_grid, "the grid goes")
        self.assertFalse(app.wait_for("Show the grid").has("checked"))
        self.tab_to("Show the grid")
        app.key("Return")
        kindora_e2e.wait_until(lambda: app.pixel(*line) == with_grid, "the grid comes back")

    # The curves.

    def test_a_slider_is_dragged_and_the_frames_are_counted(self):
        app = self.app
        self.open(CURVES)
        app.wait_for("60 frames in 1.0 s")
        x, y, width, height = app.wait_still(app.wait_for("Duration", role="slider")).extents
        app.drag([(x + width / 2, y + height / 2), (x + width + 20, y + height / 2)])
        app.wait_for("120 frames in 2.0 s")

    def test_a_slider_is_moved_with_the_keys(self):
        self.open(CURVES)
        self.tab_to("Damping")
        self.app.key("Left")
        self.app.wait_for("Damping 9.5")

    def test_a_tween_has_timings_in_place_of_springs(self):
        app = self.app
        self.open(CURVES)
        app.click(app.wait_for("Tween", role="radio button"))
        app.wait_gone("Damping", role="slider")
        app.click(app.wait_for("Ease in", role="radio button"))
        kindora_e2e.wait_until(
            lambda: app.wait_for("Ease in", role="radio button").has("checked"),
            "the timing is chosen",
        )

    def test_the_ball_runs_to_the_end(self):
        app = self.app
        self.open(CURVES)
        app.click(app.wait_for("Tween", role="radio button"))
        app.wait_gone("Damping", role="slider")
        # The ball's ring at the end of the track, below the plot.
        x, y, width, height = app.wait_still(app.wait_for("Curve")).extents
        end = (x + width - 16, y + height + 32)
        self.assertEqual(app.pixel(*end), (255, 255, 255))
        app.click(app.wait_for("Play", role="push button"))
        kindora_e2e.wait_until(lambda: app.pixel(*end) != (255, 255, 255), "the ball arrives")

    # The grid.

    def test_a_cell_is_pressed_and_the_grid_scrolls(self):
        app = self.app
        self.open(GRID)
        app.click(app.wait_still(app.wait_for("Cell 7")))
        app.wait_for("Cell 7 was pressed")
        app.drag([(200, 600), (200, 200)])
        app.wait_gone("Cell 1")

    # Phone numbers.

    def wait_number(self, text):
        kindora_e2e.wait_until(
            lambda: self.app.wait_for("Phone number", role="text").text == text,
            f"the field holds {text!r}",
        )

    def test_a_number_of_another_country_is_judged_and_shown_as_from_abroad(self):
        app = self.app
        self.open(PHONE)
        app.click(app.wait_still(app.wait_for("United States, +1", role="push button")))
        app.wait_still(app.wait_for("Country", role="list"))
        app.click(app.wait_for("Search", role="text"))
        self.wait_focus("Search")
        app.type("kingdom")
        app.click(app.wait_still(app.wait_for("United Kingdom, +44")))
        app.wait_for(PHONE, role="heading")
        app.click(app.wait_still(app.wait_for("Phone number", role="text")))
        app.wait_for("United Kingdom, +44", role="push button")
        self.wait_focus("Phone number")
        app.type("0207123456")
        app.wait_for("Not a valid number")
        app.type("7")
        self.wait_number("020 7123 4567")
        app.wait_for("A valid number")
        app.wait_for("+44 20 7123 4567")

    def test_the_caret_stays_behind_its_digit(self):
        app = self.app
        self.open(PHONE)
        app.click(app.wait_still(app.wait_for("Phone number", role="text")))
        self.wait_focus("Phone number")
        app.type("4155552671")
        self.wait_number("(415) 555-2671")
        for _ in range(4):
            app.key("Left")
        app.key("BackSpace")  # the dash: nothing but the caret moves
        app.key("BackSpace")
        self.wait_number("(415) 552-671")
        app.wait_for("Not a valid number")


if __name__ == "__main__":
    kindora_e2e.main()
