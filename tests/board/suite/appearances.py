"""Dark, right to left, in German, on other screens, with a device pixel ratio of 2."""

from suite import on_screen


def dark(user):
    user.starts("dark")
    _looks(user, "dark")


def right_to_left(user):
    user.starts("right-to-left")
    _looks(user, "right to left")


def german(user):
    user.starts("german")
    user.opens("fields")
    user.taps("price")
    user.sees_picture("german keypad", "keypad")
    user.types(["3", "Dezimaltrennzeichen", "5"])
    user.taps("keypad > OK")
    user.sees("price", "text", "3,5")


@on_screen(480, 272)
def small_screen(user):
    _works(user, "small")


@on_screen(480, 800)
def tall_screen(user):
    _works(user, "tall")


@on_screen(960, 544)
def device_pixel_ratio_2(user):
    user.starts(ratio=2)
    _works(user, "ratio 2")


@on_screen(480, 272)
def dark_on_a_small_screen(user):
    user.starts("dark")
    _looks(user, "dark small")


@on_screen(480, 272)
def right_to_left_on_a_small_screen(user):
    user.starts("right-to-left")
    _looks(user, "right to left small")


@on_screen(480, 800)
def dark_on_a_tall_screen(user):
    user.starts("dark")
    _looks(user, "dark tall")


@on_screen(480, 800)
def right_to_left_on_a_tall_screen(user):
    user.starts("right-to-left")
    _looks(user, "right to left tall")


@on_screen(960, 544)
def dark_with_device_pixel_ratio_2(user):
    user.starts("dark", ratio=2)
    _details_look(user, "dark ratio 2")


@on_screen(960, 544)
def right_to_left_with_device_pixel_ratio_2(user):
    user.starts("right-to-left", ratio=2)
    _details_look(user, "right to left ratio 2")


def _looks(user, name):
    """As it is painted, and that it works."""
    for scene in ("switches", "frames", "browser", "indicator"):
        user.opens(scene)
        user.sees_picture(f"{name} {scene}")
    _works(user, name)


def _details_look(user, name):
    """As _looks(), with less of the many pixels."""
    user.opens("frames")
    user.sees_picture(f"{name} masked", "masked")
    user.opens("browser")
    user.taps("FileBrowser > 2019")
    user.sees_picture(f"{name} crumbs", "FileBrowser > BreadCrumbsWidget")
    user.opens("indicator")
    user.drags("area", 0, -60)
    user.sees_picture(f"{name} indicator", "indicator")
    _works(user, name)


def _works(user, name):
    user.opens("edges")
    for field in ("top left", "bottom right"):
        user.taps(field)
        user.sees_keypads(field)
        user.types("57")
        user.taps("keypad > OK")
        user.sees(field, "text", "57")
        user.sees_keypads()
    user.taps("top right")
    user.sees_picture(f"{name} keypad", "keypad")
    user.opens("switches")
    user.taps("coloured")
    user.sees_picture(f"{name} coloured", "coloured")
    user.sees("coloured", "checked", True)
