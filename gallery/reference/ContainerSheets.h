#pragma once

#include "ClassSheet.h"

#include <QCoreApplication>

/// What the pictures of the frame and of the grid button show.
class ContainerSheets
{
    Q_DECLARE_TR_FUNCTIONS(ContainerSheets)

public:
    static ClassSheet gridButton();
    static ClassSheet roundedFrame();
};
