#include "Samples.h"

#include <ui/CRoundedFrame.h>

#include <QBoxLayout>
#include <QLabel>

void samples::roundedFrame(QWidget* window)
{
    //! [CRoundedFrame]
    auto* frame = new ui::CRoundedFrame(window);
    frame->setFrameShadow(QFrame::Raised);
    frame->enableFillContents(true);

    auto* column = new QVBoxLayout(frame);
    column->addWidget(new QLabel(QObject::tr("Volume")));
    //! [CRoundedFrame]
}
