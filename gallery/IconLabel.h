#pragma once

#include <QLabel>

/// An icon of the library on a light plate, since the icons are dark; it is seen on any background.
class IconLabel : public QLabel
{
    Q_OBJECT

public:
    /// \a fileName is a name below :/icons/.
    IconLabel(const QString& fileName, int extent, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
