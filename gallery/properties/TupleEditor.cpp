#include "FoldoutEditors.h"

#include "SimpleEditors.h"
#include "ValueText.h"

#include <QRect>

namespace {

struct Number
{
    QString name;
    int value;
};

QVector<Number> numbersOf(const QVariant& value)
{
    const QRect rect = value.toRect();
    const QPoint point = value.userType() == QMetaType::QRect ? rect.topLeft() : value.toPoint();
    const QSize size = value.userType() == QMetaType::QRect ? rect.size() : value.toSize();
    QVector<Number> numbers;
    if (value.userType() != QMetaType::QSize)
        numbers << Number{QStringLiteral("x"), point.x()} << Number{QStringLiteral("y"), point.y()};
    if (value.userType() != QMetaType::QPoint) {
        numbers << Number{TupleEditor::tr("width"), size.width()}
                << Number{TupleEditor::tr("height"), size.height()};
    }
    return numbers;
}

QVariant composed(int type, const QVector<Number>& numbers)
{
    const auto number = [&numbers](int index) { return numbers.at(index).value; };
    switch (type) {
    case QMetaType::QPoint:
        return QPoint(number(0), number(1));
    case QMetaType::QSize:
        return QSize(number(0), number(1));
    default:
        return QRect(number(0), number(1), number(2), number(3));
    }
}

} // namespace

TupleEditor::TupleEditor(QWidget* parent)
    : FoldoutEditor(parent)
{
}

QString TupleEditor::summary(const QVariant& value) const
{
    return valueText(value);
}

QWidget* TupleEditor::makeBody()
{
    auto* form = new PartsForm;
    const QVector<Number> numbers = numbersOf(value());
    for (int index = 0; index < numbers.size(); ++index) {
        auto* editor = new IntEditor;
        connect(editor, &IntEditor::edited, this,
                [this, index](const QVariant& number) { enterNumber(index, number.toInt()); });
        form->addPart(numbers.at(index).name, editor);
        m_editors.append(editor);
    }
    return form;
}

void TupleEditor::fillBody(const QVariant& value)
{
    const QVector<Number> numbers = numbersOf(value);
    for (int index = 0; index < m_editors.size(); ++index)
        m_editors.at(index)->setValue(numbers.at(index).value);
}

void TupleEditor::enterNumber(int index, int number)
{
    QVector<Number> numbers = numbersOf(value());
    numbers[index].value = number;
    Q_EMIT edited(composed(value().userType(), numbers));
}
