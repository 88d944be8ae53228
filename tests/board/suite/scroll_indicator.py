"""A list that is dragged, and its indicator."""


def a_drag_scrolls_and_the_indicator_is_lit_while_it_lasts(user):
    user.opens("indicator")
    user.sees_picture("at rest", "indicator")
    user.keeps_finger_down(*user.drag("area", 0, -150), "wait 200")
    user.is_told("moves")
    user.sees_picture("lit", "indicator")
    user.does("release 0")
    user.is_told("rests")
    user.sees("indicator", "value", 150)
    user.sees_picture("scrolled", "indicator")


def a_flick_goes_on_and_comes_to_rest(user):
    user.opens("indicator")
    user.does(*user.drag("area", 0, -150, 100), "release 0")
    user.sees_between("indicator", "value", 160, user.ask("property", "indicator", "maximum") + 1)


def it_stops_at_the_end(user):
    user.opens("indicator")
    for _ in range(5):
        user.drags("area", 0, -200, 200)
    user.sees("indicator", "value", user.ask("property", "indicator", "maximum"))
    user.sees_picture("at the end", "area")


def a_tap_on_a_field_in_the_list_opens_its_keypad(user):
    user.opens("indicator")
    user.taps("inside")
    user.sees_keypads("inside")
    user.types("3")
    user.taps("keypad > OK")
    user.sees("inside", "text", "3")


def a_drag_that_begins_on_the_field_scrolls(user):
    user.opens("indicator")
    user.drags("area", 0, -20)
    user.drags("inside", 0, 100)
    user.sees_keypads()
    user.sees("indicator", "value", 0)
