#pragma once

#include "ClassSheet.h"

#include <QCoreApplication>

/// What the picture of the battery shows.
class BatterySheet
{
    Q_DECLARE_TR_FUNCTIONS(BatterySheet)

public:
    static ClassSheet sheet();
};
