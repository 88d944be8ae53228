#pragma once

#include "FoldoutEditor.h"

#include <QVector>

class IntEditor;

/// Edits a QPoint, QSize or QRect by its numbers.
class TupleEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit TupleEditor(QWidget* parent = nullptr);

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    void enterNumber(int index, int number);

    QVector<IntEditor*> m_editors;
};
