"""Frames, a button with children, batteries and a looping animation."""


def frames_are_drawn(user):
    user.opens("frames")
    user.sees_picture("frames")


def a_tap_on_a_masked_frame_stays_there(user):
    user.opens("frames")
    user.taps("masked")
    user.is_told()


def a_tap_on_a_corner_that_the_mask_cuts_off_goes_below(user):
    user.opens("frames")
    user.taps_at("masked", 3, 3)
    user.is_told("below clicked")


def a_tap_on_a_child_of_a_button_presses_the_button(user):
    user.opens("frames")
    x, y = user.middle("title")
    user.does(f"press 0 {x} {y}")
    user.sees("grid", "down", True)
    user.sees_picture("pressed", "grid")
    user.does("release 0")
    user.is_told("grid clicked")


def a_finger_that_leaves_the_button_does_not_click_it(user):
    user.opens("frames")
    user.drags("title", 0, -150)
    user.is_told()


def batteries_are_drawn_at_every_charge(user):
    user.opens("batteries")
    user.sees_picture("batteries")


def a_loop_runs_to_and_fro_until_it_is_stopped(user):
    user.opens("loop")
    user.taps_without_waiting("Start", "wait 1000", "Stop")
    user.is_told_first("at 220", "at 20", "at 220")
