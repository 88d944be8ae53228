#pragma once

#include "ClassSheet.h"

/// What the picture of every class of the library shows, by class name.
QVector<ClassSheet> allClassSheets();
