#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QFormLayout;
QT_END_NAMESPACE

/// The parts of a value, each with its name, below the summary of a FoldoutEditor.
class PartsForm : public QWidget
{
    Q_OBJECT

public:
    explicit PartsForm(QWidget* parent = nullptr);

    void addPart(QWidget* editor);
    void addPart(const QString& name, QWidget* editor);

private:
    QFormLayout* m_layout;
};
