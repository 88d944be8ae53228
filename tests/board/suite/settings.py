"""The settings example: everything in one panel."""


def a_switch_reports_what_it_is(user):
    user.opens("settings")
    user.taps("heating")
    user.sees("report", "text", "Heating is off")
    user.taps("heating")
    user.sees("report", "text", "Heating is on")


def a_temperature_is_typed(user):
    user.opens("settings")
    user.taps("temperature")
    user.sees_keypads("temperature")
    user.types("99")
    user.sees("keypad > OK", "enabled", False)
    user.types(["Backspace", "Backspace", "2", "1"])
    user.taps("keypad > OK")
    user.sees_keypads()
    user.sees("report", "text", "Temperature in °C, 5 to 30: 21")


def wireless_off_greys_its_fields(user):
    user.opens("settings")
    user.drags("area", 0, -150)
    user.taps("wifi")
    user.sees("port", "enabled", False)
    user.taps("port")
    user.sees_keypads()


def a_field_further_down_is_scrolled_to_and_edited(user):
    user.opens("settings")
    user.drags("area", 0, -190)
    user.taps("port")
    user.sees_keypads("port")
    user.types("80")
    user.taps("keypad > OK")
    user.sees("report", "text", "Port, 1 to 65535: 80")


def an_update_is_chosen(user):
    user.opens("settings")
    for _ in range(3):
        user.drags("area", 0, -200)
    user.taps("chooseUpdate")
    user.taps("updates > version-1.5.bin")
    user.sees_picture("updates", "updates")
    user.taps("updates > open")
    user.sees_no("updates")
    user.sees("update", "text", "version-1.5.bin")
