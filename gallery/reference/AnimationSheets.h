#pragma once

#include "ClassSheet.h"

#include <QCoreApplication>

/// What the pictures of the classes that animate show.
class AnimationSheets
{
    Q_DECLARE_TR_FUNCTIONS(AnimationSheets)

public:
    static ClassSheet animator();
    static ClassSheet loop();
};
