#include "ValueEditor.h"

ValueEditor::ValueEditor(QWidget* parent)
    : QWidget(parent)
{
}

bool ValueEditor::isNarrow() const
{
    return false;
}
