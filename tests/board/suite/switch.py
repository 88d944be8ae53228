"""Switches, by touch."""


def a_tap_turns_it_on_and_another_one_off(user):
    user.opens("switches")
    user.sees_picture("off", "plain")
    user.taps("plain")
    user.sees("plain", "checked", True)
    user.is_told("plain on")
    user.sees_picture("on", "plain")
    user.taps("plain")
    user.sees("plain", "checked", False)
    user.is_told("plain off")
    user.sees_picture("off", "plain")


def it_shows_its_own_colour(user):
    user.opens("switches")
    user.taps("coloured")
    user.sees_picture("coloured", "coloured")


def fifty_taps_in_a_row_are_fifty_changes(user):
    user.opens("switches")
    user.taps(*["plain"] * 50, pause=40)
    user.is_told(*["plain on", "plain off"] * 25)
    user.sees_picture("off", "plain")


def a_tap_while_it_moves_turns_it_back(user):
    user.opens("switches")
    user.taps("plain", "plain", "plain", pause=10)
    user.sees("plain", "checked", True)
    user.is_told("plain on", "plain off", "plain on")
    user.sees_picture("on", "plain")


def a_finger_that_leaves_it_changes_nothing(user):
    user.opens("switches")
    user.drags("plain", 0, 300)
    user.sees("plain", "checked", False)
    user.is_told()


def a_second_finger_changes_nothing(user):
    user.opens("switches")
    x, y = user.middle("coloured")
    press, *_ = user.tap("plain")
    user.does(press, "wait 50", f"press 1 {x} {y}", "wait 50", "release 1", "release 0")
    user.sees("coloured", "checked", False)
    user.sees("plain", "checked", True)


def a_disabled_one_stays_as_it_is(user):
    user.opens("switches")
    user.sees_picture("disabled", "disabled")
    user.taps("disabled")
    user.sees("disabled", "checked", False)
    user.is_told()
    user.sees_picture("disabled", "disabled")
