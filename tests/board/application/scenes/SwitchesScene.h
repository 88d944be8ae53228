#pragma once

#include <QWidget>

class Journal;

/// Switches: one as it is made, one in its own colour, and a disabled one.
class SwitchesScene : public QWidget
{
    Q_OBJECT

public:
    explicit SwitchesScene(Journal& journal);
};
