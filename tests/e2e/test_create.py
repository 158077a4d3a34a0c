# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""A challenge of one's own: texts, a photo, and what becomes of it."""

import pathlib
import tempfile

import kindora_e2e
from challenges import BOB
from pictures import FileChooser, environment_with_pictures, set_age, write_png

RED = (200, 30, 40)
BLUE = (30, 60, 200)
UNREADABLE = "This picture cannot be opened."
NO_CAMERA = "No camera found on this device."


class Create(kindora_e2e.AppTest):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="kindora-pictures-")
        self.addCleanup(folder.cleanup)
        self.pictures = pathlib.Path(folder.name) / "Pictures"
        set_age(write_png(self.pictures / "old.png", BLUE), 9)
        set_age(write_png(self.pictures / "Camera" / "new.png", RED), 1)
        damaged = self.pictures / "damaged.jpg"
        damaged.write_bytes(b"\xff\xd8\xff\xe0 and no more")
        set_age(damaged, 5)
        self.app = self.start_app(environment_with_pictures(self.pictures))
        self.app.wait_for(BOB)
        self.open_screen()

    def open_screen(self):
        self.app.click(self.app.wait_still(self.app.wait_for("Create Challenge", "push button")))
        self.app.wait_still(self.app.wait_for("Create Challenge", role="heading"))
        self.wait_focus("Title")

    def wait_focus(self, field):
        kindora_e2e.wait_until(
            lambda: self.app.wait_for(field, role="text").has("focused"), f"{field} has the focus"
        )

    def wait_text(self, field, text):
        kindora_e2e.wait_until(
            lambda: self.app.wait_for(field, role="text").text == text, f"{field} holds {text!r}"
        )

    def press(self, name):
        self.app.click(self.app.wait_still(self.app.wait_for(name, role="push button")))

    def refuses_to_create(self):
        """A press on Create is followed by nothing: the sheet still opens, and closes."""
        self.press("Create")
        self.press("Add Photo")
        self.app.wait_still(self.app.wait_for("Take Photo", role="push button"))
        self.assertIsNone(self.app.find(role="alert"))
        self.app.key("Escape")
        self.app.wait_gone("Take Photo", role="push button")

    def wait_closed(self):
        """Waits until the screen has gone altogether, so that the one below takes presses."""
        kindora_e2e.wait_until(
            lambda: self.app.find("Title", role="text", showing=None) is None, "the screen is gone"
        )

    def write_texts(self):
        self.app.type("Wave at a stranger")
        self.app.key("Return")
        self.wait_focus("Description")
        self.app.type("And smile")
        self.wait_text("Title", "Wave at a stranger")
        self.wait_text("Description", "And smile")

    def open_library(self):
        self.press("Add Photo")
        self.press("Choose Existing")

    def choose_photo(self):
        self.open_library()
        self.press("new.png")
        self.press("Choose")
        self.app.wait_for("Change Photo", role="push button")
        self.wait_focus("Title")

    def create(self):
        self.write_texts()
        self.choose_photo()
        self.press("Create")
        self.app.wait_for("Challenge created!", role="alert")

    # Writing.

    def test_the_list_below_is_out_of_the_accessibility_tree(self):
        self.app.wait_gone(BOB)
        self.app.wait_gone("Badges", role="page tab")
        self.app.key("Escape")
        self.app.wait_for(BOB)

    def test_return_leads_from_the_title_to_the_description_and_away(self):
        self.write_texts()
        self.app.key("Return")
        kindora_e2e.wait_until(
            lambda: not self.app.wait_for("Description", role="text").has("focused"),
            "the description gave the focus up",
        )

    def test_undo_takes_back_what_was_typed(self):
        self.app.type("Wave")
        self.wait_text("Title", "Wave")
        self.app.key("ctrl+a")
        self.app.key("ctrl+x")
        self.wait_text("Title", "")
        self.app.key("ctrl+z")
        self.wait_text("Title", "Wave")

    def test_without_a_picture_nothing_can_be_created(self):
        self.write_texts()
        self.refuses_to_create()
        self.press("Cancel")
        self.wait_closed()

    def test_a_small_window_keeps_the_field_with_the_keyboard_in_sight(self):
        self.app.resize_window(320, 480)
        self.app.wait_still(self.app.wait_for("Title", role="text"))
        self.app.resize_window(320, 200)
        self.app.key("Return")
        self.wait_focus("Description")

        def in_sight():
            _, y, _, height = self.app.wait_for("Description", role="text").extents
            return y >= 44 and y + height <= 200

        kindora_e2e.wait_until(in_sight, "the description is in sight")

    # Creating.

    def test_with_a_picture_from_the_library_and_later(self):
        self.create()
        self.app.wait_for(
            "You can find this challenge in the Badges tab. "
            "Would you like to pass this challenge on now?"
        )
        self.press("Later")
        self.wait_closed()
        self.app.wait_for("Badges", role="page tab")

    def test_kindora_leads_to_the_picker_and_back_to_the_first_badge(self):
        self.create()
        self.press("Kindora!")
        self.app.wait_gone(role="alert")
        self.wait_closed()
        self.app.wait_for('Passing on "Wave at a stranger"...')
        self.assertTrue(self.app.wait_for("Badges", role="page tab").has("selected"))
        self.press("Back")
        created = "You created this challenge!\nNow Kindora to a friend!"
        self.app.wait_still(self.app.wait_for(created))
        self.press("Back")
        self.app.wait_for("Wave at a stranger", role="push button")

    def test_the_badges_open_it_too(self):
        self.press("Cancel")
        self.wait_closed()
        self.app.click(self.app.wait_for("Badges", role="page tab"))
        self.app.wait_for("Badges", role="heading")
        self.open_screen()

    def test_the_well_shows_the_photo(self):
        self.choose_photo()
        x, y = self.app.wait_still(self.app.wait_for("Change Photo")).centre
        kindora_e2e.wait_until(lambda: self.app.pixel(x, y) == RED, "the photo is red")

    # Cancelling.

    def test_cancel_and_escape_leave(self):
        self.press("Cancel")
        self.wait_closed()
        self.open_screen()
        self.app.key("Escape")
        self.wait_closed()

    def test_the_sheet_is_cancelled_by_escape_and_opens_again(self):
        self.press("Add Photo")
        self.app.wait_still(self.app.wait_for("Take Photo", role="push button"))
        self.app.key("Escape")
        self.app.wait_gone("Take Photo", role="push button")
        self.press("Add Photo")
        self.app.wait_for("Take Photo", role="push button")

    def test_a_cancelled_library_leaves_the_screen_as_it_was(self):
        self.write_texts()
        self.open_library()
        self.app.wait_still(self.app.wait_for("new.png", role="push button"))
        self.press("Cancel")
        self.app.wait_for("Add Photo", role="push button")
        self.wait_focus("Title")
        self.wait_text("Title", "Wave at a stranger")

    # Pictures.

    def test_the_library_shows_the_newest_first(self):
        self.open_library()
        self.app.wait_still(self.app.wait_for("old.png", role="push button"))
        names = ("new.png", "damaged.jpg", "old.png")
        places = [self.app.wait_for(name).extents[:2] for name in names]
        self.assertEqual([x for x, _ in places], sorted(x for x, _ in places))
        self.assertEqual(len({y for _, y in places}), 1)

    def test_a_damaged_picture_is_answered_calmly(self):
        self.open_library()
        self.press("damaged.jpg")
        self.app.wait_for(UNREADABLE, role="alert")
        self.press("OK")
        self.app.wait_gone(role="alert")
        self.press("Cancel")
        self.app.wait_for("Add Photo", role="push button")
        self.wait_focus("Title")

    def test_the_square_is_moved_and_zoomed_by_keys_and_wheel(self):
        self.open_library()
        self.press("new.png")
        square = self.app.wait_still(self.app.wait_for("Move and Scale", role="image"))
        for key in ("plus", "Left", "Down", "minus"):
            self.app.key(key)
        self.app.wheel(square, -4)
        self.app.drag([(195, 400), (260, 440)])
        self.app.key("Return")
        self.app.wait_for("Change Photo", role="push button")

    def test_another_folder_is_browsed(self):
        write_png(self.app.home / "Elsewhere" / "blue.png", BLUE)
        self.open_library()
        self.press("Browse Folders")
        self.press("Elsewhere")
        self.press("blue.png")
        self.press("Choose")
        self.app.wait_for("Change Photo", role="push button")

    def test_without_a_camera_the_library_is_offered(self):
        self.press("Add Photo")
        self.press("Take Photo")
        self.app.wait_for(NO_CAMERA)
        self.press("Choose Existing")
        self.press("new.png")
        self.press("Choose")
        self.app.wait_for("Change Photo", role="push button")

    def test_without_a_multimedia_backend_there_is_no_camera_either(self):
        environment = environment_with_pictures(self.pictures)
        self.assertEqual(self.app.close(), 0)
        self.app = self.start_app({**environment, "QT_MEDIA_BACKEND": "missing"})
        self.open_screen()
        self.press("Add Photo")
        self.press("Take Photo")
        self.app.wait_for(NO_CAMERA)

    def test_without_a_camera_escape_returns(self):
        self.press("Add Photo")
        self.press("Take Photo")
        self.app.wait_still(self.app.wait_for(NO_CAMERA))
        self.app.key("Escape")
        self.app.wait_for("Add Photo", role="push button")
        self.app.wait_gone(NO_CAMERA)

    # The desktop's file chooser.

    def test_the_desktops_file_chooser_is_used_where_there_is_one(self):
        chooser = FileChooser(self.pictures / "old.png")
        self.addCleanup(chooser.close)
        self.open_library()
        self.press("Choose")
        self.app.wait_for("Change Photo", role="push button")
        self.assertEqual([title for title, _ in chooser.asked], ["Choose a Picture"])
        kinds = chooser.asked[0][1]["filters"][0][1]
        self.assertEqual(kinds, [(1, "image/jpeg"), (1, "image/png")])

    def test_choosing_nothing_there_closes_the_picker(self):
        chooser = FileChooser()
        self.addCleanup(chooser.close)
        self.open_library()
        self.app.wait_for("Add Photo", role="push button")
        self.wait_focus("Title")

    def test_choosing_no_picture_there_is_answered_calmly(self):
        chooser = FileChooser(self.pictures / "damaged.jpg")
        self.addCleanup(chooser.close)
        self.open_library()
        self.app.wait_for(UNREADABLE, role="alert")
        self.press("OK")
        self.app.wait_for("Add Photo", role="push button")
        self.app.wait_gone(role="alert")


if __name__ == "__main__":
    kindora_e2e.main()
