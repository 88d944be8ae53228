#include "Samples.h"

#include <ui/CGridArrangedButton.h>

#include <QIcon>
#include <QLabel>

void samples::gridButton(QWidget* window)
{
    auto* stick = new QLabel(window);
    stick->setPixmap(QIcon(":/icons/usb.png").pixmap(24));

    //! [CGridArrangedButton]
    auto* button = new ui::CGridArrangedButton(window);
    button->addWidget(new QLabel(QObject::tr("USB stick")), 0, 0);
    button->addWidget(new QLabel(QObject::tr("12.4 GB free")), 1, 0);
    button->addWidget(stick, 0, 1, 2, 1, Qt::AlignCenter); // both rows of the second column
    button->setColumnStretch(0, 1);
    QObject::connect(button, &QPushButton::clicked, window, &QWidget::close);
    //! [CGridArrangedButton]
}
