"""The file browser, by touch."""


def tiles_show_the_first_directory(user):
    user.opens("browser")
    user.sees("window", "path", "/tmp/photos")
    user.sees_picture("tiles")


def a_tap_on_a_file_selects_it(user):
    user.opens("browser")
    user.taps("FileBrowser > church.jpg")
    user.sees("window", "selected", ["church.jpg"])
    user.is_told("selection changed")
    user.sees_picture("selected", "FileBrowser > QListView")


def a_tap_on_a_directory_opens_it(user):
    user.opens("browser")
    _enters(user, "2019")
    user.sees("window", "path", "/tmp/photos/2019")
    _enters(user, "summer")
    user.sees("window", "path", "/tmp/photos/2019/summer")
    user.sees_picture("crumbs", "FileBrowser > BreadCrumbsWidget")


def a_tap_on_a_crumb_goes_up(user):
    user.opens("browser")
    _enters(user, "2019", "summer")
    user.taps("FileBrowser > BreadCrumbsWidget > 2019")
    user.sees("window", "path", "/tmp/photos/2019")


def the_menu_of_hidden_crumbs_goes_further_up(user):
    user.opens("browser")
    _enters(user, "2019", "summer", "lake", "boats")
    user.sees("window", "path", "/tmp/photos/2019/summer/lake/boats")
    user.taps("FileBrowser > ...")
    user.sees_picture("hidden crumbs", "popup")
    user.taps("popup > 2019")
    user.sees("window", "path", "/tmp/photos/2019")
    user.sees_no("popup")


def a_tap_beside_the_menu_closes_it(user):
    user.opens("browser")
    _enters(user, "2019", "summer", "lake", "boats")
    user.taps("FileBrowser > ...")
    user.taps_at("window", 600, 400)
    user.sees_no("popup")
    user.sees("window", "path", "/tmp/photos/2019/summer/lake/boats")


def the_combo_box_changes_the_root(user):
    user.opens("browser")
    user.taps("FileBrowser > QComboBox")
    user.taps("popup > /tmp/notes")
    user.sees("window", "path", "/tmp/notes")
    user.sees_picture("other root")


def the_list_shows_sizes_and_dates(user):
    user.opens("browser")
    user.taps("FileBrowser > list")
    user.sees_picture("list")
    user.taps("FileBrowser > market.jpg")
    user.sees("window", "selected", ["market.jpg"])
    user.taps("FileBrowser > 2019")
    user.sees("window", "path", "/tmp/photos")


def several_files_are_selected_with_the_pointer_and_a_held_key(user):
    user.opens("browser")
    user.calls("window", "selectSeveral")
    user.clicks("FileBrowser > bridge.jpg")
    user.sees("window", "selected", ["bridge.jpg"])
    user.clicks_with_key("ctrl", "FileBrowser > market.jpg")
    user.sees("window", "selected", ["bridge.jpg", "market.jpg"])
    user.sees_picture("several", "FileBrowser > QListView")
    user.taps("FileBrowser > church.jpg")
    user.sees("window", "selected", ["church.jpg"])


def a_drag_over_files_selects_them(user):
    user.opens("browser")
    user.calls("window", "selectSeveral")
    user.drags("FileBrowser > bridge.jpg", 60, 50)
    user.sees("window", "selected", ["bridge.jpg", "church.jpg", "market.jpg"])


def a_trembling_tap_is_a_tap(user):
    user.opens("browser")
    x, y = user.middle("FileBrowser > 2020")
    user.does(f"press 0 {x} {y}", f"move 0 {x + 3} {y - 2} 40", f"move 0 {x - 2} {y + 2} 40",
              "release 0")
    user.sees("window", "path", "/tmp/photos/2020")


def a_double_tap_opens_one_directory(user):
    user.opens("browser")
    user.taps("FileBrowser > 2019", "FileBrowser > 2019", pause=80)
    user.sees("window", "path", "/tmp/photos/2019")


def a_drag_that_begins_on_a_directory_opens_that_one_only(user):
    user.opens("browser")
    user.drags("FileBrowser > 2019", 200, 150)
    user.sees("window", "path", "/tmp/photos/2019")


def _enters(user, *directories):
    """One in the other, slowly enough to be no double tap where they have the same place."""
    for directory in directories:
        user.taps(f"FileBrowser > {directory}", pause=200)
