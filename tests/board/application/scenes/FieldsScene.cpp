#include "scenes/FieldsScene.h"

#include "Journal.h"

#include <ui/KeypadLineEdit.h>

#include <QDialog>
#include <QFormLayout>
#include <QIntValidator>
#include <QLineEdit>
#include <QPushButton>

using ui::KeypadLineEdit;
using ui::keyboard::KeyboardType;

FieldsScene::FieldsScene(Journal& journal)
    : m_journal(journal)
{
    auto* form = new QFormLayout(this);
    addField(form, QStringLiteral("name"), KeyboardType::Text, QStringLiteral("Kitchen"));
    KeypadLineEdit* channel =
        addField(form, QStringLiteral("channel"), KeyboardType::Integer, QStringLiteral("11"));
    channel->setValidator(new QIntValidator(10, 99, channel));
    addField(form, QStringLiteral("price"), KeyboardType::Decimal, QStringLiteral("2.5"));

    auto* comment = new QLineEdit(QStringLiteral("a plain line edit"));
    comment->setObjectName(QStringLiteral("comment"));
    form->addRow(comment->objectName(), comment);

    auto* button = new QPushButton(QStringLiteral("Save"));
    button->setObjectName(QStringLiteral("save"));
    connect(button, &QPushButton::clicked, this,
            [this] { m_journal.record(QStringLiteral("save clicked")); });
    form->addRow(button);
}

KeypadLineEdit* FieldsScene::addField(QFormLayout* form, const QString& name, KeyboardType type,
                                      const QString& text)
{
    auto* field = new KeypadLineEdit(nullptr, type);
    field->setObjectName(name);
    field->setText(text);
    field->setMaximumWidth(300);
    connect(field, &KeypadLineEdit::valueChanged, this,
            [this, name] { m_journal.record(name + QStringLiteral(" changed")); });
    connect(field, &KeypadLineEdit::editingFinished, this,
            [this, name] { m_journal.record(name + QStringLiteral(" finished")); });
    form->addRow(name, field);
    return field;
}

void FieldsScene::openDialog()
{
    auto* dialog = new QDialog(this);
    dialog->setObjectName(QStringLiteral("dialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    auto* form = new QFormLayout(dialog);
    addField(form, QStringLiteral("password"), KeyboardType::Text, QString());
    dialog->open();
}
