#pragma once

#include <QWidget>

/// Batteries at every charge, and one that charges, one that is absent.
class BatteryScene : public QWidget
{
    Q_OBJECT

public:
    BatteryScene();
};
