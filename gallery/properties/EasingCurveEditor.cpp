#include "EasingCurveEditor.h"

#include "Touch.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEasingCurve>
#include <QMetaEnum>

EasingCurveEditor::EasingCurveEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_box(makeTypeBox())
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_box);
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        const auto type = QEasingCurve::Type(m_box->itemData(index).toInt());
        Q_EMIT edited(QVariant::fromValue(QEasingCurve(type)));
    });
}

void EasingCurveEditor::setValue(const QVariant& value)
{
    m_box->setCurrentIndex(m_box->findData(int(value.toEasingCurve().type())));
}

QComboBox* EasingCurveEditor::makeTypeBox()
{
    QComboBox* box = touch::makeComboBox();
    const QMetaEnum types = QMetaEnum::fromType<QEasingCurve::Type>();
    for (int i = 0; i < types.keyCount(); ++i) {
        if (types.value(i)
            < QEasingCurve::BezierSpline) // from here on a curve needs more than its type
            box->addItem(QString::fromLatin1(types.key(i)), types.value(i));
    }
    return box;
}
