#pragma once

#include "ClassSheet.h"

#include <QCoreApplication>

/// What the picture of the scroll indicator shows.
class ScrollIndicatorSheet
{
    Q_DECLARE_TR_FUNCTIONS(ScrollIndicatorSheet)

public:
    static ClassSheet sheet();
};
