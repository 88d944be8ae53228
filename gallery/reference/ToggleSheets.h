#pragma once

#include "ClassSheet.h"

#include <QCoreApplication>

/// What the pictures of the switch and of its base class show.
class ToggleSheets
{
    Q_DECLARE_TR_FUNCTIONS(ToggleSheets)

public:
    static ClassSheet selectionControl();
    static ClassSheet switchControl();
};
