#pragma once

#include <string>

/// A multi-touch screen as wide and high as the frame buffer, made through /dev/uinput.
class Touchscreen
{
public:
    static constexpr int contacts = 5;

    Touchscreen(int width, int height);
    Touchscreen(const Touchscreen&) = delete;
    Touchscreen& operator=(const Touchscreen&) = delete;
    ~Touchscreen();

    /// Its /dev/input/eventN.
    std::string device() const;

    void press(int contact, int x, int y);
    /// Moves evenly, with a report every ten milliseconds.
    void move(int contact, int x, int y, int milliseconds);
    void release(int contact);

private:
    struct Place
    {
        int x = 0;
        int y = 0;
    };

    void addAxis(int axis, int maximum);
    void emitEvent(int type, int code, int value);
    void report(int contact, int tracking, Place place);
    bool isAnyDown() const;

    int m_file;
    bool m_down[contacts] = {};
    Place m_places[contacts];
    int m_tracking = 0;
};
