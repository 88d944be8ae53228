#pragma once

#include <QWidget>

/// A landscape, painted: something colourful to lay frames on and to scroll over.
class Picture : public QWidget
{
    Q_OBJECT

public:
    explicit Picture(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
