"""Fields with a keypad, by touch and with a hardware keyboard."""


def a_tap_opens_the_keypad(user):
    user.opens("fields")
    user.sees_keypads()
    user.taps("name")
    user.sees_keypads("name")
    user.sees_focus("name")
    user.sees("name", "selectedText", "Kitchen")
    user.sees_picture("letters", "keypad")


def the_letter_pad_types_and_ok_commits(user):
    user.opens("fields")
    user.taps("name")
    user.types(["Shift", "b", "a", "r"])
    user.sees("name", "text", "Bar")
    user.taps("keypad > OK")
    user.sees_keypads()
    user.sees_focus("")
    user.sees("name", "text", "Bar")
    user.is_told("name changed", "name finished")


def the_digits_of_the_letter_pad_take_its_letters_place(user):
    user.opens("fields")
    user.taps("name")
    user.taps("keypad > Letters or digits and symbols")
    user.sees_picture("digits", "keypad")
    user.types("42")
    user.sees("name", "text", "42")


def the_number_pad_types_and_backspace_deletes(user):
    user.opens("fields")
    user.taps("channel")
    user.sees_picture("numbers", "keypad")
    user.types("427")
    user.sees("channel", "text", "42")
    user.types(["Backspace"])
    user.sees("channel", "text", "4")


def cancel_restores_the_text(user):
    user.opens("fields")
    user.taps("name")
    user.types("abc")
    user.taps("keypad > Cancel")
    user.sees_keypads()
    user.sees("name", "text", "Kitchen")
    user.is_told("name finished")


def ok_is_grey_while_the_text_is_invalid(user):
    user.opens("fields")
    user.taps("channel")
    user.types("5")
    user.sees("channel", "inputValid", False)
    user.sees("keypad > OK", "enabled", False)
    user.sees_picture("ok grey", "keypad > OK")
    user.taps("keypad > OK")
    user.sees_keypads("channel")
    user.types("6")
    user.sees("channel", "inputValid", True)
    user.sees("keypad > OK", "enabled", True)
    user.sees_picture("ok", "keypad > OK")
    user.taps("keypad > OK")
    user.sees_keypads()
    user.sees("channel", "text", "56")


def a_tap_outside_closes_the_keypad_and_restores_the_text(user):
    user.opens("fields")
    user.taps("name")
    user.types("x")
    user.taps_at("window", 790, 470)
    user.sees_keypads()
    user.sees_focus("")
    user.sees("name", "text", "Kitchen")


def a_tap_on_the_edited_field_leaves_the_keypad_open(user):
    user.opens("fields")
    user.taps("name")
    user.types("abc")
    user.taps_at("name", 3, 12)
    user.sees_keypads("name")
    user.sees_focus("name")
    user.sees("name", "text", "abc")
    user.sees("name", "cursorPosition", 0)
    user.types("z")
    user.sees("name", "text", "zabc")


def return_and_escape_of_the_keyboard_are_ok_and_cancel(user):
    user.opens("fields")
    user.taps("price")
    user.presses("7")
    user.sees("price", "text", "7")
    user.presses("ret")
    user.sees_keypads()
    user.sees("price", "text", "7")
    user.is_told("price changed", "price finished")
    user.taps("price")
    user.presses("8")
    user.presses("esc")
    user.sees_keypads()
    user.sees("price", "text", "7")
    user.is_told("price finished")


def the_pointer_works_as_a_finger(user):
    user.opens("fields")
    user.clicks("channel")
    user.sees_keypads("channel")
    user.clicks("keypad > 9")
    user.clicks("keypad > 8")
    user.clicks("keypad > OK")
    user.sees("channel", "text", "98")
    user.sees_keypads()


def a_tap_on_another_field_closes_the_keypad_and_the_next_one_opens_it_there(user):
    user.opens("fields")
    user.taps("channel")
    user.types("5")
    user.taps("name")
    user.sees_keypads()
    user.sees("channel", "text", "11")
    user.taps("name")
    user.sees_keypads("name")
    user.sees_focus("name")


def a_tap_on_a_button_closes_the_keypad_and_the_next_one_presses_it(user):
    user.opens("fields")
    user.taps("name")
    user.types("x")
    user.is_told()
    user.taps_at("save", 770, 12)
    user.sees_keypads()
    user.sees("name", "text", "Kitchen")
    user.is_told("name finished", "name finished")
    user.taps_at("save", 770, 12)
    user.is_told("save clicked")


def a_keypad_goes_with_the_dialog_that_a_program_closes(user):
    user.opens("fields")
    user.calls("window", "openDialog")
    user.taps("password")
    user.sees_keypads("password")
    user.types("a")
    user.calls("dialog", "reject")
    user.sees_keypads()
    user.sees_no("password")
    user.taps("price")
    user.sees_keypads("price")


def two_taps_while_the_application_hangs_open_two_keypads_which_two_taps_outside_close(user):
    user.opens("fields")
    user.does("suspend", *user.tap("price"), "wait 300", *user.tap("channel"), "wait 640", "resume")
    user.sees_keypads("channel", "price")
    user.taps_at("window", 790, 470)
    user.sees_keypads("price")
    user.taps_at("window", 790, 470)
    user.sees_keypads()
    user.sees_focus("")
    user.sees("channel", "text", "11")
    user.sees("price", "text", "2.5")


def keypads_lie_below_the_field_or_above_it_and_end_before_the_right_edge(user):
    user.opens("edges")
    for row in ("top", "middle", "bottom"):
        for column in ("left", "centre", "right"):
            field = f"{row} {column}"
            user.taps(field)
            user.sees_keypads(field)
            user.expect("place of the keypad", user.place("keypad"), _keypad_place(user, field))
            user.taps("keypad > 4")
            user.sees(field, "text", "4")
            user.taps("keypad > Cancel")
            user.sees_keypads()


def _keypad_place(user, field):
    screen_width, screen_height = user.board.size
    left, top, _, height = user.place(field)
    _, _, keypad_width, keypad_height = user.place("keypad")
    x, y = left, top + height
    if y + keypad_height > screen_height:
        y = top - keypad_height
    if x + keypad_width >= screen_width - 9:
        x = screen_width - 10 - keypad_width
    return [x, y, keypad_width, keypad_height]
