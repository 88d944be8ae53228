#pragma once

#include "ClassSheet.h"

#include <QCoreApplication>

/// What the pictures of the path bar and of its labels show.
class CrumbSheets
{
    Q_DECLARE_TR_FUNCTIONS(CrumbSheets)

public:
    static ClassSheet breadCrumbs();
    static ClassSheet clickableLabel();
};
