#pragma once

#include "GalleryPage.h"

namespace ui {
class CGridArrangedButton;
}
QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

/// ui::CGridArrangedButton with titles, values and icons.
class GridButtonPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit GridButtonPage(QWidget* parent = nullptr);

private:
    ui::CGridArrangedButton* makeWideButton();
    ui::CGridArrangedButton* makeTile(const QString& fileName, const QString& title);
    void present(ui::CGridArrangedButton* button, const QString& name);

    QLabel* m_report;
};
