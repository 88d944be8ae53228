#pragma once

#include <QStringList>

/// Makes files and directories to browse; the two directories that they are in.
QStringList makeSampleFiles();
