#pragma once

#include "GalleryPage.h"

QT_BEGIN_NAMESPACE
class QScrollArea;
QT_END_NAMESPACE

/// ui::widgets::ScrollIndicatorBar on areas that are dragged by touch, highlighted while they move.
class ScrollIndicatorPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ScrollIndicatorPage(QWidget* parent = nullptr);

private:
    QScrollArea* makeList();
    QScrollArea* makePanorama();
    void addIndicator(QScrollArea* area, Qt::Orientation orientation, const QString& name);
};
