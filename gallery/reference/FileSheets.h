#pragma once

#include "ClassSheet.h"

#include <QCoreApplication>

/// What the pictures of the file browser and of its model show.
class FileSheets
{
    Q_DECLARE_TR_FUNCTIONS(FileSheets)

public:
    static ClassSheet fileBrowser();
    static ClassSheet fileSystemModel();
};
