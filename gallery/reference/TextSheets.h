#pragma once

#include "ClassSheet.h"

#include <QCoreApplication>

/// What the pictures of the text fields and of their pop-up show.
class TextSheets
{
    Q_DECLARE_TR_FUNCTIONS(TextSheets)

public:
    static ClassSheet keypadLineEdit();
    static ClassSheet keypadPopup();
    static ClassSheet lineEdit();
};
