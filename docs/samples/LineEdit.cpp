#include "Samples.h"

#include <ui/LineEdit.h>

#include <QRegularExpressionValidator>

void samples::lineEdit(QWidget* window)
{
    //! [LineEdit]
    auto* name = new ui::LineEdit(window);
    name->setValidator(new QRegularExpressionValidator(QRegularExpression("[a-z]{3,8}"), name));
    name->setStyleSheet("ui--LineEdit[inputValid=\"false\"] { color: #b00020; }");
    QObject::connect(name, &ui::LineEdit::valueChanged, window,
                     [name, window] { window->setWindowTitle(name->text()); });
    //! [LineEdit]
}

void samples::setTextAndValidate(ui::LineEdit* name, const QString& text)
{
    //! [setText]
    name->setText(text);
    Q_EMIT name->textEdited(text); // validates it, as if the user had typed it
    //! [setText]
}
