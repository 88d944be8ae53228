#pragma once

#include <ui/keyboard/KeyboardType.h>

#include <QWidget>

QT_BEGIN_NAMESPACE
class QDialog;
class QFormLayout;
QT_END_NAMESPACE

class Journal;

namespace ui {
class KeypadLineEdit;
}

/// A form of fields with keypads of every kind, and a dialog with one more field.
class FieldsScene : public QWidget
{
    Q_OBJECT

public:
    explicit FieldsScene(Journal& journal);

    Q_INVOKABLE void openDialog();

private:
    ui::KeypadLineEdit* addField(QFormLayout* form, const QString& name,
                                 ui::keyboard::KeyboardType type, const QString& text);

    Journal& m_journal;
};
