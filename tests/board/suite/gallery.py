"""The gallery: every page opened by touch, what it shows used once, and its tools."""

from suite import on_screen


def every_page_opens_from_the_list(user):
    _opens_every_page(user)


def every_page_opens_in_german(user):
    user.starts("german")
    _opens_every_page(user)


def every_page_opens_from_right_to_left_in_the_dark(user):
    _opens_gallery(user)
    user.taps("darkSwitch")
    user.taps("rightToLeftSwitch")
    _opens_every_page(user, is_open=True)


@on_screen(480, 800)
def every_page_opens_on_a_tall_screen(user):
    _opens_every_page_of_the_tall_screen(user)


@on_screen(480, 800)
def every_page_opens_in_german_on_a_tall_screen(user):
    user.starts("german")
    _opens_every_page_of_the_tall_screen(user)


def the_overview_comes_to_rest_and_leads_to_the_pages(user):
    user.opens("gallery")
    user.sees_picture("card", "overview > ui::CRoundedFrame")
    user.taps("overview > CGridArrangedButton")
    user.place("grid-button")


def a_frame_is_picked_and_its_radius_changed(user):
    _opens_page(user, "Frames")
    user.taps("frames > Raised")
    user.sees("widgetChoice", "currentText", "Raised")
    user.taps("frames > Plain")
    user.taps(*["window > PropertyEditor > stepUp"] * 3, pause=100)
    user.sees("frames > ui::CRoundedFrame", "radius", 21)
    user.sees_picture("frame", "frames > ui::CRoundedFrame")


def a_grid_button_is_tapped_on_its_title(user):
    _opens_page(user, "Grid button")
    user.taps("grid-button > Tiles")
    user.place('grid-button > You tapped "Tiles".')
    user.sees("widgetChoice", "currentText", "Tiles")


def switches_and_their_group_are_tapped(user):
    _opens_page(user, "Switch")
    for text in ("Bluetooth", "Slow and springy", "At once", "Medium"):
        user.sees(f"switch > {text}", "checked", False)
        user.taps(f"switch > {text}")
        user.sees(f"switch > {text}", "checked", True)
    user.sees("switch > Low", "checked", False)
    user.taps("switch > Hotspot")
    user.sees("switch > Hotspot", "checked", False)
    user.sees_picture("switches", "switch")


def a_lamp_is_switched_and_a_light_lit(user):
    _opens_page(user, "Own controls")
    user.taps("own-controls > Lamp")
    user.sees("own-controls > Lamp", "checked", True)
    user.taps("lightUp")
    user.sees_picture("light", "own-controls > Glow")


def a_name_is_typed(user):
    _opens_page(user, "Text entry")
    user.taps("text-entry > Kitchen")
    user.sees("keypad > OK", "enabled", True)
    user.types("hall")
    user.sees_picture("field", "text-entry > hall")
    user.taps("keypad > OK")
    user.sees_keypads()
    user.place("text-entry > Name, 2 to 20 characters: hall")


def a_battery_follows_its_controls(user):
    _opens_page(user, "Battery")
    slider = "battery > QSlider"
    user.taps_at(slider, 5, user.place(slider)[3] // 2)
    user.sees_between(slider, "value", -1, 20)
    user.taps("battery > Switch")
    user.sees_picture("batteries", "battery")


def a_list_and_a_picture_are_dragged(user):
    _opens_page(user, "Scroll indicator")
    user.drags("list", 0, -60)
    user.sees_between("list > ui::widgets::ScrollIndicatorBar", "value", 40, 80)
    user.sees_picture("list", "list")
    user.drags("panorama", -100, 0)
    user.sees_picture("indicator", "panorama > ui::widgets::ScrollIndicatorBar")


def animations_come_to_rest_and_run_once_started(user):
    _opens_page(user, "Animation")
    user.place("animation > Stopped")
    user.sees_no("animation > Stop")
    user.keeps_finger_down(*user.tap("animation > Start"), "wait 500")
    user.taps("animation > Stop")
    user.place("animation > Stopped")
    user.sees_no("animation > Stop")


def a_path_is_followed_upwards(user):
    _opens_page(user, "Path")
    user.taps("path > Berlin")
    user.sees("directory", "text", "/data/music/live/2024/Berlin")
    user.taps("path > Music")
    user.sees("report", "text", "Tapped: 1")
    user.sees_picture("path", "path > BreadCrumbsWidget")


def a_file_is_chosen(user):
    _opens_page(user, "File browser")
    user.taps("file-browser > bridge.jpg")
    user.sees("selection", "text", "Selected: bridge.jpg")
    user.taps("filters")
    user.taps("popup > Texts")
    user.sees_no("file-browser > bridge.jpg")
    user.taps("file-browser > 2019")
    user.place("file-browser > winter")


def a_property_is_found_typed_and_reset(user):
    _opens_page(user, "Battery")
    battery = "battery > ui::CBatteryStatusWidget"
    user.taps(battery)
    user.sees("widgetChoice", "currentText", "0 %")
    user.taps("filter")
    user.types("charge")
    user.taps("keypad > OK")
    user.taps("window > IntEditor > ui::KeypadLineEdit")
    user.types("70")
    user.taps("keypad > OK")
    user.sees_picture("charged", battery)
    user.taps("resetButton")
    user.sees_picture("reset", battery)
    user.sees_no("resetButton")


def the_properties_of_a_base_class_are_unfolded_and_scrolled_to(user):
    _opens_page(user, "Grid button")
    editor = "window > PropertyEditor"
    user.taps(f"{editor} > QAbstractButton")
    user.sees_nothing_cut_off()
    user.scrolls_to(f"{editor} > shortcut", f"{editor} > QScrollArea")


def tools_show_code_signals_and_the_style_sheet(user):
    _opens_page(user, "Switch")
    _chooses_tool(user, "Code")
    user.place("window > CodeView")
    _chooses_tool(user, "Signals")
    user.taps("switch > Bluetooth")
    log = user.ask("property", "window > SignalLog", "plainText")
    user.expect("whether the log names the signal", "toggled(true)" in log, True)
    _chooses_tool(user, "Style sheet")
    user.place("styleSheetText")
    _chooses_tool(user, "Page alone")
    user.sees_no("styleSheetText")


def _opens_gallery(user):
    """At once, since the overview greets for some seconds."""
    user.ask("open", "gallery")
    user.keeps_finger_down("wait 500")


def _opens_page(user, title):
    _opens_gallery(user)
    user.scrolls_to(f"pageList > {title}", "pageList")
    user.taps(f"pageList > {title}")


def _opens_every_page(user, is_open=False):
    if not is_open:
        _opens_gallery(user)
    _sees_every_page(user, lambda title: user.scrolls_to(f"pageList > {title}", "pageList"),
                     "pageList")


def _opens_every_page_of_the_tall_screen(user):
    _opens_gallery(user)
    _sees_every_page(user, lambda title: user.taps("pageChoice"), "popup")


def _sees_every_page(user, finds, choices):
    pages = user.ask("property", "window", "pages")
    titles = user.ask("property", "window", "titles")
    for page, title in list(zip(pages, titles))[1:]:
        finds(title)
        user.taps(f"{choices} > {title}")
        user.place(page)
        user.sees_nothing_cut_off()


def _chooses_tool(user, tool):
    user.taps("toolChoice")
    user.taps(f"popup > {tool}")
    user.sees_nothing_cut_off()
