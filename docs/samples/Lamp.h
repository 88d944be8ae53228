#pragma once

//! [SelectionControl]
#include <SelectionControl.h>

class Lamp : public SelectionControl
{
    Q_OBJECT

public:
    explicit Lamp(QWidget* parent = nullptr);

    using SelectionControl::toggle;
    void toggle(Qt::CheckState state) override;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
//! [SelectionControl]
